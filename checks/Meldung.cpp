// The checks of the DEUEV report (record DSME): the report reason, the
// person (insurance number, or the birth data without it), the employment
// block's keys, dates and amount, the employer and the receiver.
#include "reports/clsGenMeldung/Meldung.h"
#include "checks/checks.h"
#include "checks/field_checks.h"
#include "checks/rules.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"

namespace tamrel::checks {
namespace {

// The reason's entry of the block table (reason, then seven J/N flags),
// found as a whole key; empty for a reason that is not in the table.
std::string_view reason_entry(std::string_view reason) {
    constexpr std::string_view table = clsGenMeldung::kBlockTable;
    if (reason.size() != 2) return {};
    for (std::size_t at = 0; at + 9 <= table.size(); at += 9)
        if (table.substr(at, 2) == reason) return table.substr(at, 9);
    return {};
}
bool wanted(std::string_view entry, int block) { return !entry.empty() && entry[1 + block] == 'J'; }
constexpr int kDBME = 1, kDBNA = 2;

bool among(std::string_view reason, std::initializer_list<std::string_view> reasons) {
    for (std::string_view r : reasons)
        if (r == reason) return true;
    return false;
}
// Registrations (which begin an employment) and the reports that end a period.
bool registration(std::string_view r) { return among(r, {"10", "11", "12", "13"}); }
bool ends_period(std::string_view r) {
    return among(r, {"30", "31", "32", "33", "34", "35", "36", "40", "49", "50",
                     "51", "52", "53", "54", "55", "56", "57", "70", "71", "72"});
}

}  // namespace

void check_report(const Meldung& m, Findings& f) {
    const FieldChecks c(f);
    const std::string_view reason = m.Meldegrund;
    const std::string_view entry = reason_entry(reason);
    if (reason.empty())
        c.add(kMissing, "Meldegrund", reason);
    else if (entry.empty())
        c.add(kReasonUnknown, "Meldegrund", reason);

    // The person: the insurance number, or (on a registration without it)
    // the birth data that identify the person instead.
    const FieldChecks v = c.within("Vorgang");
    const Vorgang& p = m.Vorgang;
    v.versicherungsnummer("Versicherungsnummer", p.Versicherungsnummer);
    if (p.Versicherungsnummer.empty() && (registration(reason) || reason == "20" || reason == "40")) {
        v.required("Geburtsdatum", p.Geburtsdatum);
        v.required("Geschlecht", p.Geschlecht);
        v.required("Geburtsort", p.Geburtsort);
    }
    if (wanted(entry, kDBNA) || m.MitNamensdaten) {
        v.required("Familienname", p.Familienname);
        v.required("Vorname", p.Vorname);
    }
    v.date("Geburtsdatum", p.Geburtsdatum);
    v.one_of("Geschlecht", p.Geschlecht, {"M", "W", "D", "X"}, kGender);
    v.digits("Laenderschluessel", p.Laenderschluessel, 3);

    // The employment (block DBME): person group, period, contribution
    // groups, pay in whole euros.
    c.digits("Personengruppe", m.Personengruppe, 3);
    if (wanted(entry, kDBME)) {
        c.required("Personengruppe", m.Personengruppe);
        c.required("Beginn", m.Beginn);
        if (ends_period(reason)) c.required("Ende", m.Ende);
        if (registration(reason) && !m.Ende.empty()) c.add(kEndOnRegistration, "Ende", m.Ende);
        const std::pair<const char*, const std::string*> groups[] = {{"Beitragsgruppe1", &m.Beitragsgruppe1},
                                                                     {"Beitragsgruppe2", &m.Beitragsgruppe2},
                                                                     {"Beitragsgruppe3", &m.Beitragsgruppe3},
                                                                     {"Beitragsgruppe4", &m.Beitragsgruppe4}};
        for (const auto& [name, value] : groups) c.required(name, *value);
        if (m.Beitragsgruppe1 == "2")
            c.add(kContributionGroupOld, "Beitragsgruppe1", m.Beitragsgruppe1);
        else
            c.one_of("Beitragsgruppe1", m.Beitragsgruppe1, {"0", "1", "3", "4", "5", "6", "9"}, kContributionGroup);
        c.one_of("Beitragsgruppe2", m.Beitragsgruppe2, {"0", "1", "3", "5"}, kContributionGroup);
        c.one_of("Beitragsgruppe3", m.Beitragsgruppe3, {"0", "1", "2"}, kContributionGroup);
        c.one_of("Beitragsgruppe4", m.Beitragsgruppe4, {"0", "1", "2"}, kContributionGroup);
        c.whole_amount("Entgelt", m.Entgelt, 6);
    }
    c.date("Beginn", m.Beginn);
    c.date("Ende", m.Ende);
    c.period("Beginn", m.Beginn, m.Ende);

    // The employer and the receiving health insurer.
    const FieldChecks a = v.within("Arbeitgeber");
    a.required("Betriebsnummer", p.Arbeitgeber.Betriebsnummer);
    a.betriebsnummer("Betriebsnummer", p.Arbeitgeber.Betriebsnummer);
    const FieldChecks e = c.within("Empfaenger");
    e.required("Betriebsnummer", m.Empfaenger.Betriebsnummer);
    e.betriebsnummer("Betriebsnummer", m.Empfaenger.Betriebsnummer);
}

}  // namespace tamrel::checks
