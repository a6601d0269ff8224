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
    c.creation_date("ErstellDatum", a.ErstellDatum);
    const FieldChecks v = c.within("Vorgang");
    check_person(v, a.Vorgang);
    v.required("Versicherungsnummer", a.Vorgang.Versicherungsnummer);
    check_employer(v, a.Vorgang.Arbeitgeber);
    c.date("Feld151", a.Feld151);
    for (std::size_t i = 0; i < a.DBAZ.size(); ++i) {
        const auto& x = a.DBAZ[i];
        const FieldChecks k = c.within("DBAZ", i + 1);
        k.dates(x, {{"AZAEBEG", &bea::DBAZ::AZAEBEG}});
        k.numbers(x, {{"AZAEGR", &bea::DBAZ::AZAEGR, 2}});
        k.amounts(x, {{"AZWOECH", &bea::DBAZ::AZWOECH, 2, 2}, {"AZVG", &bea::DBAZ::AZVG, 2, 2}});
    }
    for (std::size_t i = 0; i < a.DBEE.size(); ++i) {
        const auto& x = a.DBEE[i];
        const FieldChecks k = c.within("DBEE", i + 1);
        k.dates(x, {{"MONATBEGEU", &bea::DBEE::MONATBEGEU}, {"MONATENDEU", &bea::DBEE::MONATENDEU}});
        k.amounts(x, {{"STBREGLFEU", &bea::DBEE::STBREGLFEU, 8, 2}, {"STBREGSOEU", &bea::DBEE::STBREGSOEU, 8, 2}});
    }
    for (std::size_t i = 0; i < a.DBEN.size(); ++i) {
        const auto& x = a.DBEN[i];
        const FieldChecks k = c.within("DBEN", i + 1);
        k.dates(x, {{"MONATBEG", &bea::DBEN::MONATBEG},
                    {"MONATEND", &bea::DBEN::MONATEND},
                    {"MIABEG", &bea::DBEN::MIABEG},
                    {"MIAEND", &bea::DBEN::MIAEND}});
        k.numbers(x, {{"TATSURLTAGE", &bea::DBEN::TATSURLTAGE, 3}, {"URLEGGEZ", &bea::DBEN::URLEGGEZ, 1}});
        k.amounts(x, {{"SVBREGLF", &bea::DBEN::SVBREGLF, 8, 2},
                      {"SVBREGE", &bea::DBEN::SVBREGE, 8, 2},
                      {"FIBR", &bea::DBEN::FIBR, 8, 2},
                      {"URLEG", &bea::DBEN::URLEG, 8, 2}});
    }
    for (std::size_t i = 0; i < a.DBEZ.size(); ++i) {
        const auto& x = a.DBEZ[i];
        const FieldChecks k = c.within("DBEZ", i + 1);
        k.dates(x, {{"AZAEBEG", &bea::DBEZ::AZAEBEG}});
        k.numbers(x, {{"AZAEGR", &bea::DBEZ::AZAEGR, 2}});
        k.amounts(x, {{"AZWOECH", &bea::DBEZ::AZWOECH, 2, 2},
                      {"AZDUWOECH", &bea::DBEZ::AZDUWOECH, 2, 2},
                      {"ATDUWOE", &bea::DBEZ::ATDUWOE, 1, 2}});
    }
    for (std::size_t i = 0; i < a.DBFZ.size(); ++i) {
        const auto& x = a.DBFZ[i];
        const FieldChecks k = c.within("DBFZ", i + 1);
        k.dates(x, {{"FEHLBEG", &bea::DBFZ::FEHLBEG}, {"FEHLEND", &bea::DBFZ::FEHLEND}});
        k.numbers(x, {{"FEHLART", &bea::DBFZ::FEHLART, 2}});
    }
    {
        const FieldChecks k = c.within("DBHA");
        k.numbers(a.DBHA, {{"URLTAGE", &bea::DBHA::URLTAGE, 3}});
    }
    {
        const FieldChecks k = c.within("DBHN");
        k.dates(a.DBHN, {{"HEIMARBAUSG", &bea::DBHN::HEIMARBAUSG}, {"HEIMARBABL", &bea::DBHN::HEIMARBABL}});
    }
    {
        const FieldChecks k = c.within("DBKE");
        k.dates(a.DBKE, {{"AVEND", &bea::DBKE::AVEND},
                         {"BVEND", &bea::DBKE::BVEND},
                         {"AVBFURSP", &bea::DBKE::AVBFURSP},
                         {"AVBFABSCHL", &bea::DBKE::AVBFABSCHL},
                         {"AVBFABVL", &bea::DBKE::AVBFABVL},
                         {"AVKUEAM", &bea::DBKE::AVKUEAM},
                         {"AVUWFWZBEG", &bea::DBKE::AVUWFWZBEG},
                         {"AVAMDAT", &bea::DBKE::AVAMDAT},
                         {"AGKUEAM", &bea::DBKE::AGKUEAM},
                         {"AGKUEZU", &bea::DBKE::AGKUEZU},
                         {"BVEGENB", &bea::DBKE::BVEGENB},
                         {"BVENUR", &bea::DBKE::BVENUR},
                         {"AVENVGB", &bea::DBKE::AVENVGB},
                         {"BFHG", &bea::DBKE::BFHG}});
        k.numbers(a.DBKE, {{"AVLETZTRL", &bea::DBKE::AVLETZTRL, 6},
                           {"AVKUEDU", &bea::DBKE::AVKUEDU, 1},
                           {"AVKUEZUST", &bea::DBKE::AVKUEZUST, 1},
                           {"KF", &bea::DBKE::KF, 3},
                           {"KFZE", &bea::DBKE::KFZE, 1},
                           {"KFBZ", &bea::DBKE::KFBZ, 1},
                           {"AVENLZG", &bea::DBKE::AVENLZG, 2},
                           {"BETZU", &bea::DBKE::BETZU, 2}});
        k.amounts(a.DBKE, {{"ABFHOE", &bea::DBKE::ABFHOE, 8, 2}, {"AVENVG", &bea::DBKE::AVENVG, 3, 2}});
    }
    {
        const FieldChecks k = c.within("DBKU");
        k.dates(a.DBKU, {{"AVEND", &bea::DBKU::AVEND},
                         {"BVEND", &bea::DBKU::BVEND},
                         {"AVBFURSPR", &bea::DBKU::AVBFURSPR},
                         {"AVUWFWZBEG", &bea::DBKU::AVUWFWZBEG},
                         {"AVKUEAM", &bea::DBKU::AVKUEAM},
                         {"BVEGENB", &bea::DBKU::BVEGENB},
                         {"AVENUR", &bea::DBKU::AVENUR}});
        k.numbers(a.DBKU, {{"AVKUEDU", &bea::DBKU::AVKUEDU, 1},
                           {"AVENLZG", &bea::DBKU::AVENLZG, 2},
                           {"BETZU", &bea::DBKU::BETZU, 2},
                           {"URLTAGEAV", &bea::DBKU::URLTAGEAV, 3},
                           {"AVVERZ", &bea::DBKU::AVVERZ, 1},
                           {"KF", &bea::DBKU::KF, 3},
                           {"KFZE", &bea::DBKU::KFZE, 1},
                           {"KFBZ", &bea::DBKU::KFBZ, 1}});
        k.amounts(a.DBKU, {{"ABFHOE", &bea::DBKU::ABFHOE, 8, 2}, {"UAGHOE", &bea::DBKU::UAGHOE, 8, 2}});
    }
    {
        const FieldChecks k = c.within("DBNB");
        k.amounts(a.DBNB, {{"STU1KW", &bea::DBNB::STU1KW, 2, 2},
                           {"STU2KW", &bea::DBNB::STU2KW, 2, 2},
                           {"STU3KW", &bea::DBNB::STU3KW, 2, 2},
                           {"STU4KW", &bea::DBNB::STU4KW, 2, 2},
                           {"STU5KW", &bea::DBNB::STU5KW, 2, 2},
                           {"STU6KW", &bea::DBNB::STU6KW, 2, 2}});
    }
    {
        const FieldChecks k = c.within("DBNE");
        k.dates(a.DBNE, {{"AVEND", &bea::DBNE::AVEND},
                         {"MONATBEG", &bea::DBNE::MONATBEG},
                         {"MONATEND", &bea::DBNE::MONATEND},
                         {"SVBREGEBEG", &bea::DBNE::SVBREGEBEG},
                         {"SVBREGEEND", &bea::DBNE::SVBREGEEND}});
        k.numbers(a.DBNE, {{"TTAUFENT", &bea::DBNE::TTAUFENT, 1}});
        k.amounts(a.DBNE, {{"SVBREGLF", &bea::DBNE::SVBREGLF, 8, 2},
                           {"SVBREGE", &bea::DBNE::SVBREGE, 8, 2},
                           {"NETTOLFD", &bea::DBNE::NETTOLFD, 8, 2},
                           {"NETTOEINMAL", &bea::DBNE::NETTOEINMAL, 8, 2},
                           {"AZWOECH", &bea::DBNE::AZWOECH, 2, 2}});
    }
    {
        const FieldChecks k = c.within("DBSA");
        k.dates(a.DBSA, {{"KNAPPRVBEG", &bea::DBSA::KNAPPRVBEG}});
        k.numbers(a.DBSA, {{"BYGRA", &bea::DBSA::BYGRA, 4}, {"PERSGRA", &bea::DBSA::PERSGRA, 3}});
    }
    for (std::size_t i = 0; i < a.DBSB.size(); ++i) {
        const auto& x = a.DBSB[i];
        const FieldChecks k = c.within("DBSB", i + 1);
        k.dates(x, {{"PERSBYGRBEG", &bea::DBSB::PERSBYGRBEG}});
        k.numbers(x, {{"BYGRB", &bea::DBSB::BYGRB, 4}, {"PERSGRB", &bea::DBSB::PERSGRB, 3}});
    }
    for (std::size_t i = 0; i < a.DBSE.size(); ++i) {
        const auto& x = a.DBSE[i];
        const FieldChecks k = c.within("DBSE", i + 1);
        k.dates(x, {{"AESTEDATBEG", &bea::DBSE::AESTEDATBEG}});
        k.numbers(x, {{"STKL", &bea::DBSE::STKL, 1}});
        k.amounts(x, {{"FKT", &bea::DBSE::FKT, 1, 3}, {"KINDFRB", &bea::DBSE::KINDFRB, 2, 1}});
    }
}

}  // namespace tamrel::checks
