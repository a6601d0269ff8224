// The layout of the DSVV record, as GenDSVV.cpp builds it; the shared
// blocks DBNA, DBGB and DBAN always follow.
#pragma once
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::abfrvers {
using layout::always;
using layout::lit;

inline constexpr FieldLayout kDSVVFields[] = {
    lit("identifier", 1, "DSVV"),
    lit("procedure", 5, "DEUEV"),
    {"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr},
    {"receiver (fixed)", 25, 15, FieldKind::An},
    lit("version", 40, "01"),
    {"created (Datum)", 42, 14, FieldKind::DateTime},
    {"DatensatzData.strMicroseconds", 56, 6, FieldKind::N},
    lit("error marker", 62, "0"),
    {"number of errors", 63, 1, FieldKind::N},
    {"insurance number asked for", 64, 12, FieldKind::An},
    {"reserve", 76, 1, FieldKind::N},
    {"reserve", 77, 1, FieldKind::An},
    {"Vorgang.Arbeitgeber.Betriebsnummer", 78, 15, FieldKind::Bnr},
    {"Vorgang.Aktenzeichen", 93, 20, FieldKind::An},
    {"DatensatzData.strVersion", 113, 10, FieldKind::An},
    {"Kennzahl", 123, 10, FieldKind::N},
    {"reserve", 133, 12, FieldKind::An},
    {"reserve", 145, 2, FieldKind::An},
    lit("fixed", 147, "5"),
    {"reserve", 148, 24, FieldKind::An},
    always(kDBNA, 172),
    always(kDBGB, 173),
    always(kDBAN, 174),
    {"reserve", 175, 26, FieldKind::An},
};
inline constexpr RecordLayout kDSVV{"DSVV", 200, kDSVVFields};

}  // namespace tamrel::layouts::abfrvers
