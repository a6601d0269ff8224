// The layouts of the DSVZ record and its blocks DBZK, DBNA and DBGA, as
// GenDSVZ.cpp builds them; DBAN is the shared block.
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::zahl {
using layout::amount;
using layout::lit;

inline constexpr FieldLayout kDBZKFields[] = {
    lit("identifier", 1, "DBZK"),
    {"ZKKennzeichen", 5, 1, FieldKind::Flag},
    {"ZKArt (2 when pseudonymised)", 6, 1, FieldKind::N},
    {"ZKAngabeJN (J, N or blank)", 7, 1, FieldKind::Code},
    {"ZKBeginn", 8, 8, FieldKind::Date},
    {"ZKEnde", 16, 8, FieldKind::Date},
    {"ZKDatum (today when pseudonymised)", 24, 8, FieldKind::Date},
    amount("ZKBetrag1", 32, 8, 2),
    {"ZKDatum2", 40, 8, FieldKind::Date},
    {"ZKDatum3", 48, 8, FieldKind::Date},
    {"ZKDatum4", 56, 8, FieldKind::Date},
    amount("ZKBetrag2", 64, 12, 2),
    amount("ZKBetrag3", 76, 8, 2),
    amount("ZKBetrag4", 84, 8, 2),
};
inline constexpr RecordLayout kDBZK{"DBZK", 91, kDBZKFields};

// The shared name block, with the pseudonyms in place of the names where
// the report is pseudonymised.
inline constexpr FieldLayout kDBNAZahlFields[] = {
    lit("identifier", 1, "DBNA"),
    {"Vorgang.Familienname (or Pseudoname)", 5, 30, FieldKind::An},
    {"Vorgang.Vorname (or Pseudovorname)", 35, 30, FieldKind::An},
    {"Vorgang.Vorsatzwort", 65, 20, FieldKind::An},
    {"Vorgang.Namenszusatz", 85, 20, FieldKind::An},
    {"Vorgang.Titel", 105, 20, FieldKind::An},
    {"marker (blank)", 125, 1, FieldKind::Code},
};
inline constexpr RecordLayout kDBNAZahl{"DBNA", 125, kDBNAZahlFields};

inline constexpr FieldLayout kDBGAFields[] = {
    lit("identifier", 1, "DBGA"),
    {"Vorgang.Geburtsdatum", 5, 8, FieldKind::Date},
    {"Vorgang.Geschlecht", 13, 1, FieldKind::An},
};
inline constexpr RecordLayout kDBGA{"DBGA", 13, kDBGAFields};

inline constexpr std::array<FieldLayout, 23> kDSVZOwn{{
    {"Vorgang.Kennung14", 64, 14, FieldKind::An},
    {"Vorgang.Arbeitgeber.Betriebsnummer", 78, 15, FieldKind::Bnr},
    {"Vorgang.Aktenzeichen", 93, 20, FieldKind::An},
    {"Empfaenger.Betriebsnummer", 113, 15, FieldKind::Bnr},
    {"DatensatzData.strVersion", 128, 10, FieldKind::An},
    {"ZahlId", 138, 10, FieldKind::N},
    {"DatensatzData.strBNRSt", 148, 15, FieldKind::An},
    {"reserve", 163, 3, FieldKind::An},
    lit("fixed", 166, "01"),
    {"DatensatzData.strProdID", 168, 7, FieldKind::An},
    {"DatensatzData.strModID", 175, 8, FieldKind::An},
    {"DatensatzData.strVersion", 183, 10, FieldKind::An},
    {"ZahlId", 193, 10, FieldKind::N},
    {"reserve", 203, 12, FieldKind::An},
    {"reserve", 215, 3, FieldKind::An},
    layout::always(kDBZK, 218),
    layout::always(kDBNAZahl, 219),
    layout::flag(kDBGA, 220),
    lit("fixed", 221, "N"),
    layout::flag(kDBAN, 222),
    lit("fixed", 223, "N"),
    {"Vorgang.Versicherungsnummer (zeros when pseudonymised)", 224, 12, FieldKind::Vsnr},
    {"reserve", 236, 2, FieldKind::An},
}};
inline constexpr auto kDSVZFields =
    layout::joined(record_head("DSVZ", "ZAHLS", "02", "created (ErstelltAm)"), kDSVZOwn);
inline constexpr RecordLayout kDSVZ{"DSVZ", 237, kDSVZFields};

}  // namespace tamrel::layouts::zahl
