// Writing a text as a JSON string the way the call protocol's general path
// (nlohmann-json's serializer) writes it: UTF-8 kept as it is, '"' and '\'
// and the control characters escaped. The records a call returns are long
// runs of plain bytes, so the text is searched 32 or 16 bytes a step for the
// few that need an escape, and copied a run at a time.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "core/short_bytes.h"

namespace tamrel {

// Appends `s` quoted and escaped to `out`; false (with `out` partly
// written) when `s` is not valid UTF-8.
bool append_json_string(std::string& out, std::string_view s);

// What a text needs to be written as a JSON string: nothing (plain
// printable ASCII), a check of its UTF-8 (bytes of 0x80 and above), or
// escapes ('"', '\\' or a byte below 0x20). Inline for the short values
// most texts are, eight bytes at a time where there are eight.
enum class JsonTextKind { Plain, Utf8, Escape };
inline JsonTextKind json_text_kind(std::string_view s) noexcept {
    // The high bit of a byte below 0x20, of '"' and of '\\' (a zero byte
    // after the xor); exact for the word as a whole.
    auto escapes = [](std::uint64_t x) {
        auto zero = [](std::uint64_t y) { return (y - bytes::kOnes) & ~y & bytes::kHigh; };
        return ((x - 0x20 * bytes::kOnes) & ~x & bytes::kHigh) | zero(x ^ ('"' * bytes::kOnes)) |
               zero(x ^ ('\\' * bytes::kOnes));
    };
    std::uint64_t hit = 0, high = 0;
    const std::size_t n = s.size();
    if (n >= 8) {
        for (std::size_t i = 0; i + 8 < n; i += 8) {
            const std::uint64_t x = bytes::load8(s.data() + i);
            hit |= escapes(x), high |= x;
        }
        const std::uint64_t last = bytes::load8(s.data() + n - 8);
        hit |= escapes(last), high |= last;
    } else if (n >= 4) {
        // Two overlapping words of four, as one.
        const std::uint64_t x = bytes::load4(s.data()) | (bytes::load4(s.data() + n - 4) << 32);
        hit = escapes(x), high = x;
    } else {
        for (char ch : s) {
            const auto c = static_cast<unsigned char>(ch);
            if (c < 0x20 || c == '"' || c == '\\') return JsonTextKind::Escape;
            high |= c;
        }
    }
    if (hit) return JsonTextKind::Escape;
    return (high & bytes::kHigh) ? JsonTextKind::Utf8 : JsonTextKind::Plain;
}

}  // namespace tamrel
