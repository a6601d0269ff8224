// The layout of the contact-person block DBAP of the accident-insurance
// records DSAS and DSLN (core/contact_block.cpp builds it).
#pragma once
#include "core/layout.h"

namespace tamrel::layouts::uv {

inline constexpr FieldLayout kDBAPFields[] = {
    layout::lit("identifier", 1, "DBAP"),
    {"ApAnrede", 5, 1, FieldKind::An},
    {"ApName", 6, 30, FieldKind::An},
    {"ApTel", 36, 20, FieldKind::An},
    {"ApFax", 56, 20, FieldKind::An},
    {"ApEmail", 76, 70, FieldKind::An},
    {"Arbeitgeber.Name1", 146, 30, FieldKind::An},
    {"Arbeitgeber.Name2", 176, 30, FieldKind::An},
    {"Arbeitgeber.Name3", 206, 30, FieldKind::An},
    {"Arbeitgeber.PLZ", 236, 10, FieldKind::An},
    {"Arbeitgeber.Ort", 246, 34, FieldKind::An},
    {"Arbeitgeber.Strasse", 280, 33, FieldKind::An},
    {"Arbeitgeber.Hausnummer", 313, 9, FieldKind::An},
};
inline constexpr RecordLayout kDBAP{"DBAP", 321, kDBAPFields};

}  // namespace tamrel::layouts::uv
