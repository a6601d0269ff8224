// Invariants over many seeded random variants of the example reports, for
// every procedure: a record and its blocks have exactly their layout's
// lengths, the blocks sent are exactly those the record announces, in their
// order; every error that escapes carries a documented number and its log;
// the same input always gives the same output.
#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <random>
#include <regex>

#include <nlohmann/json.hpp>

#include "component/call_protocol.h"
#include "core/error.h"
#include "tests/example_jobs.h"
#include "tests/mutator.h"
#include "tests/record_layouts.h"

namespace {

using nlohmann::json;
using namespace tamrel::testing;

// DBUV holds its count in one digit: a longer list is found by where the
// next block (or the end) stands.
std::size_t dbuv_length(const Chars& t, std::size_t at) {
    const int digit = number_at(t, at + 5, 1);
    for (std::size_t k = static_cast<std::size_t>(digit < 0 ? 0 : digit); at + 20 + 71 * k <= t.size(); k += 10) {
        const std::size_t end = at + 20 + 71 * k;
        if (end == t.size()) return end - at;
        const auto next = t.substr(end, 4);
        if (next == U"DBKS" || next == U"DBSO" || next == U"DBKV") return end - at;
    }
    return t.size() + 1 - at;
}

Procedure meldung() {
    return {{{"DSME",
              fixed(559),
              {{Announce::Flag, 171, "DBME"},
               {Announce::Flag, 172, "DBNA"},
               {Announce::Flag, 173, "DBGB"},
               {Announce::Flag, 174, "DBAN"},
               {Announce::Flag, 175, "DBEU"},
               {Announce::Flag, 176, "DBUV"},
               {Announce::Flag, 177, "DBKS"},
               {Announce::Flag, 184, "DBSO"},
               {Announce::Flag, 189, "DBKV"}}}},
            {{"DBME", fixed(147)},
             {"DBNA", fixed(125)},
             {"DBGB", fixed(117)},
             {"DBAN", fixed(133)},
             {"DBEU", fixed(27)},
             {"DBUV", dbuv_length},
             {"DBKS", fixed(220)},
             {"DBSO", fixed(13)},
             {"DBKV", fixed(150)}}};
}

Procedure contribution_statement() {
    // 774 characters for the statement kind 1, else 678.
    auto length = [](const Chars& t) { return t.size() == 774 ? std::size_t{774} : std::size_t{678}; };
    return {{{"BW02", length, {}}, {"BW03", fixed(678), {}}}, {}};
}

Procedure arbeits_besch() {
    const std::vector<Announce> head = {{Announce::Flag, 159, "DBNA"},
                                        {Announce::Flag, 160, "DBAN"},
                                        {Announce::Flag, 161, "DBAG"},
                                        {Announce::Flag, 162, "DBAB"}};
    auto with = [&](std::vector<Announce> tail) {
        std::vector<Announce> all = head;
        all.insert(all.end(), tail.begin(), tail.end());
        return all;
    };
    return {{{"DSAB", fixed(177),
              with({{Announce::Count, 163, "DBSE"},
                    {Announce::Flag, 167, "DBSA"},
                    {Announce::Count, 168, "DBSB"},
                    {Announce::Count, 170, "DBAZ"},
                    {Announce::Count, 172, "DBEN"},
                    {Announce::Count, 174, "DBFZ"},
                    {Announce::Flag, 176, "DBHA"},
                    {Announce::Flag, 177, "DBKE"}})},
             {"DSEU", fixed(176),
              with({{Announce::Count, 163, "DBSE"},
                    {Announce::Flag, 167, "DBSA"},
                    {Announce::Count, 168, "DBSB"},
                    {Announce::Count, 170, "DBEZ"},
                    {Announce::Count, 172, "DBEE"},
                    {Announce::Count, 174, "DBFZ"},
                    {Announce::Flag, 176, "DBKU"}})},
             {"DSNE", fixed(168),
              with({{Announce::Flag, 163, "DBNE"},
                    {Announce::Flag, 166, "DBSA"},
                    {Announce::Flag, 167, "DBNB"},
                    {Announce::Flag, 168, "DBHN"}})}},
            {{"DBNA", fixed(125)},
             {"DBAN", fixed(133)},
             {"DBAG", fixed(533)},
             {"DBAB", fixed(51)},
             {"DBSE", fixed(20)},
             {"DBNE", fixed(100)},
             {"DBSA", fixed(29)},
             {"DBSB", fixed(19)},
             {"DBAZ", fixed(22)},
             {"DBEN", fixed(123)},
             {"DBEZ", fixed(25)},
             {"DBEE", fixed(71)},
             {"DBFZ", fixed(22)},
             {"DBHA", fixed(7)},
             {"DBKE", fixed(175)},
             {"DBKU", fixed(103)},
             {"DBNB", fixed(28)},
             {"DBHN", fixed(20)}}};
}

Procedure entgelt() {
    const char* order[] = {"DBNA", "DBAN", "DBAL", "DBAE", "DBZA", "DBEE", "DBAW", "DBFR", "DBUN",
                           "DBMU", "DBVO", "DBHE", "DBBE", "DBLT", "DBSF", "DBTK", "DBAP", "DBID"};
    std::vector<Announce> flags;
    for (std::size_t k = 0; k < std::size(order); ++k) flags.push_back({Announce::Flag, 202 + k, order[k]});
    auto dbvo = [](const Chars& t, std::size_t at) {
        return std::size_t(24 + 50 * std::max(0, number_at(t, at + 23, 2)));
    };
    return {{{"DSLW", fixed(219), flags}},
            {{"DBNA", fixed(125)},
             {"DBAN", fixed(133)},
             {"DBAL", fixed(90)},
             {"DBAE", fixed(165)},
             {"DBZA", fixed(60)},
             {"DBEE", fixed(30)},
             {"DBAW", fixed(10)},
             {"DBFR", fixed(69)},
             {"DBUN", fixed(87)},
             {"DBMU", fixed(214)},
             {"DBVO", dbvo},
             {"DBHE", fixed(28)},
             {"DBBE", fixed(28)},
             {"DBLT", fixed(77)},
             {"DBSF", fixed(58)},
             {"DBTK", fixed(52)},
             {"DBAP", fixed(321)},
             {"DBID", fixed(44)}}};
}

const Procedure* procedure(std::string_view cls) {
    static const std::map<std::string, Procedure, std::less<>> all = {
        {"clsGenMeldung", meldung()},
        {"clsGenBeitrNachw", contribution_statement()},
        {"clsGenBeitrErh",
         {{{"DSBE", fixed(447), {{Announce::Flag, 444, "DBMI"}, {Announce::Flag, 445, "DBHB"}}}},
          {{"DBMI", fixed(153)}, {"DBHB", fixed(13)}}}},
        {"clsGenErst",
         {{{"DSER",
            fixed(455),
            {{Announce::Flag, 349, "DBAU"},
             {Announce::Flag, 350, "DBBT"},
             {Announce::Flag, 351, "DBZU"},
             {Announce::Optional, 352, "DBBV"},
             {Announce::Optional, 353, "DBNA"},
             {Announce::Flag, 354, "DBAA"}}}},
          {{"DBAU", fixed(202)},
           {"DBBT", fixed(180)},
           {"DBZU", fixed(191)},
           {"DBBV", fixed(174)},
           {"DBNA", fixed(125)},
           {"DBAA", fixed(321)}}}},
        {"clsGenZahl",
         {{{"DSVZ",
            fixed(237),
            {{Announce::Flag, 218, "DBZK"},
             {Announce::Flag, 219, "DBNA"},
             {Announce::Flag, 220, "DBGA"},
             {Announce::Flag, 222, "DBAN"}}}},
          {{"DBZK", fixed(91)}, {"DBNA", fixed(125)}, {"DBGA", fixed(13)}, {"DBAN", fixed(133)}}}},
        {"clsGenBetrieb", {{{"DSBD", fixed(541), {{Announce::Flag, 535, "DBKA"}}}}, {{"DBKA", fixed(208)}}}},
        {"clsGenAbfrVers",
         {{{"DSVV",
            fixed(200),
            {{Announce::Flag, 172, "DBNA"}, {Announce::Flag, 173, "DBGB"}, {Announce::Flag, 174, "DBAN"}}}},
          {{"DBNA", fixed(125)}, {"DBGB", fixed(117)}, {"DBAN", fixed(133)}}}},
        {"clsGenAbfrStammdatenUV", {{{"DSAS", fixed(463), {{Announce::Flag, 459, "DBAP"}}}}, {{"DBAP", fixed(321)}}}},
        {"clsGenLohnnachweis",
         {{{"DSLN",
            [](const Chars& t) { return std::size_t(494 + 59 * std::max(0, number_at(t, 493, 2))); },
            {{Announce::Flag, 479, "DBAP"}}}},
          {{"DBAP", fixed(321)}}}},
        {"clsGenArbeitsBesch", arbeits_besch()},
        {"clsGenEntgelt", entgelt()},
    };
    auto it = all.find(cls);
    return it == all.end() ? nullptr : &it->second;
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
        const Procedure* layout = procedure(e.info->cls);
        const bool xml = e.info->xml();
        ASSERT_TRUE(layout || xml) << e.info->cls;
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
                    EXPECT_EQ(follows(*layout, result), "") << where << "\n" << result;
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
