// The checks of the contribution statement (record BW02): its period, its
// amounts (signed, nine places before the decimal separator and two after
// it), the employer and the receiving health insurer.
#include "checks/checks.h"
#include "checks/field_checks.h"
#include "checks/person.h"
#include "reports/clsGenBeitrNachw/BW02_layout.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"

namespace tamrel::checks {

void check_report(const BeitrNachw& b, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("Zeitpunkt", b.Zeitpunkt);
    c.required("Zeitraum1", b.Zeitraum1);
    c.required("Zeitraum2", b.Zeitraum2);
    c.date("Zeitraum1", b.Zeitraum1);
    c.date("Zeitraum2", b.Zeitraum2);
    c.period("Zeitraum1", b.Zeitraum1, b.Zeitraum2);

    // Every amount of the statement, of the places of its field.
    namespace L = layouts::beitrnachw;
    const L::Statement& S = L::BW02::Fields;
    const struct {
        const char* name;
        const std::string* value;
        const FieldLayout& field;
    } amounts[] = {
        {"Betrag01", &b.Betrag01, S.Betrag01},        {"Betrag02", &b.Betrag02, S.Betrag02},
        {"Betrag03", &b.Betrag03, S.Betrag03},        {"Betrag04", &b.Betrag04, S.Betrag04},
        {"Betrag05", &b.Betrag05, S.Betrag05},        {"Betrag06", &b.Betrag06, S.Betrag06},
        {"Betrag07", &b.Betrag07, S.Betrag07},        {"Betrag08", &b.Betrag08, S.Betrag08},
        {"Betrag09", &b.Betrag09, S.Betrag09},        {"Betrag10", &b.Betrag10, S.Betrag10},
        {"Betrag11", &b.Betrag11, S.Betrag11},        {"Betrag12", &b.Betrag12, S.Betrag12},
        {"Betrag13", &b.Betrag13, S.Betrag13},        {"Betrag14", &b.Betrag14, S.Betrag14},
        {"Betrag15", &b.Betrag15, S.Betrag15},        {"Sonderbetrag", &b.Sonderbetrag, S.Sonderbetrag},
        {"Betrag16", &b.Betrag16, S.Betrag16},        {"Betrag17", &b.Betrag17, S.Betrag17},
        {"Betrag18", &b.Betrag18, S.Betrag18},        {"Betrag19", &b.Betrag19, S.Betrag19},
        {"Betrag20", &b.Betrag20, L::BW02::Betrag20}, {"Betrag21", &b.Betrag21, L::BW02::Betrag21},
        {"Betrag22", &b.Betrag22, L::BW02::Betrag22}, {"Betrag23", &b.Betrag23, L::BW02::Betrag23},
        {"Betrag24", &b.Betrag24, L::BW02::Betrag24}, {"Betrag25", &b.Betrag25, S.Betrag25},
        {"Betrag26", &b.Betrag26, S.Betrag26},        {"Betrag27", &b.Betrag27, S.Betrag27},
    };
    for (const auto& a : amounts) c.amount(a.name, *a.value, a.field);

    check_employer(c, b.Arbeitgeber);
    check_receiver(c, b.Empfaenger);
}

}  // namespace tamrel::checks
