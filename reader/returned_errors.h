// The error blocks DBFE that a receiving office appends to the records it
// returns: after a data record's announced blocks, as many as the record's
// count of errors (position 63) says, its error flag (position 62) set; or
// after the VOSZ of a file rejected as a whole. The layout follows the
// data-record descriptions of the common principles ("Datenbaustein DBFE –
// Fehler"): identifier, error number, a blank, the error text.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/layout.h"

namespace tamrel::checks {

namespace dbfe_fields {
inline constexpr FieldLayout Kennung = layout::lit("identifier", 1, "DBFE");
inline constexpr FieldLayout Fehlernummer{"FENR", 5, 7, FieldKind::An};
inline constexpr FieldLayout Leer{"reserve", 12, 1, FieldKind::An};
inline constexpr FieldLayout Fehlertext{"FETEXT", 13, 64, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, Fehlernummer, Leer, Fehlertext};
}  // namespace dbfe_fields
inline constexpr RecordLayout kDBFE{"DBFE", 76, dbfe_fields::kFields};

// The error flag and count of a data record (positions 62 and 63 of the
// common record head), where its layout has them.
const FieldLayout* error_flag_field(const RecordLayout& record);
const FieldLayout* error_count_field(const RecordLayout& record);

struct ReturnedError {
    std::string number;  // "DSME060"
    std::string text;    // without trailing blanks
};

struct ReturnedLine {
    std::u32string_view record;  // the record and its blocks, without the error blocks
    std::vector<ReturnedError> errors;
    bool returned = false;  // error flag or count set, or error blocks after a VOSZ
    std::string problem;    // where the error blocks do not match the count, or are no DBFE
};

// Splits a line into the record with its blocks and the error blocks
// appended to it.
ReturnedLine split_returned(std::u32string_view line, const RecordLayout& layout);

}  // namespace tamrel::checks
