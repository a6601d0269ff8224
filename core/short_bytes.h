// Word-at-a-time helpers for the encoders' fast paths: most field values are
// a few plain ASCII characters, and testing or copying them byte by byte
// costs more than the rest of the field. Loads never leave [s, s + n);
// stores may use the kSlack bytes of scratch behind a field.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tamrel::bytes {

// Scratch a field's writer leaves behind the field (see pad_field).
inline constexpr std::size_t kSlack = 32;

inline constexpr std::uint64_t kOnes = 0x0101010101010101ULL;
inline constexpr std::uint64_t kHigh = 0x8080808080808080ULL;

inline std::uint64_t load8(const char* p) noexcept {
    std::uint64_t x;
    std::memcpy(&x, p, 8);
    return x;
}
inline std::uint64_t load4(const char* p) noexcept {
    std::uint32_t x;
    std::memcpy(&x, p, 4);
    return x;
}
inline void store8(char* p, std::uint64_t x) noexcept { std::memcpy(p, &x, 8); }
inline void store4(char* p, std::uint64_t x) noexcept {
    const auto y = static_cast<std::uint32_t>(x);
    std::memcpy(p, &y, 4);
}

// The high bit of every byte that is not plain: 0x80 or above, or below
// 0x0E (CR, LF and TAB are among those). Exact for the word as a whole.
inline std::uint64_t not_plain(std::uint64_t x) noexcept { return (x | ((x - 0x0E * kOnes) & ~x)) & kHigh; }

// Scans the n bytes at s: true when every one is plain ASCII; `other` tells
// whether any differs from the padding character `pad`. Short texts are
// read as two overlapping words (or three bytes), longer ones word by word.
[[gnu::always_inline]] inline bool scan_plain(const char* s, std::size_t n, char pad, bool& other) noexcept {
    const std::uint64_t pads = kOnes * static_cast<unsigned char>(pad);
    std::uint64_t a = pads, b = pads;
    if (n >= 8) {
        std::uint64_t bad = 0, diff = 0;
        for (std::size_t i = 0; i + 8 < n; i += 8) {
            const std::uint64_t x = load8(s + i);
            bad |= not_plain(x);
            diff |= x ^ pads;
        }
        a = load8(s + n - 8);
        other = (diff | (a ^ pads)) != 0;
        return (bad | not_plain(a)) == 0;
    }
    if (n >= 4) {
        a = (pads & ~0xFFFFFFFFULL) | load4(s);
        b = (pads & ~0xFFFFFFFFULL) | load4(s + n - 4);
    } else if (n > 0) {
        const auto byte = [s](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(s[i])}; };
        a = (pads & ~0xFFFFFFULL) | byte(0) | byte(n / 2) << 8 | byte(n - 1) << 16;
    }
    other = ((a ^ pads) | (b ^ pads)) != 0;
    return (not_plain(a) | not_plain(b)) == 0;
}

// How many bytes of x have their high bit set, when no other bit is set
// (without a popcount instruction, which the baseline x86-64 lacks).
inline std::size_t count_high_bits(std::uint64_t highs) noexcept {
    return static_cast<std::size_t>(((highs >> 7) * kOnes) >> 56);
}

// What the encoders need to know of a UTF-8 text, taken a word at a time.
struct Survey {
    std::size_t chars = 0;  // characters (bytes that are not continuation bytes)
    bool controls = false;  // a byte below 0x0E (CR, LF and TAB among them)
    bool content = false;   // a byte other than the blank
};

// The high bit of every byte below 0x0E: bytes of 0x0E or more have the
// high bit of (their low seven bits + 0x72) or their own. Exact per byte.
inline std::uint64_t below_0e(std::uint64_t x) noexcept {
    return ~(((x & ~kHigh) + (0x80 - 0x0E) * kOnes) | x) & kHigh;
}

// Whether any of the n bytes at s is below 0x0E (CR, LF and TAB among them).
inline bool any_below_0e(const char* s, std::size_t n) noexcept {
    std::uint64_t found = 0;
    std::size_t i = 0;
    for (; i + 8 <= n; i += 8) found |= below_0e(load8(s + i));
    for (; i < n; ++i) found |= static_cast<unsigned char>(s[i]) < 0x0E;
    return found != 0;
}

inline Survey survey(const char* s, std::size_t n) noexcept {
    const std::uint64_t blanks = kOnes * ' ';
    std::uint64_t controls = 0, differs = 0;
    std::size_t continuation = 0;
    const auto take = [&](std::uint64_t x) {
        controls |= below_0e(x);
        continuation += count_high_bits(x & ~(x << 1) & kHigh);
        differs |= x ^ blanks;
    };
    std::size_t i = 0;
    for (; i + 8 <= n; i += 8) take(load8(s + i));
    if (const std::size_t rest = n - i; rest > 0) {
        std::uint64_t x = blanks;  // the missing bytes read as blanks, which count for nothing
        if (n >= 8) {
            x = load8(s + n - 8) >> (8 * (8 - rest));
            x |= blanks << (8 * rest);
        } else {
            std::memcpy(&x, s + i, rest);
        }
        take(x);
    }
    return {n - continuation, controls != 0, differs != 0};
}

