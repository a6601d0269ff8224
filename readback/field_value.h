// What a field of a record says, as the value of the property it was
// written from: the value that writes the same characters again.
#pragma once
#include <string>
#include <string_view>

#include "core/layout.h"
#include "core/text.h"

namespace tamrel::readback {

// The field's characters (UTF-8) as a property value, by the field's kind:
// - text: without its trailing blanks (the text encoder pads them again);
// - digits, dates, time stamps: as they stand, but a field of zeros only
//   is empty (the encoder writes zeros for an empty value, and a date
//   check takes an empty date, not "00000000");
// - amounts: integer places without leading zeros, a comma and the
//   decimal places; zeros only: empty; a "-" kept in front;
// - flags: "J" or "N" as they stand.
// The value is a view of `chars` where it is a part of them, else it is
// made in `scratch` (an amount): no text of its own for most fields.
std::string_view amount_value(std::string_view chars, const FieldLayout& f, std::string& scratch);

// Tested as a chain of comparisons rather than a switch: a record's fields
// change kind from one to the next, and the processor foresees the chain's
// branches better than a jump table's target.
inline std::string_view field_value(std::string_view chars, const FieldLayout& f, std::string& scratch) {
    const FieldKind k = f.kind;
    if (k == FieldKind::N || k == FieldKind::Date || k == FieldKind::DateTime)
        return text::all_of(chars, '0') ? std::string_view() : chars;
    if (k == FieldKind::Amount || k == FieldKind::SignedAmount) return amount_value(chars, f, scratch);
    if (k == FieldKind::Flag || k == FieldKind::Literal) return chars;
    return text::trim_trailing_blanks(chars);
}
inline std::string field_value(std::string_view chars, const FieldLayout& f) {
    std::string scratch;
    return std::string(field_value(chars, f, scratch));
}

}  // namespace tamrel::readback
