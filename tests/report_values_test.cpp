// Values that used to leave silently wrong, or that tamrel check rejected
// after tamrel generate said 0: each is now refused before its record is
// written, naming its property, or made ready as documented (NFC, blanks
// for control characters with --transliterate).
#include <gtest/gtest.h>

#include <functional>

#include <nlohmann/json.hpp>

#include "run/job.h"
#include "run/transfer.h"
#include "tests/example_jobs.h"

namespace {

using nlohmann::json;
using namespace tamrel;

json example(const std::string& name) {
    for (const auto& e : tamrel::testing::example_jobs())
        if (e.path.filename() == name) return e.job;
    ADD_FAILURE() << name;
    return {};
}

struct Outcome {
    std::string failure;  // empty: written
    std::string file, protocol, notes;
};

Outcome generate(const json& job, bool transliterate = false) {
    Outcome r;
    try {
        const cli::Job parsed = cli::parse_job(job, "job", ".");
        cli::ReportSource source(parsed.reports);
        cli::TransferSettings settings;
        settings.transliterate = transliterate;
        settings.note = [&](const std::string& n) { r.notes += n + "\n"; };
        cli::StringSink out, protocol;
        cli::write_transfer(parsed, source, settings, out, parsed.procedure->protoMethod.empty() ? nullptr : &protocol);
        r.file = out.text;
        r.protocol = protocol.text;
    } catch (const std::exception& e) {
        r.failure = e.what();
    }
    return r;
}

TEST(ReportValues, ValuesThatWouldLeaveWrongAreRefusedNamingTheProperty) {
    using Change = std::function<void(json&)>;
    const struct {
        const char* example;
        const char* what;
        Change change;
        const char* failure;
    } cases[] = {
        // A date in another form, in a text field and in a list entry.
        {"deuev-registration.json", "KsDatum ISO", [](json& j) { j["reports"][0]["KsDatum"] = "2023-11-15"; },
         "report 1: error DATE KsDatum (2023-11-15): not a calendar date (YYYYMMDD)"},
        {"eel-dslw.json", "DBVO date ISO",
         [](json& j) { j["reports"][0]["DBVO"]["Vorerkrankungen"][0]["BEGINNAU"] = "2023-11-15"; },
         "report 1: error DATE DBVO.Vorerkrankungen(1).BEGINNAU (2023-11-15): not a calendar date (YYYYMMDD)"},
        // The frame's values, before the header is written.
        {"deuev-registration.json", "file number too wide", [](json& j) { j["strFileNr"] = "1234567"; },
         "header: error KEY-LENGTH strFileNr (1234567): key longer than its field"},
        {"deuev-registration.json", "file number letters", [](json& j) { j["strFileNr"] = "abc"; },
         "header: error DIGITS strFileNr (abc): expected digits of the field's length"},
        {"deuev-registration.json", "file number negative", [](json& j) { j["strFileNr"] = "-1"; },
         "header: error DIGITS strFileNr (-1): expected digits of the field's length"},
        {"beitrag-collection.json", "microseconds letters",
         [](json& j) { j["udtDatensatzData"]["strMicroseconds"] = "abcdef"; },
         "header: error DIGITS udtDatensatzData.strMicroseconds (abcdef): expected digits of the field's length"},
        {"deuev-registration.json", "communication record's sender",
         [](json& j) { j["udtDSKOData"]["strBNRAb"] = "98765431"; },
         "header: error BNR-CHECKDIGIT udtDSKOData.strBNRAb (98765431): establishment number: wrong check digit "
         "(and 1 more)"},
        {"deuev-registration.json", "communication record's other receiver",
         [](json& j) { j["udtDSKOData"]["strBNREm"] = "98765432"; },
         "header: error FILE-PARTIES udtDSKOData.strBNREm (98765432): sender or receiver differs from the VOSZ's"},
        // What the library would refuse by the length of a record only.
        {"deuev-registration.json", "procedure 7", [](json& j) { j["enmVerfahren"] = 7; },
         "header: error VERFAHREN enmVerfahren (7): enmVerfahren: expected 0 (vmNormal), 1 (vmSofort) or 2 (vmBV)"},
        {"deuev-registration.json", "13 DBKS lines", [](json& j) { j["reports"][1]["KsLetzter"] = 13; },
         "report 2: error DBKS-LINES KsLetzter (1-13): DBKS: expected exactly 12 lines (KsErster to KsLetzter)"},
        {"deuev-registration.json", "control character in the firm's name", [](json& j) { j["strFirma"] = "A\tB"; },
         "header: strFirma \"A<U+0009>B\": the control character U+0009 (character 2) cannot be written in a "
         "transfer file; --transliterate writes it as a blank"},
        // Numbers that lose their sign or their first digits.
        {"deuev-registration.json", "Laufnummer -1", [](json& j) { j["reports"][0]["Laufnummer"] = -1; },
         "report 1: error NUMBER-RANGE Laufnummer (-1): number: negative, or more digits than its field holds"},
        {"deuev-registration.json", "Laufnummer min", [](json& j) { j["reports"][0]["Laufnummer"] = -2147483648LL; },
         "report 1: error NUMBER-RANGE Laufnummer (-2147483648): number: negative, or more digits than its field "
         "holds"},
        {"betrieb-master-data.json", "DatensatzNr", [](json& j) { j["reports"][0]["DatensatzNr"] = -2; },
         "report 1: error NUMBER-RANGE DatensatzNr (-2): number: negative, or more digits than its field holds"},
        {"zahl-pay-agency.json", "ZahlId", [](json& j) { j["reports"][0]["ZahlId"] = -7; },
         "report 1: error NUMBER-RANGE ZahlId (-7): number: negative, or more digits than its field holds"},
        // Text that only looks present.
        {"deuev-registration.json", "blank name", [](json& j) { j["reports"][0]["Vorgang"]["Familienname"] = "   "; },
         "report 1: error MISSING Vorgang.Familienname (   ): missing"},
        // Control characters: named with their property, echoed escaped.
        {"deuev-registration.json", "line feed",
         [](json& j) { j["reports"][0]["Vorgang"]["Aktenzeichen"] = "P-0001\n2"; },
         "report 1: Vorgang.Aktenzeichen \"P-0001<U+000A>2\": the control character U+000A (character 7) cannot be "
         "written in a transfer file; --transliterate writes it as a blank"},
        {"deuev-registration.json", "terminal escape",
         [](json& j) { j["reports"][0]["Personengruppe"] = "1\x1b]0;pwned\x07"; },
         "report 1: Personengruppe \"1<U+001B>]0;pwned<U+0007>\": the control character U+001B (character 2) cannot "
         "be written in a transfer file; --transliterate writes it as a blank"},
    };
    for (const auto& c : cases) {
        json job = example(c.example);
        c.change(job);
        const Outcome r = generate(job);
        EXPECT_EQ(r.failure, c.failure) << c.what;
        EXPECT_EQ(r.failure.find('\x1b'), std::string::npos) << c.what;
    }
}

TEST(ReportValues, TextsAreMadeReadyBeforeTheyAreChecked) {
    json job = example("deuev-registration.json");
    // A decomposed umlaut is the composed one ISO-8859-1 holds.
    job["reports"][0]["Vorgang"]["Familienname"] = "Mu\xCC\x88ller";
    job["reports"][0]["Vorgang"]["Aktenzeichen"] = "P-0001\n2";
    job["reports"][1]["Vorgang"]["Aktenzeichen"] = "\xE2\x82\xAC-7";  // "€": "EUR", cut to its field like any text
    const Outcome r = generate(job, true);
    ASSERT_EQ(r.failure, "");
    EXPECT_NE(r.file.find("M\xFCller"), std::string::npos);
    EXPECT_NE(r.file.find("P-0001 2"), std::string::npos);  // the control character as a blank
    EXPECT_NE(r.file.find("EUR-7"), std::string::npos);
    EXPECT_NE(
        r.notes.find("report 1: Vorgang.Aktenzeichen \"P-0001<U+000A>2\": \"<U+000A>\" (U+000A) written as \" \""),
        std::string::npos)
        << r.notes;
    // The frame's texts too: a longer substitute is cut to its field.
    job["strFirma"] = std::string(49, 'F') + "\xE2\x82\xAC";
    job["udtDSKOData"]["strName1"] = "Caf\xC3\xA9 \xC5\x93";
    const Outcome frame = generate(job, true);
    ASSERT_EQ(frame.failure, "");
    EXPECT_EQ(frame.file.substr(0, frame.file.find('\n')).size(), 105u);
    EXPECT_NE(frame.file.find(std::string(49, 'F') + "E01"), std::string::npos);
    EXPECT_NE(frame.notes.find("header: strFirma"), std::string::npos) << frame.notes;
    EXPECT_NE(frame.file.find("Caf\xE9 oe"), std::string::npos);
    // The protocol line holds the same texts as the record.
    EXPECT_NE(r.protocol.find("M\xFCller"), std::string::npos);
}

}  // namespace
