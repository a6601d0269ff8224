// Each kind of bad input gets a clear error naming what is wrong and where,
// within bounded memory and time (the kinds are listed in docs/robustness.md).
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "call/call_protocol.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "run/job.h"
#include "run/transfer.h"
#include "test_support.h"
#include "xml/clsGenAsyl/markup_check.h"

namespace {

using nlohmann::json;
using namespace tamrel;

std::string repeat(std::string_view s, std::size_t n) {
    std::string out;
    out.reserve(s.size() * n);
    for (std::size_t i = 0; i < n; ++i) out += s;
    return out;
}

std::string gen_data(const std::string& object) {
    return R"({"class":"clsGenMeldung","method":"GenData","args":{"objMeldung":)" + object +
           R"(,"udtDatensatzData":{},"enmVerfahren":0}})";
}

TEST(BadInput, EachKindOfBadRequestGetsARequestErrorNamingIt) {
    const std::string positions =
        R"({"class":"clsGenLohnnachweis","method":"GenData","args":{"objLohnnachweis":{"Position":[)" +
        repeat("{},", 40000) + R"({}]},"udtDatensatzData":{}}})";
    const struct {
        const char* kind;
        std::string line;
        std::string error;  // the whole text, or its start when it ends with "…"
    } cases[] = {
        {"invalid JSON", R"({"class":)",
         "not valid JSON: [json.exception.parse_error.101] parse error at line 1, column 10…"},
        {"not an object", "[1]", "request: expected a JSON object"},
        {"wrong type", gen_data(R"({"Laufnummer":"7"})"), "args.objMeldung.Laufnummer: expected an integer"},
        {"fraction for an integer", gen_data(R"({"Meldungsart":1.5})"),
         "args.objMeldung.Meldungsart: expected an integer"},
        {"16-bit range", gen_data(R"({"UvErster":40000})"),
         "args.objMeldung.UvErster: integer out of the 16-bit range"},
        {"32-bit range", gen_data(R"({"Laufnummer":-2147483649})"),
         "args.objMeldung.Laufnummer: integer out of the 32-bit range"},
        {"unknown property", gen_data(R"({"Vorgang":{"Gebursdatum":"19800101"}})"),
         "args.objMeldung.Vorgang.Gebursdatum: unknown property"},
        {"unknown parameter", R"({"class":"clsGenMeldung","method":"GenNCSZ","args":{"strCnt":"1"}})",
         "args.strCnt: unknown parameter"},
        {"invalid UTF-8", gen_data("{\"Meldegrund\":\"1\xFF\"}"),
         "not valid JSON: [json.exception.parse_error.101] parse error at line 1, column 82: syntax error while "
         "parsing value - invalid string: ill-formed UTF-8 byte…"},
        {"malformed date",
         R"({"class":"clsGenBetrieb","method":"GenNCSZ","args":{"strBNRAb":"1","strBNREm":"2","strFileNr":"1","strCount":"1","datDate":"2024-02-30"}})",
         "args.datDate: expected \"YYYY-MM-DD\" or \"YYYY-MM-DDTHH:MM:SS\""},
        {"deep nesting", "{\"id\":" + repeat("[", 100000) + repeat("]", 100000) + "}",
         "request: nested deeper than 32 levels"},
        {"too many items", positions, "args.objLohnnachweis.Position: more than 32767 items"},
        {"line of many megabytes", gen_data("{\"Meldegrund\":\"" + std::string(3 << 20, '1') + "\"}"),
         "request: line of 3145851 bytes or more, longer than the limit of 1048576 bytes"},
    };
    for (const auto& c : cases) {
        bool request_error = false;
        const json r = json::parse(call_line(c.line, request_error));
        EXPECT_TRUE(request_error) << c.kind;
        ASSERT_TRUE(r.contains("request_error")) << c.kind << ": " << r.dump();
        const std::string text = r["request_error"];
        if (c.error.ends_with("…"))
            EXPECT_TRUE(text.starts_with(c.error.substr(0, c.error.size() - 3))) << c.kind << ": " << text;
        else
            EXPECT_EQ(text, c.error) << c.kind;
    }
}

// Through the C++ interface a value of any size reaches the encoders, which
// cut it to the field's width: the record keeps its length.
TEST(BadInput, AValueOfManyMegabytesIsCutToItsField) {
    tamrel::testing::RecordingHost host;
    Meldung m;
    m.Meldegrund = "62";
    m.Meldungsart = 1;
    m.Vorgang.Aktenzeichen = std::string(8 << 20, 'A');
    DatensatzData dd;
    const std::string record = clsGenMeldung(host.host).GenData(m, dd, 0, Date{2024, 3, 1});
    EXPECT_EQ(record.size(), 559u);
    EXPECT_EQ(record.substr(92, 20), std::string(20, 'A'));
}

// An XML report's texts are checked for markup before its builders run, in
// the frame and in every report, naming the property that holds it.
TEST(BadInput, MarkupInAnXmlReportFailsNamingTheProperty) {
    const struct {
        const char* firma;
        const char* report;
        std::string failure;
    } cases[] = {
        {"F", R"({"MgdFmna":"A & B"})", "report 1: objAsyl.MgdFmna: " + std::string(xml::kMarkupFault)},
        {"F", R"({"Empfaenger":{"Betriebsnummer":"<1>"}})",
         "report 1: objAsyl.Empfaenger.Betriebsnummer: " + std::string(xml::kMarkupFault)},
        {"X<Y", R"({"MgdFmna":"A"})", "header: frame.strFirma: " + std::string(xml::kMarkupFault)},
    };
    for (const auto& c : cases) {
        json j = json::parse(R"({"class":"clsGenAsyl","strBNRAb":"1","strBNREm":"2","strFileNr":"1",
            "now":"2024-03-01T10:11:12"})");
        j["strFirma"] = c.firma;
        j["reports"] = json::array({json::parse(c.report)});
        const cli::Job job = cli::parse_job(j, "job", ".");
        cli::ReportSource source(job.reports);
        cli::StringSink out;
        try {
            // The library's own behaviour: the checks of the data would stop at the frame's numbers.
            cli::TransferSettings settings;
            settings.check = false;
            cli::write_transfer(job, source, settings, out, nullptr);
            ADD_FAILURE() << c.report << " was accepted";
        } catch (const cli::ReportFailure& f) {
            EXPECT_EQ(std::string(f.what()), c.failure);
        }
    }
}

