// The checks of the DEUEV report (record DSME): the report reason, the
// person (insurance number, or the birth data without it), the employment
// block's keys, dates and amount, the accident-insurance entries, the
// employer and the receiver.
#include <string>

#include "checks/checks.h"
#include "checks/field_checks.h"
#include "checks/person.h"
#include "checks/rules.h"
#include "reports/clsGenMeldung/DSME_layout.h"
#include "reports/clsGenMeldung/Meldung.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"

namespace tamrel::checks {
namespace {

// The reason's entry of the block table (reason, then seven J/N flags),
// found as a whole key; empty for a reason that is not in the table.
std::string_view reason_entry(std::string_view reason) {
    constexpr std::string_view table = clsGenMeldung::kBlockTable;
    if (reason.size() != 2) return {};
    constexpr std::size_t entry = clsGenMeldung::kBlockTableEntry;
    for (std::size_t at = 0; at + entry <= table.size(); at += entry)
        if (table[at] == reason[0] && table[at + 1] == reason[1]) return table.substr(at, entry);
    return {};
}
// The table's flags follow the reason, in the order of the blocks' enumeration.
bool wanted(std::string_view entry, MeldungBlock block) {
    return !entry.empty() && entry[2 + static_cast<std::size_t>(block)] == 'J';
}

// The reason as a number, -1 for anything but two digits.
int reason_code(std::string_view r) {
    if (r.size() != 2 || r[0] < '0' || r[0] > '9' || r[1] < '0' || r[1] > '9') return -1;
    return (r[0] - '0') * 10 + (r[1] - '0');
}
// Registrations (which begin an employment) and the reports that end a period.
bool registration(int r) { return r >= 10 && r <= 13; }
bool ends_period(int r) { return (r >= 30 && r <= 36) || r == 40 || (r >= 49 && r <= 57) || (r >= 70 && r <= 72); }

}  // namespace

void check_report(const Meldung& m, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("Zeitpunkt", m.Zeitpunkt);
    const std::string_view reason = m.Meldegrund;
    const std::string_view entry = reason_entry(reason);
    const int code = reason_code(reason);
    if (reason.empty())
        c.add(kMissing, "Meldegrund", reason);
    else if (entry.empty())
        c.add(kReasonUnknown, "Meldegrund", reason);

    // The person: the insurance number, or (on a registration without it)
    // the birth data that identify the person instead.
    const FieldChecks v = c.within("Vorgang");
    const Vorgang& p = m.Vorgang;
    check_person(v, p);
    if (p.Versicherungsnummer.empty() && (registration(code) || code == 20 || code == 40)) {
        v.required("Geburtsdatum", p.Geburtsdatum);
        v.required("Geschlecht", p.Geschlecht);
        v.required("Geburtsort", p.Geburtsort);
    }
    if (wanted(entry, MeldungBlock::DBNA) || m.MitNamensdaten) {
        v.required("Familienname", p.Familienname);
        v.required("Vorname", p.Vorname);
    }
    v.digits("Laenderschluessel", p.Laenderschluessel, layouts::meldung::DSME::Laenderschluessel.len);

    // The employment (block DBME): person group, period, contribution
    // groups, pay in whole euros.
    c.digits("Personengruppe", m.Personengruppe, layouts::meldung::DSME::Personengruppe.len);
    c.key("Zusatzmerkmal", m.Zusatzmerkmal, layouts::meldung::DSME::Zusatzmerkmal.len);
    c.key("Statuskennzeichen", m.Statuskennzeichen, layouts::meldung::DBME::Statuskennzeichen.len);
    c.key("Meldekennzeichen", m.Meldekennzeichen, layouts::meldung::DBME::Meldekennzeichen.len);
    if (wanted(entry, MeldungBlock::DBME)) {
        c.required("Personengruppe", m.Personengruppe);
        c.required("Beginn", m.Beginn);
        if (ends_period(code)) c.required("Ende", m.Ende);
        if (registration(code) && !m.Ende.empty()) c.add(kEndOnRegistration, "Ende", m.Ende);
        const std::pair<std::string_view, const std::string*> groups[] = {{"Beitragsgruppe1", &m.Beitragsgruppe1},
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
        c.whole_amount("Entgelt", m.Entgelt, layouts::meldung::DBME::Entgelt.len);
    }
    c.date("Beginn", m.Beginn);
    c.date("Ende", m.Ende);
    c.period("Beginn", m.Beginn, m.Ende);

    // DBUV: its count of entries is a single digit.
    int accident_entries = 0;
    for (std::int32_t i = m.UvErster; i <= m.UvLetzter; ++i)
        accident_entries += !m.UvEntfaellt(static_cast<std::int16_t>(i));
    if (accident_entries > 9) c.add(kListCount, "UvLetzter", std::to_string(accident_entries));

    // DBKS of a registration: exactly twelve lines (its fixed length), unless
    // the person group leaves the block out (marginal employment).
    if (m.Meldungsart == 1 && wanted(entry, MeldungBlock::DBKS) && !clsGenMeldung::MarginalGroup(m.Personengruppe) &&
        m.KsLetzter - m.KsErster + 1 != 12)
        c.add(kDbksLines, "KsLetzter", std::to_string(m.KsErster) + "-" + std::to_string(m.KsLetzter));

    // The employer and the receiving health insurer.
    check_employer(v, p.Arbeitgeber);
    check_receiver(c, m.Empfaenger);
}

}  // namespace tamrel::checks
