// The earnings certificate data object. Each optional block is a group of
// fields named with the abbreviations of the published record format; a
// block is sent when any of its fields holds data.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/contact_block.h"
#include "core/field_list.h"
#include "core/objects.h"

namespace tamrel::eel {

#define TAMREL_EEL_DBAL(X)                                                                                  \
    X(DATUMAB) X(AEERSTTAG) X(DATUMEZGBIS) X(ENDEBVAM) X(ENDEBVZUM) X(GRUNDBEEND) X(PFLZUSCHLAG) X(ARBZEITMOD) \
    X(MMKUG) X(KUGBEGINN) X(KUGENDE) X(LAGBEGINN1) X(LAGENDE1) X(LAGBEGINN2) X(LAGENDE2)
#define TAMREL_EEL_DBAE(X)                                                                                   \
    X(WAEHREELBRUTTO) X(DATUMAEBIS) X(EAZBEGINN1) X(EAZENDE1) X(BRUTTO1) X(NETTO1) X(UMGEWAE) X(ENTGART)      \
    X(BRUTTOAE) X(NETTOAE) X(EAZBEGINN2) X(EAZENDE2) X(BRUTTO2) X(NETTO2) X(EAZBEGINN3) X(EAZENDE3) X(BRUTTO3) \
    X(NETTO3) X(EZKV) X(EZRV) X(EZALV)
#define TAMREL_EEL_DBZA(X) \
    X(ANZAHLSTD) X(REGAZ) X(MAZR1) X(AZBEGINN2) X(AZENDE2) X(MAZR2) X(AZBEGINN3) X(AZENDE3) X(MAZR3)
#define TAMREL_EEL_DBEE(X) X(EELABAG) X(EELABSV) X(EELENDE) X(EELENDEGRUND)
#define TAMREL_EEL_DBAW(X) X(TAGE1) X(TAGE2) X(TAGE3)
#define TAMREL_EEL_DBFR(X)                                                                                  \
    X(ENDEBVZUM) X(FREISTVOM) X(FREISTBIS) X(VAEERSTTAG) X(TAGE) X(KEINEFREIST) X(BEGRZFREIST) X(BEZFREISTVOM) \
    X(BEZFREISTBIS) X(BEZFREISTJAHR) X(FREISTBRUTTO) X(FREISTNETTO) X(FREISTEZ)
#define TAMREL_EEL_DBUN(X) \
    X(UNFALLAZ) X(VTAG) X(IKUV) X(ZUSCHL1) X(ZUSCHL2) X(ZUSCHL3) X(FREISTZUSCHL) X(EZUV)
#define TAMREL_EEL_DBMU(X)                                                                                     \
    X(SCHUTZFRBEGINN) X(BVBEGINN) X(LETZTTAG) X(ENDEBVAM) X(ENDEBVZUM) X(BVGEKUEND) X(WAEHREELNETTO)            \
    X(DATUMAEBIS) X(FEHLZEIT) X(AEUEBER) X(ENTGART) X(BEGINN1) X(ENDE1) X(BEZAZ1) X(MASTD1) X(AZUNENTSTD1)      \
    X(AZUNENTTAGE1) X(AZENTSCHSTD1) X(AZENTSCHTAGE1) X(NETTO1) X(BEGINN2) X(ENDE2) X(BEZAZ2) X(MASTD2)          \
    X(AZUNENTSTD2) X(AZUNENTTAGE2) X(AZENTSCHSTD2) X(AZENTSCHTAGE2) X(NETTO2) X(BEGINN3) X(ENDE3) X(BEZAZ3)     \
    X(MASTD3) X(AZUNENTSTD3) X(AZUNENTTAGE3) X(AZENTSCHSTD3) X(AZENTSCHTAGE3) X(NETTO3) X(AZWOECH)
#define TAMREL_EEL_DBVO(X) X(GRUNDAV) X(AUABAG) X(AUABSV) X(KZAKAU)
#define TAMREL_EEL_VORERKRANKUNG(X)                                                                        \
    X(BEGINNAU) X(ENDEAU) X(KZNACHWEIS) X(TEILNACHWEISAUBEGINN) X(TEILNACHWEISAUENDE) X(KZAU) X(TEILANRAUBEGINN) \
    X(TEILANRAUENDE)
#define TAMREL_EEL_DBHE(X) X(ZAHLBEGINN) X(EELBRUTTO) X(EELNETTO)
#define TAMREL_EEL_DBBE(X) X(ZAHLBEGINN) X(BEITRPFLBRUTTO) X(BEITRPFLNETTO)
#define TAMREL_EEL_DBLT(X)                                                                                  \
    X(BVSEIT) X(BVBIS) X(BVALS) X(AUSBVERH) X(VORER) X(VWL) X(BRUTTOSB) X(NETTOSB) X(MMVERZICHTBEITRAGSFREI) \
    X(AEUEBERGANGSBEREICH) X(RECHTSKREIS)
#define TAMREL_EEL_DBSF(X) \
    X(AUBORD) X(AUINLAND) X(UANSPRUCH) X(VERLAENGVON) X(VERLAENGBIS) X(KZDHEU) X(DHEU) X(HEUNETTO)
#define TAMREL_EEL_DBTK(X) X(BRUTTOSOLL) X(NETTOSOLL) X(TRANSFERKUG) X(BRUTTOIST) X(NETTOIST) X(AUFSTOCKUNGSBETRAG)

struct DBAL { TAMREL_EEL_DBAL(TAMREL_TEXT_MEMBER) };
struct DBAE { TAMREL_EEL_DBAE(TAMREL_TEXT_MEMBER) };
struct DBZA { TAMREL_EEL_DBZA(TAMREL_TEXT_MEMBER) };
struct DBEE { TAMREL_EEL_DBEE(TAMREL_TEXT_MEMBER) };
struct DBAW { TAMREL_EEL_DBAW(TAMREL_TEXT_MEMBER) };
struct DBFR { TAMREL_EEL_DBFR(TAMREL_TEXT_MEMBER) };
struct DBUN { TAMREL_EEL_DBUN(TAMREL_TEXT_MEMBER) };
struct DBMU { TAMREL_EEL_DBMU(TAMREL_TEXT_MEMBER) };
struct Vorerkrankung { TAMREL_EEL_VORERKRANKUNG(TAMREL_TEXT_MEMBER) };
struct DBVO {
    TAMREL_EEL_DBVO(TAMREL_TEXT_MEMBER)
    std::vector<Vorerkrankung> Vorerkrankungen;  // written as ANZAHLAU items
};
struct DBHE { TAMREL_EEL_DBHE(TAMREL_TEXT_MEMBER) };
struct DBBE { TAMREL_EEL_DBBE(TAMREL_TEXT_MEMBER) };
struct DBLT { TAMREL_EEL_DBLT(TAMREL_TEXT_MEMBER) };
struct DBSF { TAMREL_EEL_DBSF(TAMREL_TEXT_MEMBER) };
struct DBTK { TAMREL_EEL_DBTK(TAMREL_TEXT_MEMBER) };

}  // namespace tamrel::eel

namespace tamrel {

struct Entgelt : ContactPerson {  // ApAnrede … ApEmail: the contact person of DBAP
    std::int32_t DatensatzNr = 0;
    std::string ErstellDatum;
    std::string RUECKMELDUNGEEL;  // "J"/"N"
    std::string ABGABEGRUND;
    bool KENNZSTORNO = false;
    std::string BBNRKK;   // the employee's health insurer; empty: the receiver
    std::string KENNZAB;  // DBNA change marker
    std::string AZSV;     // DBID: the social-insurance side's file reference
    eel::DBAL DBAL;
    eel::DBAE DBAE;
    eel::DBZA DBZA;
    eel::DBEE DBEE;
    eel::DBAW DBAW;
    eel::DBFR DBFR;
    eel::DBUN DBUN;
    eel::DBMU DBMU;
    eel::DBVO DBVO;
    eel::DBHE DBHE;
    eel::DBBE DBBE;
    eel::DBLT DBLT;
    eel::DBSF DBSF;
    eel::DBTK DBTK;
    tamrel::Vorgang Vorgang;
    tamrel::Empfaenger Empfaenger;
};

}  // namespace tamrel
