// The layouts of the DSLW record and its blocks, as GenDSLW.cpp and
// GenDSLW_blocks.cpp build them; DBNA and DBAN are the shared blocks.
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::eel {
using layout::amount;
using layout::flag;
using layout::lit;

inline constexpr FieldLayout kDBALFields[] = {
    lit("identifier", 1, "DBAL"),
    {"DBAL.DATUMAB", 5, 8, FieldKind::Date},
    {"DBAL.AEERSTTAG", 13, 1, FieldKind::Code},
    {"DBAL.DATUMEZGBIS", 14, 8, FieldKind::Date},
    {"DBAL.ENDEBVAM", 22, 8, FieldKind::Date},
    {"DBAL.ENDEBVZUM", 30, 8, FieldKind::Date},
    {"DBAL.GRUNDBEEND", 38, 2, FieldKind::N},
    {"DBAL.PFLZUSCHLAG", 40, 1, FieldKind::Code},
    {"DBAL.ARBZEITMOD", 41, 1, FieldKind::Code},
    {"DBAL.MMKUG", 42, 1, FieldKind::N},
    {"DBAL.KUGBEGINN", 43, 8, FieldKind::Date},
    {"DBAL.KUGENDE", 51, 8, FieldKind::Date},
    {"DBAL.LAGBEGINN1", 59, 8, FieldKind::Date},
    {"DBAL.LAGENDE1", 67, 8, FieldKind::Date},
    {"DBAL.LAGBEGINN2", 75, 8, FieldKind::Date},
    {"DBAL.LAGENDE2", 83, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBAL{"DBAL", 90, kDBALFields};

inline constexpr FieldLayout kDBAEFields[] = {
    lit("identifier", 1, "DBAE"),
    amount("DBAE.WAEHREELBRUTTO", 5, 8, 2),
    {"DBAE.DATUMAEBIS", 13, 8, FieldKind::Date},
    {"DBAE.EAZBEGINN1", 21, 8, FieldKind::Date},
    {"DBAE.EAZENDE1", 29, 8, FieldKind::Date},
    amount("DBAE.BRUTTO1", 37, 8, 2),
    amount("DBAE.NETTO1", 45, 8, 2),
    amount("DBAE.UMGEWAE", 53, 8, 2),
    {"DBAE.ENTGART", 61, 1, FieldKind::N},
    amount("DBAE.BRUTTOAE", 62, 8, 2),
    amount("DBAE.NETTOAE", 70, 8, 2),
    {"DBAE.EAZBEGINN2", 78, 8, FieldKind::Date},
    {"DBAE.EAZENDE2", 86, 8, FieldKind::Date},
    amount("DBAE.BRUTTO2", 94, 8, 2),
    amount("DBAE.NETTO2", 102, 8, 2),
    {"DBAE.EAZBEGINN3", 110, 8, FieldKind::Date},
    {"DBAE.EAZENDE3", 118, 8, FieldKind::Date},
    amount("DBAE.BRUTTO3", 126, 8, 2),
    amount("DBAE.NETTO3", 134, 8, 2),
    amount("DBAE.EZKV", 142, 8, 2),
    amount("DBAE.EZRV", 150, 8, 2),
    amount("DBAE.EZALV", 158, 8, 2),
};
inline constexpr RecordLayout kDBAE{"DBAE", 165, kDBAEFields};

inline constexpr FieldLayout kDBZAFields[] = {
    lit("identifier", 1, "DBZA"),
    amount("DBZA.ANZAHLSTD", 5, 5, 2),
    amount("DBZA.REGAZ", 10, 4, 2),
    amount("DBZA.MAZR1", 14, 5, 2),
    {"DBZA.AZBEGINN2", 19, 8, FieldKind::Date},
    {"DBZA.AZENDE2", 27, 8, FieldKind::Date},
    amount("DBZA.MAZR2", 35, 5, 2),
    {"DBZA.AZBEGINN3", 40, 8, FieldKind::Date},
    {"DBZA.AZENDE3", 48, 8, FieldKind::Date},
    amount("DBZA.MAZR3", 56, 5, 2),
};
inline constexpr RecordLayout kDBZA{"DBZA", 60, kDBZAFields};

inline constexpr FieldLayout kDBEEFields[] = {
    lit("identifier", 1, "DBEE"),
    {"DBEE.EELABAG", 5, 8, FieldKind::Date},
    {"DBEE.EELABSV", 13, 8, FieldKind::Date},
    {"DBEE.EELENDE", 21, 8, FieldKind::Date},
    {"DBEE.EELENDEGRUND", 29, 2, FieldKind::N},
};
inline constexpr RecordLayout kDBEE{"DBEE", 30, kDBEEFields};

inline constexpr FieldLayout kDBAWFields[] = {
    lit("identifier", 1, "DBAW"),
    {"DBAW.TAGE1", 5, 2, FieldKind::N},
    {"DBAW.TAGE2", 7, 2, FieldKind::N},
    {"DBAW.TAGE3", 9, 2, FieldKind::N},
};
inline constexpr RecordLayout kDBAW{"DBAW", 10, kDBAWFields};

inline constexpr FieldLayout kDBFRFields[] = {
    lit("identifier", 1, "DBFR"),
    {"DBFR.ENDEBVZUM", 5, 8, FieldKind::Date},
    {"DBFR.FREISTVOM", 13, 8, FieldKind::Date},
    {"DBFR.FREISTBIS", 21, 8, FieldKind::Date},
    {"DBFR.VAEERSTTAG", 29, 1, FieldKind::Code},
    {"DBFR.TAGE", 30, 2, FieldKind::N},
    {"DBFR.KEINEFREIST", 32, 1, FieldKind::N},
    {"DBFR.BEGRZFREIST", 33, 2, FieldKind::N},
    {"DBFR.BEZFREISTVOM", 35, 8, FieldKind::Date},
    {"DBFR.BEZFREISTBIS", 43, 8, FieldKind::Date},
    {"DBFR.BEZFREISTJAHR", 51, 2, FieldKind::N},
    amount("DBFR.FREISTBRUTTO", 53, 8, 2),
    amount("DBFR.FREISTNETTO", 61, 8, 2),
    {"DBFR.FREISTEZ", 69, 1, FieldKind::Code},
};
inline constexpr RecordLayout kDBFR{"DBFR", 69, kDBFRFields};

inline constexpr FieldLayout kDBUNFields[] = {
    lit("identifier", 1, "DBUN"),          {"DBUN.UNFALLAZ", 5, 20, FieldKind::An},
    {"DBUN.VTAG", 25, 8, FieldKind::Date}, {"DBUN.IKUV", 33, 15, FieldKind::An},
    amount("DBUN.ZUSCHL1", 48, 8, 2),      amount("DBUN.ZUSCHL2", 56, 8, 2),
    amount("DBUN.ZUSCHL3", 64, 8, 2),      amount("DBUN.FREISTZUSCHL", 72, 8, 2),
    amount("DBUN.EZUV", 80, 8, 2),
};
inline constexpr RecordLayout kDBUN{"DBUN", 87, kDBUNFields};

inline constexpr FieldLayout kDBMUFields[] = {
    lit("identifier", 1, "DBMU"),
    {"DBMU.SCHUTZFRBEGINN", 5, 8, FieldKind::Date},
    {"DBMU.BVBEGINN", 13, 8, FieldKind::Date},
    {"DBMU.LETZTTAG", 21, 8, FieldKind::Date},
    {"DBMU.ENDEBVAM", 29, 8, FieldKind::Date},
    {"DBMU.ENDEBVZUM", 37, 8, FieldKind::Date},
    {"DBMU.BVGEKUEND", 45, 2, FieldKind::N},
    amount("DBMU.WAEHREELNETTO", 47, 8, 2),
    {"DBMU.DATUMAEBIS", 55, 8, FieldKind::Date},
    {"DBMU.FEHLZEIT", 63, 2, FieldKind::N},
    {"DBMU.AEUEBER", 65, 1, FieldKind::Code},
    {"DBMU.ENTGART", 66, 1, FieldKind::N},
    {"DBMU.BEGINN1", 67, 8, FieldKind::Date},
    {"DBMU.ENDE1", 75, 8, FieldKind::Date},
    amount("DBMU.BEZAZ1", 83, 5, 2),
    amount("DBMU.MASTD1", 88, 5, 2),
    amount("DBMU.AZUNENTSTD1", 93, 5, 2),
    {"DBMU.AZUNENTTAGE1", 98, 2, FieldKind::N},
    amount("DBMU.AZENTSCHSTD1", 100, 5, 2),
    {"DBMU.AZENTSCHTAGE1", 105, 2, FieldKind::N},
    amount("DBMU.NETTO1", 107, 8, 2),
    {"DBMU.BEGINN2", 115, 8, FieldKind::Date},
    {"DBMU.ENDE2", 123, 8, FieldKind::Date},
    amount("DBMU.BEZAZ2", 131, 5, 2),
    amount("DBMU.MASTD2", 136, 5, 2),
    amount("DBMU.AZUNENTSTD2", 141, 5, 2),
    {"DBMU.AZUNENTTAGE2", 146, 2, FieldKind::N},
    amount("DBMU.AZENTSCHSTD2", 148, 5, 2),
    {"DBMU.AZENTSCHTAGE2", 153, 2, FieldKind::N},
    amount("DBMU.NETTO2", 155, 8, 2),
    {"DBMU.BEGINN3", 163, 8, FieldKind::Date},
    {"DBMU.ENDE3", 171, 8, FieldKind::Date},
    amount("DBMU.BEZAZ3", 179, 5, 2),
    amount("DBMU.MASTD3", 184, 5, 2),
    amount("DBMU.AZUNENTSTD3", 189, 5, 2),
    {"DBMU.AZUNENTTAGE3", 194, 2, FieldKind::N},
    amount("DBMU.AZENTSCHSTD3", 196, 5, 2),
    {"DBMU.AZENTSCHTAGE3", 201, 2, FieldKind::N},
    amount("DBMU.NETTO3", 203, 8, 2),
    amount("DBMU.AZWOECH", 211, 4, 2),
};
inline constexpr RecordLayout kDBMU{"DBMU", 214, kDBMUFields};

// One previous incapacity of DBVO's list.
inline constexpr FieldLayout kDBVOEntryFields[] = {
    {"BEGINNAU(i)", 1, 8, FieldKind::Date},
    {"ENDEAU(i)", 9, 8, FieldKind::Date},
    {"KZNACHWEIS(i)", 17, 1, FieldKind::N},
    {"TEILNACHWEISAUBEGINN(i)", 18, 8, FieldKind::Date},
    {"TEILNACHWEISAUENDE(i)", 26, 8, FieldKind::Date},
    {"KZAU(i)", 34, 1, FieldKind::N},
    {"TEILANRAUBEGINN(i)", 35, 8, FieldKind::Date},
    {"TEILANRAUENDE(i)", 43, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBVOEntry{"DBVO entry", 50, kDBVOEntryFields};
inline constexpr FieldLayout kDBVOFields[] = {
    lit("identifier", 1, "DBVO"),           {"DBVO.GRUNDAV", 5, 1, FieldKind::N},
    {"DBVO.AUABAG", 6, 8, FieldKind::Date}, {"DBVO.AUABSV", 14, 8, FieldKind::Date},
    {"DBVO.KZAKAU", 22, 1, FieldKind::N},   {"number of previous incapacities", 23, 2, FieldKind::N},
};
inline constexpr RecordLayout kDBVO{"DBVO", 24, kDBVOFields, &kDBVOEntry, 23, 2};

inline constexpr FieldLayout kDBHEFields[] = {
    lit("identifier", 1, "DBHE"),
    {"DBHE.ZAHLBEGINN", 5, 8, FieldKind::Date},
    amount("DBHE.EELBRUTTO", 13, 8, 2),
    amount("DBHE.EELNETTO", 21, 8, 2),
};
inline constexpr RecordLayout kDBHE{"DBHE", 28, kDBHEFields};

inline constexpr FieldLayout kDBBEFields[] = {
    lit("identifier", 1, "DBBE"),
    {"DBBE.ZAHLBEGINN", 5, 8, FieldKind::Date},
    amount("DBBE.BEITRPFLBRUTTO", 13, 8, 2),
    amount("DBBE.BEITRPFLNETTO", 21, 8, 2),
};
inline constexpr RecordLayout kDBBE{"DBBE", 28, kDBBEFields};

inline constexpr FieldLayout kDBLTFields[] = {
    lit("identifier", 1, "DBLT"),
    {"DBLT.BVSEIT", 5, 8, FieldKind::Date},
    {"DBLT.BVBIS", 13, 8, FieldKind::Date},
    {"DBLT.BVALS", 21, 30, FieldKind::An},
    {"DBLT.AUSBVERH", 51, 1, FieldKind::Code},
    {"DBLT.VORER", 52, 1, FieldKind::Code},
    amount("DBLT.VWL", 53, 6, 2),
    amount("DBLT.BRUTTOSB", 59, 8, 2),
    amount("DBLT.NETTOSB", 67, 8, 2),
    {"DBLT.MMVERZICHTBEITRAGSFREI", 75, 1, FieldKind::Code},
    {"DBLT.AEUEBERGANGSBEREICH", 76, 1, FieldKind::Code},
    {"DBLT.RECHTSKREIS", 77, 1, FieldKind::An},
};
inline constexpr RecordLayout kDBLT{"DBLT", 77, kDBLTFields};

inline constexpr FieldLayout kDBSFFields[] = {
    lit("identifier", 1, "DBSF"),
    {"DBSF.AUBORD", 5, 8, FieldKind::Date},
    {"DBSF.AUINLAND", 13, 8, FieldKind::Date},
    {"DBSF.UANSPRUCH", 21, 2, FieldKind::N},
    {"DBSF.VERLAENGVON", 23, 8, FieldKind::Date},
    {"DBSF.VERLAENGBIS", 31, 8, FieldKind::Date},
    {"DBSF.KZDHEU", 39, 4, FieldKind::N},
    amount("DBSF.DHEU", 43, 8, 2),
    amount("DBSF.HEUNETTO", 51, 8, 2),
};
inline constexpr RecordLayout kDBSF{"DBSF", 58, kDBSFFields};

inline constexpr FieldLayout kDBTKFields[] = {
    lit("identifier", 1, "DBTK"),
    amount("DBTK.BRUTTOSOLL", 5, 8, 2),
    amount("DBTK.NETTOSOLL", 13, 8, 2),
    amount("DBTK.TRANSFERKUG", 21, 8, 2),
    amount("DBTK.BRUTTOIST", 29, 8, 2),
    amount("DBTK.NETTOIST", 37, 8, 2),
    amount("DBTK.AUFSTOCKUNGSBETRAG", 45, 8, 2),
};
inline constexpr RecordLayout kDBTK{"DBTK", 52, kDBTKFields};

inline constexpr auto kDBAPFields =
    contact_block("DBAP", {"ApAnrede", "ApName", "ApTel", "ApFax", "ApEmail", "Vorgang.Arbeitgeber.Name1",
                           "Vorgang.Arbeitgeber.Name2", "Vorgang.Arbeitgeber.Name3", "Vorgang.Arbeitgeber.PLZ",
                           "Vorgang.Arbeitgeber.Ort", "Vorgang.Arbeitgeber.Strasse", "Vorgang.Arbeitgeber.Hausnummer"});
inline constexpr RecordLayout kDBAP{"DBAP", 321, kDBAPFields};

inline constexpr FieldLayout kDBIDFields[] = {
    lit("identifier", 1, "DBID"),
    {"AZSV", 5, 20, FieldKind::An},
    {"Vorgang.Aktenzeichen", 25, 20, FieldKind::An},
};
inline constexpr RecordLayout kDBID{"DBID", 44, kDBIDFields};

inline constexpr std::array<FieldLayout, 31> kDSLWOwn{{
    {"Vorgang.Versicherungsnummer", 64, 12, FieldKind::Vsnr},
    {"Vorgang.Geburtsdatum", 76, 8, FieldKind::Date},
    {"Vorgang.Arbeitgeber.Betriebsnummer", 84, 15, FieldKind::Bnr},
    {"record ID (strVersion, DatensatzNr)", 99, 32, FieldKind::An},
    {"DatensatzData.strProdID", 131, 7, FieldKind::An},
    {"DatensatzData.strModID", 138, 8, FieldKind::An},
    {"reserve", 146, 20, FieldKind::N},
    {"reserve", 166, 2, FieldKind::An},
    {"BBNRKK (or Empfaenger.Betriebsnummer)", 168, 15, FieldKind::Bnr},
    {"DatensatzData.strBNRSt", 183, 15, FieldKind::An},
    {"RUECKMELDUNGEEL", 198, 1, FieldKind::An},
    {"ABGABEGRUND", 199, 2, FieldKind::N},
    {"KENNZSTORNO", 201, 1, FieldKind::Flag},
    flag(kDBNA, 202),
    flag(kDBAN, 203),
    flag(kDBAL, 204),
    flag(kDBAE, 205),
    flag(kDBZA, 206),
    flag(kDBEE, 207),
    flag(kDBAW, 208),
    flag(kDBFR, 209),
    flag(kDBUN, 210),
    flag(kDBMU, 211),
    flag(kDBVO, 212),
    flag(kDBHE, 213),
    flag(kDBBE, 214),
    flag(kDBLT, 215),
    flag(kDBSF, 216),
    flag(kDBTK, 217),
    flag(kDBAP, 218),
    flag(kDBID, 219),
}};
inline constexpr auto kDSLWFields =
    layout::joined(record_head("DSLW", "LEIST", "10", "created (ErstellDatum)"), kDSLWOwn);
inline constexpr RecordLayout kDSLW{"DSLW", 219, kDSLWFields};

}  // namespace tamrel::layouts::eel
