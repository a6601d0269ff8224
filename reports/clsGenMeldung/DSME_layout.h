// The layouts of the DSME record and its own blocks, as GenDSME.cpp and
// GenDSME_blocks.cpp build them; DBNA, DBGB and DBAN are the shared blocks.
#pragma once
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::meldung {
using layout::amount;
using layout::lit;

inline constexpr FieldLayout kDBMEFields[] = {
    lit("identifier", 1, "DBME"),
    {"Storno", 5, 1, FieldKind::Flag},
    {"Meldekennzeichen (0 where none)", 6, 1, FieldKind::An},
    {"Beginn", 7, 8, FieldKind::Date},
    {"Ende", 15, 8, FieldKind::Date},
    {"reserve", 23, 2, FieldKind::N},
    {"Statuskennzeichen", 25, 1, FieldKind::An},
    {"Entgelt", 26, 6, FieldKind::N},
    {"Beitragsgruppe1-4", 32, 4, FieldKind::N},
    {"activity key (SchluesselNeu1, SchluesselNeu3, SchluesselNeu2, or SchluesselAlt1-5)", 36, 9, FieldKind::An},
    {"Vorgang.Arbeitgeber.Kennzeichen", 45, 1, FieldKind::An},
    {"Sonderkennzeichen", 46, 1, FieldKind::Flag},
    {"reserve", 47, 1, FieldKind::N},
    {"reserve", 48, 100, FieldKind::An},
};
inline constexpr RecordLayout kDBME{"DBME", 147, kDBMEFields};

inline constexpr FieldLayout kDBEUFields[] = {
    lit("identifier", 1, "DBEU"),
    {"Vorgang.EuAngabe2", 5, 3, FieldKind::N},
    {"Vorgang.EuAngabe1", 8, 20, FieldKind::An},
};
inline constexpr RecordLayout kDBEU{"DBEU", 27, kDBEUFields};

// One entry of DBUV's list.
inline constexpr FieldLayout kDBUVEntryFields[] = {
    {"UvAngabe1(i)", 1, 3, FieldKind::An},   {"UvAngabe2(i)", 4, 15, FieldKind::An},
    {"UvAngabe3(i)", 19, 20, FieldKind::An}, {"UvAngabe4(i)", 39, 15, FieldKind::An},
    {"UvAngabe5(i)", 54, 8, FieldKind::An},  {"UvAngabe6(i)", 62, 6, FieldKind::N},
    {"reserve", 68, 4, FieldKind::An},
};
inline constexpr RecordLayout kDBUVEntry{"DBUV entry", 71, kDBUVEntryFields};
inline constexpr FieldLayout kDBUVFields[] = {
    lit("identifier", 1, "DBUV"),
    {"number of entries", 5, 1, FieldKind::N},
    {"reserve", 6, 15, FieldKind::An},
};
inline constexpr RecordLayout kDBUV{"DBUV", 20, kDBUVFields, &kDBUVEntry, 5, 1};

// DBKS of a registration (Meldungsart 1): the twelve lines of the
// activity key parts.
inline constexpr FieldLayout kDBKSListFields[] = {
    lit("identifier", 1, "DBKS"),
    lit("kind", 5, "K"),
    {"KsKennzeichen", 6, 1, FieldKind::An},
    {"KsZeileA(1)", 7, 2, FieldKind::An},
    {"KsZeileB(1)", 9, 9, FieldKind::An},
    {"KsZeileC(1)", 18, 1, FieldKind::An},
    {"KsZeileA(2)", 19, 2, FieldKind::An},
    {"KsZeileB(2)", 21, 9, FieldKind::An},
    {"KsZeileC(2)", 30, 1, FieldKind::An},
    {"KsZeileA(3)", 31, 2, FieldKind::An},
    {"KsZeileB(3)", 33, 9, FieldKind::An},
    {"KsZeileC(3)", 42, 1, FieldKind::An},
    {"KsZeileA(4)", 43, 2, FieldKind::An},
    {"KsZeileB(4)", 45, 9, FieldKind::An},
    {"KsZeileC(4)", 54, 1, FieldKind::An},
    {"KsZeileA(5)", 55, 2, FieldKind::An},
    {"KsZeileB(5)", 57, 9, FieldKind::An},
    {"KsZeileC(5)", 66, 1, FieldKind::An},
    {"KsZeileA(6)", 67, 2, FieldKind::An},
    {"KsZeileB(6)", 69, 9, FieldKind::An},
    {"KsZeileC(6)", 78, 1, FieldKind::An},
    {"KsZeileA(7)", 79, 2, FieldKind::An},
    {"KsZeileB(7)", 81, 9, FieldKind::An},
    {"KsZeileC(7)", 90, 1, FieldKind::An},
    {"KsZeileA(8)", 91, 2, FieldKind::An},
    {"KsZeileB(8)", 93, 9, FieldKind::An},
    {"KsZeileC(8)", 102, 1, FieldKind::An},
    {"KsZeileA(9)", 103, 2, FieldKind::An},
    {"KsZeileB(9)", 105, 9, FieldKind::An},
    {"KsZeileC(9)", 114, 1, FieldKind::An},
    {"KsZeileA(10)", 115, 2, FieldKind::An},
    {"KsZeileB(10)", 117, 9, FieldKind::An},
    {"KsZeileC(10)", 126, 1, FieldKind::An},
    {"KsZeileA(11)", 127, 2, FieldKind::An},
    {"KsZeileB(11)", 129, 9, FieldKind::An},
    {"KsZeileC(11)", 138, 1, FieldKind::An},
    {"KsZeileA(12)", 139, 2, FieldKind::An},
    {"KsZeileB(12)", 141, 9, FieldKind::An},
    {"KsZeileC(12)", 150, 1, FieldKind::An},
    {"KsDatum", 151, 8, FieldKind::DateOrBlank},
    {"KsSchluessel", 159, 2, FieldKind::An},
    {"KsZeileD(1)", 161, 2, FieldKind::An},
    {"KsZeileD(2)", 163, 2, FieldKind::An},
    {"KsZeileD(3)", 165, 2, FieldKind::An},
    {"KsZeileD(4)", 167, 2, FieldKind::An},
    {"KsZeileD(5)", 169, 2, FieldKind::An},
    {"KsZeileD(6)", 171, 2, FieldKind::An},
    {"KsZeileD(7)", 173, 2, FieldKind::An},
    {"KsZeileD(8)", 175, 2, FieldKind::An},
    {"KsZeileD(9)", 177, 2, FieldKind::An},
    {"KsZeileD(10)", 179, 2, FieldKind::An},
    {"KsZeileD(11)", 181, 2, FieldKind::An},
    {"KsZeileD(12)", 183, 2, FieldKind::An},
    {"reserve", 185, 36, FieldKind::An},
};
inline constexpr RecordLayout kDBKSList{"DBKS", 220, kDBKSListFields};
// DBKS of a deregistration (Meldungsart 2).
inline constexpr FieldLayout kDBKSItemsFields[] = {
    lit("identifier", 1, "DBKS"),          lit("kind", 5, "S"),
    {"KsAngabe1", 6, 2, FieldKind::An},    {"KsAngabe2", 8, 2, FieldKind::An},
    {"KsAngabe3", 10, 2, FieldKind::An},   {"KsAngabe4", 12, 2, FieldKind::An},
    {"KsMerkmal", 14, 1, FieldKind::Flag}, {"reserve", 15, 206, FieldKind::An},
};
inline constexpr RecordLayout kDBKSItems{"DBKS", 220, kDBKSItemsFields};
inline constexpr const RecordLayout* kDBKSForms[] = {&kDBKSList, &kDBKSItems};
inline constexpr RecordLayout kDBKS{"DBKS", 220, kDBKSListFields, nullptr, 0, 0, kDBKSForms};

inline constexpr FieldLayout kDBSOFields[] = {
    lit("identifier", 1, "DBSO"),
    {"Storno", 5, 1, FieldKind::Flag},
    {"Beginn", 6, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBSO{"DBSO", 13, kDBSOFields};

inline constexpr FieldLayout kDBKVFields[] = {
    lit("identifier", 1, "DBKV"),
    {"Storno", 5, 1, FieldKind::Flag},
    {"reserve", 6, 2, FieldKind::N},
    {"KvGrund", 8, 2, FieldKind::N},
    {"Beginn", 10, 8, FieldKind::Date},
    {"Ende", 18, 8, FieldKind::Date},
    {"reserve", 26, 8, FieldKind::N},
    amount("KvBetrag4", 34, 8, 2),
    {"reserve", 42, 27, FieldKind::An},
    {"Beitragsgruppe1", 69, 1, FieldKind::N},
    {"Beitragsgruppe2", 70, 1, FieldKind::N},
    {"Beitragsgruppe3", 71, 1, FieldKind::N},
    {"Beitragsgruppe4", 72, 1, FieldKind::N},
    {"Vorgang.Arbeitgeber.Kennzeichen", 73, 1, FieldKind::An},
    amount("KvBetrag1", 74, 8, 2),
    amount("KvBetrag2", 82, 8, 2),
    amount("KvBetrag3", 90, 8, 2),
    {"reserve", 98, 53, FieldKind::An},
};
inline constexpr RecordLayout kDBKV{"DBKV", 150, kDBKVFields};

inline constexpr FieldLayout kDSMEFields[] = {
    lit("identifier", 1, "DSME"),
    lit("procedure", 5, "DEUEV"),
    {"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr},
    {"Empfaenger.Betriebsnummer", 25, 15, FieldKind::Bnr},
    lit("version", 40, "03"),
    {"created (Zeitpunkt)", 42, 14, FieldKind::DateTime},
    {"DatensatzData.strMicroseconds", 56, 6, FieldKind::N},
    lit("error marker", 62, "0"),
    {"number of errors", 63, 1, FieldKind::N},
    {"Vorgang.Versicherungsnummer", 64, 12, FieldKind::Vsnr},
    {"0G or 0C (Meldungsart 1)", 76, 2, FieldKind::An},
    {"Vorgang.Arbeitgeber.Betriebsnummer", 78, 15, FieldKind::Bnr},
    {"Vorgang.Aktenzeichen", 93, 20, FieldKind::An},
    {"Empfaenger.Betriebsnummer", 113, 15, FieldKind::Bnr},
    {"file reference (strVersion, Laufnummer)", 128, 20, FieldKind::An},
    {"ConvertBNRSt(DatensatzData.strBNRSt)", 148, 15, FieldKind::An},
    {"Personengruppe", 163, 3, FieldKind::N},
    {"Meldegrund", 166, 2, FieldKind::N},
    {"Vorgang.Laenderschluessel", 168, 3, FieldKind::An},
    layout::flag(kDBME, 171),
    layout::flag(kDBNA, 172),
    layout::flag(kDBGB, 173),
    layout::flag(kDBAN, 174),
    layout::flag(kDBEU, 175),
    layout::flag(kDBUV, 176),
    layout::flag(kDBKS, 177),
    lit("reserved flags", 178, "NNN"),
    {"reserve", 181, 1, FieldKind::An},
    lit("fixed", 182, "5"),
    {"reserve", 183, 1, FieldKind::An},
    layout::flag(kDBSO, 184),
    {"Zusatzmerkmal", 185, 1, FieldKind::An},
    {"reserve", 186, 3, FieldKind::An},
    layout::flag(kDBKV, 189),
    {"reserve", 190, 1, FieldKind::An},
    {"reserve", 191, 20, FieldKind::N},
    lit("fixed", 211, "01"),
    {"DatensatzData.strProdID", 213, 7, FieldKind::An},
    {"DatensatzData.strModID", 220, 8, FieldKind::An},
    {"DatensatzData.strVersion", 228, 10, FieldKind::An},
    {"Laufnummer", 238, 10, FieldKind::N},
    {"reserve", 248, 12, FieldKind::An},
    {"reserve", 260, 100, FieldKind::An},
    lit("fixed", 360, "N"),
    {"reserve", 361, 199, FieldKind::An},
};
inline constexpr RecordLayout kDSME{"DSME", 559, kDSMEFields};

}  // namespace tamrel::layouts::meldung
