// Invariants over many seeded random variants of the example reports, for
// every procedure: a record and its blocks fit their declared layouts
// (lengths, entries, the blocks the record announces, in their order); every error that escapes carries a documented
// number and its log; the same input always gives the same output.
#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <random>
#include <regex>

#include <nlohmann/json.hpp>

#include "call/call_protocol.h"
#include "core/error.h"
#include "reader/line_walk.h"
#include "reader/record_layouts.h"
#include "tests/example_jobs.h"
#include "tests/mutator.h"
#include "tests/test_support.h"

namespace {

using nlohmann::json;
using namespace tamrel::testing;

// Where a data line does not fit its record's declared layout (its
// length, its entries, the blocks it announces and their order), or
// nothing.
std::string fits_layout(const std::string& utf8) {
    const std::u32string line = chars(utf8);
    const tamrel::RecordLayout* layout = tamrel::checks::find_layout(line);
    if (!layout) return "no record of a known layout starts the text";
    tamrel::checks::WalkProblem problem;
    if (tamrel::checks::walk_line(
            line, *layout, [](const tamrel::checks::Part&) {}, problem))
        return {};
    return std::string(problem.rule->id) + " at character " + std::to_string(problem.at + 1) + " " + problem.value;
}

// An error response: a documented number, one log line per routine in the
// documented form, the innermost first, all with the error's own number and
// description.
std::string check_error(const json& r) {
    const auto number = r["error"]["number"].get<std::int32_t>();
    if (!tamrel::is_library_error(number)) return "undocumented error number " + std::to_string(number);
    if (r["log"].empty()) return "an error without log lines";
    static const std::regex line(R"(Fehler (-?\d+) in TamrelFile26 1\.0\.0 \(Zeile \d+\): .+ -> (.*))");
    for (const auto& l : r["log"]) {
        std::smatch m;
        const std::string s = l.get<std::string>();
        if (!std::regex_match(s, m, line)) return "log line out of form: " + s;
        if (m[1] != std::to_string(number) || m[2] != r["error"]["description"].get<std::string>())
            return "log line of another error: " + s;
    }
    return {};
}

bool well_formed_xml(const std::string& fragment) {
    const std::string doc = "<r>" + fragment + "</r>";
    xmlDocPtr d = xmlReadMemory(doc.data(), static_cast<int>(doc.size()), nullptr, "UTF-8",
                                XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    const bool ok = d != nullptr;
    xmlFreeDoc(d);
    return ok;
}

TEST(Invariants, HoldForSeededVariantsOfEveryExampleReport) {
    constexpr int kVariants = 300;
    std::map<std::string, std::pair<int, int>> outcomes;  // class: records, errors
    for (const auto& e : example_jobs()) {
        const bool xml = e.info->xml();
        Mutator mutate(static_cast<unsigned>(std::hash<std::string>{}(e.path.filename().string())));
        for (const json& report : e.job["reports"]) {
            for (int v = 0; v < kVariants; ++v) {
                const json variant = v == 0 ? report : mutate.vary(report);
                const std::string response = tamrel::call(gen_data_request(e, variant)).dump();
                ASSERT_EQ(response, tamrel::call(gen_data_request(e, variant)).dump()) << "not repeatable";
                const json r = json::parse(response);
                const std::string where =
                    e.path.filename().string() + " variant " + std::to_string(v) + ": " + variant.dump();
                ASSERT_FALSE(r.contains("request_error")) << where << "\n" << response;
                auto& [records, errors] = outcomes[std::string(e.info->cls)];
                if (r.contains("error")) {
                    ++errors;
                    EXPECT_EQ(check_error(r), "") << where << "\n" << response;
                    continue;
                }
                ++records;
                const std::string result = r["result"].get<std::string>();
                if (xml)
                    EXPECT_TRUE(well_formed_xml(result)) << where << "\n" << result;
                else
                    EXPECT_EQ(fits_layout(result), "") << where << "\n" << result;
                if (e.info->protoMethod.empty()) continue;
                const json p = json::parse(tamrel::call(protocol_request(e, variant, v % 2 == 1, "Fehler")).dump());
                if (p.contains("error"))
                    EXPECT_EQ(check_error(p), "") << where << "\n" << p.dump();
                else
                    EXPECT_TRUE(p.contains("result")) << where << "\n" << p.dump();
            }
        }
    }
    // Every procedure produced records, not only errors.
    EXPECT_EQ(outcomes.size(), 12u);
    for (const auto& [cls, o] : outcomes)
        EXPECT_GT(o.first, o.second / 4) << cls << ": " << o.first << " records, " << o.second << " errors";
}

// The frame methods of every class, with varied arguments: a fixed-width
// frame record of exactly its length (the XML report's frame elements are
// well-formed), or a documented error.
TEST(Invariants, HoldForVariedFrameRecordsOfEveryClass) {
    const std::map<std::string, std::size_t, std::less<>> lengths = {{"VOSZ", 105}, {"DSKO", 415}, {"NCSZ", 63}};
    int records = 0;
    for (const auto& e : example_jobs()) {
        const auto frames = e.info->frames;
        const bool xml = frames == tamrel::FrameForm::Xml;
        Mutator mutate(7);
        for (int v = 0; v < 60; ++v) {
            json job = v == 0 ? e.job : mutate.vary(e.job);
            json date = e.job["datDate"], verf = v == 0 ? e.job.value("enmVerfahren", json(0)) : json(v % 4);
            json frame = {{"strBNRAb", job.value("strBNRAb", "")},
                          {"strBNREm", job.value("strBNREm", "")},
                          {"strFileNr", job.value("strFileNr", "")},
                          {"datDate", date}};
            std::vector<std::pair<std::string, json>> calls;
            json vosz = frame;
            vosz["strFirma"] = job.value("strFirma", "");
            if (frames != tamrel::FrameForm::BeitrErh) vosz["enmVerfahren"] = verf;
            calls.emplace_back("GenVOSZ", vosz);
            if (!xml) {
                json dsko = {{"udtDSKOData", job.value("udtDSKOData", json::object())}, {"datDate", date}};
                if (frames == tamrel::FrameForm::BeitrNachw) dsko["enmVerfahren"] = verf;
                calls.emplace_back("GenDSKO", dsko);
            }
            json ncsz = frame;
            ncsz["strCount"] = std::to_string(v);
            if (frames == tamrel::FrameForm::Meldung || frames == tamrel::FrameForm::BeitrNachw)
                ncsz["enmVerfahren"] = verf;
            calls.emplace_back("GenNCSZ", ncsz);
            for (const auto& [method, args] : calls) {
                const json request = {
                    {"class", std::string(e.info->cls)}, {"method", method}, {"args", args}, {"now", e.job["now"]}};
                const json r = json::parse(tamrel::call(request).dump());
                const std::string where = e.path.filename().string() + " " + method + " " + args.dump();
                ASSERT_FALSE(r.contains("request_error")) << where << "\n" << r.dump();
                if (r.contains("error")) {
                    EXPECT_EQ(check_error(r), "") << where << "\n" << r.dump();
                    continue;
                }
                ++records;
                const std::string result = r["result"].get<std::string>();
                if (xml)
                    EXPECT_TRUE(well_formed_xml(result)) << where << "\n" << result;
                else
                    EXPECT_EQ(chars(result).size(), lengths.at(method.substr(3))) << where << "\n" << result;
            }
        }
    }
    EXPECT_GT(records, 1000);
}

}  // namespace
