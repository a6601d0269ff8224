// The checks of the accident-insurance records: the master-data query DSAS
// and the wage statement DSLN with its positions (the employer, the
// numeric fields, the contact person's texts).
#include "checks/checks.h"
#include "checks/person.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis.h"

namespace tamrel::checks {
namespace {

void check_contact(const FieldChecks& c, const ContactPerson& p) {
    c.key("ApAnrede", p.ApAnrede, 1);
    c.texts({{"ApName", p.ApName, 30}, {"ApTel", p.ApTel, 20}, {"ApFax", p.ApFax, 20}, {"ApEmail", p.ApEmail, 70}});
}

// A numeric field: digits, at most `width` of them.
void number(const FieldChecks& c, std::string_view name, std::string_view value, std::size_t width) {
    if (!value.empty() && value.size() <= width) c.digits(name, value, value.size());
    c.key(name, value, width);
}

}  // namespace

void check_report(const AbfrStammdatenUV& a, Findings& f) {
    const FieldChecks c(f);
    check_employer(c, a.Arbeitgeber);
    number(c, "Feld417", a.Feld417, 5);
    number(c, "Feld422", a.Feld422, 3);
    number(c, "Feld425", a.Feld425, 4);
    check_contact(c, a);
}

void check_report(const Lohnnachweis& l, Findings& f) {
    const FieldChecks c(f);
    check_employer(c, l.Arbeitgeber);
    number(c, "Feld437", l.Feld437, 5);
    number(c, "Feld442", l.Feld442, 3);
    number(c, "Feld445", l.Feld445, 4);
    number(c, "Feld487", l.Feld487, 6);
    for (std::size_t i = 0; i < l.Positionen.size(); ++i) {
        const LnPosition& p = l.Positionen[i];
        const FieldChecks k = c.within("Position", i + 1);
        number(k, "PosFeld3", p.PosFeld3, 15);
        number(k, "PosFeld4", p.PosFeld4, 15);
        number(k, "PosFeld5", p.PosFeld5, 6);
    }
    check_contact(c, l);
}

}  // namespace tamrel::checks
