// The C interface: whole jobs into memory and into files, as tamrel
// generate makes them; options and jobs that are not valid; the version;
// and many threads calling the C interface and the generator classes at
// once, with the same results as one thread (run under ThreadSanitizer in
// CI).
#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include <nlohmann/json.hpp>

#include "capi/c_api.h"
#include "reference/reference_docs.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "tests/example_jobs.h"
#include "tests/test_support.h"

namespace {

using tamrel::testing::slurp;

namespace fs = std::filesystem;
using nlohmann::json;

// What the C interface returned, freed with tamrel_free.
std::string taken(char* text, std::size_t length) {
    std::string s = text ? std::string(text, length) : std::string("(null)");
    tamrel_free(text);
    return s;
}
std::string taken(char* text) { return taken(text, text ? std::strlen(text) : 0); }

struct Generated {
    int code;
    std::string file, protocol, messages;
};

Generated in_memory(const std::string& job, const char* options) {
    char *file = nullptr, *protocol = nullptr, *messages = nullptr;
    std::size_t length = 0;
    const int code = tamrel_generate_memory(job.c_str(), options, &file, &length, &protocol, &messages);
    return {code, taken(file, length), taken(protocol), taken(messages)};
}

// The job text of an example, its reports_file (if any) made absolute.
std::string job_text(const tamrel::testing::ExampleJob& e) { return e.job.dump(); }

TEST(CInterface, JobsInMemoryAndInFilesAreTamrelGenerates) {
    const fs::path dir = fs::temp_directory_path() / ("tamrel-c-api-" + std::to_string(getpid()));
    fs::create_directories(dir);
    for (const auto& e : tamrel::testing::example_jobs()) {
        const fs::path want = dir / "want.txt", want_proto = dir / "want.prot";
        const bool proto = !e.info->protoMethod.empty();
        const std::string cmd = std::string(TAMREL_EXE) + " generate " + e.path.string() + " -o " + want.string() +
                                (proto ? " --protocol " + want_proto.string() : "") + " 2>/dev/null";
        ASSERT_EQ(std::system(cmd.c_str()), 0) << e.path;

        const Generated m = in_memory(job_text(e), nullptr);
        EXPECT_EQ(m.code, 0) << m.messages;
        EXPECT_EQ(m.file, slurp(want)) << e.path;
        EXPECT_EQ(m.protocol, proto ? slurp(want_proto) : "") << e.path;
        EXPECT_TRUE(m.messages.starts_with("tamrel generate: ")) << m.messages;

        const fs::path out = dir / "out.txt", out_proto = dir / "out.prot";
        json options = {{"output", out.string()}, {"encoding", "ISO-8859-1"}};
        if (proto) options["protocol"] = out_proto.string();
        char* messages = nullptr;
        EXPECT_EQ(tamrel_generate(job_text(e).c_str(), options.dump().c_str(), &messages), 0);
        const std::string said = taken(messages);
        EXPECT_NE(said.find(" reports written, 0 failed"), std::string::npos) << said;
        EXPECT_EQ(slurp(out), slurp(want)) << e.path;
        if (proto) {
            EXPECT_EQ(slurp(out_proto), slurp(want_proto)) << e.path;
        }
    }
    fs::remove_all(dir);
}

TEST(CInterface, BadJobsAndOptionsAreRefusedWithTheirReason) {
    const auto jobs = tamrel::testing::example_jobs();
    const std::string good = jobs.front().job.dump();
    json bad_report = jobs.front().job;
    bad_report["reports"][0]["Vorgang"]["Versicherungsnummer"] = "65170839J004";
    struct Case {
        std::string job;
        const char* options;
        int code;
        const char* said;  // a part of the messages
    };
    const Case cases[] = {
        {good, "{\"output\":1}", 2, "options: \"output\" expects a text"},
        {good, "{\"colour\":true}", 2, "options: unknown option \"colour\""},
        {good, "[]", 2, "options: expected a JSON object"},
        {good, "{}", 2, "options: \"output\" is required"},
        {"{", "{\"output\":\"x\"}", 2, "job: not valid JSON"},
        {"", "{\"output\":\"x\"}", 2, "job: no job given"},
        {good, "{\"output\":\"/no/such/folder/x.txt\"}", 2, "/no/such/folder"},
        {bad_report.dump(), "{\"output\":\"/dev/null\"}", 1, "VSNR-CHECKDIGIT"},
    };
    for (const Case& c : cases) {
        char* messages = nullptr;
        EXPECT_EQ(tamrel_generate(c.job.c_str(), c.options, &messages), c.code) << c.options;
        const std::string said = taken(messages);
        EXPECT_NE(said.find(c.said), std::string::npos) << c.options << ": " << said;
    }
    const Generated m = in_memory(bad_report.dump(), "{\"keep_going\":true,\"check\":true}");
    EXPECT_EQ(m.code, 3);
    EXPECT_NE(m.file, "(null)");
    const Generated unchecked = in_memory(bad_report.dump(), "{\"check\":false}");
    EXPECT_EQ(unchecked.code, 0) << unchecked.messages;
    const Generated failed = in_memory(bad_report.dump(), nullptr);
    EXPECT_EQ(failed.code, 1);
    EXPECT_EQ(failed.file, "(null)");
}

TEST(CInterface, Version) {
    EXPECT_STREQ(tamrel_version(), "1.0.0");
    EXPECT_EQ(tamrel_version_number(), 10000);
}

// Every example's GenData request, and its response from one thread.
std::vector<std::pair<std::string, std::string>> requests() {
    std::vector<std::pair<std::string, std::string>> all;
    for (const auto& e : tamrel::testing::example_jobs())
        for (const json& report : e.job["reports"]) {
            const std::string request = tamrel::testing::gen_data_request(e, report).dump();
            all.emplace_back(request, taken(tamrel_call(request.c_str())));
        }
    return all;
}

TEST(Threads, CallsFromManyThreadsAnswerAsFromOne) {
    const auto all = requests();
    const std::string job = tamrel::testing::example_jobs().front().job.dump();
    const Generated alone = in_memory(job, nullptr);
    std::vector<std::thread> threads;
    std::atomic<int> mismatches{0};
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int round = 0; round < 20; ++round) {
                for (std::size_t i = 0; i < all.size(); ++i) {
                    const auto& [request, response] = all[(i + static_cast<std::size_t>(t)) % all.size()];
                    if (taken(tamrel_call(request.c_str())) != response) ++mismatches;
                }
                const Generated again = in_memory(job, nullptr);
                if (again.file != alone.file || again.code != alone.code) ++mismatches;
            }
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(mismatches.load(), 0);
}

