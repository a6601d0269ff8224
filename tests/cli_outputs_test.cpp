// tamrel generate's outputs: never destroyed, never exposed, never half
// written, and every report accounted for in the protocol; the command
// line's smaller messages.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "run/atomic_file.h"
#include "run/output_encoding.h"

#include "test_support.h"
#include "tests/cli_jobs.h"

namespace fs = std::filesystem;
using nlohmann::json;
using namespace tamrel::cli;

namespace {

using tamrel::testing::slurp;

struct Outcome {
    int status;
    std::string out, err;
};

class Outputs : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = tamrel::testing::fresh_folder("outputs");
        write_job(json::array({report("Muster")}));
    }
    void TearDown() override { fs::remove_all(dir_); }

    static json report(const std::string& name) { return tamrel::testing::named_report(name); }
    void write_job(const json& reports) const {
        std::ofstream(dir_ / "job.json") << tamrel::testing::small_job(reports).dump();
    }
    // Runs tamrel in the test's folder with `args`, under `umask`.
    Outcome run(const std::string& args, const char* umask = "022") const {
        const std::string err = (dir_ / "stderr").string();
        const std::string cmd =
            "cd " + dir_.string() + " && umask " + umask + " && " + TAMREL_EXE + " " + args + " 2>" + err;
        FILE* p = popen(cmd.c_str(), "r");
        std::string out;
        char buf[4096];
        while (std::size_t n = std::fread(buf, 1, sizeof buf, p)) out.append(buf, n);
        const int status = pclose(p);
        return {WEXITSTATUS(status), out, slurp(err)};
    }
    std::string file(const std::string& name) const { return slurp(dir_ / name); }
    void put(const std::string& name, const std::string& text) const { std::ofstream(dir_ / name) << text; }
    unsigned mode(const std::string& name) const {
        struct stat s {};
        ::stat((dir_ / name).c_str(), &s);
        return s.st_mode & 0777;
    }

    fs::path dir_;
};

TEST_F(Outputs, TwoOutputsThatAreOneFileAreRefusedBeforeAnythingIsWritten) {
    put("out.txt", "previous");
    fs::create_symlink("out.txt", dir_ / "link.txt");
    for (const char* pair : {"-o out.txt --protocol out.txt", "-o out.txt --protocol ./out.txt",
                             "-o out.txt --protocol link.txt", "-o new.txt --protocol ./sub/../new.txt"}) {
        if (std::string(pair).find("sub") != std::string::npos) fs::create_directories(dir_ / "sub");
        const Outcome r = run(std::string("generate job.json ") + pair);
        EXPECT_EQ(r.status, 2) << pair;
        EXPECT_NE(r.err.find("same file as --output"), std::string::npos) << pair << ": " << r.err;
    }
    const Outcome input = run("generate job.json -o p.txt --protocol job.json");
    EXPECT_EQ(input.status, 2);
    EXPECT_NE(input.err.find("--protocol job.json would overwrite job.json"), std::string::npos) << input.err;
    EXPECT_EQ(file("out.txt"), "previous");
    EXPECT_FALSE(fs::exists(dir_ / "new.txt"));
    EXPECT_FALSE(fs::exists(dir_ / "p.txt"));
}

TEST_F(Outputs, AnOutputThatCannotBeWrittenIsRefusedBeforeAnythingIsWritten) {
    put("out.txt", "previous");
    fs::create_directories(dir_ / "folder");
    for (const char* args :
         {"-o out.txt --protocol folder", "-o folder", "-o missing/out.txt", "-o out.txt --protocol missing/p.txt"}) {
        const Outcome r = run(std::string("generate job.json ") + args);
        EXPECT_EQ(r.status, 2) << args << ": " << r.err;
    }
    EXPECT_EQ(file("out.txt"), "previous");
    EXPECT_TRUE(fs::is_empty(dir_ / "folder"));
}

TEST_F(Outputs, NewFilesFollowTheUmaskAndReplacedFilesKeepTheirMode) {
    EXPECT_EQ(run("generate job.json -o new.txt", "027").status, 0);
    EXPECT_EQ(mode("new.txt"), 0640u);
    EXPECT_EQ(run("generate job.json -o open.txt", "000").status, 0);
    EXPECT_EQ(mode("open.txt"), 0666u);
    put("kept.txt", "previous");
    fs::permissions(dir_ / "kept.txt", fs::perms(0600));
    EXPECT_EQ(run("generate job.json -o kept.txt").status, 0);
    EXPECT_EQ(mode("kept.txt"), 0600u);
    EXPECT_NE(file("kept.txt"), "previous");
}

