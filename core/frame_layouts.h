// The layouts of the frame records VOSZ, NCSZ and DSKO, as core/frames.cpp
// builds them.
#pragma once
#include "core/layout.h"

namespace tamrel::layouts {

inline constexpr FieldLayout kVOSZFields[] = {
    {"identifier", 1, 4, FieldKind::Literal, "VOSZ"},
    {"procedure", 5, 5, FieldKind::Code},
    {"strBNRAb", 10, 15, FieldKind::Bnr},
    {"strBNREm", 25, 15, FieldKind::Bnr},
    {"strDatum", 40, 8, FieldKind::Date},
    {"strFileNr", 48, 6, FieldKind::N},
    {"strFirma", 54, 50, FieldKind::An},
    {"version", 104, 2, FieldKind::Literal, "01"},
};
inline constexpr RecordLayout kVOSZ{"VOSZ", 105, kVOSZFields};

inline constexpr FieldLayout kNCSZFields[] = {
    {"identifier", 1, 4, FieldKind::Literal, "NCSZ"},
    {"procedure", 5, 5, FieldKind::Code},
    {"strBNRAb", 10, 15, FieldKind::Bnr},
    {"strBNREm", 25, 15, FieldKind::Bnr},
    {"date", 40, 8, FieldKind::Date},
    {"strFileNr", 48, 6, FieldKind::N},
    {"strCount", 54, 8, FieldKind::N},
    {"version", 62, 2, FieldKind::Literal, "01"},
};
inline constexpr RecordLayout kNCSZ{"NCSZ", 63, kNCSZFields};

inline constexpr FieldLayout kDSKOFields[] = {
    {"identifier", 1, 4, FieldKind::Literal, "DSKO"},
    {"procedure", 5, 5, FieldKind::Code},
    {"strBNRAb", 10, 15, FieldKind::Bnr},
    {"strBNREm", 25, 15, FieldKind::Bnr},
    {"version", 40, 2, FieldKind::Literal, "04"},
    {"created", 42, 14, FieldKind::DateTime},
    {"strMicroSec", 56, 6, FieldKind::N},
    {"error marker", 62, 1, FieldKind::Literal, "0"},
    {"number of errors", 63, 1, FieldKind::Literal, "0"},
    {"causer (strBNRAb)", 64, 15, FieldKind::An},
    {"strProdID", 79, 7, FieldKind::An},
    {"strModID", 86, 8, FieldKind::An},
    {"strName1", 94, 30, FieldKind::An},
    {"strName2", 124, 30, FieldKind::An},
    {"strName3", 154, 30, FieldKind::An},
    {"strPLZ", 184, 10, FieldKind::An},
    {"strOrt", 194, 34, FieldKind::An},
    {"strStrasse", 228, 33, FieldKind::An},
    {"strHausNr", 261, 9, FieldKind::An},
    {"strAnGeschl", 270, 1, FieldKind::An},
    {"strAnName", 271, 30, FieldKind::An},
    {"strAnTel", 301, 20, FieldKind::An},
    {"strAnFax", 321, 20, FieldKind::An},
    {"strAnEMail", 341, 70, FieldKind::An},
    {"reserve", 411, 5, FieldKind::An},
};
inline constexpr RecordLayout kDSKO{"DSKO", 415, kDSKOFields};

}  // namespace tamrel::layouts
