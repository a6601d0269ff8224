// What tamrel does at the edges of its files and inputs: every output
// checked against every input and output, a file reached through the
// process's own descriptor written in place, a broken stream that leaves the
// protocol as it was, endless input stopped at its bound in bounded memory,
// and the smaller messages of check, inspect and docs.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <nlohmann/json.hpp>

#include "test_support.h"
#include "tests/cli_jobs.h"

extern char** environ;

namespace fs = std::filesystem;
using nlohmann::json;
using tamrel::testing::slurp;

namespace {

struct Outcome {
    int status;
    std::string out, err;
    long peak_kib = 0;  // the largest resident size of the run
};

class Robustness : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = tamrel::testing::fresh_folder("robustness");
        write_job(json::array({report("Muster"), report("Beispiel")}));
    }
    void TearDown() override { fs::remove_all(dir_); }

    static json report(const std::string& name) { return tamrel::testing::named_report(name); }
    void write_job(const json& reports) const { put("job.json", tamrel::testing::small_job(reports).dump()); }
    // Runs a shell command line in the test's folder, tamrel standing for
    // the tool; standard output is read, standard error kept apart.
    Outcome shell(const std::string& line) const {
        std::string cmd = line;
        for (std::size_t at; (at = cmd.find("tamrel ")) != std::string::npos;)
            cmd.replace(at, 6, std::string(TAMREL_EXE) + "\x01");
        for (char& c : cmd)
            if (c == '\x01') c = ' ';
        return spawn({"/bin/sh", "-c", "cd " + dir_.string() + " && " + cmd});
    }
    // Runs `argv` with standard output into `out_fd` (-1: a pipe that is
    // read), and measures its peak memory.
    Outcome spawn(const std::vector<std::string>& argv, int out_fd = -1) const {
        int pipe_fd[2] = {-1, -1};
        if (out_fd < 0 && ::pipe(pipe_fd) != 0) return {-1, "", "pipe", 0};
        const std::string err_path = (dir_ / "stderr").string();
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, out_fd < 0 ? pipe_fd[1] : out_fd, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err_path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (out_fd < 0) posix_spawn_file_actions_addclose(&actions, pipe_fd[0]);
        std::vector<char*> args;
        for (const std::string& a : argv) args.push_back(const_cast<char*>(a.c_str()));
        args.push_back(nullptr);
        pid_t pid = 0;
        const int spawned = posix_spawn(&pid, args[0], &actions, nullptr, args.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        Outcome r{-1, "", "", 0};
        if (out_fd < 0) {
            ::close(pipe_fd[1]);
            char buf[4096];
            for (ssize_t n; (n = ::read(pipe_fd[0], buf, sizeof buf)) > 0;) r.out.append(buf, static_cast<size_t>(n));
            ::close(pipe_fd[0]);
        }
        if (spawned != 0) return r;
        int status = 0;
        struct rusage usage {};
        ::wait4(pid, &status, 0, &usage);
        r.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        r.err = slurp(err_path);
        r.peak_kib = usage.ru_maxrss;
        return r;
    }
    std::string file(const std::string& name) const { return slurp(dir_ / name); }
    void put(const std::string& name, const std::string& text) const {
        std::ofstream(dir_ / name, std::ios::binary) << text;
    }
    bool temporaries_left() const {
        for (const auto& e : fs::directory_iterator(dir_))
            if (e.path().filename().string().find(".tamrel-") != std::string::npos) return true;
        return false;
    }

    fs::path dir_;
};

