#include "core/text.h"

#include <cstdint>
#include <cstring>

#include "core/short_bytes.h"

namespace tamrel::text {

bool is_valid_utf8(std::string_view s) noexcept {
    const auto* p = reinterpret_cast<const unsigned char*>(s.data());
    const auto* end = p + s.size();
    while (p < end) {
        if (end - p >= 8) {  // runs of ASCII eight bytes at a time
            std::uint64_t x;
            std::memcpy(&x, p, 8);
            if ((x & 0x8080808080808080ULL) == 0) {
                p += 8;
                continue;
            }
        }
        unsigned char c = *p;
        if (c < 0x80) {
            ++p;
            continue;
        }
        if (c >= 0xC2 && c <= 0xDF) {  // two bytes: most letters of Latin scripts
            if (end - p < 2 || (p[1] & 0xC0) != 0x80) return false;
            p += 2;
            continue;
        }
        std::size_t n;
        char32_t cp;
        if ((c >> 4) == 0xE) {
            n = 2;
            cp = c & 0x0F;
        } else if (c >= 0xF0 && c <= 0xF4) {
            n = 3;
            cp = c & 0x07;
        } else
            return false;
        if (static_cast<std::size_t>(end - p) <= n) return false;
        for (std::size_t i = 1; i <= n; ++i) {
            if ((p[i] & 0xC0) != 0x80) return false;
            cp = (cp << 6) | (p[i] & 0x3F);
        }
        if ((n == 2 && (cp < 0x800 || (cp >= 0xD800 && cp <= 0xDFFF))) || (n == 3 && (cp < 0x10000 || cp > 0x10FFFF)))
            return false;
        p += n + 1;
    }
    return true;
}

bool is_ascii(std::string_view s) noexcept {
    std::size_t i = 0;
    std::uint64_t any = 0;
    for (; i + 8 <= s.size(); i += 8) {
        std::uint64_t x;
        std::memcpy(&x, s.data() + i, 8);
        any |= x;
    }
    for (; i < s.size(); ++i) any |= static_cast<unsigned char>(s[i]);
    return (any & 0x8080808080808080ULL) == 0;
}

std::size_t char_count(std::string_view s) noexcept {
    // Characters are the bytes that are not continuation bytes (10xxxxxx);
    // eight bytes at a time: bit 7 set and bit 6 clear.
    std::size_t continuation = 0, i = 0;
    const char* p = s.data();
    for (; i + 8 <= s.size(); i += 8) {
        std::uint64_t x;
        std::memcpy(&x, p + i, 8);
        continuation += bytes::count_high_bits(x & ~(x << 1) & bytes::kHigh);
    }
    for (; i < s.size(); ++i) continuation += (static_cast<unsigned char>(p[i]) & 0xC0) == 0x80;
    return s.size() - continuation;
}

std::size_t byte_offset(std::string_view s, std::size_t n) noexcept {
    // A character takes a byte or more: n characters or more reach the end.
    if (n >= s.size()) return s.size();
    std::size_t i = 0;
    // Eight ASCII bytes are eight characters.
    for (; n >= 8 && i + 8 <= s.size(); i += 8, n -= 8)
        if ((bytes::load8(s.data() + i) & bytes::kHigh) != 0) break;
    while (n > 0 && i < s.size()) {
        i += seq_len(static_cast<unsigned char>(s[i]));
        --n;
    }
    return i < s.size() ? i : s.size();
}

std::string_view left(std::string_view s, std::size_t n) noexcept { return s.substr(0, byte_offset(s, n)); }

std::string_view right(std::string_view s, std::size_t n) noexcept {
    std::size_t total = char_count(s);
    if (n >= total) return s;
    return s.substr(byte_offset(s, total - n));
}

std::string_view mid(std::string_view s, std::size_t start, std::size_t len) noexcept {
    if (start < 1) start = 1;
    std::size_t from = byte_offset(s, start - 1);
    std::string_view rest = s.substr(from);
    return rest.substr(0, byte_offset(rest, len));
}

std::string sanitize(std::string_view s) {
    if (is_valid_utf8(s)) return std::string(s);
    std::string out;
    std::size_t i = 0;
    while (i < s.size()) {
        std::size_t n = seq_len(static_cast<unsigned char>(s[i]));
        std::string_view piece = s.substr(i, n);
        if (piece.size() == n && is_valid_utf8(piece)) {
            out += piece;
            i += n;
        } else {
            out += "\xEF\xBF\xBD";
            ++i;
        }
    }
    return out;
}

}  // namespace tamrel::text
