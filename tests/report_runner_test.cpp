#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/job.h"
#include "component/call_protocol.h"
#include "component/call_registry.h"
#include "component/json_binding.h"
#include "component/report_runner.h"
#include "component/shared_bindings.h"
#include "core/error.h"
#include "core/indexed.h"
#include "tests/example_jobs.h"
#include "tests/runner_outcome.h"

namespace fs = std::filesystem;
using nlohmann::json;
using namespace tamrel;

namespace {

using tamrel::testing::outcome;

// The runner of an example job's class, with the job's record
// identification, procedure and date.
std::unique_ptr<ReportRunner> example_runner(const tamrel::testing::ExampleJob& e, CallSession& session) {
    const json& job = e.job;
    json settings_args = {{"udtDatensatzData", job["udtDatensatzData"]},
                          {"enmVerfahren", job.value("enmVerfahren", json(0))},
                          {"datDate", job["datDate"]}};
    Invocation inv(settings_args, session.host());
    RunnerSettings settings{&session.host(), inv.object<DatensatzData>("udtDatensatzData"),
                            e.info->integer_verfahren() ? inv.enm("enmVerfahren") : inv.verf("enmVerfahren"),
                            inv.date("datDate")};
    return make_runner(e.info->cls, settings);
}

// The runner (used by tamrel generate) and the call protocol must give the
// very same record and protocol line for every report of every example job,
// whichever report the runner read before (forward, then backward).
TEST(ReportRunner, AgreesWithTheCallProtocolOnEveryExample) {
    int checked = 0;
    for (const auto& e : tamrel::testing::example_jobs()) {
        const json& job = e.job;
        ASSERT_NE(e.info, nullptr) << e.path;
        CallSession session(&job["now"], nullptr);
        auto runner = example_runner(e, session);
        ASSERT_TRUE(runner) << e.info->cls;
        std::vector<json> reports(job["reports"].begin(), job["reports"].end());
        const std::vector<json> backward(reports.rbegin(), reports.rend());
        reports.insert(reports.end(), backward.begin(), backward.end());
        for (const json& report : reports) {
            json response = json::parse(call(tamrel::testing::gen_data_request(e, report)).dump());
            ASSERT_TRUE(response.contains("result")) << e.path << response.dump();

            runner->read_text(report.dump());
            EXPECT_EQ(runner->data(), response["result"].get<std::string>()) << e.path;
            runner->read(report);
            EXPECT_EQ(runner->data(), response["result"].get<std::string>()) << e.path;
            if (!e.info->protoMethod.empty()) {
                json proto = tamrel::testing::protocol_request(e, report, true, "x\ny");
                EXPECT_EQ(runner->protocol(true, "x\ny"), json::parse(call(proto).dump())["result"].get<std::string>());
            }
            ++checked;
        }
    }
    EXPECT_GE(checked, 40);
}

// The fast scanner of read_text must read every text exactly as simdjson's
// DOM does: the same record and protocol line, or the same error. Each
// example report is tried compact, spread over blank lines, with every
// non-ASCII character escaped, and with its text cut short.
TEST(ReportRunner, ScannerAgreesWithTheReferenceReader) {
    int checked = 0;
    for (const auto& e : tamrel::testing::example_jobs()) {
        CallSession session(&e.job["now"], nullptr);
        auto runner = example_runner(e, session);
        ASSERT_TRUE(runner) << e.info->cls;
        for (const json& report : e.job["reports"]) {
            const std::string compact = report.dump();
            const std::string texts[] = {compact,
                                         report.dump(2),
                                         report.dump(-1, ' ', true),
                                         " \t" + compact + "\r\n ",
                                         compact.substr(0, compact.size() - 1),
                                         compact + "}",
                                         compact + " x"};
            for (const std::string& text : texts) {
                const std::string reference = outcome(*runner, [&] { runner->read_text_reference(text); });
                EXPECT_EQ(outcome(*runner, [&] { runner->read_text(text); }), reference) << e.path << "\n" << text;
                ++checked;
            }
        }
    }
    EXPECT_GE(checked, 150);
}

// The same for the forms of values the scanner leaves to the reference, and
// for those it takes, in a registration.
TEST(ReportRunner, ScannerAgreesWithTheReferenceReaderOnEveryValueForm) {
    CallSession session(nullptr, nullptr);
    RunnerSettings settings{&session.host(), {}, 0, {}};
    auto runner = make_runner("clsGenMeldung", settings);
    const std::string base = R"({"Meldegrund":"10","Vorgang":{"Familienname":"Müller","PLZ":"12345"},"Laufnummer":)";
    const char* laufnummer[] = {"7}",
                                "-7}",
                                "0}",
                                "-0}",
                                "07}",
                                "1.0}",
                                "1e2}",
                                "2147483647}",
                                "2147483648}",
                                "-2147483648}",
                                "123456789012345678}",
                                "1234567890123456789}",
                                "99999999999999999999999}",
                                "null}",
                                "\"7\"}",
                                "7 }",
                                "7,}",
                                "}",
                                "7",
                                "7}}",
                                "7} ",
                                "true}",
                                "- 7}",
                                "+7}"};
    const char* whole[] = {R"({})",
                           R"([])",
                           R"("x")",
                           "",
                           " ",
                           R"({"Storno":true,"Storno":false})",
                           R"({"Storno":tru})",
                           R"({"Storno":truex})",
                           R"({"Storno":false})",
                           R"({"KsZeileA":["A","B",""]})",
                           R"({"KsZeileA":[]})",
                           R"({"KsZeileA":["A",]})",
                           R"({"KsZeileA":{"2":"B","-1":"C"}})",
                           R"({"KsZeileA":{"2":"B","2":"D"}})",
                           R"({"KsZeileA":{}})",
                           R"({"UvEntfaellt":{"1":true}})",
                           R"({"UvEntfaellt":[true,false]})",
                           R"({"Meldegrund":"1\"0"})",
                           R"({"Meldegrund":"\u0031\u0030"})",
                           R"({"Meldegrund":"a/b\/c"})",
                           "{\"Meldegrund\":\"1\t0\"}",
                           "{\"Meldegrund\":\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\"}",
                           "{\"Meldegrund\":\"\xC3\"}",
                           "{\"Meldegrund\":\"\xED\xA0\x80\"}",
                           "\xEF\xBB\xBF{\"Meldegrund\":\"10\"}",
                           R"({"Meldegrund" : "10" , "Laufnummer" : 3 })",
                           R"({"Meldegrund":"10""Laufnummer":3})",
                           R"({"Meldegrund":"10",,"Laufnummer":3})",
                           R"({"Meldegrund""10"})",
                           R"({Meldegrund:"10"})",
                           R"({"":"10"})",
                           R"({"Meldegrund":"12345678901234567890123456789012345678901234567890"})",
                           R"({"Vorgang":{"Arbeitgeber":{"Betriebsnummer":"1"}},"Empfaenger":{"Betriebsnummer":"2"}})",
                           R"({"Vorgang":{"Arbeitgeber":{"Betriebsnummer":"1"}})",
                           R"({"Vorgang":[]})",
                           R"({"Vorgang":null})"};
    std::vector<std::string> texts;
    for (const char* l : laufnummer) texts.push_back(base + l);
    texts.insert(texts.end(), std::begin(whole), std::end(whole));
    texts.push_back(std::string("{\"Meldegrund\":\"1\0\"}", 19));
    texts.push_back(base + std::string("7}\0", 3));
    for (const std::string& text : texts) {
        const std::string reference = outcome(*runner, [&] { runner->read_text_reference(text); });
        EXPECT_EQ(outcome(*runner, [&] { runner->read_text(text); }), reference) << text;
    }
}

