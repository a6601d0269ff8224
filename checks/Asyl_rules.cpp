// The checks of the XML report: the reporting establishment and the
// receiver, the period, the member's insurance number and birth date.
#include "checks/checks.h"
#include "checks/person.h"
#include "checks/rules.h"
#include "xml/clsGenAsyl/Asyl.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel::checks {

void check_report(const Asyl& a, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstellDatum", a.ErstellDatum);
    c.betriebsnummer("BbnrVu", a.BbnrVu);
    check_receiver(c, a.Empfaenger);
    c.date("ZrBeginn", a.ZrBeginn);
    c.date("ZrEnde", a.ZrEnde);
    c.period("ZrBeginn", a.ZrBeginn, a.ZrEnde);
    c.digits("Ikko", a.Ikko, clsGenAsyl::kIkkoDigits);
    for (const auto& [name, p] : {std::pair{"Mgd", &a.Mgd}, {"Ang", &a.Ang}}) {
        const FieldChecks k = c.within(name);
        k.versicherungsnummer("Vsnr", p->Vsnr);
        k.date("Gbdt", p->Gbdt);
    }
}

}  // namespace tamrel::checks