// The n <= 16 bytes at s as two little-endian words, the bytes past n read
// as `pad` (loads never leave [s, s + n)).
struct Words {
    std::uint64_t lo, hi;
};
inline Words load_padded16(const char* s, std::size_t n, char pad) noexcept {
    const std::uint64_t pads = kOnes * static_cast<unsigned char>(pad);
    if (n >= 8) {
        const std::size_t rest = n - 8;
        std::uint64_t hi = pads;
        if (rest == 8)
            hi = load8(s + 8);
        else if (rest > 0)
            hi = (load8(s + n - 8) >> (8 * (8 - rest))) | (pads << (8 * rest));
        return {load8(s), hi};
    }
    std::uint64_t lo = 0;
    if (n >= 4) {
        lo = load4(s) | load4(s + n - 4) << (8 * (n - 4));  // the overlap holds the same bytes twice
    } else if (n > 0) {
        const auto byte = [s](std::size_t i) { return std::uint64_t{static_cast<unsigned char>(s[i])}; };
        lo = byte(0) | byte(n / 2) << (8 * (n / 2)) | byte(n - 1) << (8 * (n - 1));
    }
    return {lo | (pads << (8 * n)), pads};
}

// What the text encoder needs of a short value in the form most names with
// umlauts take: ASCII from 0x0E up and two-byte UTF-8 sequences (U+0080 to
// U+07FF) only. `ok` is false for anything else (longer sequences, control
// characters, malformed text), which the general walk then takes.
struct ShortText {
    bool ok = false;
    std::size_t chars = 0;
    bool content = false;  // a byte other than the blank
};
inline ShortText survey_short_text(const char* s, std::size_t n) noexcept {
    const Words w = load_padded16(s, n, ' ');
    // Each word's lead bytes (11xxxxxx) must be followed by exactly one
    // continuation byte (10xxxxxx); the pair straddles the words when the
    // lead is the low word's last byte.
    const auto cont = [](std::uint64_t x) { return x & ~(x << 1) & kHigh; };
    const auto lead = [](std::uint64_t x) { return x & (x << 1) & kHigh; };
    const std::uint64_t cont_lo = cont(w.lo), cont_hi = cont(w.hi);
    const std::uint64_t lead_lo = lead(w.lo), lead_hi = lead(w.hi);
    const bool pairs =
        (lead_lo << 8) == cont_lo && ((lead_hi << 8) | (lead_lo >> 56)) == cont_hi && (lead_hi >> 56) == 0;
    // Among the leads: those of three or more bytes (111xxxxx) and the
    // overlong C0 and C1 (bits 1-4 clear, which adding 0x7E leaves below 0x80).
    const auto bad_lead = [](std::uint64_t x, std::uint64_t leads) {
        return leads & ((x << 2) | ~((x & (kOnes * 0x1E)) + kOnes * 0x7E));
    };
    const bool bad = (bad_lead(w.lo, lead_lo) | bad_lead(w.hi, lead_hi) | below_0e(w.lo) | below_0e(w.hi)) != 0;
    const std::uint64_t blanks = kOnes * ' ';
    return {pairs && !bad, n - count_high_bits(cont_lo) - count_high_bits(cont_hi),
            ((w.lo ^ blanks) | (w.hi ^ blanks)) != 0};
}

// Whether two texts are equal; short ones (property names) compared as two
// overlapping words instead of through a call.
inline bool equal(std::string_view a, std::string_view b) noexcept {
    const std::size_t n = a.size();
    if (n != b.size()) return false;
    const char *p = a.data(), *q = b.data();
    if (n >= 8 && n <= 16) return load8(p) == load8(q) && load8(p + n - 8) == load8(q + n - 8);
    if (n >= 4 && n < 8) return load4(p) == load4(q) && load4(p + n - 4) == load4(q + n - 4);
    return std::memcmp(p, q, n) == 0;
}

// Copies n bytes; short runs with two overlapping stores.
[[gnu::always_inline]] inline void copy_short(char* d, const char* s, std::size_t n) noexcept {
    if (n >= 8) {
        if (n > 16) {
            std::memcpy(d, s, n);
            return;
        }
        const std::uint64_t head = load8(s), tail = load8(s + n - 8);
        store8(d, head);
        store8(d + n - 8, tail);
    } else if (n >= 4) {
        const std::uint64_t head = load4(s), tail = load4(s + n - 4);
        store4(d, head);
        store4(d + n - 4, tail);
    } else if (n > 0) {
        const char first = s[0], middle = s[n / 2], last = s[n - 1];
        d[0] = first;
        d[n / 2] = middle;
        d[n - 1] = last;
    }
}

// Fills a field of width w with c: one fixed-size store when it fits the
// scratch behind the field. A field of up to twice that is given room for
// four bytes a character, which leaves room for a fixed store of 2 * kSlack.
[[gnu::always_inline]] inline void pad_field(char* d, char c, std::size_t w) noexcept {
    if (w <= kSlack)
        std::memset(d, c, kSlack);
    else if (w <= 2 * kSlack)
        std::memset(d, c, 2 * kSlack);
    else
        std::memset(d, c, w);
}

}  // namespace tamrel::bytes
