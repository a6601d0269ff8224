// UTF-8 helpers. Record widths and positions count characters (code points),
// never bytes; every helper here works on code points.
#pragma once
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/short_bytes.h"

namespace tamrel::text {

// True when the text is well-formed UTF-8 (no overlongs, no surrogates).
bool is_valid_utf8(std::string_view s) noexcept;

// Byte length of the sequence that starts with this lead byte (1 for ASCII).
inline std::size_t seq_len(unsigned char lead) noexcept {
    if (lead < 0x80) return 1;
    if ((lead >> 5) == 0x6) return 2;
    if ((lead >> 4) == 0xE) return 3;
    return 4;
}

// True when every byte is ASCII (checked eight bytes at a time).
bool is_ascii(std::string_view s) noexcept;

// Number of characters in valid UTF-8 text.
std::size_t char_count(std::string_view s) noexcept;

// Byte offset of character index `n` (clamped to the end).
std::size_t byte_offset(std::string_view s, std::size_t n) noexcept;

// The first `n` characters, the last `n` characters, and `len` characters
// from 1-based character position `start` (Mid$ semantics).
std::string_view left(std::string_view s, std::size_t n) noexcept;
std::string_view right(std::string_view s, std::size_t n) noexcept;
std::string_view mid(std::string_view s, std::size_t start, std::size_t len) noexcept;

// Whether every byte of the text is `c` (true for an empty text), eight at a time.
inline bool all_of(std::string_view s, char c) noexcept {
    const std::uint64_t run = bytes::kOnes * static_cast<unsigned char>(c);
    std::size_t i = 0;
    for (; i + 8 <= s.size(); i += 8)
        if (bytes::load8(s.data() + i) != run) return false;
    for (; i < s.size(); ++i)
        if (s[i] != c) return false;
    return true;
}

// Trailing blanks removed, eight at a time where the text is long.
inline std::string_view trim_trailing_blanks(std::string_view s) noexcept {
    constexpr std::uint64_t blanks = bytes::kOnes * ' ';
    std::size_t n = s.size();
    while (std::endian::native == std::endian::little && n >= 8) {
        // The last eight bytes: the first that is not a blank, from the end,
        // is the highest byte of the difference (the words are little-endian).
        const std::uint64_t differ = bytes::load8(s.data() + n - 8) ^ blanks;
        if (differ != 0) return s.substr(0, n - static_cast<std::size_t>(std::countl_zero(differ)) / 8);
        n -= 8;
    }
    if (n >= 4) {
        // The last four bytes as one word: most short fields end in blanks.
        const auto differ = static_cast<std::uint32_t>(bytes::load4(s.data() + n - 4) ^ blanks);
        if (differ != 0) return s.substr(0, n - static_cast<std::size_t>(std::countl_zero(differ)) / 8);
        n -= 4;
    }
    while (n > 0 && s[n - 1] == ' ') --n;
    return s.substr(0, n);
}

// Blanks removed on both ends (only the blank " ", like the Trim function).
inline std::string_view trim_blanks(std::string_view s) noexcept {
    while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
    return trim_trailing_blanks(s);
}

// Invalid sequences replaced by U+FFFD, for texts that go into log lines.
std::string sanitize(std::string_view s);

}  // namespace tamrel::text
