// The checks of the reimbursement application (record DSER and its
// blocks): the person, the employer and the receiver, the periods and
// dates, the amounts and rates (unsigned, with two decimal places), the
// bank details' numbers and the contact person's texts.
#include "reports/clsGenErst/Erst.h"
#include "checks/checks.h"
#include "checks/person.h"

namespace tamrel::checks {

void check_report(const Erst& e, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstelltAm", e.ErstelltAm);
    const FieldChecks v = c.within("Vorgang");
    check_person(v, e.Vorgang);
    check_employer(v, e.Vorgang.Arbeitgeber);
    check_receiver(c, e.Empfaenger);

    c.required("ZeitraumBeginn", e.ZeitraumBeginn);
    c.required("ZeitraumEnde", e.ZeitraumEnde);
    for (const auto& [name, value] : {std::pair{"ErstDatum", &e.ErstDatum},
                                      {"ZeitraumBeginn", &e.ZeitraumBeginn},
                                      {"ZeitraumEnde", &e.ZeitraumEnde},
                                      {"ZuschussBeginn", &e.ZuschussBeginn},
                                      {"ZuschussEnde", &e.ZuschussEnde},
                                      {"Zusatzdatum", &e.Zusatzdatum},
                                      {"Abschlussdatum", &e.Abschlussdatum}})
        c.date(name, *value);
    c.period("ZeitraumBeginn", e.ZeitraumBeginn, e.ZeitraumEnde);
    c.period("ZuschussBeginn", e.ZuschussBeginn, e.ZuschussEnde);

    // The amounts of DBAU, DBBT and DBZU: seven places before the separator
    // (three for the values and Betrag3, two for the rates), two after it.
    for (const auto& [name, value] : {std::pair{"Entgelt1", &e.Entgelt1},
                                      {"Entgelt2", &e.Entgelt2},
                                      {"Entgelt3", &e.Entgelt3},
                                      {"Entgelt4", &e.Entgelt4},
                                      {"Betrag1", &e.Betrag1},
                                      {"Betrag2", &e.Betrag2},
                                      {"Betrag4", &e.Betrag4},
                                      {"Betrag5", &e.Betrag5},
                                      {"Betrag6", &e.Betrag6},
                                      {"ZuschussBetrag1", &e.ZuschussBetrag1},
                                      {"ZuschussBetrag2", &e.ZuschussBetrag2},
                                      {"ZuschussBetrag3", &e.ZuschussBetrag3},
                                      {"ZuschussBetrag4", &e.ZuschussBetrag4}})
        c.decimal_amount(name, *value, 7, 2, false);
    for (const auto& [name, value] :
         {std::pair{"Wert1", &e.Wert1}, {"Wert2", &e.Wert2}, {"Wert3", &e.Wert3}, {"Betrag3", &e.Betrag3}})
        c.decimal_amount(name, *value, 3, 2, false);
    for (const auto& [name, value] : {std::pair{"Satz1", &e.Satz1}, {"Satz2", &e.Satz2}, {"Satz3", &e.Satz3}})
        c.decimal_amount(name, *value, 2, 2, false);

    c.digits("BVZahl4", e.BVZahl4, 4);
    c.digits("BVZahl2", e.BVZahl2, 2);
    c.key("IBAN", e.IBAN, 34);
    c.key("BIC", e.BIC, 11);
    c.texts({{"AnGeschl", e.AnGeschl, 1},
             {"AnName", e.AnName, 30},
             {"AnTel", e.AnTel, 20},
             {"AnFax", e.AnFax, 20},
             {"AnEMail", e.AnEMail, 70},
             {"Kontoinhaber1", e.Kontoinhaber1, 50},
             {"Kontoinhaber2", e.Kontoinhaber2, 50}});
}

}  // namespace tamrel::checks
