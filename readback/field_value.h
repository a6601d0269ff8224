// What a field of a record says, as the value of the property it was
// written from: the value that writes the same characters again.
#pragma once
#include <bit>
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

// The kinds a value is taken by, as bit masks: a field's kind is tested by
// one bit rather than by a chain of comparisons or a switch (a record's
// fields change kind from one to the next, and the processor foresees
// these few branches better than a jump table's target).
namespace value_kinds {
constexpr unsigned bit(FieldKind k) { return 1u << static_cast<unsigned>(k); }
constexpr unsigned kTrimmed = bit(FieldKind::Code) | bit(FieldKind::An) | bit(FieldKind::DateOrBlank) |
                              bit(FieldKind::Vsnr) | bit(FieldKind::Bnr);
constexpr unsigned kZeros = bit(FieldKind::N) | bit(FieldKind::Date) | bit(FieldKind::DateTime);
constexpr unsigned kAmounts = bit(FieldKind::Amount) | bit(FieldKind::SignedAmount);
constexpr unsigned kAsTheyStand = bit(FieldKind::Flag) | bit(FieldKind::Literal);
constexpr unsigned kEveryKind = 2 * bit(FieldKind::Bnr) - 1;
static_assert((kTrimmed | kZeros | kAmounts | kAsTheyStand) == kEveryKind &&
                  std::popcount(kTrimmed) + std::popcount(kZeros) + std::popcount(kAmounts) +
                          std::popcount(kAsTheyStand) ==
                      std::popcount(kEveryKind),
              "every kind of field is taken one way, and only one");
}  // namespace value_kinds

inline std::string_view field_value(std::string_view chars, const FieldLayout& f, std::string& scratch) {
    using namespace value_kinds;
    const unsigned k = bit(f.kind);
    if (k & kTrimmed) return text::trim_trailing_blanks(chars);
    if (k & kZeros) return text::all_of(chars, '0') ? std::string_view() : chars;
    if (k & kAmounts) return amount_value(chars, f, scratch);
    return chars;  // kAsTheyStand: a flag, a fixed text
}
inline std::string field_value(std::string_view chars, const FieldLayout& f) {
    std::string scratch;
    return std::string(field_value(chars, f, scratch));
}

}  // namespace tamrel::readback
