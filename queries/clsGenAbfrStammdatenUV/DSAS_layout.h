// The layout of the DSAS record, as GenDSAS.cpp builds it; the contact
// block DBAP follows where it holds data.
#pragma once
#include "core/accident_insurance_layouts.h"
#include "core/layout.h"

namespace tamrel::layouts::uv {
using layout::lit;

namespace DSAS {
inline constexpr UvHead Head{"DSAS", "UVSDD"};
inline constexpr FieldLayout Fest1 = lit("fixed", 66, "N");
inline constexpr FieldLayout Fehlerkennzeichen = lit("error marker", 67, "0");
inline constexpr FieldLayout Fehleranzahl = lit("number of errors", 68, "0");
inline constexpr FieldLayout Reserve1{"reserve", 69, 100, FieldKind::An};
inline constexpr FieldLayout strProdID{"DatensatzData.strProdID", 169, 7, FieldKind::An};
inline constexpr FieldLayout strModID{"DatensatzData.strModID", 176, 8, FieldKind::An};
inline constexpr FieldLayout strVersion{"DatensatzData.strVersion", 184, 10, FieldKind::An};
inline constexpr FieldLayout DatensatzNr{"DatensatzNr", 194, 10, FieldKind::N};
inline constexpr FieldLayout Reserve2{"reserve", 204, 12, FieldKind::An};
inline constexpr FieldLayout Feld216{"Feld216", 216, 32, FieldKind::An};
inline constexpr FieldLayout Kennz248{"Kennz248", 248, 1, FieldKind::Flag};
inline constexpr FieldLayout Reserve3{"reserve", 249, 32, FieldKind::An};
inline constexpr FieldLayout Fest2 = lit("fixed", 281, "5");
inline constexpr FieldLayout Reserve4{"reserve", 282, 100, FieldKind::An};
inline constexpr FieldLayout Feld382{"Feld382", 382, 15, FieldKind::An};
inline constexpr FieldLayout Feld397{"Feld397", 397, 20, FieldKind::An};
inline constexpr FieldLayout Feld417{"Feld417", 417, 5, FieldKind::N};
inline constexpr FieldLayout Feld422{"Feld422", 422, 3, FieldKind::N};
inline constexpr FieldLayout Feld425{"Feld425", 425, 4, FieldKind::N};
inline constexpr FieldLayout Betriebsnummer{"Arbeitgeber.Betriebsnummer", 429, 15, FieldKind::Bnr};
inline constexpr FieldLayout Feld444{"Feld444", 444, 15, FieldKind::An};
inline constexpr FieldLayout MitDBAP = layout::flag(kDBAP, 459);
inline constexpr FieldLayout Fest3 = lit("fixed", 460, "UV10");
inline constexpr std::array kOwn{Fest1,      Fehlerkennzeichen, Fehleranzahl, Reserve1, strProdID, strModID,
                                 strVersion, DatensatzNr,       Reserve2,     Feld216,  Kennz248,  Reserve3,
                                 Fest2,      Reserve4,          Feld382,      Feld397,  Feld417,   Feld422,
                                 Feld425,    Betriebsnummer,    Feld444,      MitDBAP,  Fest3};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
}  // namespace DSAS
inline constexpr RecordLayout kDSAS{"DSAS", 463, DSAS::kFields};

}  // namespace tamrel::layouts::uv
