// What the accident-insurance records DSAS and DSLN share: their first
// 65 positions, and the contact-person block DBAP (core/contact_block.cpp
// builds it).
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"

namespace tamrel::layouts::uv {

constexpr std::array<FieldLayout, 9> head(std::string_view id, std::string_view procedure) {
    return {{
        layout::lit("identifier", 1, id),
        layout::lit("procedure", 5, procedure),
        {"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr},
        {"receiver (fixed)", 25, 15, FieldKind::An},
        layout::lit("version", 40, "01"),
        {"reserve", 42, 2, FieldKind::N},
        {"reserve", 44, 2, FieldKind::N},
        {"created (ErstellDatum)", 46, 14, FieldKind::DateTime},
        {"DatensatzData.strMicroseconds", 60, 6, FieldKind::N},
    }};
}

inline constexpr auto kDBAPFields =
    contact_block("DBAP", {"ApAnrede", "ApName", "ApTel", "ApFax", "ApEmail", "Arbeitgeber.Name1", "Arbeitgeber.Name2",
                           "Arbeitgeber.Name3", "Arbeitgeber.PLZ", "Arbeitgeber.Ort", "Arbeitgeber.Strasse",
                           "Arbeitgeber.Hausnummer"});
inline constexpr RecordLayout kDBAP{"DBAP", Contact::kLength, kDBAPFields};

}  // namespace tamrel::layouts::uv
