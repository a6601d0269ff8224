// The layouts of the DSBE record and its blocks DBMI and DBHB, as
// GenDSBE.cpp builds them.
#pragma once
#include "core/layout.h"

namespace tamrel::layouts::beitrerh {
using layout::lit;
using layout::signed_amount;

inline constexpr FieldLayout kDBMIFields[] = {
    lit("identifier", 1, "DBMI"),
    {"Vorgang.Aktenzeichen", 5, 20, FieldKind::An},
    {"Vorgang.Familienname", 25, 30, FieldKind::An},
    {"Vorgang.Vorname", 55, 30, FieldKind::An},
    {"Vorgang.Vorsatzwort", 85, 20, FieldKind::An},
    {"Vorgang.Namenszusatz", 105, 20, FieldKind::An},
    {"Vorgang.Titel", 125, 20, FieldKind::An},
    {"Vorgang.Geschlecht", 145, 1, FieldKind::An},
    {"Vorgang.Geburtsdatum", 146, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBMI{"DBMI", 153, kDBMIFields};

inline constexpr FieldLayout kDBHBFields[] = {
    lit("identifier", 1, "DBHB"),
    signed_amount("Betrag6", 5, 9, 2),
};
inline constexpr RecordLayout kDBHB{"DBHB", 13, kDBHBFields};

inline constexpr FieldLayout kDSBEFields[] = {
    lit("identifier", 1, "DSBE"),
    lit("fixed", 5, "02"),
    lit("fixed", 7, "01"),
    lit("fixed", 9, "00"),
    lit("procedure", 11, "BVBEI"),
    {"DatensatzData.strBNRAb", 16, 15, FieldKind::Bnr},
    {"Empfaenger.Betriebsnummer", 31, 15, FieldKind::Bnr},
    {"created (Zeitpunkt)", 46, 14, FieldKind::DateTime},
    {"DatensatzData.strMicroseconds", 60, 6, FieldKind::N},
    lit("error marker", 66, "0"),
    lit("number of errors", 67, "0"),
    lit("fixed", 68, "N"),
    {"DatensatzData.strProdID", 69, 7, FieldKind::An},
    {"DatensatzData.strModID", 76, 8, FieldKind::An},
    {"DatensatzData.strVersion", 84, 10, FieldKind::An},
    {"Laufnummer", 94, 10, FieldKind::N},
    {"reserve", 104, 12, FieldKind::An},
    {"reserve", 116, 20, FieldKind::N},
    {"Vorgang.Arbeitgeber.Name1", 136, 30, FieldKind::An},
    {"Vorgang.Arbeitgeber.Name2", 166, 30, FieldKind::An},
    {"Vorgang.Arbeitgeber.Name3", 196, 30, FieldKind::An},
    {"Vorgang.Arbeitgeber.Strasse", 226, 33, FieldKind::An},
    {"Vorgang.Arbeitgeber.Hausnummer", 259, 9, FieldKind::An},
    {"Vorgang.Arbeitgeber.PLZ", 268, 5, FieldKind::N},
    {"Vorgang.Arbeitgeber.Ort", 273, 34, FieldKind::An},
    {"DatensatzData.strVersion", 307, 10, FieldKind::An},
    {"Laufnummer", 317, 10, FieldKind::N},
    {"Vorgang.Arbeitgeber.Betriebsnummer", 327, 15, FieldKind::Bnr},
    {"ConvertBNRSt(DatensatzData.strBNRSt)", 342, 15, FieldKind::An},
    {"Empfaenger.Betriebsnummer", 357, 15, FieldKind::Bnr},
    {"Vorgang.Bezugskennung (or Ersatzaktenzeichen)", 372, 17, FieldKind::An},
    {"Zeitraum2", 389, 6, FieldKind::N},
    {"Zeitraum1", 395, 6, FieldKind::N},
    {"ArtKennzeichen (K or G)", 401, 1, FieldKind::Code},
    signed_amount("Betrag1", 402, 3, 0),
    signed_amount("Betrag2", 405, 9, 2),
    {"Merkmal1 (1 or 0)", 414, 1, FieldKind::N},
    signed_amount("Betrag3", 415, 10, 2),
    signed_amount("Betrag4", 425, 9, 2),
    {"Merkmal2 (0-5)", 434, 1, FieldKind::N},
    signed_amount("Betrag5", 435, 9, 2),
    layout::always(kDBMI, 444),
    layout::flag(kDBHB, 445),
    {"reserve", 446, 2, FieldKind::An},
};
inline constexpr RecordLayout kDSBE{"DSBE", 447, kDSBEFields};

}  // namespace tamrel::layouts::beitrerh
