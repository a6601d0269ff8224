// The layout of the DSLN record with its positions, as GenDSLN.cpp builds
// it; the contact block DBAP follows where it holds data.
#pragma once
#include "core/accident_insurance_layouts.h"
#include "core/layout.h"

namespace tamrel::layouts::uv {
using layout::lit;

// One position of the wage statement.
namespace DSLNPosition {
inline constexpr FieldLayout PosFeld1{"PosFeld1(i)", 1, 15, FieldKind::An};
inline constexpr FieldLayout PosFeld2{"PosFeld2(i)", 16, 8, FieldKind::An};
inline constexpr FieldLayout PosFeld3{"PosFeld3(i)", 24, 15, FieldKind::N};
inline constexpr FieldLayout PosFeld4{"PosFeld4(i)", 39, 15, FieldKind::N};
inline constexpr FieldLayout PosFeld5{"PosFeld5(i)", 54, 6, FieldKind::N};
inline constexpr FieldLayout kFields[] = {PosFeld1, PosFeld2, PosFeld3, PosFeld4, PosFeld5};
}  // namespace DSLNPosition
inline constexpr RecordLayout kDSLNPosition{"DSLN position", 59, DSLNPosition::kFields};

namespace DSLN {
inline constexpr UvHead Head{"DSLN", "UVELN"};
inline constexpr FieldLayout Reserve1{"reserve", 66, 20, FieldKind::N};
inline constexpr FieldLayout Fest1 = lit("fixed", 86, "N");
inline constexpr FieldLayout Fehlerkennzeichen = lit("error marker", 87, "0");
inline constexpr FieldLayout Fehleranzahl = lit("number of errors", 88, "0");
inline constexpr FieldLayout Reserve2{"reserve", 89, 100, FieldKind::An};
inline constexpr FieldLayout strProdID{"DatensatzData.strProdID", 189, 7, FieldKind::An};
inline constexpr FieldLayout strModID{"DatensatzData.strModID", 196, 8, FieldKind::An};
inline constexpr FieldLayout strVersion{"DatensatzData.strVersion", 204, 10, FieldKind::An};
inline constexpr FieldLayout DatensatzNr{"DatensatzNr", 214, 10, FieldKind::N};
inline constexpr FieldLayout Reserve3{"reserve", 224, 12, FieldKind::An};
inline constexpr FieldLayout Feld236{"Feld236", 236, 32, FieldKind::An};
inline constexpr FieldLayout Kennz268{"Kennz268", 268, 1, FieldKind::Flag};
inline constexpr FieldLayout Reserve4{"reserve", 269, 32, FieldKind::An};
inline constexpr FieldLayout Fest2 = lit("fixed", 301, "5");
inline constexpr FieldLayout Reserve5{"reserve", 302, 100, FieldKind::An};
inline constexpr FieldLayout Feld402{"Feld402", 402, 15, FieldKind::An};
inline constexpr FieldLayout Feld417{"Feld417", 417, 20, FieldKind::An};
inline constexpr FieldLayout Feld437{"Feld437", 437, 5, FieldKind::N};
inline constexpr FieldLayout Feld442{"Feld442", 442, 3, FieldKind::N};
inline constexpr FieldLayout Feld445{"Feld445", 445, 4, FieldKind::N};
inline constexpr FieldLayout Betriebsnummer{"Arbeitgeber.Betriebsnummer", 449, 15, FieldKind::Bnr};
inline constexpr FieldLayout Feld464{"Feld464", 464, 15, FieldKind::An};
inline constexpr FieldLayout MitDBAP = layout::flag(kDBAP, 479);
inline constexpr FieldLayout Feld480{"Feld480", 480, 4, FieldKind::An};
inline constexpr FieldLayout Feld484{"Feld484", 484, 3, FieldKind::An};
inline constexpr FieldLayout Feld487{"Feld487", 487, 6, FieldKind::N};
inline constexpr FieldLayout AnzahlPositionen{"AnzahlPositionen (or the number of Positionen)", 493, 2, FieldKind::N};
inline constexpr std::array kOwn{
    Reserve1, Fest1,   Fehlerkennzeichen, Fehleranzahl, Reserve2, strProdID, strModID, strVersion, DatensatzNr,
    Reserve3, Feld236, Kennz268,          Reserve4,     Fest2,    Reserve5,  Feld402,  Feld417,    Feld437,
    Feld442,  Feld445, Betriebsnummer,    Feld464,      MitDBAP,  Feld480,   Feld484,  Feld487,    AnzahlPositionen};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
}  // namespace DSLN
inline constexpr RecordLayout kDSLN{"DSLN", 494, DSLN::kFields, &kDSLNPosition, 493, 2};

}  // namespace tamrel::layouts::uv