cli::Job meldung_job() {
    return cli::parse_job(json::parse(R"({"class":"clsGenMeldung","strBNRAb":"1","strBNREm":"2","strFileNr":"1",
        "strFirma":"F","datDate":"2024-03-01T10:11:12","now":"2024-03-01T10:11:12","reports":[]})"),
                          "job", ".");
}

// A report line of an NDJSON file that cannot become a record: the run stops
// with the report's number and the reason, and nothing reaches the file.
TEST(BadInput, EachKindOfBadReportLineFailsNamingTheReport) {
    const std::string good = R"({"Meldegrund":"62","Meldungsart":1})";
    const struct {
        const char* kind;
        std::string line;
        std::string failure;
    } cases[] = {
        {"invalid JSON", R"({"Meldegrund":)",
         "report 2 (line 3): not valid JSON: The JSON document has an improper structure: missing or superfluous "
         "commas, braces, missing keys, etc."},
        {"wrong type", R"({"Meldegrund":62})", "report 2 (line 3): args.objMeldung.Meldegrund: expected a string"},
        {"unknown property", R"({"Meldgrund":"62"})", "report 2 (line 3): args.objMeldung.Meldgrund: unknown property"},
        {"out-of-range integer", R"({"KsLetzter":32768})",
         "report 2 (line 3): args.objMeldung.KsLetzter: integer out of the 16-bit range"},
        {"too many entries", R"({"KsZeileA":[)" + repeat("\"A\",", 40000) + R"("A"]})",
         "report 2 (line 3): args.objMeldung.KsZeileA: more than 32767 entries"},
        {"invalid UTF-8", "{\"Meldegrund\":\"6\xC3\"}",
         "report 2 (line 3): not valid JSON: The input is not valid UTF-8"},
        {"deep nesting", "{\"Vorgang\":" + repeat("[", 5000) + repeat("]", 5000) + "}",
         "report 2 (line 3): not valid JSON: The JSON document was too deep (too many nested objects and arrays)"},
        {"not in the encoding", R"({"Meldegrund":"62","Meldungsart":1,"Vorgang":{"Aktenzeichen":"Жук"}})",
         "report 2 (line 3): Vorgang.Aktenzeichen \"Жук\": \"Ж\" (U+0416, at position 93) cannot be written in "
         "ISO-8859-1"},
        {"control character", R"({"Meldegrund":"62","Meldungsart":1,"Personengruppe":"1\n9"})",
         "report 2 (line 3): Personengruppe \"1<U+000A>9\": the control character U+000A (character 2) cannot be "
         "written in a transfer file; --transliterate writes it as a blank"},
    };
    const cli::Job job = meldung_job();
    for (const auto& c : cases) {
        std::istringstream ndjson(good + "\n\n" + c.line + "\n" + good + "\n");
        cli::ReportSource source(ndjson);
        cli::StringSink out;
        cli::TransferSettings settings;
        settings.check = false;  // the library's own behaviour
        try {
            cli::write_transfer(job, source, settings, out, nullptr);
            ADD_FAILURE() << c.kind << " was accepted";
        } catch (const cli::ReportFailure& f) {
            EXPECT_EQ(std::string(f.what()), c.failure) << c.kind;
        }
        // With --keep-going the report is left out and the others are written.
        std::istringstream again(good + "\n\n" + c.line + "\n" + good + "\n");
        cli::ReportSource source2(again);
        cli::StringSink kept;
        settings.keepGoing = true;
        cli::StringSink protocol;
        const auto counts = cli::write_transfer(job, source2, settings, kept, &protocol);
        EXPECT_EQ(counts.written, 2u) << c.kind;
        EXPECT_EQ(counts.failed, 1u) << c.kind;
        EXPECT_EQ(std::count(kept.text.begin(), kept.text.end(), '\n'), 5) << c.kind;
        // Every report has its protocol line, the one left out with its
        // error marker and text, written whatever characters it holds.
        std::istringstream lines(protocol.text);
        std::string first, second, third;
        std::getline(lines, first), std::getline(lines, second), std::getline(lines, third);
        EXPECT_EQ(first, third) << c.kind;
        EXPECT_NE(second.find(";1;\"report 2 (line 3): "), std::string::npos) << c.kind << ": " << second;
        EXPECT_EQ(second.find_first_of("\t\n\r"), std::string::npos) << c.kind;
    }
    // A line beyond the bound is not read to its end, and ends the run even
    // with --keep-going: the reports after it would be lost.
    for (const bool keepGoing : {false, true}) {
        std::istringstream ndjson(good + "\n\n" + std::string(2 << 20, ' ') + "{\n" + good + "\n");
        cli::ReportSource source(ndjson);
        cli::StringSink out;
        cli::TransferSettings settings;
        settings.check = false;
        settings.keepGoing = keepGoing;
        try {
            cli::write_transfer(job, source, settings, out, nullptr);
            ADD_FAILURE() << "a line without end was accepted";
        } catch (const cli::ReportFailure& f) {
            EXPECT_EQ(std::string(f.what()),
                      "report 2 (line 3): line of 1048577 bytes or more, longer than the limit of 1048576 bytes");
        }
        EXPECT_LT(ndjson.tellg(), std::streampos((1 << 20) + (1 << 17))) << "read beyond the bound";
    }
}

