// The layout of the DSLN record with its positions, as GenDSLN.cpp builds
// it; the contact block DBAP follows where it holds data.
#pragma once
#include "core/accident_insurance_layouts.h"
#include "core/layout.h"

namespace tamrel::layouts::uv {
using layout::lit;

// One position of the wage statement.
inline constexpr FieldLayout kDSLNPositionFields[] = {
    {"PosFeld1(i)", 1, 15, FieldKind::An}, {"PosFeld2(i)", 16, 8, FieldKind::An}, {"PosFeld3(i)", 24, 15, FieldKind::N},
    {"PosFeld4(i)", 39, 15, FieldKind::N}, {"PosFeld5(i)", 54, 6, FieldKind::N},
};
inline constexpr RecordLayout kDSLNPosition{"DSLN position", 59, kDSLNPositionFields};

inline constexpr std::array<FieldLayout, 27> kDSLNOwn{{
    {"reserve", 66, 20, FieldKind::N},
    lit("fixed", 86, "N"),
    lit("error marker", 87, "0"),
    lit("number of errors", 88, "0"),
    {"reserve", 89, 100, FieldKind::An},
    {"DatensatzData.strProdID", 189, 7, FieldKind::An},
    {"DatensatzData.strModID", 196, 8, FieldKind::An},
    {"DatensatzData.strVersion", 204, 10, FieldKind::An},
    {"DatensatzNr", 214, 10, FieldKind::N},
    {"reserve", 224, 12, FieldKind::An},
    {"Feld236", 236, 32, FieldKind::An},
    {"Kennz268", 268, 1, FieldKind::Flag},
    {"reserve", 269, 32, FieldKind::An},
    lit("fixed", 301, "5"),
    {"reserve", 302, 100, FieldKind::An},
    {"Feld402", 402, 15, FieldKind::An},
    {"Feld417", 417, 20, FieldKind::An},
    {"Feld437", 437, 5, FieldKind::N},
    {"Feld442", 442, 3, FieldKind::N},
    {"Feld445", 445, 4, FieldKind::N},
    {"Arbeitgeber.Betriebsnummer", 449, 15, FieldKind::Bnr},
    {"Feld464", 464, 15, FieldKind::An},
    layout::flag(kDBAP, 479),
    {"Feld480", 480, 4, FieldKind::An},
    {"Feld484", 484, 3, FieldKind::An},
    {"Feld487", 487, 6, FieldKind::N},
    {"AnzahlPositionen (or the number of Positionen)", 493, 2, FieldKind::N},
}};
inline constexpr auto kDSLNFields = layout::joined(head("DSLN", "UVELN"), kDSLNOwn);
inline constexpr RecordLayout kDSLN{"DSLN", 494, kDSLNFields, &kDSLNPosition, 493, 2};

}  // namespace tamrel::layouts::uv
