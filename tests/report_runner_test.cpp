#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "call/call_protocol.h"
#include "call/call_registry.h"
#include "call/report_runner.h"
#include "core/error.h"
#include "core/indexed.h"
#include "core/objects_properties.h"
#include "json/field_table.h"
#include "json/json_binding.h"
#include "run/job.h"
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
