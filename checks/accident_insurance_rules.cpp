// The checks of the accident-insurance records: the master-data query DSAS
// and the wage statement DSLN with its positions (the employer, the
// numeric fields, the contact person's texts).
#include "checks/checks.h"
#include "checks/person.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV.h"
#include "queries/clsGenAbfrStammdatenUV/DSAS_layout.h"
#include "queries/clsGenLohnnachweis/DSLN_layout.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis.h"

namespace tamrel::checks {
namespace {

void check_contact(const FieldChecks& c, const ContactPerson& p) {
    using namespace layouts::Contact;
    c.key("ApAnrede", p.ApAnrede, Anrede.len);
    c.texts(
        {{"ApName", p.ApName, Name}, {"ApTel", p.ApTel, Tel}, {"ApFax", p.ApFax, Fax}, {"ApEmail", p.ApEmail, EMail}});
}

}  // namespace

void check_report(const AbfrStammdatenUV& a, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstellDatum", a.ErstellDatum);
    check_employer(c, a.Arbeitgeber);
    c.number("Feld417", a.Feld417, layouts::uv::DSAS::Feld417.len);
    c.number("Feld422", a.Feld422, layouts::uv::DSAS::Feld422.len);
    c.number("Feld425", a.Feld425, layouts::uv::DSAS::Feld425.len);
    check_contact(c, a);
}

void check_report(const Lohnnachweis& l, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstellDatum", l.ErstellDatum);
    check_employer(c, l.Arbeitgeber);
    c.number("Feld437", l.Feld437, layouts::uv::DSLN::Feld437.len);
    c.number("Feld442", l.Feld442, layouts::uv::DSLN::Feld442.len);
    c.number("Feld445", l.Feld445, layouts::uv::DSLN::Feld445.len);
    c.number("Feld487", l.Feld487, layouts::uv::DSLN::Feld487.len);
    for (std::size_t i = 0; i < l.Positionen.size(); ++i) {
        const LnPosition& p = l.Positionen[i];
        const FieldChecks k = c.within("Position", i + 1);
        k.number("PosFeld3", p.PosFeld3, layouts::uv::DSLNPosition::PosFeld3.len);
        k.number("PosFeld4", p.PosFeld4, layouts::uv::DSLNPosition::PosFeld4.len);
        k.number("PosFeld5", p.PosFeld5, layouts::uv::DSLNPosition::PosFeld5.len);
    }
    check_contact(c, l);
}

}  // namespace tamrel::checks