TEST(BadInput, EachKindOfBadJobValueIsAFaultOfTheJob) {
    const struct {
        const char* key;
        json value;
        const char* message;
    } cases[] = {
        {"now", "2024-13-45T99:00:00", "job: now: expected \"YYYY-MM-DDTHH:MM:SS\""},
        {"datDate", 20240301, "job: datDate: expected a date text"},
        {"enmVerfahren", "vmEilig",
         "job: enmVerfahren: expected an integer or one of \"vmNormal\", \"vmSofort\", \"vmBV\""},
        {"udtDSKOData", json{{"strName", "x"}}, "job: udtDSKOData.strName: unknown property"},
        {"udtDatensatzData", json::array(), "job: udtDatensatzData: expected an object"},
        {"strFirma", 7, "job: strFirma: expected a string"},
        {"tests", json{{"NameTest", "x"}}, "job: tests.NameTest: expected a list of texts"},
    };
    for (const auto& c : cases) {
        json j = json::parse(
            R"({"class":"clsGenMeldung","strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"F","reports":[]})");
        j[c.key] = c.value;
        try {
            cli::parse_job(j, "job", ".");
            ADD_FAILURE() << c.key << " was accepted";
        } catch (const std::runtime_error& e) {
            EXPECT_EQ(std::string(e.what()), c.message) << c.key;
        }
    }
}

}  // namespace