TEST_F(Robustness, EveryOutputIsCheckedAgainstEveryInputAndEveryOtherOutput) {
    put("reports.ndjson", report("Muster").dump() + "\n");
    put("p.prot", "protocol");
    const struct {
        const char* args;
        const char* message;
    } cases[] = {
        {"-o out.txt --findings job.json", "--findings job.json would overwrite job.json"},
        {"-o out.txt --log job.json", "--log job.json would overwrite job.json"},
        {"-o out.txt --reports reports.ndjson --log reports.ndjson",
         "--log reports.ndjson would overwrite reports.ndjson"},
        {"-o out.txt --findings out.txt", "--findings out.txt names the same file as --output out.txt"},
        {"-o out.txt --protocol p.prot --log ./p.prot", "--log ./p.prot names the same file as --protocol p.prot"},
        {"-o out.txt --findings f.ndjson --log sub/../f.ndjson",
         "--log sub/../f.ndjson names the same file as --findings f.ndjson"},
        {"-o out.txt --protocol ''", "--protocol: the path is empty"},
        {"-o out.txt --findings ''", "--findings: the path is empty"},
        {"-o out.txt --log ''", "--log: the path is empty"},
        {"-o out.txt --reports ''", "--reports: the path is empty"},
        {"-o out.txt --findings missing/f.ndjson", "the folder missing does not exist"},
    };
    fs::create_directories(dir_ / "sub");
    const std::string job = file("job.json"), reports = file("reports.ndjson");
    for (const auto& c : cases) {
        const Outcome r = shell(std::string("tamrel generate job.json ") + c.args);
        EXPECT_EQ(r.status, 2) << c.args;
        EXPECT_NE(r.err.find(c.message), std::string::npos) << c.args << ": " << r.err;
        EXPECT_EQ(file("job.json"), job) << c.args;
        EXPECT_EQ(file("reports.ndjson"), reports) << c.args;
        EXPECT_EQ(file("p.prot"), "protocol") << c.args;
        EXPECT_FALSE(fs::exists(dir_ / "out.txt")) << c.args;
        EXPECT_FALSE(fs::exists(dir_ / "f.ndjson")) << c.args;
    }
    // The findings and the log are written by the same atomic path, and kept
    // when a report fails: they tell why.
    write_job(json::array({report("Muster"), {{"Meldegrund", "62"}, {"Meldungsart", 1}}}));
    const Outcome failed = shell("tamrel generate job.json -o out.txt --findings f.ndjson --log l.ndjson");
    EXPECT_EQ(failed.status, 1) << failed.err;
    EXPECT_FALSE(fs::exists(dir_ / "out.txt"));
    EXPECT_NE(file("f.ndjson").find("\"rule\":\"MISSING\""), std::string::npos) << file("f.ndjson");
    EXPECT_TRUE(fs::exists(dir_ / "l.ndjson"));
    EXPECT_FALSE(temporaries_left());
}

TEST_F(Robustness, AFileReachedThroughTheProcesssOwnDescriptorIsWrittenInPlace) {
    ASSERT_EQ(shell("tamrel generate job.json -o expected.txt --protocol expected.prot").status, 0);
    const std::string transfer = file("expected.txt"), protocol = file("expected.prot");
    for (const char* path : {"/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"}) {
        put("existing.log", "earlier\n");
        const Outcome r = shell(std::string("tamrel generate job.json -o ") + path + " >> existing.log");
        EXPECT_EQ(r.status, 0) << path << ": " << r.err;
        EXPECT_EQ(file("existing.log"), "earlier\n" + transfer) << path;
    }
    put("existing.log", "earlier\n");
    const Outcome both = shell("tamrel generate job.json -o out.txt --protocol /dev/stdout >> existing.log");
    EXPECT_EQ(both.status, 0) << both.err;
    EXPECT_EQ(file("existing.log"), "earlier\n" + protocol);
    // Two outputs into the one file the descriptor holds are refused.
    const Outcome twice = shell("tamrel generate job.json -o /dev/stdout --protocol /dev/fd/1 >> existing.log");
    EXPECT_EQ(twice.status, 2);
    EXPECT_NE(twice.err.find("names the same file as --output /dev/stdout"), std::string::npos) << twice.err;
}

TEST_F(Robustness, ABrokenStreamLeavesTheProtocolAsItWas) {
    put("p.prot", "previous");
    int fds[2];
    ASSERT_EQ(::pipe(fds), 0);
    ::close(fds[0]);  // nobody reads: the first write breaks
    const Outcome r = spawn(
        {TAMREL_EXE, "generate", (dir_ / "job.json").string(), "-o", "-", "--protocol", (dir_ / "p.prot").string()},
        fds[1]);
    ::close(fds[1]);
    EXPECT_EQ(r.status, 4) << r.err;
    EXPECT_NE(r.err.find("-: write failed: Broken pipe"), std::string::npos) << r.err;
    EXPECT_EQ(file("p.prot"), "previous");
    EXPECT_FALSE(temporaries_left());
}

TEST_F(Robustness, EndlessInputStopsAtItsBoundInBoundedMemory) {
    // 40 MiB without a line end: read no further than the bound.
    put("unbroken.txt", std::string(40 << 20, 'A'));
    put("blank.txt", std::string(3 << 20, ' ') + "\n");  // blank, but beyond the bound: not passed over
    const struct {
        const char* line;
        int status;
        const char* message;
    } cases[] = {
        {"tamrel generate job.json -o out.txt --reports /dev/zero --keep-going", 1,
         "report 1 (line 1): line of 1048577 bytes or more, longer than the limit of 1048576 bytes"},
        {"tamrel call /dev/zero", 2, ""},
        {"tamrel call blank.txt", 2, ""},
        {"tamrel check /dev/zero", 2, "/dev/zero: record 1: line of 1048577 bytes or more"},
        {"tamrel inspect /dev/zero", 2, "/dev/zero: record 1: line of 1048577 bytes or more"},
        {"tamrel check unbroken.txt", 2, "unbroken.txt: record 1: line of 1048577 bytes or more"},
        {"cat unbroken.txt | tamrel check -", 2, "-: record 1: line of 1048577 bytes or more"},
    };
    // A child's peak memory counts the test's own from before it started
    // the program: what a run adds is measured above that of a run that
    // reads nothing.
    const long baseline = shell("tamrel --version").peak_kib;
    for (const auto& c : cases) {
        const Outcome r = shell(c.line);
        EXPECT_EQ(r.status, c.status) << c.line << ": " << r.err;
        EXPECT_NE(r.err.find(c.message), std::string::npos) << c.line << ": " << r.err;
        EXPECT_LT(r.peak_kib, baseline + 48 * 1024) << c.line << ": peak " << r.peak_kib << " KiB";
    }
    EXPECT_FALSE(fs::exists(dir_ / "out.txt"));
}

