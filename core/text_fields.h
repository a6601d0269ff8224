// The text and numeric field encoders: a value written into a field of
// fixed width, left-aligned and blank-padded (An) or right-aligned and
// zero-padded (N). Each exists under its own name, returning the field, and
// as a form that writes into a caller's buffer (the record builders' hot
// path, no allocation). The filled flag is only ever set, never cleared.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "core/short_bytes.h"

namespace tamrel::mlGen {

std::string StrToAn(std::string_view value, int width, bool& filled);
std::string StrToN(std::string_view value, int width, bool& filled);

// The text and numeric encoders writing at `d`, which has room for four
// bytes per character of width plus kPutSlack; they return the end of the
// field. Bytes past that end are scratch (short fields are padded with one
// fixed-size store), overwritten by the next field or cut off.
inline constexpr std::size_t kPutSlack = bytes::kSlack;

// The control characters the text encoders drop: CR, LF and TAB.
inline bool is_dropped_control(char c) { return c == '\r' || c == '\n' || c == '\t'; }

namespace detail {
// The encoders' general walk, for what the inline fast path leaves: values
// longer than their field, UTF-8, control characters. The fuzzers hold the
// fast path to it.
char* PutAnGeneral(char* d, std::string_view value, std::size_t width, bool& filled);
char* PutNGeneral(char* d, std::string_view value, std::size_t width, bool& filled);
// What the text encoder's inline path leaves: short names with umlauts are
// surveyed and copied word-wise here, everything else takes the general walk.
char* PutAnText(char* d, std::string_view value, std::size_t width, bool& filled);

// Calls a general walk with a flag of its own and hands the result on: the
// caller's flag is often a member of the writer, and handing its address out
// of line would keep the whole writer in memory.
template <class Walk, class... A>
[[gnu::always_inline]] inline char* general(bool& filled, Walk walk, char* d, A... args) {
    bool own = false;
    char* end = walk(d, args..., own);
    if (own) filled = true;
    return end;
}
}  // namespace detail

namespace detail {
// Most values are a few plain ASCII characters that fit their field: those
// are copied onto a field padded with `pad` (to its left end, or its right
// end for numbers) here, without a call; the rest go to `walk`.
template <char pad, bool right, class Walk>
[[gnu::always_inline]] inline char* put_plain(char* d, std::string_view value, std::size_t w, bool& filled, Walk walk) {
    if (value.empty()) {  // the most common value of all
        bytes::pad_field(d, pad, w);
        return d + w;
    }
    bool content = false;
    if (value.size() > w || !bytes::scan_plain(value.data(), value.size(), pad, content)) [[unlikely]]
        return general(filled, walk, d, value, w);
    bytes::pad_field(d, pad, w);
    bytes::copy_short(right ? d + w - value.size() : d, value.data(), value.size());
    if (content) filled = true;
    return d + w;
}
}  // namespace detail

[[gnu::always_inline]] inline char* PutAn(char* d, std::string_view value, std::size_t w, bool& filled) {
    return detail::put_plain<' ', false>(d, value, w, filled, detail::PutAnText);
}

[[gnu::always_inline]] inline char* PutN(char* d, std::string_view value, std::size_t w, bool& filled) {
    return detail::put_plain<'0', true>(d, value, w, filled, detail::PutNGeneral);
}

void AppendAn(std::string& out, std::string_view value, int width, bool& filled);
void AppendN(std::string& out, std::string_view value, int width, bool& filled);

}  // namespace tamrel::mlGen
