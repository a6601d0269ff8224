// The checks of the contribution statement (record BW02): its period, its
// amounts (signed, nine places before the decimal separator and two after
// it), the employer and the receiving health insurer.
#include "reports/clsGenBeitrNachw/BeitrNachw.h"
#include "checks/checks.h"
#include "checks/field_checks.h"
#include "checks/person.h"

namespace tamrel::checks {

void check_report(const BeitrNachw& b, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("Zeitpunkt", b.Zeitpunkt);
    c.required("Zeitraum1", b.Zeitraum1);
    c.required("Zeitraum2", b.Zeitraum2);
    c.date("Zeitraum1", b.Zeitraum1);
    c.date("Zeitraum2", b.Zeitraum2);
    c.period("Zeitraum1", b.Zeitraum1, b.Zeitraum2);

    const std::pair<const char*, const std::string*> amounts[] = {
        {"Betrag01", &b.Betrag01},         {"Betrag02", &b.Betrag02}, {"Betrag03", &b.Betrag03},
        {"Betrag04", &b.Betrag04},         {"Betrag05", &b.Betrag05}, {"Betrag06", &b.Betrag06},
        {"Betrag07", &b.Betrag07},         {"Betrag08", &b.Betrag08}, {"Betrag09", &b.Betrag09},
        {"Betrag10", &b.Betrag10},         {"Betrag11", &b.Betrag11}, {"Betrag12", &b.Betrag12},
        {"Betrag13", &b.Betrag13},         {"Betrag14", &b.Betrag14}, {"Betrag15", &b.Betrag15},
        {"Sonderbetrag", &b.Sonderbetrag}, {"Betrag16", &b.Betrag16}, {"Betrag17", &b.Betrag17},
        {"Betrag18", &b.Betrag18},         {"Betrag19", &b.Betrag19}, {"Betrag20", &b.Betrag20},
        {"Betrag21", &b.Betrag21},         {"Betrag22", &b.Betrag22}, {"Betrag23", &b.Betrag23},
        {"Betrag24", &b.Betrag24},         {"Betrag25", &b.Betrag25}, {"Betrag26", &b.Betrag26},
        {"Betrag27", &b.Betrag27}};
    for (const auto& [name, value] : amounts) c.decimal_amount(name, *value, 9, 2, true);

    check_employer(c, b.Arbeitgeber);
    check_receiver(c, b.Empfaenger);
}

}  // namespace tamrel::checks
