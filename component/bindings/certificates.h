#pragma once
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "component/shared_bindings.h"

namespace tamrel::json_binding {

template <>
struct Binding<bea::DBSE> {
    using S = bea::DBSE;
    static constexpr auto fields =
        std::make_tuple(field("STKL", &S::STKL), field("FKT", &S::FKT), field("KINDFRB", &S::KINDFRB),
                        field("AESTEDATBEG", &S::AESTEDATBEG));
};

template <>
struct Binding<bea::DBSB> {
    using S = bea::DBSB;
    static constexpr auto fields = std::make_tuple(field("PERSBYGRBEG", &S::PERSBYGRBEG), field("BYGRB", &S::BYGRB),
                                                   field("PERSGRB", &S::PERSGRB));
};

template <>
struct Binding<bea::DBAZ> {
    using S = bea::DBAZ;
    static constexpr auto fields = std::make_tuple(field("AZWOECH", &S::AZWOECH), field("AZVG", &S::AZVG),
                                                   field("AZAEGR", &S::AZAEGR), field("AZAEBEG", &S::AZAEBEG));
};

template <>
struct Binding<bea::DBEN> {
    using S = bea::DBEN;
    static constexpr auto fields = std::make_tuple(
        field("MONATBEG", &S::MONATBEG), field("MONATEND", &S::MONATEND), field("KENNZRK", &S::KENNZRK),
        field("SVBREGLF", &S::SVBREGLF), field("SVBREGE", &S::SVBREGE), field("FIBR", &S::FIBR),
        field("TATSURLTAGE", &S::TATSURLTAGE), field("URLEG", &S::URLEG), field("URLEGGEZ", &S::URLEGGEZ),
        field("MIA", &S::MIA), field("MIABEG", &S::MIABEG), field("MIAEND", &S::MIAEND));
};

template <>
struct Binding<bea::DBEZ> {
    using S = bea::DBEZ;
    static constexpr auto fields =
        std::make_tuple(field("AZWOECH", &S::AZWOECH), field("AZAEGR", &S::AZAEGR), field("AZAEBEG", &S::AZAEBEG),
                        field("AZDUWOECH", &S::AZDUWOECH), field("ATDUWOE", &S::ATDUWOE));
};

template <>
struct Binding<bea::DBEE> {
    using S = bea::DBEE;
    static constexpr auto fields =
        std::make_tuple(field("MONATBEGEU", &S::MONATBEGEU), field("MONATENDEU", &S::MONATENDEU),
                        field("STBREGLFEU", &S::STBREGLFEU), field("STBREGSOEU", &S::STBREGSOEU));
};

template <>
struct Binding<bea::DBFZ> {
    using S = bea::DBFZ;
    static constexpr auto fields =
        std::make_tuple(field("FEHLBEG", &S::FEHLBEG), field("FEHLART", &S::FEHLART), field("FEHLEND", &S::FEHLEND));
};

template <>
struct Binding<bea::DBAG> {
    using S = bea::DBAG;
    static constexpr auto fields =
        std::make_tuple(field("AGAPE", &S::AGAPE), field("AGAPP", &S::AGAPP), field("AGTELE", &S::AGTELE),
                        field("AGTELP", &S::AGTELP), field("AGEMAILE", &S::AGEMAILE), field("AGEMAILP", &S::AGEMAILP));
};

template <>
struct Binding<bea::DBAB> {
    using S = bea::DBAB;
    static constexpr auto fields =
        std::make_tuple(field("BORTLDKZ", &S::BORTLDKZ), field("BPLZ", &S::BPLZ), field("BORT", &S::BORT));
};

template <>
struct Binding<bea::DBNE> {
    using S = bea::DBNE;
    static constexpr auto fields = std::make_tuple(
        field("AVEND", &S::AVEND), field("MONATBEG", &S::MONATBEG), field("MONATEND", &S::MONATEND),
        field("SVBREGLF", &S::SVBREGLF), field("SVBREGE", &S::SVBREGE), field("SVBREGEBEG", &S::SVBREGEBEG),
        field("SVBREGEEND", &S::SVBREGEEND), field("NETTOLFD", &S::NETTOLFD), field("NETTOEINMAL", &S::NETTOEINMAL),
        field("AZWOECH", &S::AZWOECH), field("TTAUFENT", &S::TTAUFENT), field("BVUNFORT", &S::BVUNFORT),
        field("BVUNFORTU", &S::BVUNFORTU));
};

template <>
struct Binding<bea::DBSA> {
    using S = bea::DBSA;
    static constexpr auto fields =
        std::make_tuple(field("BYGRA", &S::BYGRA), field("PERSGRA", &S::PERSGRA), field("KNAPPRV", &S::KNAPPRV),
                        field("KNAPPRVBEG", &S::KNAPPRVBEG), field("TTSC", &S::TTSC));
};

template <>
struct Binding<bea::DBHA> {
    using S = bea::DBHA;
    static constexpr auto fields = std::make_tuple(field("URLTAGE", &S::URLTAGE));
};

template <>
struct Binding<bea::DBKE> {
    using S = bea::DBKE;
    static constexpr auto fields = std::make_tuple(
        field("AVEND", &S::AVEND), field("BVEND", &S::BVEND), field("AVBFR", &S::AVBFR),
        field("AVBFSCHR", &S::AVBFSCHR), field("AVBFURSP", &S::AVBFURSP), field("AVBFABSCHL", &S::AVBFABSCHL),
        field("VLBAV", &S::VLBAV), field("AVBFABVL", &S::AVBFABVL), field("AVBFRL", &S::AVBFRL),
        field("AVKUEAM", &S::AVKUEAM), field("AVUWFWZ", &S::AVUWFWZ), field("AVUWFWZBEG", &S::AVUWFWZBEG),
        field("AVLETZTRL", &S::AVLETZTRL), field("AVKUEDU", &S::AVKUEDU), field("AVKUESCH", &S::AVKUESCH),
        field("AVKUEBETR", &S::AVKUEBETR), field("AVKUESCHUKL", &S::AVKUESCHUKL), field("AVKUEZUST", &S::AVKUEZUST),
        field("AVKUEAL", &S::AVKUEAL), field("AVKUEALAM", &S::AVKUEALAM), field("AVAMDAT", &S::AVAMDAT),
        field("AVKUEZVB", &S::AVKUEZVB), field("SAW", &S::SAW), field("SAWPRSC", &S::SAWPRSC),
        field("AGKUEAM", &S::AGKUEAM), field("AGKUEZU", &S::AGKUEZU), field("KF", &S::KF), field("KFZE", &S::KFZE),
        field("KFBZ", &S::KFBZ), field("KA", &S::KA), field("KAU", &S::KAU), field("KAUAUG", &S::KAUAUG),
        field("OKGL", &S::OKGL), field("OKGLFG", &S::OKGLFG), field("AVENLZ", &S::AVENLZ),
        field("AVENLZG", &S::AVENLZG), field("ABF", &S::ABF), field("ABFHOE", &S::ABFHOE), field("BETZU", &S::BETZU),
        field("BVEGEN", &S::BVEGEN), field("BVEGENB", &S::BVEGENB), field("AVENUAG", &S::AVENUAG),
        field("BVENUR", &S::BVENUR), field("AVENVL", &S::AVENVL), field("AVENVGB", &S::AVENVGB),
        field("AVENVG", &S::AVENVG), field("ABFMONAT", &S::ABFMONAT), field("ABFGEZ", &S::ABFGEZ),
        field("BFHG", &S::BFHG));
};

template <>
struct Binding<bea::DBKU> {
    using S = bea::DBKU;
    static constexpr auto fields = std::make_tuple(
        field("AVEND", &S::AVEND), field("BVEND", &S::BVEND), field("AVBFR", &S::AVBFR),
        field("AVBFURSPR", &S::AVBFURSPR), field("AVUWFWZ", &S::AVUWFWZ), field("AVUWFWZBEG", &S::AVUWFWZBEG),
        field("AVKUEAM", &S::AVKUEAM), field("AVKUEDU", &S::AVKUEDU), field("AVKUEBETR", &S::AVKUEBETR),
        field("AVKUESCHUKL", &S::AVKUESCHUKL), field("AVKUEAL", &S::AVKUEAL), field("AVENLZ", &S::AVENLZ),
        field("AVENLZG", &S::AVENLZG), field("ABF", &S::ABF), field("ABFHOE", &S::ABFHOE), field("BETZU", &S::BETZU),
        field("BVEGEN", &S::BVEGEN), field("BVEGENB", &S::BVEGENB), field("AVENUAG", &S::AVENUAG),
        field("URLTAGEAV", &S::URLTAGEAV), field("AVENUR", &S::AVENUR), field("UAGHOE", &S::UAGHOE),
        field("AVVERZ", &S::AVVERZ), field("KF", &S::KF), field("KFZE", &S::KFZE), field("KFBZ", &S::KFBZ));
};

template <>
struct Binding<bea::DBNB> {
    using S = bea::DBNB;
    static constexpr auto fields =
        std::make_tuple(field("STU1KW", &S::STU1KW), field("STU2KW", &S::STU2KW), field("STU3KW", &S::STU3KW),
                        field("STU4KW", &S::STU4KW), field("STU5KW", &S::STU5KW), field("STU6KW", &S::STU6KW));
};

template <>
struct Binding<bea::DBHN> {
    using S = bea::DBHN;
    static constexpr auto fields =
        std::make_tuple(field("HEIMARBAUSG", &S::HEIMARBAUSG), field("HEIMARBABL", &S::HEIMARBABL));
};

template <>
struct Binding<ArbeitsBesch> {
    using A = ArbeitsBesch;
    static constexpr auto fields = std::make_tuple(
        field("DatensatzNr", &A::DatensatzNr), field("Feld151", &A::Feld151), field("ErstellDatum", &A::ErstellDatum),
        field("Verfahren", &A::Verfahren), field("KENNZAB", &A::KENNZAB), field("DBAG", &A::DBAG),
        field("DBAB", &A::DBAB), field("DBNE", &A::DBNE), field("DBSA", &A::DBSA), field("DBHA", &A::DBHA),
        field("DBKE", &A::DBKE), field("DBKU", &A::DBKU), field("DBNB", &A::DBNB), field("DBHN", &A::DBHN),
        field("DBSB", &A::DBSB), field("AnzahlDBSB", &A::AnzahlDBSB), field("DBSE", &A::DBSE),
        field("AnzahlDBSE", &A::AnzahlDBSE), field("DBAZ", &A::DBAZ), field("AnzahlDBAZ", &A::AnzahlDBAZ),
        field("DBEN", &A::DBEN), field("AnzahlDBEN", &A::AnzahlDBEN), field("DBEZ", &A::DBEZ),
        field("AnzahlDBEZ", &A::AnzahlDBEZ), field("DBEE", &A::DBEE), field("AnzahlDBEE", &A::AnzahlDBEE),
        field("DBFZ", &A::DBFZ), field("AnzahlDBFZ", &A::AnzahlDBFZ), field("Vorgang", &A::Vorgang));