// tamrel_read: a file in memory back into its job, which generates the same
// file; a returned file's errors apart; what is no transfer file, refused.
TEST(CInterface, ReadGivesTheJobOfAFile) {
    struct Read {
        int code;
        std::string job, errors, messages;
    };
    auto read = [](const std::string& file, const char* options) {
        char *job = nullptr, *errors = nullptr, *messages = nullptr;
        const int code = tamrel_read(file.data(), file.size(), options, &job, &errors, &messages);
        return Read{code, taken(job), taken(errors), taken(messages)};
    };
    for (const auto& e : tamrel::testing::example_jobs()) {
        SCOPED_TRACE(e.path.filename().string());
        const Generated sent = in_memory(job_text(e), nullptr);
        ASSERT_EQ(sent.code, 0);
        const Read r = read(sent.file, R"({"encoding":"ISO-8859-1"})");
        EXPECT_EQ(r.code, 0) << r.messages;
        EXPECT_EQ(r.errors, "[]");
        EXPECT_EQ(json::parse(r.job)["reports"].size(), e.job["reports"].size());
        EXPECT_EQ(in_memory(r.job, nullptr).file, sent.file);
    }
    const struct {
        std::string file;
        const char* options;
        std::string message;
    } refused[] = {
        {"no transfer file\n", nullptr, "tamrel read: record 1 "},
        {"", R"({"encoding":"EBCDIC"})", "tamrel read: options: \"encoding\" expects"},
        {"", R"({"colour":1})", "tamrel read: options: unknown option \"colour\""},
    };
    for (const auto& x : refused) {
        const Read r = read(x.file, x.options);
        EXPECT_TRUE(r.messages.starts_with(x.message)) << r.messages;
    }
    EXPECT_EQ(read("", R"({"colour":1})").code, 2);
    EXPECT_EQ(read("", R"({"colour":1})").job, "(null)");
}

TEST(Threads, GeneratorsOwnAndSharedAnswerAsFromOne) {
    tamrel::Meldung m;
    m.Laufnummer = 1;
    m.Meldegrund = "30";
    m.Meldungsart = 1;
    m.Personengruppe = "101";
    m.Beginn = "20240101";
    m.Ende = "20240229";
    m.Entgelt = "5400";
    m.KsErster = 1;  // DBKS: its twelve lines, empty
    m.KsLetzter = 12;
    m.Vorgang.Versicherungsnummer = "65170839J003";
    tamrel::Host host;
    host.now = [] { return tamrel::Date{2024, 3, 1, 10, 11, 12}; };
    host.log = [](std::string_view) {};
    const tamrel::clsGenMeldung shared(host);
    auto gen = [&](const tamrel::clsGenMeldung& g) {
        tamrel::DatensatzData dd;
        dd.strVersion = "T";
        return g.GenData(m, dd, 0);
    };
    const std::string want = gen(shared);
    std::atomic<int> mismatches{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            const tamrel::clsGenMeldung own(host);
            for (int i = 0; i < 2000; ++i)
                if (gen(t % 2 ? own : shared) != want) ++mismatches;
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(mismatches.load(), 0);
}

}  // namespace

namespace {

// The reference documentation in docs/ is what `tamrel docs` makes now: the
// call table, the binding tables, the layouts and the checks it is made of
// have not moved on without it, and its examples answer as written.
TEST(ReferenceDocs, AreCurrent) {
    for (const auto& [name, text] : tamrel::reference_docs())
        EXPECT_EQ(slurp(fs::path(TAMREL_SOURCE_DIR) / "docs" / name), text)
            << "docs/" << name << " is out of date: run `build/tamrel docs docs`";
}

}  // namespace
