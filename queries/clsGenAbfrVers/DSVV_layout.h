// The layout of the DSVV record, as GenDSVV.cpp builds it; the shared
// blocks DBNA, DBGB and DBAN always follow.
#pragma once
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::abfrvers {
using layout::always;
using layout::lit;

namespace DSVV {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DSVV");
inline constexpr FieldLayout Verfahren = lit("procedure", 5, "DEUEV");
inline constexpr FieldLayout strBNRAb{"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr};
inline constexpr FieldLayout BBNREmpfaenger{"receiver (fixed)", 25, 15, FieldKind::An, "66667777"};
inline constexpr FieldLayout Version = lit("version", 40, "01");
inline constexpr FieldLayout Erstellt{"created (Datum)", 42, 14, FieldKind::DateTime};
inline constexpr FieldLayout strMicroseconds{"DatensatzData.strMicroseconds", 56, 6, FieldKind::N};
inline constexpr FieldLayout Fehlerkennzeichen = lit("error marker", 62, "0");
inline constexpr FieldLayout Fehleranzahl{"number of errors", 63, 1, FieldKind::N};
inline constexpr FieldLayout AngefragteVersicherungsnummer{"insurance number asked for", 64, 12, FieldKind::An};
inline constexpr FieldLayout Reserve1{"reserve", 76, 1, FieldKind::N};
inline constexpr FieldLayout Reserve2{"reserve", 77, 1, FieldKind::An};
inline constexpr FieldLayout Betriebsnummer{"Vorgang.Arbeitgeber.Betriebsnummer", 78, 15, FieldKind::Bnr};
inline constexpr FieldLayout Aktenzeichen{"Vorgang.Aktenzeichen", 93, 20, FieldKind::An};
inline constexpr FieldLayout strVersion{"DatensatzData.strVersion", 113, 10, FieldKind::An};
inline constexpr FieldLayout Kennzahl{"Kennzahl", 123, 10, FieldKind::N};
inline constexpr FieldLayout Reserve3{"reserve", 133, 12, FieldKind::An};
inline constexpr FieldLayout Reserve4{"reserve", 145, 2, FieldKind::An};
inline constexpr FieldLayout Fest = lit("fixed", 147, "5");
inline constexpr FieldLayout Reserve5{"reserve", 148, 24, FieldKind::An};
inline constexpr FieldLayout MitDBNA = always(kDBNA, 172);
inline constexpr FieldLayout MitDBGB = always(kDBGB, 173);
inline constexpr FieldLayout MitDBAN = always(kDBAN, 174);
inline constexpr FieldLayout Reserve6{"reserve", 175, 26, FieldKind::An};
inline constexpr FieldLayout kFields[] = {
    Kennung,  Verfahren,       strBNRAb,          BBNREmpfaenger, Version,
    Erstellt, strMicroseconds, Fehlerkennzeichen, Fehleranzahl,   AngefragteVersicherungsnummer,
    Reserve1, Reserve2,        Betriebsnummer,    Aktenzeichen,   strVersion,
    Kennzahl, Reserve3,        Reserve4,          Fest,           Reserve5,
    MitDBNA,  MitDBGB,         MitDBAN,           Reserve6};
}  // namespace DSVV
inline constexpr RecordLayout kDSVV{"DSVV", 200, DSVV::kFields};

}  // namespace tamrel::layouts::abfrvers
