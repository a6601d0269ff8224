#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "test_support.h"

namespace fs = std::filesystem;
using nlohmann::json;
using namespace tamrel;

namespace {

using tamrel::testing::slurp;

struct Result {
    int status;
    std::string out;
};

// Standard error is dropped, or read as part of `out` (`with_stderr`).
Result run(const std::string& args, bool with_stderr = false) {
    std::string cmd = std::string(TAMREL_EXE) + " " + args + (with_stderr ? " 2>&1" : " 2>/dev/null");
    FILE* p = popen(cmd.c_str(), "r");
    std::string out;
    char buf[4096];
    while (std::size_t n = std::fread(buf, 1, sizeof buf, p)) out.append(buf, n);
    int status = pclose(p);
    return {WEXITSTATUS(status), out};
}

class Cli : public ::testing::Test {
protected:
    void SetUp() override { dir_ = tamrel::testing::fresh_folder("cli"); }
    void TearDown() override { fs::remove_all(dir_); }

    // A report whose file reference carries `name`; reason "99" fails.
    static json report(const std::string& name, const std::string& reason = "62") {
        return {{"Laufnummer", 7},
                {"Meldegrund", reason},
                {"Meldungsart", 1},
                {"Vorgang",
                 {{"Aktenzeichen", name},
                  {"Versicherungsnummer", tamrel::testing::kInsuranceNumber},
                  {"Arbeitgeber", {{"Betriebsnummer", tamrel::testing::kSenderBnr}}}}},
                {"Empfaenger", {{"Betriebsnummer", tamrel::testing::kReceiverBnr}}}};
    }
    json job(std::vector<json> reports) const {
        return {{"class", "clsGenMeldung"},
                {"strBNRAb", tamrel::testing::kSenderBnr},
                {"strBNREm", tamrel::testing::kReceiverBnr},
                {"strFileNr", "1"},
                {"strFirma", "F"},
                {"datDate", "2024-03-01T10:11:12"},
                {"reports", std::move(reports)}};
    }
    fs::path write(const std::string& name, const std::string& text) const {
        std::ofstream(dir_ / name, std::ios::binary) << text;
        return dir_ / name;
    }
    // The lines the library gives for this job, joined as the file holds them.
    static std::string expected_utf8(const std::vector<std::string>& names, std::size_t count, const char* eol) {
        clsGenMeldung gen;
        Date d{2024, 3, 1, 10, 11, 12};
        std::string datum;
        DSKOData dsko;  // a job without one: the header's parties
        dsko.strBNRAb = tamrel::testing::kSenderBnr;
        dsko.strBNREm = tamrel::testing::kReceiverBnr;
        DatensatzData dd;
        std::string s = gen.GenVOSZ(tamrel::testing::kSenderBnr, tamrel::testing::kReceiverBnr, "1", "F", 0, datum, d) +
                        eol + gen.GenDSKO(dsko, d) + eol;
        for (const auto& n : names) {
            Meldung m;
            m.Laufnummer = 7;
            m.Meldegrund = "62";
            m.Meldungsart = 1;
            m.Vorgang.Aktenzeichen = n;
            m.Vorgang.Versicherungsnummer = tamrel::testing::kInsuranceNumber;
            m.Vorgang.Arbeitgeber.Betriebsnummer = tamrel::testing::kSenderBnr;
            m.Empfaenger.Betriebsnummer = tamrel::testing::kReceiverBnr;
            s += gen.GenData(m, dd, 0, d) + eol;
        }
        return s +
               gen.GenNCSZ(tamrel::testing::kSenderBnr, tamrel::testing::kReceiverBnr, "1", std::to_string(count), 0,
                           d) +
               eol;
    }

