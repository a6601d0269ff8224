// The checks of the reimbursement application (record DSER and its
// blocks): the person, the employer and the receiver, the periods and
// dates, the amounts and rates (unsigned, with two decimal places), the
// bank details' numbers and the contact person's texts.
#include "checks/checks.h"
#include "checks/person.h"
#include "reports/clsGenErst/DSER_layout.h"
#include "reports/clsGenErst/Erst.h"

namespace tamrel::checks {

namespace L = layouts::erst;

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

    // The amounts of DBAU, DBBT and DBZU, each of the places of the field it goes to.
    const struct {
        const char* name;
        const std::string* value;
        const FieldLayout& field;
    } amounts[] = {
        {"Entgelt1", &e.Entgelt1, L::DBAU::FirstOfEntgelt14},
        {"Entgelt2", &e.Entgelt2, L::DBAU::FirstOfEntgelt14},
        {"Entgelt3", &e.Entgelt3, L::DBAU::FirstOfEntgelt14},
        {"Entgelt4", &e.Entgelt4, L::DBZU::Entgelt4},
        {"Betrag1", &e.Betrag1, L::DBAU::Betrag1},
        {"Betrag2", &e.Betrag2, L::DBAU::Betrag2},
        {"Betrag4", &e.Betrag4, L::DBAU::Betrag4},
        {"Betrag5", &e.Betrag5, L::DBAU::Betrag5},
        {"Betrag6", &e.Betrag6, L::DBAU::Betrag6},
        {"ZuschussBetrag1", &e.ZuschussBetrag1, L::DBZU::ZuschussBetrag1},
        {"ZuschussBetrag2", &e.ZuschussBetrag2, L::DBZU::ZuschussBetrag2},
        {"ZuschussBetrag3", &e.ZuschussBetrag3, L::DBZU::ZuschussBetrag3},
        {"ZuschussBetrag4", &e.ZuschussBetrag4, L::DBZU::ZuschussBetrag4},
        {"Wert1", &e.Wert1, L::DBAU::FirstOfWert13},
        {"Wert2", &e.Wert2, L::DBAU::FirstOfWert13},
        {"Wert3", &e.Wert3, L::DBAU::FirstOfWert13},
        {"Betrag3", &e.Betrag3, L::DBAU::Betrag3},
        {"Satz1", &e.Satz1, L::DBAU::Satz1},
        {"Satz2", &e.Satz2, L::DBAU::Satz2},
        {"Satz3", &e.Satz3, L::DBAU::Satz3Betrag},
    };
    for (const auto& a : amounts) c.amount(a.name, *a.value, a.field);

    c.digits("BVZahl4", e.BVZahl4, L::DBBV::BVZahl4.len);
    c.digits("BVZahl2", e.BVZahl2, L::DBBV::BVZahl2.len);
    c.key("IBAN", e.IBAN, L::DBBV::IBAN.len);
    c.key("BIC", e.BIC, L::DBBV::BIC.len);
    c.texts({{"AnGeschl", e.AnGeschl, layouts::Contact::Anrede},
             {"AnName", e.AnName, layouts::Contact::Name},
             {"AnTel", e.AnTel, layouts::Contact::Tel},
             {"AnFax", e.AnFax, layouts::Contact::Fax},
             {"AnEMail", e.AnEMail, layouts::Contact::EMail},
             {"Kontoinhaber1", e.Kontoinhaber1, L::DBBV::Kontoinhaber1},
             {"Kontoinhaber2", e.Kontoinhaber2, L::DBBV::Kontoinhaber2}});
}

}  // namespace tamrel::checks
