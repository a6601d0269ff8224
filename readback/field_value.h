// What a field of a record says, as the value of the property it was
// written from: the value that writes the same characters again.
#pragma once
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/layout.h"
#include "core/short_bytes.h"

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

namespace detail {
// Whether the characters are all `c`, eight at a time.
inline bool all_of(std::string_view chars, char c) {
    const std::uint64_t run = bytes::kOnes * static_cast<unsigned char>(c);
    std::size_t i = 0;
    for (; i + 8 <= chars.size(); i += 8)
        if (bytes::load8(chars.data() + i) != run) return false;
    for (; i < chars.size(); ++i)
        if (chars[i] != c) return false;
    return true;
}
// The characters without their trailing blanks, eight at a time.
inline std::string_view trim_blanks(std::string_view chars) {
    constexpr std::uint64_t blanks = bytes::kOnes * ' ';
    std::size_t n = chars.size();
    while (std::endian::native == std::endian::little && n >= 8) {
        // The last eight bytes: the first that is not a blank, from the end,
        // is the highest byte of the difference (the words are little-endian).
        const std::uint64_t differ = bytes::load8(chars.data() + n - 8) ^ blanks;
        if (differ != 0) return chars.substr(0, n - static_cast<std::size_t>(std::countl_zero(differ)) / 8);
        n -= 8;
    }
    while (n > 0 && chars[n - 1] == ' ') --n;
    return chars.substr(0, n);
}
}  // namespace detail

inline std::string_view field_value(std::string_view chars, const FieldLayout& f, std::string& scratch) {
    switch (f.kind) {
        case FieldKind::N:
        case FieldKind::Date:
        case FieldKind::DateTime:
            return detail::all_of(chars, '0') ? std::string_view() : chars;
        case FieldKind::Amount:
        case FieldKind::SignedAmount:
            return amount_value(chars, f, scratch);
        case FieldKind::Flag:
        case FieldKind::Literal:
            return chars;
        default:
            return detail::trim_blanks(chars);
    }
}
inline std::string field_value(std::string_view chars, const FieldLayout& f) {
    std::string scratch;
    return std::string(field_value(chars, f, scratch));
}

}  // namespace tamrel::readback