    fs::path dir_;
};

TEST_F(Cli, EncodingsAndLineEndings) {
    auto jobFile = write("job.json", job({report("\xE2\x82\xAC uro")}).dump());
    Result latin1 = run("generate " + jobFile.string() + " -o " + (dir_ / "a.txt").string());
    EXPECT_EQ(latin1.status, 1);
    EXPECT_FALSE(fs::exists(dir_ / "a.txt"));

    ASSERT_EQ(
        run("generate " + jobFile.string() + " --encoding ISO-8859-15 --crlf -o " + (dir_ / "b.txt").string()).status,
        0);
    std::string expected = expected_utf8({"\xE2\x82\xAC uro"}, 2, "\r\n");
    expected.replace(expected.find("\xE2\x82\xAC"), 3, "\xA4");
    EXPECT_EQ(slurp(dir_ / "b.txt"), expected);

    ASSERT_EQ(run("generate " + jobFile.string() + " --encoding UTF-8 -o " + (dir_ / "c.txt").string()).status, 0);
    EXPECT_EQ(slurp(dir_ / "c.txt"), expected_utf8({"\xE2\x82\xAC uro"}, 2, "\n"));
}

TEST_F(Cli, FailureLeavesNothingAndKeepGoingLeavesTheReportOut) {
    auto jobFile = write("job.json", job({report("A"), report("B", "99"), report("C")}).dump());
    write("out.txt", "previous content");
    Result stop = run("generate " + jobFile.string() + " -o " + (dir_ / "out.txt").string());
    EXPECT_EQ(stop.status, 1);
    EXPECT_EQ(slurp(dir_ / "out.txt"), "previous content");

    Result keep = run("generate " + jobFile.string() + " --keep-going --protocol " + (dir_ / "p.txt").string() +
                      " -o " + (dir_ / "out.txt").string());
    EXPECT_EQ(keep.status, 3);
    std::string written = slurp(dir_ / "out.txt");
    std::string expected = expected_utf8({"A", "C"}, 3, "\n");
    // Report C keeps its own running number; only the failed report is missing.
    EXPECT_EQ(written, expected);
    std::string protocol = slurp(dir_ / "p.txt");
    EXPECT_EQ(std::count(protocol.begin(), protocol.end(), '\n'), 3);
    // The checks stop the unknown reason before its record is built ...
    EXPECT_NE(protocol.find(";1;\"report 2: error REASON-UNKNOWN Meldegrund (99): report reason is not a published "
                            "reason key\""),
              std::string::npos)
        << protocol;
    // ... and without them the library's own error does.
    Result unchecked = run("generate " + jobFile.string() + " --no-check --keep-going --protocol " +
                           (dir_ / "p.txt").string() + " -o " + (dir_ / "out.txt").string());
    EXPECT_EQ(unchecked.status, 3);
    EXPECT_NE(slurp(dir_ / "p.txt")
                  .find(";1;\"report 2: error -2147213202, clsGenMeldung.GenDSME: Datenbausteine "
                        "konnten zum Meldegrund 99 nicht ermittelt werden\""),
              std::string::npos);
    for (const auto& e : fs::directory_iterator(dir_))
        EXPECT_EQ(e.path().filename().string().find(".tmp-"), std::string::npos);

    // A report that cannot be read at all is left out as well.
    json unreadable = report("X");
    unreadable["Vorgang"]["Gebursdatum"] = "1";
    jobFile = write("job2.json", job({report("A"), unreadable, report("C")}).dump());
    keep = run("generate " + jobFile.string() + " --keep-going --protocol " + (dir_ / "p2.txt").string() + " -o " +
               (dir_ / "out2.txt").string());
    EXPECT_EQ(keep.status, 3);
    EXPECT_EQ(slurp(dir_ / "out2.txt"), expected);
}

TEST_F(Cli, ReportsFromNdjson) {
    auto jobFile = write("job.json", job(json::array()).dump());
    write("reports.ndjson", report("A").dump() + "\n\n" + report("B").dump() + "\n");
    ASSERT_EQ(run("generate " + jobFile.string() + " --reports " + (dir_ / "reports.ndjson").string() + " -o " +
                  (dir_ / "out.txt").string())
                  .status,
              0);
    EXPECT_EQ(slurp(dir_ / "out.txt"), expected_utf8({"A", "B"}, 3, "\n"));
}

TEST_F(Cli, BadJobsAreRefused) {
    const std::string jobs[] = {
        R"({"class":"clsGenDef","strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"F","reports":[]})",
        R"({"class":"clsGenMeldung","strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"F","reprots":[]})",
        R"({"class":"clsGenMeldung","strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"F"})",
        "not json",
        "[]",
        R"({"class":"clsGenMeldung","strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"F","reports":[)" +
            std::string(40, '[') + std::string(40, ']') + "]}",
    };
    for (const auto& j : jobs) {
        auto f = write("job.json", j);
        EXPECT_EQ(run("generate " + f.string() + " -o " + (dir_ / "o.txt").string()).status, 2) << j;
        EXPECT_FALSE(fs::exists(dir_ / "o.txt"));
    }
}