TEST_F(Outputs, ALinkIsWrittenThroughAndStandardOutputIsAStream) {
    fs::create_directories(dir_ / "real");
    put("real/out.txt", "previous");
    fs::create_symlink("real/out.txt", dir_ / "link.txt");
    fs::create_symlink("real/dangling.txt", dir_ / "dangling.txt");
    ASSERT_EQ(run("generate job.json -o link.txt").status, 0);
    EXPECT_TRUE(fs::is_symlink(dir_ / "link.txt"));
    const std::string transfer = file("real/out.txt");
    EXPECT_EQ(transfer.substr(0, 9), "VOSZAGDEU");
    ASSERT_EQ(run("generate job.json -o dangling.txt").status, 0);
    EXPECT_TRUE(fs::is_symlink(dir_ / "dangling.txt"));
    EXPECT_EQ(file("real/dangling.txt"), transfer);

    const Outcome dash = run("generate job.json -o -");
    EXPECT_EQ(dash.status, 0);
    EXPECT_EQ(dash.out, transfer);
    // /dev/stdout is a link to the pipe: written through, never replaced.
    const Outcome dev = run("generate job.json -o /dev/stdout");
    EXPECT_EQ(dev.status, 0);
    EXPECT_EQ(dev.out, transfer);
    EXPECT_TRUE(fs::is_symlink("/dev/stdout"));
    // A failing run writes nothing to the stream either.
    write_job(json::array({report("Muster"), {{"Meldegrund", "99"}}}));
    const Outcome failed = run("generate job.json -o -");
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.out, "");
}

TEST_F(Outputs, EveryReportHasItsProtocolLineWhateverItHolds) {
    write_job(json::array({report("\xC5\x81ukasz"), report("Tab\there"), report("Muster")}));
    const Outcome r = run("generate job.json -o out.txt --protocol p.txt --keep-going");
    EXPECT_EQ(r.status, 3) << r.err;
    EXPECT_NE(r.err.find("report 1: Vorgang.Aktenzeichen \"\xC5\x81ukasz\": \"\xC5\x81\" (U+0141, at position "),
              std::string::npos)
        << r.err;
    EXPECT_NE(r.err.find("cannot be written in ISO-8859-1; --transliterate writes it as \"L\""), std::string::npos);
    std::istringstream lines(file("p.txt"));
    std::string first, second, third;
    std::getline(lines, first), std::getline(lines, second), std::getline(lines, third);
    EXPECT_NE(first.find("\"Lukasz\""), std::string::npos) << first;  // the protocol writes the substitute
    EXPECT_NE(first.find(";1;\"report 1: "), std::string::npos) << first;
    // A control character fails its report, named with its property; its
    // protocol line says why, without the character.
    EXPECT_NE(second.find(";1;\"report 2: Vorgang.Aktenzeichen ;Tab<U+0009>here;: the control character U+0009"),
              std::string::npos)
        << second;
    EXPECT_EQ(file("out.txt").find("Tab"), std::string::npos);
    EXPECT_NE(third.find("\"Muster\""), std::string::npos);
}

TEST_F(Outputs, TransliterationWritesTheUsualSubstitutesAndSaysSo) {
    write_job(json::array({report("\xC5\x81ukasz G\xC3\xBC\xC4\x9F\x65l \xC5\x93")}));
    const Outcome r = run("generate job.json -o out.txt --transliterate --encoding latin1");
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_NE(file("out.txt").find("Lukasz G\xFCgel oe "), std::string::npos);
    EXPECT_NE(
        r.err.find("report 1: Vorgang.Aktenzeichen \"\xC5\x81ukasz G\xC3\xBC\xC4\x9F\x65l \xC5\x93\": \"\xC5\x81\" "
                   "(U+0141) written as \"L\""),
        std::string::npos)
        << r.err;
    // The protocol line records them as its text, in its own encoding.
    ASSERT_EQ(run("generate job.json -o out.txt --protocol p.txt --transliterate").status, 0);
    EXPECT_NE(file("p.txt").find(";0;\"Vorgang.Aktenzeichen ;Lukasz G\xFCgel oe;: ;L; (U+0141) written as ;L;, "),
              std::string::npos)
        << file("p.txt");
}

