// The declared layout of a record: each field's name, position, width and
// kind, as the record's layout table gives them. Transfer files are read by
// these declarations (tamrel check, tamrel inspect); a test holds each one
// to the builder next to which it is declared.
#pragma once
#include <cstdint>
#include <span>
#include <string_view>

namespace tamrel {

enum class FieldKind : std::uint8_t {
    Literal,   // a fixed text (`literal`)
    Code,      // a key chosen by the class, written as it is
    An,        // text, left-aligned, blank-padded
    N,         // digits, right-aligned, zero-padded
    Date,      // yyyymmdd
    DateTime,  // yyyymmddhhnnss
};

struct FieldLayout {
    std::string_view name;  // the property or argument it comes from, or what it is
    std::uint16_t pos;      // 1-based
    std::uint16_t len;
    FieldKind kind;
    std::string_view literal = {};
};

struct RecordLayout {
    std::string_view id;
    std::uint16_t length;
    std::span<const FieldLayout> fields;
};

}  // namespace tamrel
