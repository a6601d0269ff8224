// The checks of the employment certificate (records DSAB, DSEU, DSNE and
// their blocks): the person, the employer, the creation date, and every
// block's dates and amounts (unsigned, of their fields' places), each list
// item named with its number.
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "certificates/clsGenArbeitsBesch/DSAB_layout.h"
#include "checks/checks.h"
#include "checks/person.h"
#include "core/shared_block_layouts.h"

namespace tamrel::checks {

namespace L = layouts::bea;

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
        k.numbers(x, {{"AZAEGR", &bea::DBAZ::AZAEGR, L::DBAZ::AZAEGR}});
        k.amounts(x, {{"AZWOECH", &bea::DBAZ::AZWOECH, L::DBAZ::AZWOECH}, {"AZVG", &bea::DBAZ::AZVG, L::DBAZ::AZVG}});
    }
    for (std::size_t i = 0; i < a.DBEE.size(); ++i) {
        const auto& x = a.DBEE[i];
        const FieldChecks k = c.within("DBEE", i + 1);
        k.dates(x, {{"MONATBEGEU", &bea::DBEE::MONATBEGEU}, {"MONATENDEU", &bea::DBEE::MONATENDEU}});
        k.amounts(x, {{"STBREGLFEU", &bea::DBEE::STBREGLFEU, L::DBEE::STBREGLFEU},
                      {"STBREGSOEU", &bea::DBEE::STBREGSOEU, L::DBEE::STBREGSOEU}});
    }
    for (std::size_t i = 0; i < a.DBEN.size(); ++i) {
        const auto& x = a.DBEN[i];
        const FieldChecks k = c.within("DBEN", i + 1);
        k.dates(x, {{"MONATBEG", &bea::DBEN::MONATBEG},
                    {"MONATEND", &bea::DBEN::MONATEND},
                    {"MIABEG", &bea::DBEN::MIABEG},
                    {"MIAEND", &bea::DBEN::MIAEND}});
        k.numbers(x, {{"TATSURLTAGE", &bea::DBEN::TATSURLTAGE, L::DBEN::TATSURLTAGE},
                      {"URLEGGEZ", &bea::DBEN::URLEGGEZ, L::DBEN::URLEGGEZ}});
        k.amounts(x, {{"SVBREGLF", &bea::DBEN::SVBREGLF, L::DBEN::SVBREGLF},
                      {"SVBREGE", &bea::DBEN::SVBREGE, L::DBEN::SVBREGE},
                      {"FIBR", &bea::DBEN::FIBR, L::DBEN::FIBR},
                      {"URLEG", &bea::DBEN::URLEG, L::DBEN::URLEG}});
    }
    for (std::size_t i = 0; i < a.DBEZ.size(); ++i) {
        const auto& x = a.DBEZ[i];
        const FieldChecks k = c.within("DBEZ", i + 1);
        k.dates(x, {{"AZAEBEG", &bea::DBEZ::AZAEBEG}});
        k.numbers(x, {{"AZAEGR", &bea::DBEZ::AZAEGR, L::DBEZ::AZAEGR}});
        k.amounts(x, {{"AZWOECH", &bea::DBEZ::AZWOECH, L::DBEZ::AZWOECH},
                      {"AZDUWOECH", &bea::DBEZ::AZDUWOECH, L::DBEZ::AZDUWOECH},
                      {"ATDUWOE", &bea::DBEZ::ATDUWOE, L::DBEZ::ATDUWOE}});
    }
    for (std::size_t i = 0; i < a.DBFZ.size(); ++i) {
        const auto& x = a.DBFZ[i];
        const FieldChecks k = c.within("DBFZ", i + 1);
        k.dates(x, {{"FEHLBEG", &bea::DBFZ::FEHLBEG}, {"FEHLEND", &bea::DBFZ::FEHLEND}});
        k.numbers(x, {{"FEHLART", &bea::DBFZ::FEHLART, L::DBFZ::FEHLART}});
    }
    {
        const FieldChecks k = c.within("DBHA");
        k.numbers(a.DBHA, {{"URLTAGE", &bea::DBHA::URLTAGE, L::DBHA::URLTAGE}});
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
        k.numbers(a.DBKE, {{"AVLETZTRL", &bea::DBKE::AVLETZTRL, L::DBKE::AVLETZTRL},
                           {"AVKUEDU", &bea::DBKE::AVKUEDU, L::DBKE::AVKUEDU},
                           {"AVKUEZUST", &bea::DBKE::AVKUEZUST, L::DBKE::AVKUEZUST},
                           {"KF", &bea::DBKE::KF, L::DBKE::KF},
                           {"KFZE", &bea::DBKE::KFZE, L::DBKE::KFZE},
                           {"KFBZ", &bea::DBKE::KFBZ, L::DBKE::KFBZ},
                           {"AVENLZG", &bea::DBKE::AVENLZG, L::DBKE::AVENLZG},
                           {"BETZU", &bea::DBKE::BETZU, L::DBKE::BETZU}});
        k.amounts(a.DBKE,
                  {{"ABFHOE", &bea::DBKE::ABFHOE, L::DBKE::ABFHOE}, {"AVENVG", &bea::DBKE::AVENVG, L::DBKE::AVENVG}});
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
        k.numbers(a.DBKU, {{"AVKUEDU", &bea::DBKU::AVKUEDU, L::DBKU::AVKUEDU},
                           {"AVENLZG", &bea::DBKU::AVENLZG, L::DBKU::AVENLZG},
                           {"BETZU", &bea::DBKU::BETZU, L::DBKU::BETZU},
                           {"URLTAGEAV", &bea::DBKU::URLTAGEAV, L::DBKU::URLTAGEAV},
                           {"AVVERZ", &bea::DBKU::AVVERZ, L::DBKU::AVVERZ},
                           {"KF", &bea::DBKU::KF, L::DBKU::KF},
                           {"KFZE", &bea::DBKU::KFZE, L::DBKU::KFZE},
                           {"KFBZ", &bea::DBKU::KFBZ, L::DBKU::KFBZ}});
        k.amounts(a.DBKU,
                  {{"ABFHOE", &bea::DBKU::ABFHOE, L::DBKU::ABFHOE}, {"UAGHOE", &bea::DBKU::UAGHOE, L::DBKU::UAGHOE}});
    }
    {
        const FieldChecks k = c.within("DBNB");
        k.amounts(a.DBNB, {{"STU1KW", &bea::DBNB::STU1KW, L::DBNB::STU1KW},
                           {"STU2KW", &bea::DBNB::STU2KW, L::DBNB::STU2KW},
                           {"STU3KW", &bea::DBNB::STU3KW, L::DBNB::STU3KW},
                           {"STU4KW", &bea::DBNB::STU4KW, L::DBNB::STU4KW},
                           {"STU5KW", &bea::DBNB::STU5KW, L::DBNB::STU5KW},
                           {"STU6KW", &bea::DBNB::STU6KW, L::DBNB::STU6KW}});
    }
    {
        const FieldChecks k = c.within("DBNE");
        k.dates(a.DBNE, {{"AVEND", &bea::DBNE::AVEND},
                         {"MONATBEG", &bea::DBNE::MONATBEG},
                         {"MONATEND", &bea::DBNE::MONATEND},
                         {"SVBREGEBEG", &bea::DBNE::SVBREGEBEG},
                         {"SVBREGEEND", &bea::DBNE::SVBREGEEND}});
        k.numbers(a.DBNE, {{"TTAUFENT", &bea::DBNE::TTAUFENT, L::DBNE::TTAUFENT}});
        k.amounts(a.DBNE, {{"SVBREGLF", &bea::DBNE::SVBREGLF, L::DBNE::SVBREGLF},
                           {"SVBREGE", &bea::DBNE::SVBREGE, L::DBNE::SVBREGE},
                           {"NETTOLFD", &bea::DBNE::NETTOLFD, L::DBNE::NETTOLFD},
                           {"NETTOEINMAL", &bea::DBNE::NETTOEINMAL, L::DBNE::NETTOEINMAL},
                           {"AZWOECH", &bea::DBNE::AZWOECH, L::DBNE::AZWOECH}});
    }
    {
        const FieldChecks k = c.within("DBSA");
        k.dates(a.DBSA, {{"KNAPPRVBEG", &bea::DBSA::KNAPPRVBEG}});
        k.numbers(a.DBSA,
                  {{"BYGRA", &bea::DBSA::BYGRA, L::DBSA::BYGRA}, {"PERSGRA", &bea::DBSA::PERSGRA, L::DBSA::PERSGRA}});
    }
    for (std::size_t i = 0; i < a.DBSB.size(); ++i) {
        const auto& x = a.DBSB[i];
        const FieldChecks k = c.within("DBSB", i + 1);
        k.dates(x, {{"PERSBYGRBEG", &bea::DBSB::PERSBYGRBEG}});
        k.numbers(x,
                  {{"BYGRB", &bea::DBSB::BYGRB, L::DBSB::BYGRB}, {"PERSGRB", &bea::DBSB::PERSGRB, L::DBSB::PERSGRB}});
    }
    for (std::size_t i = 0; i < a.DBSE.size(); ++i) {
        const auto& x = a.DBSE[i];
        const FieldChecks k = c.within("DBSE", i + 1);
        k.dates(x, {{"AESTEDATBEG", &bea::DBSE::AESTEDATBEG}});
        k.numbers(x, {{"STKL", &bea::DBSE::STKL, L::DBSE::STKL}});
        k.amounts(x, {{"FKT", &bea::DBSE::FKT, L::DBSE::FKT}, {"KINDFRB", &bea::DBSE::KINDFRB, L::DBSE::KINDFRB}});
    }
}

}  // namespace tamrel::checks
