// The layouts of the shared blocks DBNA, DBAN and DBGB, as
// core/shared_blocks.cpp builds them from the report's `Vorgang`.
#pragma once
#include "core/layout.h"

namespace tamrel::layouts {
using layout::lit;

inline constexpr FieldLayout kDBNAFields[] = {
    lit("identifier", 1, "DBNA"),
    {"Vorgang.Familienname", 5, 30, FieldKind::An},
    {"Vorgang.Vorname", 35, 30, FieldKind::An},
    {"Vorgang.Vorsatzwort", 65, 20, FieldKind::An},
    {"Vorgang.Namenszusatz", 85, 20, FieldKind::An},
    {"Vorgang.Titel", 105, 20, FieldKind::An},
    {"marker (A or blank)", 125, 1, FieldKind::Code},
};
inline constexpr RecordLayout kDBNA{"DBNA", 125, kDBNAFields};

inline constexpr FieldLayout kDBANFields[] = {
    lit("identifier", 1, "DBAN"),
    {"Vorgang.Land (blank for D)", 5, 3, FieldKind::An},
    {"Vorgang.PLZ", 8, 10, FieldKind::An},
    {"Vorgang.Ort", 18, 34, FieldKind::An},
    {"Vorgang.Strasse", 52, 33, FieldKind::An},
    {"Vorgang.Hausnummer", 85, 9, FieldKind::An},
    {"Vorgang.Adresszusatz", 94, 40, FieldKind::An},
};
inline constexpr RecordLayout kDBAN{"DBAN", 133, kDBANFields};

inline constexpr FieldLayout kDBGBFields[] = {
    lit("identifier", 1, "DBGB"),
    {"Vorgang.Geburtsname", 5, 30, FieldKind::An},
    {"Vorgang.GeburtsVorsatzwort", 35, 20, FieldKind::An},
    {"Vorgang.GeburtsNamenszusatz", 55, 20, FieldKind::An},
    {"Vorgang.Geburtsdatum", 75, 8, FieldKind::Date},
    {"Vorgang.Geschlecht", 83, 1, FieldKind::An},
    {"Vorgang.Geburtsort", 84, 34, FieldKind::An},
};
inline constexpr RecordLayout kDBGB{"DBGB", 117, kDBGBFields};

}  // namespace tamrel::layouts
