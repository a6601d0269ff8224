// The layouts of the DSER record and its blocks DBAU, DBBT, DBZU, DBBV and
// DBAA, as GenDSER.cpp and GenDSER_blocks.cpp build them; DBNA is the
// shared block.
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::erst {
using layout::amount;
using layout::lit;

// The common start of DBAU, DBBT and DBZU.
constexpr std::array<FieldLayout, 5> claim_head(std::string_view id) {
    return {{
        lit("identifier", 1, id),
        {"DBAAEntfaellt (1 or 0)", 5, 1, FieldKind::N},
        {"ZeitraumBeginn", 6, 8, FieldKind::Date},
        {"ZeitraumEnde", 14, 8, FieldKind::Date},
        {"Ausgleichsart 2 (1 or 0)", 22, 1, FieldKind::N},
    }};
}

inline constexpr std::array<FieldLayout, 18> kDBAUOwn{{
    amount("first of Entgelt1-4", 23, 9, 2),
    {"which Entgelt (1-4)", 32, 1, FieldKind::N},
    {"AngabeJN2 (J, N or blank)", 33, 1, FieldKind::Code},
    amount("first of Wert1-3", 34, 5, 2),
    {"which Wert (1-3)", 39, 1, FieldKind::N},
    amount("Satz1", 40, 4, 2),
    amount("Satz2", 44, 4, 2),
    amount("Betrag1", 48, 9, 2),
    amount("Betrag2", 57, 9, 2),
    amount("Betrag3", 66, 5, 2),
    amount("Betrag6", 71, 9, 2),
    {"MerkmalA or MerkmalB (2, 1 or 0)", 80, 1, FieldKind::N},
    {"AngabeJN1 (J, N or blank)", 81, 1, FieldKind::Code},
    {"Satz3 (or blanks)", 82, 4, FieldKind::Code},
    {"Zusatzdatum", 86, 8, FieldKind::Date},
    amount("Betrag4", 94, 9, 2),
    amount("Betrag5", 103, 9, 2),
    {"reserve", 112, 91, FieldKind::An},
}};
inline constexpr auto kDBAUFields = layout::joined(claim_head("DBAU"), kDBAUOwn);
inline constexpr RecordLayout kDBAU{"DBAU", 202, kDBAUFields};

inline constexpr std::array<FieldLayout, 10> kDBBTOwn{{
    {"Zusatzdatum (or blanks)", 23, 8, FieldKind::Code},
    amount("Betrag1", 31, 9, 2),
    amount("Betrag2", 40, 9, 2),
    lit("fixed", 49, "10000"),
    amount("Betrag6", 54, 9, 2),
    {"BTKennzeichen (0-3)", 63, 1, FieldKind::N},
    {"Abschlussdatum", 64, 8, FieldKind::Date},
    amount("Betrag4", 72, 9, 2),
    amount("Betrag5", 81, 9, 2),
    {"reserve", 90, 91, FieldKind::An},
}};
inline constexpr auto kDBBTFields = layout::joined(claim_head("DBBT"), kDBBTOwn);
inline constexpr RecordLayout kDBBT{"DBBT", 180, kDBBTFields};

inline constexpr std::array<FieldLayout, 9> kDBZUOwn{{
    {"ZuschussBeginn", 23, 8, FieldKind::Date},
    {"ZuschussEnde", 31, 8, FieldKind::Date},
    amount("Entgelt4", 39, 9, 2),
    amount("ZuschussBetrag1", 48, 9, 2),
    amount("ZuschussBetrag2", 57, 9, 2),
    amount("ZuschussBetrag3", 66, 9, 2),
    amount("ZuschussBetrag4", 75, 9, 2),
    {"Abschlussdatum", 84, 8, FieldKind::Date},
    {"reserve", 92, 100, FieldKind::An},
}};
inline constexpr auto kDBZUFields = layout::joined(claim_head("DBZU"), kDBZUOwn);
inline constexpr RecordLayout kDBZU{"DBZU", 191, kDBZUFields};

inline constexpr FieldLayout kDBBVFields[] = {
    lit("identifier", 1, "DBBV"),
    {"Bankkennzeichen (2, 1 or 0)", 5, 1, FieldKind::N},
    {"BVZahl4", 6, 4, FieldKind::N},
    {"BVZahl2", 10, 2, FieldKind::N},
    {"Vorgang.Arbeitgeber.Kontonummer", 12, 10, FieldKind::An},
    {"Vorgang.Arbeitgeber.Bankleitzahl", 22, 8, FieldKind::An},
    {"IBAN", 30, 34, FieldKind::An},
    {"BIC", 64, 11, FieldKind::An},
    {"Kontoinhaber1", 75, 50, FieldKind::An},
    {"Kontoinhaber2", 125, 50, FieldKind::An},
};
inline constexpr RecordLayout kDBBV{"DBBV", 174, kDBBVFields};

inline constexpr auto kDBAAFields =
    contact_block("DBAA", {"AnGeschl", "AnName", "AnTel", "AnFax", "AnEMail", "Vorgang.Arbeitgeber.Name1",
                           "Vorgang.Arbeitgeber.Name2", "Vorgang.Arbeitgeber.Name3", "Vorgang.Arbeitgeber.PLZ",
                           "Vorgang.Arbeitgeber.Ort", "Vorgang.Arbeitgeber.Strasse", "Vorgang.Arbeitgeber.Hausnummer"});
inline constexpr RecordLayout kDBAA{"DBAA", 321, kDBAAFields};

inline constexpr std::array<FieldLayout, 25> kDSEROwn{{
    {"Vorgang.Versicherungsnummer", 64, 12, FieldKind::Vsnr},
    {"Vorgang.Geburtsdatum", 76, 8, FieldKind::Date},
    {"Vorgang.Arbeitgeber.Betriebsnummer", 84, 15, FieldKind::Bnr},
    {"Vorgang.Aktenzeichen", 99, 20, FieldKind::An},
    {"reserve", 119, 20, FieldKind::An},
    {"Empfaenger.Betriebsnummer", 139, 15, FieldKind::Bnr},
    {"reserve", 154, 20, FieldKind::An},
    {"ConvertBNRSt(DatensatzData.strBNRSt)", 174, 15, FieldKind::An},
    {"reason code (Erstattungsgrund, Leistungsart)", 189, 2, FieldKind::N},
    {"ErstDatum", 191, 8, FieldKind::Date},
    {"Abrechnungskennzeichen (0-3)", 199, 1, FieldKind::N},
    {"Vorgang.Geschlecht", 200, 1, FieldKind::An},
    lit("fixed", 201, "2"),
    {"DatensatzData.strProdID", 202, 7, FieldKind::An},
    {"DatensatzData.strModID", 209, 8, FieldKind::An},
    {"record reference (strVersion, ErstattungsId)", 217, 32, FieldKind::An},
    {"reserve", 249, 100, FieldKind::An},
    layout::flag(kDBAU, 349),
    layout::flag(kDBBT, 350),
    layout::flag(kDBZU, 351),
    layout::always(kDBBV, 352),
    layout::always(kDBNA, 353),
    layout::flag(kDBAA, 354),
    {"reserve", 355, 1, FieldKind::An},
    {"reserve", 356, 100, FieldKind::An},
}};
inline constexpr auto kDSERFields =
    layout::joined(record_head("DSER", "AAGER", "05", "created (ErstelltAm)"), kDSEROwn);
inline constexpr RecordLayout kDSER{"DSER", 455, kDSERFields};

}  // namespace tamrel::layouts::erst