TEST_F(Cli, CallAnswersEveryLineInOrder) {
    auto f = write(
        "req.ndjson",
        R"({"id":1,"class":"clsGenMeldung","method":"GenNCSZ","args":{"strBNRAb":"1","strBNREm":"2","strFileNr":"1","strCount":"3","enmVerfahren":"vmBV","datDate":"2024-03-01"}})"
        "\n\n{broken\n" +
            std::string(3 << 20, ' ') + "\n" +
            R"({"id":3,"class":"clsGenAsyl","method":"GenDSKO","args":{}})"
            "\n");
    Result r = run("call " + f.string());
    EXPECT_EQ(r.status, 2);
    std::istringstream lines(r.out);
    std::string a, b, too_long, c;
    std::getline(lines, a);
    std::getline(lines, b);
    std::getline(lines, too_long);
    // A line beyond the bound is answered without being read to its end,
    // and ends the run: nothing after it can be told apart from it.
    EXPECT_EQ(json::parse(too_long)["request_error"],
              "request: line of 1048577 bytes or more, longer than the limit of 1048576 bytes");
    EXPECT_FALSE(std::getline(lines, c)) << c;
    EXPECT_EQ(json::parse(a)["result"], "NCSZAGBVD1              2              202403010000010000000301");
    EXPECT_TRUE(json::parse(b).contains("request_error"));
    // An endless input (no line end ever) is answered the same way.
    Result endless = run("call /dev/zero");
    EXPECT_EQ(endless.status, 2);
    EXPECT_NE(endless.out.find("longer than the limit of 1048576 bytes"), std::string::npos);
}

// --log keeps the log lines of each failed report, and only its own: a long
// run of failing reports does not pile them up.
TEST_F(Cli, LogKeepsEachFailedReportsLines) {
    auto jobFile = write("job.json", job({report("A"), report("B", "99"), report("C", "99")}).dump());
    const std::string log = (dir_ / "log.ndjson").string();
    Result r = run("generate " + jobFile.string() + " -o " + (dir_ / "out.txt").string() +
                   " --no-check --keep-going --log " + log);
    EXPECT_EQ(r.status, 3);
    std::istringstream lines(slurp(log));
    std::vector<json> failed;
    for (std::string line; std::getline(lines, line);) failed.push_back(json::parse(line));
    ASSERT_EQ(failed.size(), 2u);
    EXPECT_EQ(failed[0]["report"], 2);
    EXPECT_EQ(failed[1]["report"], 3);
    const json& first = failed[0]["log"];
    ASSERT_FALSE(first.empty());
    EXPECT_NE(first.back().get<std::string>().find("): clsGenMeldung.GenData(<objMeldung>, <udtDatensatzData>, "),
              std::string::npos)
        << first;
    EXPECT_EQ(failed[1]["log"], first);
}

