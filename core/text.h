// UTF-8 helpers. Record widths and positions count characters (code points),
// never bytes; every helper here works on code points.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

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

// Blanks removed on both ends (only the blank " ", like the Trim function).
inline std::string_view trim_blanks(std::string_view s) noexcept {
    while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
    while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
    return s;
}

// Invalid sequences replaced by U+FFFD, for texts that go into log lines.
std::string sanitize(std::string_view s);

}  // namespace tamrel::text
