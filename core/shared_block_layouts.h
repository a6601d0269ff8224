// The layouts of the shared blocks DBNA, DBAN and DBGB, as
// core/shared_blocks.cpp builds them from the report's `Vorgang`.
#pragma once
#include "core/layout.h"

namespace tamrel::layouts {
using layout::lit;

namespace DBNA {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBNA");
inline constexpr FieldLayout Familienname{"Vorgang.Familienname", 5, 30, FieldKind::An};
inline constexpr FieldLayout Vorname{"Vorgang.Vorname", 35, 30, FieldKind::An};
inline constexpr FieldLayout Vorsatzwort{"Vorgang.Vorsatzwort", 65, 20, FieldKind::An};
inline constexpr FieldLayout Namenszusatz{"Vorgang.Namenszusatz", 85, 20, FieldKind::An};
inline constexpr FieldLayout Titel{"Vorgang.Titel", 105, 20, FieldKind::An};
inline constexpr FieldLayout Marker{"marker (A or blank)", 125, 1, FieldKind::Code};
inline constexpr FieldLayout kFields[] = {Kennung, Familienname, Vorname, Vorsatzwort, Namenszusatz, Titel, Marker};
}  // namespace DBNA
inline constexpr RecordLayout kDBNA{"DBNA", 125, DBNA::kFields};

namespace DBAN {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBAN");
inline constexpr FieldLayout Land{"Vorgang.Land (blank for D)", 5, 3, FieldKind::An};
inline constexpr FieldLayout PLZ{"Vorgang.PLZ", 8, 10, FieldKind::An};
inline constexpr FieldLayout Ort{"Vorgang.Ort", 18, 34, FieldKind::An};
inline constexpr FieldLayout Strasse{"Vorgang.Strasse", 52, 33, FieldKind::An};
inline constexpr FieldLayout Hausnummer{"Vorgang.Hausnummer", 85, 9, FieldKind::An};
inline constexpr FieldLayout Adresszusatz{"Vorgang.Adresszusatz", 94, 40, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, Land, PLZ, Ort, Strasse, Hausnummer, Adresszusatz};
}  // namespace DBAN
inline constexpr RecordLayout kDBAN{"DBAN", 133, DBAN::kFields};

namespace DBGB {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBGB");
inline constexpr FieldLayout Geburtsname{"Vorgang.Geburtsname", 5, 30, FieldKind::An};
inline constexpr FieldLayout GeburtsVorsatzwort{"Vorgang.GeburtsVorsatzwort", 35, 20, FieldKind::An};
inline constexpr FieldLayout GeburtsNamenszusatz{"Vorgang.GeburtsNamenszusatz", 55, 20, FieldKind::An};
inline constexpr FieldLayout Geburtsdatum{"Vorgang.Geburtsdatum", 75, 8, FieldKind::Date};
inline constexpr FieldLayout Geschlecht{"Vorgang.Geschlecht", 83, 1, FieldKind::An};
inline constexpr FieldLayout Geburtsort{"Vorgang.Geburtsort", 84, 34, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung,      Geburtsname, GeburtsVorsatzwort, GeburtsNamenszusatz,
                                          Geburtsdatum, Geschlecht,  Geburtsort};
}  // namespace DBGB
inline constexpr RecordLayout kDBGB{"DBGB", 117, DBGB::kFields};

}  // namespace tamrel::layouts
