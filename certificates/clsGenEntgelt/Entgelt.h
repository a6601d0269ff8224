// The earnings certificate data object. Each optional block is a group of
// fields named with the abbreviations of the published record format; a
// block is sent when any of its fields holds data.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/contact_block.h"
#include "core/objects.h"

namespace tamrel::eel {

struct DBAL {
    std::string DATUMAB, AEERSTTAG, DATUMEZGBIS, ENDEBVAM, ENDEBVZUM, GRUNDBEEND, PFLZUSCHLAG, ARBZEITMOD, MMKUG,
        KUGBEGINN, KUGENDE, LAGBEGINN1, LAGENDE1, LAGBEGINN2, LAGENDE2;
};
struct DBAE {
    std::string WAEHREELBRUTTO, DATUMAEBIS, EAZBEGINN1, EAZENDE1, BRUTTO1, NETTO1, UMGEWAE, ENTGART, BRUTTOAE, NETTOAE,
        EAZBEGINN2, EAZENDE2, BRUTTO2, NETTO2, EAZBEGINN3, EAZENDE3, BRUTTO3, NETTO3, EZKV, EZRV, EZALV;
};
struct DBZA {
    std::string ANZAHLSTD, REGAZ, MAZR1, AZBEGINN2, AZENDE2, MAZR2, AZBEGINN3, AZENDE3, MAZR3;
};
struct DBEE {
    std::string EELABAG, EELABSV, EELENDE, EELENDEGRUND;
};
struct DBAW {
    std::string TAGE1, TAGE2, TAGE3;
};
struct DBFR {
    std::string ENDEBVZUM, FREISTVOM, FREISTBIS, VAEERSTTAG, TAGE, KEINEFREIST, BEGRZFREIST, BEZFREISTVOM, BEZFREISTBIS,
        BEZFREISTJAHR, FREISTBRUTTO, FREISTNETTO, FREISTEZ;
};
struct DBUN {
    std::string UNFALLAZ, VTAG, IKUV, ZUSCHL1, ZUSCHL2, ZUSCHL3, FREISTZUSCHL, EZUV;
};
struct DBMU {
    std::string SCHUTZFRBEGINN, BVBEGINN, LETZTTAG, ENDEBVAM, ENDEBVZUM, BVGEKUEND, WAEHREELNETTO, DATUMAEBIS, FEHLZEIT,
        AEUEBER, ENTGART, BEGINN1, ENDE1, BEZAZ1, MASTD1, AZUNENTSTD1, AZUNENTTAGE1, AZENTSCHSTD1, AZENTSCHTAGE1,
        NETTO1, BEGINN2, ENDE2, BEZAZ2, MASTD2, AZUNENTSTD2, AZUNENTTAGE2, AZENTSCHSTD2, AZENTSCHTAGE2, NETTO2, BEGINN3,
        ENDE3, BEZAZ3, MASTD3, AZUNENTSTD3, AZUNENTTAGE3, AZENTSCHSTD3, AZENTSCHTAGE3, NETTO3, AZWOECH;
};
struct Vorerkrankung {
    std::string BEGINNAU, ENDEAU, KZNACHWEIS, TEILNACHWEISAUBEGINN, TEILNACHWEISAUENDE, KZAU, TEILANRAUBEGINN,
        TEILANRAUENDE;
};
struct DBVO {
    std::string GRUNDAV, AUABAG, AUABSV, KZAKAU;
    std::vector<Vorerkrankung> Vorerkrankungen;  // written as ANZAHLAU items
};
struct DBHE {
    std::string ZAHLBEGINN, EELBRUTTO, EELNETTO;
};
struct DBBE {
    std::string ZAHLBEGINN, BEITRPFLBRUTTO, BEITRPFLNETTO;
};
struct DBLT {
    std::string BVSEIT, BVBIS, BVALS, AUSBVERH, VORER, VWL, BRUTTOSB, NETTOSB, MMVERZICHTBEITRAGSFREI,
        AEUEBERGANGSBEREICH, RECHTSKREIS;
};
struct DBSF {
    std::string AUBORD, AUINLAND, UANSPRUCH, VERLAENGVON, VERLAENGBIS, KZDHEU, DHEU, HEUNETTO;
};
struct DBTK {
    std::string BRUTTOSOLL, NETTOSOLL, TRANSFERKUG, BRUTTOIST, NETTOIST, AUFSTOCKUNGSBETRAG;
};

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
