// The layouts of the DSME record and its own blocks, as GenDSME.cpp and
// GenDSME_blocks.cpp build them; DBNA, DBGB and DBAN are the shared blocks.
#pragma once
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::meldung {
using layout::amount;
using layout::lit;

namespace DBME {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBME");
inline constexpr FieldLayout Storno{"Storno", 5, 1, FieldKind::Flag};
inline constexpr FieldLayout Meldekennzeichen{"Meldekennzeichen (0 where none)", 6, 1, FieldKind::An};
inline constexpr FieldLayout Beginn{"Beginn", 7, 8, FieldKind::Date};
inline constexpr FieldLayout Ende{"Ende", 15, 8, FieldKind::Date};
inline constexpr FieldLayout Reserve1{"reserve", 23, 2, FieldKind::N};
inline constexpr FieldLayout Statuskennzeichen{"Statuskennzeichen", 25, 1, FieldKind::An};
inline constexpr FieldLayout Entgelt{"Entgelt", 26, 6, FieldKind::N};
inline constexpr FieldLayout Beitragsgruppen{"Beitragsgruppe1-4", 32, 4, FieldKind::N};
inline constexpr FieldLayout Taetigkeitsschluessel{
    "activity key (SchluesselNeu1, SchluesselNeu3, SchluesselNeu2, or SchluesselAlt1-5)", 36, 9, FieldKind::An};
// The activity key of the old form, in two pieces.
inline constexpr FieldLayout SchluesselAlt1 = layout::part(Taetigkeitsschluessel, "SchluesselAlt1", 0, 5);
inline constexpr FieldLayout SchluesselAlt2bis5 = layout::part(Taetigkeitsschluessel, "SchluesselAlt2-5", 5, 4);
inline constexpr FieldLayout Kennzeichen{"Vorgang.Arbeitgeber.Kennzeichen", 45, 1, FieldKind::An};
inline constexpr FieldLayout Sonderkennzeichen{"Sonderkennzeichen", 46, 1, FieldKind::Flag};
inline constexpr FieldLayout Reserve2{"reserve", 47, 1, FieldKind::N};
inline constexpr FieldLayout Reserve3{"reserve", 48, 100, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung,
                                          Storno,
                                          Meldekennzeichen,
                                          Beginn,
                                          Ende,
                                          Reserve1,
                                          Statuskennzeichen,
                                          Entgelt,
                                          Beitragsgruppen,
                                          Taetigkeitsschluessel,
                                          Kennzeichen,
                                          Sonderkennzeichen,
                                          Reserve2,
                                          Reserve3};
}  // namespace DBME
inline constexpr RecordLayout kDBME{"DBME", 147, DBME::kFields};

namespace DBEU {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBEU");
inline constexpr FieldLayout EuAngabe2{"Vorgang.EuAngabe2", 5, 3, FieldKind::N};
inline constexpr FieldLayout EuAngabe1{"Vorgang.EuAngabe1", 8, 20, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, EuAngabe2, EuAngabe1};
}  // namespace DBEU
inline constexpr RecordLayout kDBEU{"DBEU", 27, DBEU::kFields};

// One entry of DBUV's list.
namespace DBUVEntry {
inline constexpr FieldLayout UvAngabe1{"UvAngabe1(i)", 1, 3, FieldKind::An};
inline constexpr FieldLayout UvAngabe2{"UvAngabe2(i)", 4, 15, FieldKind::An};
inline constexpr FieldLayout UvAngabe3{"UvAngabe3(i)", 19, 20, FieldKind::An};
inline constexpr FieldLayout UvAngabe4{"UvAngabe4(i)", 39, 15, FieldKind::An};
inline constexpr FieldLayout UvAngabe5{"UvAngabe5(i)", 54, 8, FieldKind::An};
inline constexpr FieldLayout UvAngabe6{"UvAngabe6(i)", 62, 6, FieldKind::N};
inline constexpr FieldLayout Reserve{"reserve", 68, 4, FieldKind::An};
inline constexpr FieldLayout kFields[] = {UvAngabe1, UvAngabe2, UvAngabe3, UvAngabe4, UvAngabe5, UvAngabe6, Reserve};
}  // namespace DBUVEntry
inline constexpr RecordLayout kDBUVEntry{"DBUV entry", 71, DBUVEntry::kFields};
namespace DBUV {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBUV");
inline constexpr FieldLayout Anzahl{"number of entries", 5, 1, FieldKind::N};
inline constexpr FieldLayout Reserve{"reserve", 6, 15, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, Anzahl, Reserve};
}  // namespace DBUV
inline constexpr RecordLayout kDBUV{"DBUV", 20, DBUV::kFields, &kDBUVEntry, 5, 1};

// DBKS of a registration (Meldungsart 1): the twelve lines of the
// activity key parts.
namespace DBKSList {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBKS");
inline constexpr FieldLayout Art = lit("kind", 5, "K");
inline constexpr FieldLayout KsKennzeichen{"KsKennzeichen", 6, 1, FieldKind::An};
// One of the twelve lines A, B, C (positions 7-150) and D (161-184).
namespace Zeile {
inline constexpr FieldLayout A{"KsZeileA(i)", 1, 2, FieldKind::An};
inline constexpr FieldLayout B{"KsZeileB(i)", 3, 9, FieldKind::An};
inline constexpr FieldLayout C{"KsZeileC(i)", 12, 1, FieldKind::An};
inline constexpr FieldLayout D{"KsZeileD(i)", 1, 2, FieldKind::An};
inline constexpr layout::IndexedNames<12> kA{"KsZeileA"}, kB{"KsZeileB"}, kC{"KsZeileC"}, kD{"KsZeileD"};
}  // namespace Zeile
inline constexpr auto kZeilenABC =
    layout::repeated<3, 12>({Zeile::A, Zeile::B, Zeile::C}, 7, {&Zeile::kA, &Zeile::kB, &Zeile::kC});
inline constexpr FieldLayout KsDatum{"KsDatum", 151, 8, FieldKind::DateOrBlank};
inline constexpr FieldLayout KsSchluessel{"KsSchluessel", 159, 2, FieldKind::An};
inline constexpr auto kZeilenD = layout::repeated<1, 12>({Zeile::D}, 161, {&Zeile::kD});
inline constexpr FieldLayout Reserve{"reserve", 185, 36, FieldKind::An};
inline constexpr auto kFields = layout::joined(std::array{Kennung, Art, KsKennzeichen}, kZeilenABC,
                                               std::array{KsDatum, KsSchluessel}, kZeilenD, std::array{Reserve});
}  // namespace DBKSList
inline constexpr RecordLayout kDBKSList{"DBKS", 220, DBKSList::kFields};
// DBKS of a deregistration (Meldungsart 2).
namespace DBKSItems {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBKS");
inline constexpr FieldLayout Art = lit("kind", 5, "S");
inline constexpr FieldLayout KsAngabe1{"KsAngabe1", 6, 2, FieldKind::An};
inline constexpr FieldLayout KsAngabe2{"KsAngabe2", 8, 2, FieldKind::An};
inline constexpr FieldLayout KsAngabe3{"KsAngabe3", 10, 2, FieldKind::An};
inline constexpr FieldLayout KsAngabe4{"KsAngabe4", 12, 2, FieldKind::An};
inline constexpr FieldLayout KsMerkmal{"KsMerkmal", 14, 1, FieldKind::Flag};
inline constexpr FieldLayout Reserve{"reserve", 15, 206, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, Art, KsAngabe1, KsAngabe2, KsAngabe3, KsAngabe4, KsMerkmal, Reserve};
}  // namespace DBKSItems
inline constexpr RecordLayout kDBKSItems{"DBKS", 220, DBKSItems::kFields};
inline constexpr const RecordLayout* kDBKSForms[] = {&kDBKSList, &kDBKSItems};
inline constexpr RecordLayout kDBKS{"DBKS", 220, DBKSList::kFields, nullptr, 0, 0, kDBKSForms};

namespace DBSO {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBSO");
inline constexpr FieldLayout Storno{"Storno", 5, 1, FieldKind::Flag};
inline constexpr FieldLayout Beginn{"Beginn", 6, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {Kennung, Storno, Beginn};
}  // namespace DBSO
inline constexpr RecordLayout kDBSO{"DBSO", 13, DBSO::kFields};

namespace DBKV {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBKV");
inline constexpr FieldLayout Storno{"Storno", 5, 1, FieldKind::Flag};
inline constexpr FieldLayout Reserve1{"reserve", 6, 2, FieldKind::N};
inline constexpr FieldLayout KvGrund{"KvGrund", 8, 2, FieldKind::N};
inline constexpr FieldLayout Beginn{"Beginn", 10, 8, FieldKind::Date};
inline constexpr FieldLayout Ende{"Ende", 18, 8, FieldKind::Date};
inline constexpr FieldLayout Reserve2{"reserve", 26, 8, FieldKind::N};
inline constexpr FieldLayout KvBetrag4 = amount("KvBetrag4", 34, 8, 2);
inline constexpr FieldLayout Reserve3{"reserve", 42, 27, FieldKind::An};
inline constexpr FieldLayout Beitragsgruppe1{"Beitragsgruppe1", 69, 1, FieldKind::N};
inline constexpr FieldLayout Beitragsgruppe2{"Beitragsgruppe2", 70, 1, FieldKind::N};
inline constexpr FieldLayout Beitragsgruppe3{"Beitragsgruppe3", 71, 1, FieldKind::N};
inline constexpr FieldLayout Beitragsgruppe4{"Beitragsgruppe4", 72, 1, FieldKind::N};
inline constexpr FieldLayout Kennzeichen{"Vorgang.Arbeitgeber.Kennzeichen", 73, 1, FieldKind::An};
inline constexpr FieldLayout KvBetrag1 = amount("KvBetrag1", 74, 8, 2);
inline constexpr FieldLayout KvBetrag2 = amount("KvBetrag2", 82, 8, 2);
inline constexpr FieldLayout KvBetrag3 = amount("KvBetrag3", 90, 8, 2);
inline constexpr FieldLayout Reserve4{"reserve", 98, 53, FieldKind::An};
inline constexpr FieldLayout kFields[] = {
    Kennung,         Storno,      Reserve1,  KvGrund,         Beginn,          Ende,
    Reserve2,        KvBetrag4,   Reserve3,  Beitragsgruppe1, Beitragsgruppe2, Beitragsgruppe3,
    Beitragsgruppe4, Kennzeichen, KvBetrag1, KvBetrag2,       KvBetrag3,       Reserve4};
}  // namespace DBKV
inline constexpr RecordLayout kDBKV{"DBKV", 150, DBKV::kFields};

namespace DSME {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DSME");
inline constexpr FieldLayout Verfahren = lit("procedure", 5, "DEUEV");
inline constexpr FieldLayout strBNRAb{"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr};
inline constexpr FieldLayout EmpfaengerBetriebsnummer1{"Empfaenger.Betriebsnummer", 25, 15, FieldKind::Bnr};
inline constexpr FieldLayout Version = lit("version", 40, "03");
inline constexpr FieldLayout Erstellt{"created (Zeitpunkt)", 42, 14, FieldKind::DateTime};
inline constexpr FieldLayout strMicroseconds{"DatensatzData.strMicroseconds", 56, 6, FieldKind::N};
inline constexpr FieldLayout Fehlerkennzeichen = lit("error marker", 62, "0");
inline constexpr FieldLayout Fehleranzahl{"number of errors", 63, 1, FieldKind::N};
inline constexpr FieldLayout Versicherungsnummer{"Vorgang.Versicherungsnummer", 64, 12, FieldKind::Vsnr};
inline constexpr FieldLayout Kennzeichen0G0C{"0G or 0C (Meldungsart 1)", 76, 2, FieldKind::An};
inline constexpr FieldLayout ArbeitgeberBetriebsnummer{"Vorgang.Arbeitgeber.Betriebsnummer", 78, 15, FieldKind::Bnr};
inline constexpr FieldLayout Aktenzeichen{"Vorgang.Aktenzeichen", 93, 20, FieldKind::An};
inline constexpr FieldLayout EmpfaengerBetriebsnummer2{"Empfaenger.Betriebsnummer", 113, 15, FieldKind::Bnr};
inline constexpr FieldLayout Bezug{"file reference (strVersion, Laufnummer)", 128, 20, FieldKind::An};
// The file reference, where it is not the Bezugskennung: version, running
// number and an empty rest.
inline constexpr FieldLayout BezugVersion = layout::part(Bezug, "DatensatzData.strVersion", 0, 10);
inline constexpr FieldLayout BezugLaufnummer = layout::part(Bezug, "Laufnummer", 10, 10, FieldKind::N);
inline constexpr FieldLayout BezugRest = layout::part(Bezug, "reserve", 20, 0);
inline constexpr FieldLayout ConvertBNRSt{"ConvertBNRSt(DatensatzData.strBNRSt)", 148, 15, FieldKind::An};
inline constexpr FieldLayout Personengruppe{"Personengruppe", 163, 3, FieldKind::N};
inline constexpr FieldLayout Meldegrund{"Meldegrund", 166, 2, FieldKind::N};
inline constexpr FieldLayout Laenderschluessel{"Vorgang.Laenderschluessel", 168, 3, FieldKind::An};
inline constexpr FieldLayout MitDBME = layout::flag(kDBME, 171);
inline constexpr FieldLayout MitDBNA = layout::flag(kDBNA, 172);
inline constexpr FieldLayout MitDBGB = layout::flag(kDBGB, 173);
inline constexpr FieldLayout MitDBAN = layout::flag(kDBAN, 174);
inline constexpr FieldLayout MitDBEU = layout::flag(kDBEU, 175);
inline constexpr FieldLayout MitDBUV = layout::flag(kDBUV, 176);
inline constexpr FieldLayout MitDBKS = layout::flag(kDBKS, 177);
inline constexpr FieldLayout ReserveKennzeichen = lit("reserved flags", 178, "NNN");
// The flags of positions 171-180, decided together.
inline constexpr FieldLayout Datenbausteine = layout::span("block flags", MitDBME, ReserveKennzeichen);
inline constexpr FieldLayout Reserve1{"reserve", 181, 1, FieldKind::An};
inline constexpr FieldLayout Fest1 = lit("fixed", 182, "5");
inline constexpr FieldLayout Reserve2{"reserve", 183, 1, FieldKind::An};
inline constexpr FieldLayout MitDBSO = layout::flag(kDBSO, 184);
inline constexpr FieldLayout Zusatzmerkmal{"Zusatzmerkmal", 185, 1, FieldKind::An};
inline constexpr FieldLayout Reserve3{"reserve", 186, 3, FieldKind::An};
inline constexpr FieldLayout MitDBKV = layout::flag(kDBKV, 189);
inline constexpr FieldLayout Reserve4{"reserve", 190, 1, FieldKind::An};
inline constexpr FieldLayout Reserve5{"reserve", 191, 20, FieldKind::N};
inline constexpr FieldLayout Fest2 = lit("fixed", 211, "01");
inline constexpr FieldLayout strProdID{"DatensatzData.strProdID", 213, 7, FieldKind::An};
inline constexpr FieldLayout strModID{"DatensatzData.strModID", 220, 8, FieldKind::An};
inline constexpr FieldLayout strVersion{"DatensatzData.strVersion", 228, 10, FieldKind::An};
inline constexpr FieldLayout Laufnummer{"Laufnummer", 238, 10, FieldKind::N};
inline constexpr FieldLayout Reserve6{"reserve", 248, 12, FieldKind::An};
inline constexpr FieldLayout Reserve7{"reserve", 260, 100, FieldKind::An};
inline constexpr FieldLayout Fest3 = lit("fixed", 360, "N");
inline constexpr FieldLayout Reserve8{"reserve", 361, 199, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung,
                                          Verfahren,
                                          strBNRAb,
                                          EmpfaengerBetriebsnummer1,
                                          Version,
                                          Erstellt,
                                          strMicroseconds,
                                          Fehlerkennzeichen,
                                          Fehleranzahl,
                                          Versicherungsnummer,
                                          Kennzeichen0G0C,
                                          ArbeitgeberBetriebsnummer,
                                          Aktenzeichen,
                                          EmpfaengerBetriebsnummer2,
                                          Bezug,
                                          ConvertBNRSt,
                                          Personengruppe,
                                          Meldegrund,
                                          Laenderschluessel,
                                          MitDBME,
                                          MitDBNA,
                                          MitDBGB,
                                          MitDBAN,
                                          MitDBEU,
                                          MitDBUV,
                                          MitDBKS,
                                          ReserveKennzeichen,
                                          Reserve1,
                                          Fest1,
                                          Reserve2,
                                          MitDBSO,
                                          Zusatzmerkmal,
                                          Reserve3,
                                          MitDBKV,
                                          Reserve4,
                                          Reserve5,
                                          Fest2,
                                          strProdID,
                                          strModID,
                                          strVersion,
                                          Laufnummer,
                                          Reserve6,
                                          Reserve7,
                                          Fest3,
                                          Reserve8};
}  // namespace DSME
inline constexpr RecordLayout kDSME{"DSME", 559, DSME::kFields};

}  // namespace tamrel::layouts::meldung
