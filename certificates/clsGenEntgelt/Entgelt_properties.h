// The property table of the data object `Entgelt` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "core/contact_block.h"
#include "core/objects_properties.h"
#include "core/property_table.h"

namespace tamrel::properties {

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
    using base = ContactPerson;  // its contact person's properties are among its own
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

static_assert(complete<eel::DBAL>(), "every member of eel::DBAL has its entry");
static_assert(complete<eel::DBAE>(), "every member of eel::DBAE has its entry");
static_assert(complete<eel::DBZA>(), "every member of eel::DBZA has its entry");
static_assert(complete<eel::DBEE>(), "every member of eel::DBEE has its entry");
static_assert(complete<eel::DBAW>(), "every member of eel::DBAW has its entry");
static_assert(complete<eel::DBFR>(), "every member of eel::DBFR has its entry");
static_assert(complete<eel::DBUN>(), "every member of eel::DBUN has its entry");
static_assert(complete<eel::DBMU>(), "every member of eel::DBMU has its entry");
static_assert(complete<eel::Vorerkrankung>(), "every member of eel::Vorerkrankung has its entry");
static_assert(complete<eel::DBHE>(), "every member of eel::DBHE has its entry");
static_assert(complete<eel::DBBE>(), "every member of eel::DBBE has its entry");
static_assert(complete<eel::DBLT>(), "every member of eel::DBLT has its entry");
static_assert(complete<eel::DBSF>(), "every member of eel::DBSF has its entry");
static_assert(complete<eel::DBTK>(), "every member of eel::DBTK has its entry");
static_assert(complete<eel::DBVO>(), "every member of eel::DBVO has its entry");
static_assert(complete<Entgelt>(), "every member of Entgelt has its entry");

}  // namespace tamrel::properties
