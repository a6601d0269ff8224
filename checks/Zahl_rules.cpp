// The checks of the pay-agency report (record DSVZ and its block DBZK): the
// person, the employer and the receiver, the period and dates of the
// payment, its amounts (unsigned, two decimal places) and its kind.
#include "checks/checks.h"
#include "checks/person.h"
#include "reports/clsGenZahl/DSVZ_layout.h"
#include "reports/clsGenZahl/Zahl.h"

namespace tamrel::checks {

void check_report(const Zahl& z, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstelltAm", z.ErstelltAm);
    const FieldChecks v = c.within("Vorgang");
    check_person(v, z.Vorgang);
    if (!z.Pseudonym) v.required("Versicherungsnummer", z.Vorgang.Versicherungsnummer);
    check_employer(v, z.Vorgang.Arbeitgeber);
    check_receiver(c, z.Empfaenger);

    c.required("ZKBeginn", z.ZKBeginn);
    for (const auto& [name, value] : {std::pair{"ZKBeginn", &z.ZKBeginn},
                                      {"ZKEnde", &z.ZKEnde},
                                      {"ZKDatum", &z.ZKDatum},
                                      {"ZKDatum2", &z.ZKDatum2},
                                      {"ZKDatum3", &z.ZKDatum3},
                                      {"ZKDatum4", &z.ZKDatum4}})
        c.date(name, *value);
    c.period("ZKBeginn", z.ZKBeginn, z.ZKEnde);
    c.amount("ZKBetrag1", z.ZKBetrag1, layouts::zahl::DBZK::ZKBetrag1);
    c.amount("ZKBetrag2", z.ZKBetrag2, layouts::zahl::DBZK::ZKBetrag2);
    c.amount("ZKBetrag3", z.ZKBetrag3, layouts::zahl::DBZK::ZKBetrag3);
    c.amount("ZKBetrag4", z.ZKBetrag4, layouts::zahl::DBZK::ZKBetrag4);
    c.digits("ZKArt", z.ZKArt, layouts::zahl::DBZK::ZKArt.len);
}

}  // namespace tamrel::checks
