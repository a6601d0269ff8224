// What the accident-insurance records DSAS and DSLN share: their first
// 65 positions, and the contact-person block DBAP (core/contact_block.cpp
// builds it).
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"

namespace tamrel::layouts::uv {

// The first 65 positions of DSAS and DSLN; the receiver is fixed.
struct UvHead {
    std::string_view id, procedure;
    FieldLayout Kennung = layout::lit("identifier", 1, id);
    FieldLayout Verfahren = layout::lit("procedure", 5, procedure);
    FieldLayout strBNRAb{"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr};
    FieldLayout Empfaenger{"receiver (fixed)", 25, 15, FieldKind::An, "95783331"};
    FieldLayout Version = layout::lit("version", 40, "01");
    FieldLayout Reserve1{"reserve", 42, 2, FieldKind::N};
    FieldLayout Reserve2{"reserve", 44, 2, FieldKind::N};
    FieldLayout Erstellt{"created (ErstellDatum)", 46, 14, FieldKind::DateTime};
    FieldLayout strMicroseconds{"DatensatzData.strMicroseconds", 60, 6, FieldKind::N};
    constexpr std::array<FieldLayout, 9> fields() const {
        return {Kennung, Verfahren, strBNRAb, Empfaenger, Version, Reserve1, Reserve2, Erstellt, strMicroseconds};
    }
};

inline constexpr auto kDBAPFields =
    contact_block("DBAP", {"ApAnrede", "ApName", "ApTel", "ApFax", "ApEmail", "Arbeitgeber.Name1", "Arbeitgeber.Name2",
                           "Arbeitgeber.Name3", "Arbeitgeber.PLZ", "Arbeitgeber.Ort", "Arbeitgeber.Strasse",
                           "Arbeitgeber.Hausnummer"});
inline constexpr RecordLayout kDBAP{"DBAP", Contact::kLength, kDBAPFields};

}  // namespace tamrel::layouts::uv
