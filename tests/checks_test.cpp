// The checks of a report's data: the number rules against published valid
// and invalid numbers, the DEUEV report's rules case by case (whole lists of
// findings compared), the call protocol's Check, every example clean, and
// tamrel generate stopping a bad report, telling warnings and writing the
// findings file.
#include <gtest/gtest.h>

#include <algorithm>

#include <cstdlib>
#include <functional>

#include <nlohmann/json.hpp>

#include "call/call_protocol.h"
#include "checks/checks.h"
#include "checks/numbers.h"
#include "checks/rules.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"
#include "reports/clsGenMeldung/Meldung.h"
#include "tests/example_jobs.h"
#include "tests/test_support.h"

using namespace tamrel;
using nlohmann::json;

namespace {

std::string rule_id(const checks::Rule* r) { return r ? std::string(r->id) : "ok"; }

TEST(DataChecks, InsuranceNumbers) {
    const std::pair<const char*, const char*> cases[] = {
        {"10010490A443", "ok"},  // the published example of the check digit
        {"65170839J003", "ok"},
        {"12150565K010", "ok"},
        {"10010490a443", "ok"},  // the letter in either case
        {"10010490A444", "VSNR-CHECKDIGIT"},
        {"10010490A453", "VSNR-CHECKDIGIT"},  // a serial digit changed
        {"00010490A443", "VSNR-AREA"},
        {"90010490A443", "VSNR-AREA"},
        {"10320490A443", "VSNR-DATE"},        // 32nd day
        {"10011390A443", "VSNR-DATE"},        // 13th month
        {"10290201A440", "VSNR-DATE"},        // 29 February 2001
        {"10290200A441", "VSNR-CHECKDIGIT"},  // 29 February 2000 is a day; the check digit is not
        {"1001049AA443", "VSNR-FORM"},
        {"100104901443", "VSNR-FORM"},
        {"10010490A44", "VSNR-FORM"},
        {"10010490A4433", "VSNR-FORM"},
    };
    for (const auto& [number, want] : cases)
        EXPECT_EQ(rule_id(checks::versicherungsnummer_fault(number)), want) << number;
}

TEST(DataChecks, EstablishmentNumbers) {
    const std::pair<const char*, const char*> cases[] = {
        {"09912342", "ok"},  // the published example: check digit 2
        {"09912347", "ok"},  // the check digit plus 5
        {"98765432", "ok"},
        {"12345671", "ok"},
        {"12345678", "BNR-CHECKDIGIT"},
        {"09912343", "BNR-CHECKDIGIT"},
        {"0991234", "BNR-FORM"},
        {"099123422", "BNR-FORM"},
        {"ABC", "BNR-FORM"},
        {"0991234X", "BNR-FORM"},
    };
    for (const auto& [number, want] : cases) EXPECT_EQ(rule_id(checks::betriebsnummer_fault(number)), want) << number;
}

// A registration that passes every check.
Meldung registration() {
    Meldung m;
    m.Laufnummer = 1;
    m.Meldegrund = "10";
    m.Meldungsart = 1;
    m.Personengruppe = "101";
    m.Beitragsgruppe1 = m.Beitragsgruppe2 = m.Beitragsgruppe3 = m.Beitragsgruppe4 = "1";
    m.Beginn = "20240301";
    m.KsLetzter = 12;  // DBKS: its twelve lines
    m.Vorgang.Versicherungsnummer = tamrel::testing::kInsuranceNumber;
    m.Vorgang.Familienname = "Muster";
    m.Vorgang.Vorname = "Erika";
    m.Vorgang.Arbeitgeber.Betriebsnummer = tamrel::testing::kSenderBnr;
    m.Empfaenger.Betriebsnummer = tamrel::testing::kReceiverBnr;
    return m;
}

template <class Obj>
std::string findings_of(const Obj& o) {
    checks::Findings f;
    checks::check_report(o, f);
    std::string all;
    for (const auto& x : f.list()) all += checks::describe(x) + "\n";
    return all;
}

TEST(DataChecks, DeuevReport) {
    struct Case {
        const char* what;
        std::function<void(Meldung&)> change;
        const char* findings;
    };
    const Case cases[] = {
        {"clean", [](Meldung&) {}, ""},
        {"no reason", [](Meldung& m) { m.Meldegrund.clear(); }, "error MISSING Meldegrund: missing\n"},
        {"unknown reason, and one that is only part of a key", [](Meldung& m) { m.Meldegrund = "1"; },
         "error REASON-UNKNOWN Meldegrund (1): report reason is not a published reason key\n"},
        {"birth date cut to two-digit year", [](Meldung& m) { m.Vorgang.Geburtsdatum = "1983-09-17"; },
         "error DATE Vorgang.Geburtsdatum (1983-09-17): not a calendar date (YYYYMMDD)\n"},
        {"negative pay", [](Meldung& m) { m.Entgelt = "-5400"; },
         "error AMOUNT-NEGATIVE Entgelt (-5400): amount: must not be negative\n"},
        {"pay with cents and too long", [](Meldung& m) { m.Entgelt = "5400,00"; },
         "error AMOUNT-CHARS Entgelt (5400,00): amount: unexpected character (digits, and where the field has them one "
         "decimal separator and a leading sign)\n"},
        {"pay of seven digits", [](Meldung& m) { m.Entgelt = "1234567"; },
         "error AMOUNT-LENGTH Entgelt (1234567): amount: more digits than the field holds\n"},
        {"impossible start", [](Meldung& m) { m.Beginn = "20241399"; },
         "error DATE Beginn (20241399): not a calendar date (YYYYMMDD)\n"},
        {"end before start on a deregistration",
         [](Meldung& m) {
             m.Meldegrund = "30";
             m.Ende = "20240201";
         },
         "error PERIOD Beginn (20240301-20240201): the start is after the end\n"},
        {"deregistration without end", [](Meldung& m) { m.Meldegrund = "30"; }, "error MISSING Ende: missing\n"},
        {"end on a registration", [](Meldung& m) { m.Ende = "20241231"; },
         "warning END-ON-REGISTRATION Ende (20241231): an end date on a registration\n"},
        {"wrong check digit", [](Meldung& m) { m.Vorgang.Versicherungsnummer = "65170839J004"; },
         "error VSNR-CHECKDIGIT Vorgang.Versicherungsnummer (65170839J004): insurance number: wrong check digit\n"},
        {"no insurance number and no birth data on a registration",
         [](Meldung& m) { m.Vorgang.Versicherungsnummer.clear(); },
         "error MISSING Vorgang.Geburtsdatum: missing\nerror MISSING Vorgang.Geschlecht: missing\n"
         "error MISSING Vorgang.Geburtsort: missing\n"},
        {"unknown gender", [](Meldung& m) { m.Vorgang.Geschlecht = "Q"; },
         "error GENDER Vorgang.Geschlecht (Q): gender: expected M, W, D or X\n"},
        {"establishment numbers",
         [](Meldung& m) {
             m.Vorgang.Arbeitgeber.Betriebsnummer = "ABC";
             m.Empfaenger.Betriebsnummer = "12345678";
         },
         "error BNR-FORM Vorgang.Arbeitgeber.Betriebsnummer (ABC): establishment number: expected 8 digits\n"
         "error BNR-CHECKDIGIT Empfaenger.Betriebsnummer (12345678): establishment number: wrong check digit\n"},
        {"contribution groups",
         [](Meldung& m) {
             m.Beitragsgruppe1 = "2";
             m.Beitragsgruppe2 = "2";
             m.Beitragsgruppe4 = "";
         },
         "error MISSING Beitragsgruppe4: missing\n"
         "warning CONTRIBUTION-GROUP-2008 Beitragsgruppe1 (2): contribution group 2 (increased rate) applies only "
         "until 2008-12-31\n"
         "error CONTRIBUTION-GROUP Beitragsgruppe2 (2): contribution group is not a valid key for its branch\n"},
        {"names wanted by the reason", [](Meldung& m) { m.Vorgang.Familienname.clear(); },
         "error MISSING Vorgang.Familienname: missing\n"},
        {"names not wanted by an annual report",
         [](Meldung& m) {
             m.Meldegrund = "50";
             m.Ende = "20241231";
             m.Vorgang.Familienname.clear();
             m.Vorgang.Vorname.clear();
         },
         ""},
        {"a name cut, a key too long",
         [](Meldung& m) {
             m.Vorgang.Familienname = "Müller-Lüdenscheidt-Großkopf-Übermann";  // 36 characters
             m.Statuskennzeichen = "12";
         },
         "warning TEXT-LENGTH Vorgang.Familienname (Müller-Lüdenscheidt-Großkopf-Übermann): text longer than its "
         "field: it is cut\n"
         "error KEY-LENGTH Statuskennzeichen (12): key longer than its field\n"},
        {"umlauts count as one character each",
         [](Meldung& m) { m.Vorgang.Familienname = "Müller-Lüdenscheidt-Großkopf-"; },  // 30 characters
         ""},
        {"person group of two digits", [](Meldung& m) { m.Personengruppe = "10"; },
         "error DIGITS Personengruppe (10): expected digits of the field's length\n"},
        {"ten accident-insurance entries: DBUV counts them in one digit",
         [](Meldung& m) {
             m.UvErster = 1;
             m.UvLetzter = 10;
         },
         "error LIST-COUNT UvLetzter (10): more entries than the block's count field holds\n"},
        {"thirteen DBKS lines", [](Meldung& m) { m.KsLetzter = 13; },
         "error DBKS-LINES KsLetzter (1-13): DBKS: expected exactly 12 lines (KsErster to KsLetzter)\n"},
        {"ten accident-insurance entries, one left out",
         [](Meldung& m) {
             m.UvErster = 1;
             m.UvLetzter = 10;
             m.UvEntfaellt.set(4, true);
         },
         ""},
    };
    for (const Case& c : cases) {
        Meldung m = registration();
        c.change(m);
        EXPECT_EQ(findings_of(m), c.findings) << c.what;
    }
}

TEST(DataChecks, ContributionStatementAmountsAndPeriod) {
    const std::pair<std::function<void(BeitrNachw&)>, const char*> cases[] = {
        {[](BeitrNachw&) {}, ""},
        {[](BeitrNachw& b) { b.Betrag01 = "-1234,56"; }, ""},  // the field has a sign
        {[](BeitrNachw& b) { b.Betrag01 = "1.234,56"; },
         "error AMOUNT-CHARS Betrag01 (1.234,56): amount: unexpected character (digits, and where the field has them "
         "one decimal separator and a leading sign)\n"},
        {[](BeitrNachw& b) { b.Betrag02 = "12,345"; },
         "error AMOUNT-DECIMALS Betrag02 (12,345): amount: more decimal places than the field holds\n"},
        {[](BeitrNachw& b) { b.Betrag27 = "1234567890"; },
         "error AMOUNT-LENGTH Betrag27 (1234567890): amount: more digits than the field holds\n"},
        {[](BeitrNachw& b) { b.Zeitraum2 = "20240229"; },
         "error PERIOD Zeitraum1 (20240301-20240229): the start is after the end\n"},
        {[](BeitrNachw& b) { b.Zeitraum1.clear(); }, "error MISSING Zeitraum1: missing\n"},
    };
    for (const auto& [change, want] : cases) {
        BeitrNachw b;
        b.Zeitraum1 = "20240301";
        b.Zeitraum2 = "20240331";
        b.Betrag01 = "1234,56";
        b.Arbeitgeber.Betriebsnummer = tamrel::testing::kSenderBnr;
        b.Empfaenger.Betriebsnummer = tamrel::testing::kReceiverBnr;
        change(b);
        EXPECT_EQ(findings_of(b), want);
    }
}

// Every procedure's rule set, through the call protocol's Check: one
// example report with one property changed gives exactly the finding named.
TEST(DataChecks, EachProcedureFindsItsFaults) {
    struct Case {
        const char* example;
        const char* pointer;  // the property changed, as a JSON pointer into the report
        json value;
        const char* want;  // rule, field and value of the one finding
    };
    const Case cases[] = {
        {"beitrag-collection.json", "/Zeitraum1", "202413", "MONTH Zeitraum1 202413"},
        {"beitrag-collection.json", "/Betrag2", "1234567,00", "AMOUNT-LENGTH Betrag2 1234567,00"},
        {"beitrag-collection.json", "/Vorgang/Arbeitgeber/PLZ", "D-101", "DIGITS Vorgang.Arbeitgeber.PLZ D-101"},
        {"erst-reason-01-sickness.json", "/ZeitraumEnde", "20240131", "PERIOD ZeitraumBeginn 20240201-20240131"},
        {"erst-reason-01-sickness.json", "/Satz1", "100,5", "AMOUNT-LENGTH Satz1 100,5"},
        {"erst-reason-01-sickness.json", "/Vorgang/Arbeitgeber/Betriebsnummer", "",
         "MISSING Vorgang.Arbeitgeber.Betriebsnummer "},
        {"zahl-pay-agency.json", "/Vorgang/Versicherungsnummer", "", "MISSING Vorgang.Versicherungsnummer "},
        {"zahl-pay-agency.json", "/ZKBetrag1", "-5", "AMOUNT-NEGATIVE ZKBetrag1 -5"},
        {"bea-dsab.json", "/DBSE/0/AESTEDATBEG", "20240230", "DATE DBSE(1).AESTEDATBEG 20240230"},
        {"bea-dsab.json", "/Vorgang/Versicherungsnummer", "65170839J004",
         "VSNR-CHECKDIGIT Vorgang.Versicherungsnummer 65170839J004"},
        {"eel-dslw.json", "/DBAL/DATUMAB", "2024-02-15", "DATE DBAL.DATUMAB 2024-02-15"},
        {"eel-dslw.json", "/RUECKMELDUNGEEL", "Y", "FLAG RUECKMELDUNGEEL Y"},
        {"eel-dslw.json", "/BBNRKK", "12345678", "BNR-CHECKDIGIT BBNRKK 12345678"},
        {"eel-dslw.json", "/DBVO/Vorerkrankungen", json(std::vector<json>(100, json::object())),
         "LIST-COUNT DBVO.Vorerkrankungen 100"},
        {"betrieb-master-data.json", "/Kennziffer", "1A", "DIGITS Kennziffer 1A"},
        {"abfrvers-query.json", "/Vorgang/Geburtsort", "", "MISSING Vorgang.Geburtsort "},
        {"uv-master-data-query.json", "/Feld417", "20A4", "DIGITS Feld417 20A4"},
        {"uv-wage-statement.json", "/Position/1/PosFeld4", "4,5", "DIGITS Position(2).PosFeld4 4,5"},
        {"xml-asyl-report.json", "/ZrEnde", "20231231", "PERIOD ZrBeginn 20240101-20231231"},
        {"xml-asyl-report.json", "/MgdFmna", "Müller & Co", "MARKUP MgdFmna Müller & Co"},
    };
    const auto jobs = tamrel::testing::example_jobs();
    for (const Case& c : cases) {
        const auto e =
            std::find_if(jobs.begin(), jobs.end(), [&](const auto& j) { return j.path.filename() == c.example; });
        ASSERT_NE(e, jobs.end()) << c.example;
        json report = e->job["reports"][0];
        report[json::json_pointer(c.pointer)] = c.value;
        const json request = {
            {"class", e->job["class"]}, {"method", "Check"}, {"args", {{std::string(e->info->objParam), report}}}};
        const json response = json::parse(call(request).dump());
        std::string got;
        for (const json& f : response["out"]["findings"])
            got += f["rule"].get<std::string>() + " " + f["field"].get<std::string>() + " " +
                   f["value"].get<std::string>() + "\n";
        EXPECT_EQ(got, std::string(c.want) + "\n") << c.example << " " << c.pointer;
    }
}

// The call protocol's Check applies the rules derived from the layouts too.
TEST(DataChecks, CheckNamesANumberThatItsFieldCannotHold) {
    const json request = {{"class", "clsGenBetrieb"},
                          {"method", "Check"},
                          {"args", {{"objBetrieb", {{"DatensatzNr", -2}, {"Kennziffer", "01"}}}}}};
    const json findings = json::parse(call(request).dump())["out"]["findings"];
    const auto it =
        std::find_if(findings.begin(), findings.end(), [](const json& f) { return f["rule"] == "NUMBER-RANGE"; });
    ASSERT_NE(it, findings.end()) << findings.dump();
    EXPECT_EQ((*it)["field"], "DatensatzNr");
    EXPECT_EQ((*it)["value"], "-2");
}

TEST(DataChecks, EveryExampleIsClean) {
    for (const auto& e : tamrel::testing::example_jobs()) {
        for (const json& report : e.job["reports"]) {
            const json request = {
                {"class", e.job["class"]}, {"method", "Check"}, {"args", {{std::string(e.info->objParam), report}}}};
            const json response = json::parse(call(request).dump());
            EXPECT_EQ(response["out"]["findings"], json::array()) << e.path << ": " << response.dump();
        }
        checks::Findings frame;
        const std::string sender = e.job["strBNRAb"], receiver = e.job["strBNREm"], file = e.job["strFileNr"];
        checks::check_frame({sender, receiver, file, e.job.value("strDatum", "")}, frame);
        EXPECT_TRUE(frame.list().empty()) << e.path;
    }
}

}  // namespace