// The checks before generating: an error stops the report, a warning is told,
// --findings holds both, --no-check builds the report as given.
TEST_F(Cli, ChecksStopABadReportAndTellWarnings) {
    // The example's registration and deregistration, each with a fault.
    std::ifstream example(std::string(TAMREL_SOURCE_DIR) + "/examples/deuev-registration.json");
    const json reports = json::parse(example)["reports"];
    json warned = reports[0];
    warned["Ende"] = "20241231";  // an end on a registration: a warning
    json bad = reports[1];
    bad.erase("Ende");         // a deregistration without its end date ...
    bad["Entgelt"] = "-5400";  // ... and with a negative pay
    auto jobFile = write("job.json", job({warned, bad}).dump());
    const std::string out = (dir_ / "out.txt").string(), findings = (dir_ / "findings.ndjson").string();

    Result stop = run("generate " + jobFile.string() + " -o " + out + " --findings " + findings, true);
    EXPECT_EQ(stop.status, 1);
    EXPECT_FALSE(fs::exists(out));
    EXPECT_NE(stop.out.find("tamrel generate: report 1: warning END-ON-REGISTRATION Ende (20241231): an end date on "
                            "a registration\n"),
              std::string::npos)
        << stop.out;
    EXPECT_NE(stop.out.find("tamrel generate: report 2: error MISSING Ende: missing (and 1 more)\n"), std::string::npos)
        << stop.out;
    EXPECT_EQ(slurp(dir_ / "findings.ndjson"),
              R"({"report":1,"rule":"END-ON-REGISTRATION","severity":"warning","field":"Ende","value":"20241231",)"
              R"("message":"Ende bei einer Anmeldung angegeben","message_en":"an end date on a registration"})"
              "\n"
              R"({"report":2,"rule":"MISSING","severity":"error","field":"Ende","value":"","message":"Angabe fehlt",)"
              R"("message_en":"missing"})"
              "\n"
              R"({"report":2,"rule":"AMOUNT-NEGATIVE","severity":"error","field":"Entgelt","value":"-5400",)"
              R"("message":"Betrag: darf nicht negativ sein","message_en":"amount: must not be negative"})"
              "\n");

    Result unchecked = run("generate " + jobFile.string() + " -o " + out + " --no-check");
    EXPECT_EQ(unchecked.status, 0) << unchecked.out;
    EXPECT_NE(slurp(out).find("0-5400"), std::string::npos);  // what the record builder makes of it
}

// tamrel check and tamrel inspect on a file tamrel generate wrote.
TEST_F(Cli, CheckAndInspectAFile) {
    const std::string file = (dir_ / "deuev.txt").string();
    ASSERT_EQ(run("generate " + std::string(TAMREL_SOURCE_DIR) + "/examples/deuev-registration.json -o " + file).status,
              0);
    Result clean = run("check " + file);
    EXPECT_EQ(clean.status, 0);
    EXPECT_EQ(clean.out, file + ": 5 records, 0 errors, 0 warnings\n");

    std::string text = slurp(file);
    text.replace(text.rfind("NCSZ") + 53, 8, "00000009");  // the trailer's count
    const std::string broken = write("broken.txt", text).string();
    Result bad = run("check " + broken);
    EXPECT_EQ(bad.status, 1);
    EXPECT_NE(bad.out.find("record 5 NCSZ strCount (pos 54-61) \"00000009\": error FILE-COUNT"), std::string::npos)
        << bad.out;

    EXPECT_EQ(run("check " + (dir_ / "missing.txt").string()).status, 2);
    EXPECT_EQ(run("check " + write("empty.txt", "").string()).status, 2);

    Result fields = run("inspect " + file + " --json --record 1");
    EXPECT_EQ(fields.status, 0);
    EXPECT_EQ(std::count(fields.out.begin(), fields.out.end(), '\n'), 8);  // the VOSZ's eight fields
    EXPECT_NE(fields.out.find(R"({"record":1,"id":"VOSZ","field":"strFirma","pos":54,"len":50,"kind":"text",)"),
              std::string::npos)
        << fields.out;
    Result blocks = run("inspect " + file + " --json --record 3");
    EXPECT_NE(blocks.out.find(R"({"record":3,"id":"DSME","part":"DBME","field":"Beginn","pos":7,"len":8,)"
                              R"("kind":"date","raw":"20240301","value":"2024-03-01"})"),
              std::string::npos)
        << blocks.out;
    EXPECT_EQ(run("inspect " + file + " --record 6").status, 2);
}

}  // namespace
