// The declared layout of a record or block: each field's name, position,
// width and kind, as the layout table gives them, the blocks that the
// record's fields announce, and a list of repeated entries where the
// layout has one. Transfer files are read by these declarations (tamrel
// check, tamrel inspect); a test holds each one to the builder next to
// which it is declared.
#pragma once
#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace tamrel {

enum class FieldKind : std::uint8_t {
    Literal,       // a fixed text (`literal`)
    Code,          // a key chosen by the class, written as it is
    An,            // text, left-aligned, blank-padded
    N,             // digits, right-aligned, zero-padded
    Date,          // yyyymmdd; zeros where none is given, nines for "open"
    DateOrBlank,   // yyyymmdd in a text field: blanks where none is given
    DateTime,      // yyyymmddhhnnss
    Flag,          // "J" or "N"
    Amount,        // digits: the integer places, then `decimals` places
    SignedAmount,  // "+" or "-", then as Amount
    Vsnr,          // an insurance number, as text (blank where none)
    Bnr,           // an establishment number, as text (blank where none)
};

// How a field of a record says which blocks follow it.
enum class Announce : std::uint8_t {
    None,
    Flag,      // "J": the block follows
    Count,     // the number of times the block follows
    Always,    // a fixed "J": the block follows
    Optional,  // a fixed "J", but the block follows only where it holds data
};

struct RecordLayout;

struct FieldLayout {
    std::string_view name;  // the property or argument it comes from, or what it is
    std::uint16_t pos;      // 1-based
    std::uint16_t len;
    FieldKind kind;
    std::string_view literal = {};  // a literal's text, or the content a builder always writes
    std::uint8_t decimals = 0;      // of an amount
    Announce announce = Announce::None;
    const RecordLayout* block = nullptr;  // what `announce` announces
};

struct RecordLayout {
    std::string_view id;
    std::uint16_t length;  // without its entries
    std::span<const FieldLayout> fields;
    // A list of entries that follows the fixed part, as many as the digits
    // at [count_pos, count_pos + count_len) say.
    const RecordLayout* entry = nullptr;
    std::uint16_t count_pos = 0;
    std::uint16_t count_len = 0;
    // Where one identifier has several layouts: the first of these whose
    // fixed fields match (and, for a record, that fits the text) is read.
    std::span<const RecordLayout* const> forms = {};
};

// Field helpers that keep the declarations one line a field. Each field is
// declared once, by name (`DSME::Meldegrund`), in its record's namespace;
// the record's `kFields` lists them in their order, the builder writes them
// by name and the readers walk `kFields`.
namespace layout {
constexpr FieldLayout lit(std::string_view name, std::uint16_t pos, std::string_view text) {
    return {name, pos, static_cast<std::uint16_t>(text.size()), FieldKind::Literal, text};
}
constexpr FieldLayout amount(std::string_view name, std::uint16_t pos, std::uint16_t len, std::uint8_t decimals) {
    return {name, pos, len, FieldKind::Amount, {}, decimals};
}
constexpr FieldLayout signed_amount(std::string_view name, std::uint16_t pos, std::uint16_t len,
                                    std::uint8_t decimals) {
    return {name, pos, len, FieldKind::SignedAmount, {}, decimals};
}
// A J/N flag that announces `block`.
constexpr FieldLayout flag(const RecordLayout& block, std::uint16_t pos) {
    return {block.id, pos, 1, FieldKind::Flag, {}, 0, Announce::Flag, &block};
}
// A fixed "J": `block` always follows (or, `optional`, where it holds data).
constexpr FieldLayout always(const RecordLayout& block, std::uint16_t pos, bool optional = false) {
    return {block.id, pos, 1, FieldKind::Literal, "J", 0, optional ? Announce::Optional : Announce::Always, &block};
}
// A count of `block`s that follow.
constexpr FieldLayout count(const RecordLayout& block, std::uint16_t pos, std::uint16_t len) {
    return {block.id, pos, len, FieldKind::N, {}, 0, Announce::Count, &block};
}
// A piece of `whole` that a builder writes as a field of its own: one
// alternative of a field that holds either one text or several.
constexpr FieldLayout part(const FieldLayout& whole, std::string_view name, std::uint16_t offset, std::uint16_t len,
                           FieldKind kind = FieldKind::An) {
    return {name, static_cast<std::uint16_t>(whole.pos + offset), len, kind};
}
// The field `f` in another form: the same place, written by the encoder of
// `kind` (an amount with `decimals`), where a builder writes the field one
// way or another (a date or blanks, a text or digits).
constexpr FieldLayout as(const FieldLayout& f, FieldKind kind, std::uint8_t decimals = 0) {
    return {f.name, f.pos, f.len, kind, {}, decimals};
}
// The declared fields `first` to `last`, written as one text by a builder
// that decides them together (a record's row of block flags).
constexpr FieldLayout span(std::string_view name, const FieldLayout& first, const FieldLayout& last) {
    return {name, first.pos, static_cast<std::uint16_t>(last.pos + last.len - first.pos), FieldKind::An};
}
// A layout's fields made of parts that several layouts share and parts of
// its own.
template <std::size_t... N>
constexpr std::array<FieldLayout, (N + ...)> joined(const std::array<FieldLayout, N>&... parts) {
    std::array<FieldLayout, (N + ...)> all{};
    std::size_t at = 0;
    ((std::copy(parts.begin(), parts.end(), all.begin() + at), at += N), ...);
    return all;
}
// The names "<stem>(1)" to "<stem>(Count)" of a repeated field, made once
// at compile time.
template <std::size_t Count>
struct IndexedNames {
    std::array<std::array<char, 32>, Count> text{};
    std::array<std::uint8_t, Count> size{};
    constexpr explicit IndexedNames(std::string_view stem) {
        for (std::size_t i = 0; i < Count; ++i) {
            std::size_t n = 0;
            for (char c : stem) text[i][n++] = c;
            text[i][n++] = '(';
            char digits[8];
            std::size_t d = 0;
            for (std::size_t v = i + 1; v > 0; v /= 10) digits[d++] = static_cast<char>('0' + v % 10);
            while (d > 0) text[i][n++] = digits[--d];
            text[i][n++] = ')';
            size[i] = static_cast<std::uint8_t>(n);
        }
    }
    constexpr std::string_view operator[](std::size_t i) const { return {text[i].data(), size[i]}; }
};
// `Count` rows of `group` (its fields at positions from 1), one after another
// from `pos`; field k of row i is named names[k][i].
template <std::size_t K, std::size_t Count>
constexpr std::array<FieldLayout, K * Count> repeated(const std::array<FieldLayout, K>& group, std::uint16_t pos,
                                                      const std::array<const IndexedNames<Count>*, K>& names) {
    std::array<FieldLayout, K * Count> all{};
    std::uint16_t row = 0;
    for (const FieldLayout& f : group) row = static_cast<std::uint16_t>(row + f.len);
    for (std::size_t i = 0; i < Count; ++i)
        for (std::size_t k = 0; k < K; ++k) {
            FieldLayout& f = all[i * K + k];
            f = group[k];
            f.name = (*names[k])[i];
            f.pos = static_cast<std::uint16_t>(pos + i * row + group[k].pos - 1);
        }
    return all;
}
}  // namespace layout

}  // namespace tamrel