TEST_F(Outputs, LeftoversOfAKilledRunAreRemovedOrReported) {
    put(".out.txt.tamrel-999999999-Ab12Cd", "partial");
    put(".out.txt.tmp-Ab12Cd", "partial of an older version");
    put("notes.tamrel-1-Ab12Cd", "a user's file");
    const Outcome r = run("generate job.json -o out.txt");
    EXPECT_EQ(r.status, 0);
    EXPECT_FALSE(fs::exists(dir_ / ".out.txt.tamrel-999999999-Ab12Cd"));
    EXPECT_TRUE(fs::exists(dir_ / ".out.txt.tmp-Ab12Cd"));
    EXPECT_TRUE(fs::exists(dir_ / "notes.tamrel-1-Ab12Cd"));
    EXPECT_NE(r.err.find("removed "), std::string::npos) << r.err;
    EXPECT_NE(r.err.find(".out.txt.tmp-Ab12Cd, perhaps left by an interrupted run"), std::string::npos) << r.err;
}

TEST_F(Outputs, SmallerMessagesNameWhatIsWrong) {
    fs::create_directories(dir_ / "folder");
    const std::pair<std::string, std::string> cases[] = {
        {"generate folder -o out.txt", "folder: is a folder, not a job file"},
        {"generate job.json -o out.txt --reports missing.ndjson", "missing.ndjson: cannot be read: No such file"},
        {"generat job.json", "unknown subcommand \"generat\"; the subcommands are: call generate"},
    };
    for (const auto& [args, message] : cases) {
        const Outcome r = run(args);
        EXPECT_EQ(r.status, 2) << args;
        EXPECT_NE(r.err.find(message), std::string::npos) << args << ": " << r.err;
    }
    std::ofstream(dir_ / "job.json") << R"({"strBNRAb":"1"})";
    EXPECT_NE(run("generate job.json -o out.txt").err.find("job.json: class: missing"), std::string::npos);

    // Blank lines are no requests; --line-numbers ties each answer to its line.
    put("requests.ndjson", "\n{\"class\":\"clsGenX\",\"method\":\"GenData\"}\n\n[]\n");
    const Outcome call = run("call --line-numbers - < requests.ndjson");
    EXPECT_EQ(call.out,
              "{\"line\":2,\"request_error\":\"class: unknown class clsGenX\"}\n"
              "{\"line\":4,\"request_error\":\"request: expected a JSON object\"}\n");
}

// When the second file cannot be put in place, the first gets back what it
// replaced: both files are written, or neither.
TEST_F(Outputs, APairIsCommittedWholeOrNotAtAll) {
    put("out.txt", "previous");
    {
        AtomicFile transfer(resolve_output((dir_ / "out.txt").string()));
        AtomicFile protocol(resolve_output((dir_ / "p.txt").string()));
        transfer.write("new transfer");
        protocol.write("new protocol");
        fs::create_directories(dir_ / "p.txt" / "in the way");
        EXPECT_THROW(commit_all({&transfer, &protocol}), std::runtime_error);
    }
    EXPECT_EQ(file("out.txt"), "previous");
    for (const auto& e : fs::directory_iterator(dir_))
        EXPECT_EQ(e.path().filename().string().find(".tamrel-"), std::string::npos) << e.path();
}

TEST(OutputEncoding, SubstitutesAreUsedOnlyWhereTheEncodingFallsShort) {
    std::string out;
    std::vector<Substitution> made;
    EXPECT_FALSE(encode(out, "\xC5\x81\xC3\xBC\xE2\x82\xAC", Encoding::Latin9, Unencodable::Transliterate, &made));
    EXPECT_EQ(out, "L\xFC\xA4");  // Ł substituted; ü and € are Latin-9
    ASSERT_EQ(made.size(), 1u);
    EXPECT_EQ(made[0].to, "L");
    out.clear();
    const EncodeFailure f = encode(out, "ab\xD0\x96", Encoding::Latin1, Unencodable::Transliterate);
    EXPECT_EQ(f.position, 3u);
    EXPECT_EQ(f.character, "\xD0\x96");
    out.clear();
    EXPECT_FALSE(encode(out, "a\tb\xD0\x96\xC5\x93", Encoding::Latin1, Unencodable::Replace));
    EXPECT_EQ(out, "ab?oe");
}

}  // namespace
