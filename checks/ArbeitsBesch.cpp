// The checks of the employment certificate (records DSAB, DSEU, DSNE and
// their blocks): the person, the employer, the creation date, and every
// block's dates and amounts (unsigned, of their fields' places), each list
// item named with its number.
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "checks/checks.h"
#include "checks/person.h"

namespace tamrel::checks {

void check_report(const ArbeitsBesch& a, Findings& f) {
    const FieldChecks c(f);
    const FieldChecks v = c.within("Vorgang");
    check_person(v, a.Vorgang);
    v.required("Versicherungsnummer", a.Vorgang.Versicherungsnummer);
    check_employer(v, a.Vorgang.Arbeitgeber);
    c.date("Feld151", a.Feld151);
    for (std::size_t i = 0; i < a.DBAZ.size(); ++i) {
        const auto& x = a.DBAZ[i];
        const FieldChecks k = c.within("DBAZ", i + 1);
        k.date("AZAEBEG", x.AZAEBEG);
        k.decimal_amount("AZWOECH", x.AZWOECH, 2, 2, false);
        k.decimal_amount("AZVG", x.AZVG, 2, 2, false);
    }
    for (std::size_t i = 0; i < a.DBEE.size(); ++i) {
        const auto& x = a.DBEE[i];
        const FieldChecks k = c.within("DBEE", i + 1);
        k.date("MONATBEGEU", x.MONATBEGEU);
        k.date("MONATENDEU", x.MONATENDEU);
        k.decimal_amount("STBREGLFEU", x.STBREGLFEU, 8, 2, false);
        k.decimal_amount("STBREGSOEU", x.STBREGSOEU, 8, 2, false);
    }
    for (std::size_t i = 0; i < a.DBEN.size(); ++i) {
        const auto& x = a.DBEN[i];
        const FieldChecks k = c.within("DBEN", i + 1);
        k.date("MONATBEG", x.MONATBEG);
        k.date("MONATEND", x.MONATEND);
        k.date("MIABEG", x.MIABEG);
        k.date("MIAEND", x.MIAEND);
        k.decimal_amount("SVBREGLF", x.SVBREGLF, 8, 2, false);
        k.decimal_amount("SVBREGE", x.SVBREGE, 8, 2, false);
        k.decimal_amount("FIBR", x.FIBR, 8, 2, false);
        k.decimal_amount("URLEG", x.URLEG, 8, 2, false);
    }
    for (std::size_t i = 0; i < a.DBEZ.size(); ++i) {
        const auto& x = a.DBEZ[i];
        const FieldChecks k = c.within("DBEZ", i + 1);
        k.date("AZAEBEG", x.AZAEBEG);
        k.decimal_amount("AZWOECH", x.AZWOECH, 2, 2, false);
        k.decimal_amount("AZDUWOECH", x.AZDUWOECH, 2, 2, false);
        k.decimal_amount("ATDUWOE", x.ATDUWOE, 1, 2, false);
    }
    for (std::size_t i = 0; i < a.DBFZ.size(); ++i) {
        const auto& x = a.DBFZ[i];
        const FieldChecks k = c.within("DBFZ", i + 1);
        k.date("FEHLBEG", x.FEHLBEG);
        k.date("FEHLEND", x.FEHLEND);
    }
    {
        const auto& x = a.DBHN;
        const FieldChecks k = c.within("DBHN");
        k.date("HEIMARBAUSG", x.HEIMARBAUSG);
        k.date("HEIMARBABL", x.HEIMARBABL);
    }
    {
        const auto& x = a.DBKE;
        const FieldChecks k = c.within("DBKE");
        k.date("AVEND", x.AVEND);
        k.date("BVEND", x.BVEND);
        k.date("AVBFURSP", x.AVBFURSP);
        k.date("AVBFABSCHL", x.AVBFABSCHL);
        k.date("AVBFABVL", x.AVBFABVL);
        k.date("AVKUEAM", x.AVKUEAM);
        k.date("AVUWFWZBEG", x.AVUWFWZBEG);
        k.date("AVAMDAT", x.AVAMDAT);
        k.date("AGKUEAM", x.AGKUEAM);
        k.date("AGKUEZU", x.AGKUEZU);
        k.date("BVEGENB", x.BVEGENB);
        k.date("BVENUR", x.BVENUR);
        k.date("AVENVGB", x.AVENVGB);
        k.date("BFHG", x.BFHG);
        k.decimal_amount("ABFHOE", x.ABFHOE, 8, 2, false);
        k.decimal_amount("AVENVG", x.AVENVG, 3, 2, false);
    }
    {
        const auto& x = a.DBKU;
        const FieldChecks k = c.within("DBKU");
        k.date("AVEND", x.AVEND);
        k.date("BVEND", x.BVEND);
        k.date("AVBFURSPR", x.AVBFURSPR);
        k.date("AVUWFWZBEG", x.AVUWFWZBEG);
        k.date("AVKUEAM", x.AVKUEAM);
        k.date("BVEGENB", x.BVEGENB);
        k.date("AVENUR", x.AVENUR);
        k.decimal_amount("ABFHOE", x.ABFHOE, 8, 2, false);
        k.decimal_amount("UAGHOE", x.UAGHOE, 8, 2, false);
    }
    {
        const auto& x = a.DBNB;
        const FieldChecks k = c.within("DBNB");
        k.decimal_amount("STU1KW", x.STU1KW, 2, 2, false);
        k.decimal_amount("STU2KW", x.STU2KW, 2, 2, false);
        k.decimal_amount("STU3KW", x.STU3KW, 2, 2, false);
        k.decimal_amount("STU4KW", x.STU4KW, 2, 2, false);
        k.decimal_amount("STU5KW", x.STU5KW, 2, 2, false);
        k.decimal_amount("STU6KW", x.STU6KW, 2, 2, false);
    }
    {
        const auto& x = a.DBNE;
        const FieldChecks k = c.within("DBNE");
        k.date("AVEND", x.AVEND);
        k.date("MONATBEG", x.MONATBEG);
        k.date("MONATEND", x.MONATEND);
        k.date("SVBREGEBEG", x.SVBREGEBEG);
        k.date("SVBREGEEND", x.SVBREGEEND);
        k.decimal_amount("SVBREGLF", x.SVBREGLF, 8, 2, false);
        k.decimal_amount("SVBREGE", x.SVBREGE, 8, 2, false);
        k.decimal_amount("NETTOLFD", x.NETTOLFD, 8, 2, false);
        k.decimal_amount("NETTOEINMAL", x.NETTOEINMAL, 8, 2, false);
        k.decimal_amount("AZWOECH", x.AZWOECH, 2, 2, false);
    }
    {
        const auto& x = a.DBSA;
        const FieldChecks k = c.within("DBSA");
        k.date("KNAPPRVBEG", x.KNAPPRVBEG);
    }
    for (std::size_t i = 0; i < a.DBSB.size(); ++i) {
        const auto& x = a.DBSB[i];
        const FieldChecks k = c.within("DBSB", i + 1);
        k.date("PERSBYGRBEG", x.PERSBYGRBEG);
    }
    for (std::size_t i = 0; i < a.DBSE.size(); ++i) {
        const auto& x = a.DBSE[i];
        const FieldChecks k = c.within("DBSE", i + 1);
        k.date("AESTEDATBEG", x.AESTEDATBEG);
        k.decimal_amount("FKT", x.FKT, 1, 3, false);
        k.decimal_amount("KINDFRB", x.KINDFRB, 2, 1, false);
    }
}

}  // namespace tamrel::checks
