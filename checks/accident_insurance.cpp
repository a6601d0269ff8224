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

}  // namespace

void check_report(const AbfrStammdatenUV& a, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstellDatum", a.ErstellDatum);
    check_employer(c, a.Arbeitgeber);
    c.number("Feld417", a.Feld417, 5);
    c.number("Feld422", a.Feld422, 3);
    c.number("Feld425", a.Feld425, 4);
    check_contact(c, a);
}

void check_report(const Lohnnachweis& l, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstellDatum", l.ErstellDatum);
    check_employer(c, l.Arbeitgeber);
    c.number("Feld437", l.Feld437, 5);
    c.number("Feld442", l.Feld442, 3);
    c.number("Feld445", l.Feld445, 4);
    c.number("Feld487", l.Feld487, 6);
    for (std::size_t i = 0; i < l.Positionen.size(); ++i) {
        const LnPosition& p = l.Positionen[i];
        const FieldChecks k = c.within("Position", i + 1);
        k.number("PosFeld3", p.PosFeld3, 15);
        k.number("PosFeld4", p.PosFeld4, 15);
        k.number("PosFeld5", p.PosFeld5, 6);
    }
    check_contact(c, l);
}

}  // namespace tamrel::checks