TEST_F(Robustness, CheckAndInspectReadAnyInputTheyAreGiven) {
    // "MÃ¼ller" written in ISO-8859-1 is valid UTF-8 ("Mü"): found out as
    // UTF-8, the record is two characters short; --encoding reads it right.
    write_job(json::array({report("M\xC3\x83\xC2\xBCller")}));
    ASSERT_EQ(shell("tamrel generate job.json -o out.txt").status, 0);
    EXPECT_EQ(shell("tamrel check out.txt").status, 1);
    const Outcome latin1 = shell("tamrel check --encoding latin1 out.txt");
    EXPECT_EQ(latin1.status, 0) << latin1.out;
    EXPECT_EQ(shell("tamrel check --encoding latin1 - < out.txt").status, 0);
    EXPECT_EQ(shell("cat out.txt | tamrel inspect --encoding latin1 - --record 3").status, 0);

    // --json: one finding a line, the summary on standard error.
    put("bad.txt", file("out.txt").substr(0, 200) + "\n");
    const Outcome findings = shell("tamrel check --json bad.txt");
    EXPECT_EQ(findings.status, 1);
    std::istringstream lines(findings.out);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count) EXPECT_EQ(json::parse(line)["severity"], "error");
    EXPECT_GT(count, 0u);
    EXPECT_NE(findings.err.find("bad.txt: 2 records, "), std::string::npos) << findings.err;

    // A binary file never reaches the terminal raw.
    put("binary.txt", std::string("VOSZ\x1b]0;pwned\x07\x9b\x00zz", 18) + "\n");
    for (const char* line : {"tamrel inspect binary.txt", "tamrel check binary.txt"}) {
        const Outcome r = shell(line);
        EXPECT_EQ((r.out + r.err).find_first_of(std::string("\x1b\x07\x9b\x00", 4)), std::string::npos) << line;
    }
    EXPECT_NE(shell("tamrel inspect binary.txt").out.find("[VOSZ<U+001B>]0;pwned<U+0007><U+009B><U+0000>zz]"),
              std::string::npos);
}

TEST_F(Robustness, SmallerMessagesNameWhatIsWrong) {
    fs::create_directories(dir_ / "folder");
    const struct {
        const char* line;
        int status;
        const char* message;
    } cases[] = {
        {"tamrel ", 2, "a subcommand is required: call generate check inspect read docs"},
        {"tamrel check folder", 2, "folder: is a folder, not a transfer file"},
        {"tamrel inspect folder", 2, "folder: is a folder, not a transfer file"},
        {"tamrel inspect job.json --record 0", 2, "records are counted from 1"},
        {"tamrel check --encoding ebcdic job.json", 2, "--encoding: expected ISO-8859-1"},
        {"tamrel docs", 2, "DIR is required"},
        {"tamrel generate job.json -o out.txt --reports empty.ndjson", 0,
         "warning: no report was written; the file holds only its frame records"},
        {"tamrel generate job.json -o out.txt --reports utf16.ndjson", 2,
         "utf16.ndjson: a UTF-16 file; reports files are UTF-8"},
        {"tamrel generate job.json -o out.txt --reports bom.ndjson", 0, "1 reports written"},
    };
    put("empty.ndjson", "");
    put("utf16.ndjson", std::string("\xFF\xFE{\0\"\0", 6));
    put("bom.ndjson", "\xEF\xBB\xBF" + report("Muster").dump() + "\n");
    for (const auto& c : cases) {
        const Outcome r = shell(c.line);
        EXPECT_EQ(r.status, c.status) << c.line << ": " << r.err;
        EXPECT_NE(r.err.find(c.message), std::string::npos) << c.line << ": " << r.err;
    }
    // Each subcommand's help lists its own exit codes.
    for (const char* sub : {"inspect", "docs", "check", "call"})
        EXPECT_EQ(shell(std::string("tamrel ") + sub + " --help").out.find("--keep-going"), std::string::npos) << sub;

    // tamrel docs writes below the folder it is given, and says what.
    const Outcome docs = shell("tamrel docs reference");
    EXPECT_EQ(docs.status, 0) << docs.err;
    EXPECT_NE(docs.out.find("reference/call-protocol.md\n"), std::string::npos) << docs.out;
    EXPECT_TRUE(fs::exists(dir_ / "reference" / "call-protocol.md"));
    EXPECT_FALSE(fs::exists(dir_ / "docs"));
}

}  // namespace