// Both JSON readers refuse a bad report with the same words.
#define INDEX_FORM "expected an index from 0 to 32767 in decimal, without sign or leading zeros"
TEST(ReportRunner, BothReadersReportTheSameRequestErrors) {
    CallSession session(nullptr, nullptr);
    RunnerSettings settings{&session.host(), {}, 0, {}};
    auto runner = make_runner("clsGenMeldung", settings);
    const std::pair<const char*, const char*> cases[] = {
        {R"({"Laufnummer":"1"})", "args.objMeldung.Laufnummer: expected an integer"},
        {R"({"Laufnummer":1.5})", "args.objMeldung.Laufnummer: expected an integer"},
        {R"({"Laufnummer":4294967296})", "args.objMeldung.Laufnummer: integer out of the 32-bit range"},
        {R"({"KsErster":-40000})", "args.objMeldung.KsErster: integer out of the 16-bit range"},
        {R"({"Storno":1})", "args.objMeldung.Storno: expected true or false"},
        {R"({"Vorgang":{"Arbeitgeber":{"Nmae1":""}}})", "args.objMeldung.Vorgang.Arbeitgeber.Nmae1: unknown property"},
        {R"({"KsZeileA":{"x":"A"}})", "args.objMeldung.KsZeileA.x: " INDEX_FORM},
        {R"({"KsZeileA":{"1":"AB","01":"XY"}})", "args.objMeldung.KsZeileA.01: " INDEX_FORM},
        {R"({"KsZeileA":{"-1":"AB"}})", "args.objMeldung.KsZeileA.-1: " INDEX_FORM},
        {R"({"KsZeileA":{"+1":"AB"}})", "args.objMeldung.KsZeileA.+1: " INDEX_FORM},
        {R"({"KsZeileA":{"32768":"AB"}})", "args.objMeldung.KsZeileA.32768: " INDEX_FORM},
        {R"({"KsZeileA":{" 1":"AB"}})", "args.objMeldung.KsZeileA. 1: " INDEX_FORM},
        {R"({"KsZeileA":["A",2]})", "args.objMeldung.KsZeileA[2]: expected a string"},
        {R"({"UvEntfaellt":{"1":"ja"}})", "args.objMeldung.UvEntfaellt.1: expected true or false"},
        {R"([])", "args.objMeldung: expected an object"},
    };
    for (const auto& [text, message] : cases) {
        for (bool simd : {true, false}) {
            try {
                simd ? runner->read_text(text) : runner->read(json::parse(text));
                ADD_FAILURE() << text << " was accepted";
            } catch (const json_binding::RequestError& e) {
                EXPECT_EQ(std::string(e.what()), message) << text << (simd ? " (simdjson)" : " (nlohmann)");
            }
        }
    }
    EXPECT_THROW(runner->read_text("{\"Meldegrund\":\"\xFF\"}"), json_binding::RequestError);
}

TEST(Indexed, ReadsGivenIndicesAndEmptyElsewhere) {
    Indexed<std::string> list;
    EXPECT_EQ(list.smallest(), 1);
    EXPECT_EQ(list.largest(), 0);
    list.set(3, "c");
    list.set(-2, "m");
    list.set(5, "e");
    EXPECT_EQ(list(-2), "m");
    EXPECT_EQ(list(3), "c");
    EXPECT_EQ(list(4), "");
    EXPECT_EQ(list(6), "");
    EXPECT_EQ(list(-32768), "");
    EXPECT_EQ(list.smallest(), -2);
    EXPECT_EQ(list.largest(), 5);
    Indexed<bool> flags;
    flags.set(2, true);
    EXPECT_TRUE(flags(2));
    EXPECT_FALSE(flags(1));
}

}  // namespace