    // An absent count is the number of items given.
    template <class V>
    static void finish(ArbeitsBesch& a, const V& j) {
        auto count = [&](const char* name, std::size_t size, std::int16_t& out) {
            if (j.has(name)) return;
            if (size > 32767) fail(name, "more than 32767 items");
            out = static_cast<std::int16_t>(size);
        };
        count("AnzahlDBSB", a.DBSB.size(), a.AnzahlDBSB);
        count("AnzahlDBSE", a.DBSE.size(), a.AnzahlDBSE);
        count("AnzahlDBAZ", a.DBAZ.size(), a.AnzahlDBAZ);
        count("AnzahlDBEN", a.DBEN.size(), a.AnzahlDBEN);
        count("AnzahlDBEZ", a.DBEZ.size(), a.AnzahlDBEZ);
        count("AnzahlDBEE", a.DBEE.size(), a.AnzahlDBEE);
        count("AnzahlDBFZ", a.DBFZ.size(), a.AnzahlDBFZ);
    }
};

template <>
struct Binding<eel::DBAL> {
    using S = eel::DBAL;
    static constexpr auto fields = std::make_tuple(
        field("DATUMAB", &S::DATUMAB), field("AEERSTTAG", &S::AEERSTTAG), field("DATUMEZGBIS", &S::DATUMEZGBIS),
        field("ENDEBVAM", &S::ENDEBVAM), field("ENDEBVZUM", &S::ENDEBVZUM), field("GRUNDBEEND", &S::GRUNDBEEND),
        field("PFLZUSCHLAG", &S::PFLZUSCHLAG), field("ARBZEITMOD", &S::ARBZEITMOD), field("MMKUG", &S::MMKUG),
        field("KUGBEGINN", &S::KUGBEGINN), field("KUGENDE", &S::KUGENDE), field("LAGBEGINN1", &S::LAGBEGINN1),
        field("LAGENDE1", &S::LAGENDE1), field("LAGBEGINN2", &S::LAGBEGINN2), field("LAGENDE2", &S::LAGENDE2));
};

template <>
struct Binding<eel::DBAE> {
    using S = eel::DBAE;
    static constexpr auto fields = std::make_tuple(
        field("WAEHREELBRUTTO", &S::WAEHREELBRUTTO), field("DATUMAEBIS", &S::DATUMAEBIS),
        field("EAZBEGINN1", &S::EAZBEGINN1), field("EAZENDE1", &S::EAZENDE1), field("BRUTTO1", &S::BRUTTO1),
        field("NETTO1", &S::NETTO1), field("UMGEWAE", &S::UMGEWAE), field("ENTGART", &S::ENTGART),
        field("BRUTTOAE", &S::BRUTTOAE), field("NETTOAE", &S::NETTOAE), field("EAZBEGINN2", &S::EAZBEGINN2),
        field("EAZENDE2", &S::EAZENDE2), field("BRUTTO2", &S::BRUTTO2), field("NETTO2", &S::NETTO2),
        field("EAZBEGINN3", &S::EAZBEGINN3), field("EAZENDE3", &S::EAZENDE3), field("BRUTTO3", &S::BRUTTO3),
        field("NETTO3", &S::NETTO3), field("EZKV", &S::EZKV), field("EZRV", &S::EZRV), field("EZALV", &S::EZALV));
};

template <>
struct Binding<eel::DBZA> {
    using S = eel::DBZA;
    static constexpr auto fields =
        std::make_tuple(field("ANZAHLSTD", &S::ANZAHLSTD), field("REGAZ", &S::REGAZ), field("MAZR1", &S::MAZR1),
                        field("AZBEGINN2", &S::AZBEGINN2), field("AZENDE2", &S::AZENDE2), field("MAZR2", &S::MAZR2),
                        field("AZBEGINN3", &S::AZBEGINN3), field("AZENDE3", &S::AZENDE3), field("MAZR3", &S::MAZR3));
};

template <>
struct Binding<eel::DBEE> {
    using S = eel::DBEE;
    static constexpr auto fields =
        std::make_tuple(field("EELABAG", &S::EELABAG), field("EELABSV", &S::EELABSV), field("EELENDE", &S::EELENDE),
                        field("EELENDEGRUND", &S::EELENDEGRUND));
};

template <>
struct Binding<eel::DBAW> {
    using S = eel::DBAW;
    static constexpr auto fields =
        std::make_tuple(field("TAGE1", &S::TAGE1), field("TAGE2", &S::TAGE2), field("TAGE3", &S::TAGE3));
};

template <>
struct Binding<eel::DBFR> {
    using S = eel::DBFR;
    static constexpr auto fields =
        std::make_tuple(field("ENDEBVZUM", &S::ENDEBVZUM), field("FREISTVOM", &S::FREISTVOM),
                        field("FREISTBIS", &S::FREISTBIS), field("VAEERSTTAG", &S::VAEERSTTAG), field("TAGE", &S::TAGE),
                        field("KEINEFREIST", &S::KEINEFREIST), field("BEGRZFREIST", &S::BEGRZFREIST),
                        field("BEZFREISTVOM", &S::BEZFREISTVOM), field("BEZFREISTBIS", &S::BEZFREISTBIS),
                        field("BEZFREISTJAHR", &S::BEZFREISTJAHR), field("FREISTBRUTTO", &S::FREISTBRUTTO),
                        field("FREISTNETTO", &S::FREISTNETTO), field("FREISTEZ", &S::FREISTEZ));
};

template <>
struct Binding<eel::DBUN> {
    using S = eel::DBUN;
    static constexpr auto fields =
        std::make_tuple(field("UNFALLAZ", &S::UNFALLAZ), field("VTAG", &S::VTAG), field("IKUV", &S::IKUV),
                        field("ZUSCHL1", &S::ZUSCHL1), field("ZUSCHL2", &S::ZUSCHL2), field("ZUSCHL3", &S::ZUSCHL3),
                        field("FREISTZUSCHL", &S::FREISTZUSCHL), field("EZUV", &S::EZUV));
};

template <>
struct Binding<eel::DBMU> {
    using S = eel::DBMU;
    static constexpr auto fields = std::make_tuple(
        field("SCHUTZFRBEGINN", &S::SCHUTZFRBEGINN), field("BVBEGINN", &S::BVBEGINN), field("LETZTTAG", &S::LETZTTAG),
        field("ENDEBVAM", &S::ENDEBVAM), field("ENDEBVZUM", &S::ENDEBVZUM), field("BVGEKUEND", &S::BVGEKUEND),
        field("WAEHREELNETTO", &S::WAEHREELNETTO), field("DATUMAEBIS", &S::DATUMAEBIS), field("FEHLZEIT", &S::FEHLZEIT),
        field("AEUEBER", &S::AEUEBER), field("ENTGART", &S::ENTGART), field("BEGINN1", &S::BEGINN1),
        field("ENDE1", &S::ENDE1), field("BEZAZ1", &S::BEZAZ1), field("MASTD1", &S::MASTD1),
        field("AZUNENTSTD1", &S::AZUNENTSTD1), field("AZUNENTTAGE1", &S::AZUNENTTAGE1),
        field("AZENTSCHSTD1", &S::AZENTSCHSTD1), field("AZENTSCHTAGE1", &S::AZENTSCHTAGE1), field("NETTO1", &S::NETTO1),
        field("BEGINN2", &S::BEGINN2), field("ENDE2", &S::ENDE2), field("BEZAZ2", &S::BEZAZ2),
        field("MASTD2", &S::MASTD2), field("AZUNENTSTD2", &S::AZUNENTSTD2), field("AZUNENTTAGE2", &S::AZUNENTTAGE2),
        field("AZENTSCHSTD2", &S::AZENTSCHSTD2), field("AZENTSCHTAGE2", &S::AZENTSCHTAGE2), field("NETTO2", &S::NETTO2),
        field("BEGINN3", &S::BEGINN3), field("ENDE3", &S::ENDE3), field("BEZAZ3", &S::BEZAZ3),
        field("MASTD3", &S::MASTD3), field("AZUNENTSTD3", &S::AZUNENTSTD3), field("AZUNENTTAGE3", &S::AZUNENTTAGE3),
        field("AZENTSCHSTD3", &S::AZENTSCHSTD3), field("AZENTSCHTAGE3", &S::AZENTSCHTAGE3), field("NETTO3", &S::NETTO3),
        field("AZWOECH", &S::AZWOECH));
};

template <>
struct Binding<eel::Vorerkrankung> {
    using S = eel::Vorerkrankung;
    static constexpr auto fields =
        std::make_tuple(field("BEGINNAU", &S::BEGINNAU), field("ENDEAU", &S::ENDEAU),
                        field("KZNACHWEIS", &S::KZNACHWEIS), field("TEILNACHWEISAUBEGINN", &S::TEILNACHWEISAUBEGINN),
                        field("TEILNACHWEISAUENDE", &S::TEILNACHWEISAUENDE), field("KZAU", &S::KZAU),
                        field("TEILANRAUBEGINN", &S::TEILANRAUBEGINN), field("TEILANRAUENDE", &S::TEILANRAUENDE));
};

template <>
struct Binding<eel::DBHE> {
    using S = eel::DBHE;
    static constexpr auto fields = std::make_tuple(field("ZAHLBEGINN", &S::ZAHLBEGINN),
                                                   field("EELBRUTTO", &S::EELBRUTTO), field("EELNETTO", &S::EELNETTO));
};

template <>
struct Binding<eel::DBBE> {
    using S = eel::DBBE;
    static constexpr auto fields =
        std::make_tuple(field("ZAHLBEGINN", &S::ZAHLBEGINN), field("BEITRPFLBRUTTO", &S::BEITRPFLBRUTTO),
                        field("BEITRPFLNETTO", &S::BEITRPFLNETTO));
};

template <>
struct Binding<eel::DBLT> {
    using S = eel::DBLT;
    static constexpr auto fields =
        std::make_tuple(field("BVSEIT", &S::BVSEIT), field("BVBIS", &S::BVBIS), field("BVALS", &S::BVALS),
                        field("AUSBVERH", &S::AUSBVERH), field("VORER", &S::VORER), field("VWL", &S::VWL),
                        field("BRUTTOSB", &S::BRUTTOSB), field("NETTOSB", &S::NETTOSB),
                        field("MMVERZICHTBEITRAGSFREI", &S::MMVERZICHTBEITRAGSFREI),
                        field("AEUEBERGANGSBEREICH", &S::AEUEBERGANGSBEREICH), field("RECHTSKREIS", &S::RECHTSKREIS));
};

template <>
struct Binding<eel::DBSF> {
    using S = eel::DBSF;
    static constexpr auto fields =
        std::make_tuple(field("AUBORD", &S::AUBORD), field("AUINLAND", &S::AUINLAND), field("UANSPRUCH", &S::UANSPRUCH),
                        field("VERLAENGVON", &S::VERLAENGVON), field("VERLAENGBIS", &S::VERLAENGBIS),
                        field("KZDHEU", &S::KZDHEU), field("DHEU", &S::DHEU), field("HEUNETTO", &S::HEUNETTO));
};

template <>
struct Binding<eel::DBTK> {
    using S = eel::DBTK;
    static constexpr auto fields =
        std::make_tuple(field("BRUTTOSOLL", &S::BRUTTOSOLL), field("NETTOSOLL", &S::NETTOSOLL),
                        field("TRANSFERKUG", &S::TRANSFERKUG), field("BRUTTOIST", &S::BRUTTOIST),
                        field("NETTOIST", &S::NETTOIST), field("AUFSTOCKUNGSBETRAG", &S::AUFSTOCKUNGSBETRAG));
};

template <>
struct Binding<eel::DBVO> {
    using S = eel::DBVO;
    static constexpr auto fields =
        std::make_tuple(field("GRUNDAV", &S::GRUNDAV), field("AUABAG", &S::AUABAG), field("AUABSV", &S::AUABSV),
                        field("KZAKAU", &S::KZAKAU), field("Vorerkrankungen", &S::Vorerkrankungen));
};

template <>
struct Binding<Entgelt> {
    using E = Entgelt;
    static constexpr auto fields = std::make_tuple(
        field("DatensatzNr", &E::DatensatzNr), field("ErstellDatum", &E::ErstellDatum),
        field("RUECKMELDUNGEEL", &E::RUECKMELDUNGEEL), field("ABGABEGRUND", &E::ABGABEGRUND),
        field("KENNZSTORNO", &E::KENNZSTORNO), field("BBNRKK", &E::BBNRKK), field("KENNZAB", &E::KENNZAB),
        field("AZSV", &E::AZSV), field("ApAnrede", &E::ApAnrede), field("ApName", &E::ApName),
        field("ApTel", &E::ApTel), field("ApFax", &E::ApFax), field("ApEmail", &E::ApEmail), field("DBAL", &E::DBAL),
        field("DBAE", &E::DBAE), field("DBZA", &E::DBZA), field("DBEE", &E::DBEE), field("DBAW", &E::DBAW),
        field("DBFR", &E::DBFR), field("DBUN", &E::DBUN), field("DBMU", &E::DBMU), field("DBVO", &E::DBVO),
        field("DBHE", &E::DBHE), field("DBBE", &E::DBBE), field("DBLT", &E::DBLT), field("DBSF", &E::DBSF),
        field("DBTK", &E::DBTK), field("Vorgang", &E::Vorgang), field("Empfaenger", &E::Empfaenger));
};

}  // namespace tamrel::json_binding
