// The layout of the DSAS record, as GenDSAS.cpp builds it; the contact
// block DBAP follows where it holds data.
#pragma once
#include "core/accident_insurance_layouts.h"
#include "core/layout.h"

namespace tamrel::layouts::uv {
using layout::lit;

inline constexpr std::array<FieldLayout, 23> kDSASOwn{{
    lit("fixed", 66, "N"),
    lit("error marker", 67, "0"),
    lit("number of errors", 68, "0"),
    {"reserve", 69, 100, FieldKind::An},
    {"DatensatzData.strProdID", 169, 7, FieldKind::An},
    {"DatensatzData.strModID", 176, 8, FieldKind::An},
    {"DatensatzData.strVersion", 184, 10, FieldKind::An},
    {"DatensatzNr", 194, 10, FieldKind::N},
    {"reserve", 204, 12, FieldKind::An},
    {"Feld216", 216, 32, FieldKind::An},
    {"Kennz248", 248, 1, FieldKind::Flag},
    {"reserve", 249, 32, FieldKind::An},
    lit("fixed", 281, "5"),
    {"reserve", 282, 100, FieldKind::An},
    {"Feld382", 382, 15, FieldKind::An},
    {"Feld397", 397, 20, FieldKind::An},
    {"Feld417", 417, 5, FieldKind::N},
    {"Feld422", 422, 3, FieldKind::N},
    {"Feld425", 425, 4, FieldKind::N},
    {"Arbeitgeber.Betriebsnummer", 429, 15, FieldKind::Bnr},
    {"Feld444", 444, 15, FieldKind::An},
    layout::flag(kDBAP, 459),
    lit("fixed", 460, "UV10"),
}};
inline constexpr auto kDSASFields = layout::joined(head("DSAS", "UVSDD"), kDSASOwn);
inline constexpr RecordLayout kDSAS{"DSAS", 463, kDSASFields};

}  // namespace tamrel::layouts::uv
