// The layouts of the DSBE record and its blocks DBMI and DBHB, as
// GenDSBE.cpp builds them.
#pragma once
#include "core/layout.h"

namespace tamrel::layouts::beitrerh {
using layout::lit;
using layout::signed_amount;

namespace DBMI {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBMI");
inline constexpr FieldLayout Aktenzeichen{"Vorgang.Aktenzeichen", 5, 20, FieldKind::An};
inline constexpr FieldLayout Familienname{"Vorgang.Familienname", 25, 30, FieldKind::An};
inline constexpr FieldLayout Vorname{"Vorgang.Vorname", 55, 30, FieldKind::An};
inline constexpr FieldLayout Vorsatzwort{"Vorgang.Vorsatzwort", 85, 20, FieldKind::An};
inline constexpr FieldLayout Namenszusatz{"Vorgang.Namenszusatz", 105, 20, FieldKind::An};
inline constexpr FieldLayout Titel{"Vorgang.Titel", 125, 20, FieldKind::An};
inline constexpr FieldLayout Geschlecht{"Vorgang.Geschlecht", 145, 1, FieldKind::An};
inline constexpr FieldLayout Geburtsdatum{"Vorgang.Geburtsdatum", 146, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {Kennung,      Aktenzeichen, Familienname, Vorname,     Vorsatzwort,
                                          Namenszusatz, Titel,        Geschlecht,   Geburtsdatum};
}  // namespace DBMI
inline constexpr RecordLayout kDBMI{"DBMI", 153, DBMI::kFields};

namespace DBHB {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBHB");
inline constexpr FieldLayout Betrag6 = signed_amount("Betrag6", 5, 9, 2);
inline constexpr FieldLayout kFields[] = {Kennung, Betrag6};
}  // namespace DBHB
inline constexpr RecordLayout kDBHB{"DBHB", 13, DBHB::kFields};

namespace DSBE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DSBE");
inline constexpr FieldLayout Fest1 = lit("fixed", 5, "02");
inline constexpr FieldLayout Fest2 = lit("fixed", 7, "01");
inline constexpr FieldLayout Fest3 = lit("fixed", 9, "00");
inline constexpr FieldLayout Verfahren = lit("procedure", 11, "BVBEI");
inline constexpr FieldLayout strBNRAb{"DatensatzData.strBNRAb", 16, 15, FieldKind::Bnr};
inline constexpr FieldLayout EmpfaengerBetriebsnummer1{"Empfaenger.Betriebsnummer", 31, 15, FieldKind::Bnr};
inline constexpr FieldLayout Erstellt{"created (Zeitpunkt)", 46, 14, FieldKind::DateTime};
inline constexpr FieldLayout strMicroseconds{"DatensatzData.strMicroseconds", 60, 6, FieldKind::N};
inline constexpr FieldLayout Fehlerkennzeichen = lit("error marker", 66, "0");
inline constexpr FieldLayout Fehleranzahl = lit("number of errors", 67, "0");
inline constexpr FieldLayout Fest4 = lit("fixed", 68, "N");
inline constexpr FieldLayout strProdID{"DatensatzData.strProdID", 69, 7, FieldKind::An};
inline constexpr FieldLayout strModID{"DatensatzData.strModID", 76, 8, FieldKind::An};
inline constexpr FieldLayout strVersion1{"DatensatzData.strVersion", 84, 10, FieldKind::An};
inline constexpr FieldLayout Laufnummer1{"Laufnummer", 94, 10, FieldKind::N};
inline constexpr FieldLayout Reserve1{"reserve", 104, 12, FieldKind::An};
inline constexpr FieldLayout Reserve2{"reserve", 116, 20, FieldKind::N};
inline constexpr FieldLayout Name1{"Vorgang.Arbeitgeber.Name1", 136, 30, FieldKind::An};
inline constexpr FieldLayout Name2{"Vorgang.Arbeitgeber.Name2", 166, 30, FieldKind::An};
inline constexpr FieldLayout Name3{"Vorgang.Arbeitgeber.Name3", 196, 30, FieldKind::An};
inline constexpr FieldLayout Strasse{"Vorgang.Arbeitgeber.Strasse", 226, 33, FieldKind::An};
inline constexpr FieldLayout Hausnummer{"Vorgang.Arbeitgeber.Hausnummer", 259, 9, FieldKind::An};
inline constexpr FieldLayout PLZ{"Vorgang.Arbeitgeber.PLZ", 268, 5, FieldKind::N};
inline constexpr FieldLayout Ort{"Vorgang.Arbeitgeber.Ort", 273, 34, FieldKind::An};
inline constexpr FieldLayout strVersion2{"DatensatzData.strVersion", 307, 10, FieldKind::An};
inline constexpr FieldLayout Laufnummer2{"Laufnummer", 317, 10, FieldKind::N};
inline constexpr FieldLayout ArbeitgeberBetriebsnummer{"Vorgang.Arbeitgeber.Betriebsnummer", 327, 15, FieldKind::Bnr};
inline constexpr FieldLayout ConvertBNRSt{"ConvertBNRSt(DatensatzData.strBNRSt)", 342, 15, FieldKind::An};
inline constexpr FieldLayout EmpfaengerBetriebsnummer2{"Empfaenger.Betriebsnummer", 357, 15, FieldKind::Bnr};
inline constexpr FieldLayout Bezugskennung{"Vorgang.Bezugskennung (or Ersatzaktenzeichen)", 372, 17, FieldKind::An};
inline constexpr FieldLayout Zeitraum2{"Zeitraum2", 389, 6, FieldKind::N};
inline constexpr FieldLayout Zeitraum1{"Zeitraum1", 395, 6, FieldKind::N};
inline constexpr FieldLayout ArtKennzeichen{"ArtKennzeichen (K or G)", 401, 1, FieldKind::Code};
inline constexpr FieldLayout Betrag1 = signed_amount("Betrag1", 402, 3, 0);
inline constexpr FieldLayout Betrag2 = signed_amount("Betrag2", 405, 9, 2);
inline constexpr FieldLayout Merkmal1{"Merkmal1 (1 or 0)", 414, 1, FieldKind::N};
inline constexpr FieldLayout Betrag3 = signed_amount("Betrag3", 415, 10, 2);
inline constexpr FieldLayout Betrag4 = signed_amount("Betrag4", 425, 9, 2);
inline constexpr FieldLayout Merkmal2{"Merkmal2 (0-5)", 434, 1, FieldKind::N};
inline constexpr FieldLayout Betrag5 = signed_amount("Betrag5", 435, 9, 2);
inline constexpr FieldLayout MitDBMI = layout::always(kDBMI, 444);
inline constexpr FieldLayout MitDBHB = layout::flag(kDBHB, 445);
inline constexpr FieldLayout Reserve3{"reserve", 446, 2, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung,
                                          Fest1,
                                          Fest2,
                                          Fest3,
                                          Verfahren,
                                          strBNRAb,
                                          EmpfaengerBetriebsnummer1,
                                          Erstellt,
                                          strMicroseconds,
                                          Fehlerkennzeichen,
                                          Fehleranzahl,
                                          Fest4,
                                          strProdID,
                                          strModID,
                                          strVersion1,
                                          Laufnummer1,
                                          Reserve1,
                                          Reserve2,
                                          Name1,
                                          Name2,
                                          Name3,
                                          Strasse,
                                          Hausnummer,
                                          PLZ,
                                          Ort,
                                          strVersion2,
                                          Laufnummer2,
                                          ArbeitgeberBetriebsnummer,
                                          ConvertBNRSt,
                                          EmpfaengerBetriebsnummer2,
                                          Bezugskennung,
                                          Zeitraum2,
                                          Zeitraum1,
                                          ArtKennzeichen,
                                          Betrag1,
                                          Betrag2,
                                          Merkmal1,
                                          Betrag3,
                                          Betrag4,
                                          Merkmal2,
                                          Betrag5,
                                          MitDBMI,
                                          MitDBHB,
                                          Reserve3};
}  // namespace DSBE
inline constexpr RecordLayout kDSBE{"DSBE", 447, DSBE::kFields};

}  // namespace tamrel::layouts::beitrerh
