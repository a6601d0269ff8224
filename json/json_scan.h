// The scanning adapter of the JSON binding (see json_binding.h): the fast
// path of tamrel generate. A report line is almost always plain JSON: an
// object of objects, arrays, strings without escapes, small integers and
// booleans. The scanner reads exactly that, straight from
// the line into the data object, a word at a time for strings.
//
// It is a fast path only: whatever else it meets (an escape, null, a
// fraction, a syntax error, a property the binding refuses) it gives up on
// with ScanMiss, and the caller reads the report again through the DOM
// adapter (json_simd.h), which gives the result or the error. So the
// scanner never words an error of its own, and a report reads the same,
// result or error, whichever path took it.
#pragma once
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "core/short_bytes.h"

namespace tamrel::json_binding {

// The scanner cannot vouch for this report: read it the other way.
struct ScanMiss {};

// Zero bytes the text must be followed by: no token accepts one, so the
// scanner stops at them without checking for the end, and a word read from
// a string's last bytes stays inside the buffer.
inline constexpr std::size_t kScanPadding = 8;

// Where a line's quotes are, one bit a byte, found 32 or 16 bytes a step
// before the line is scanned: the end of a string is then the next bit,
// found without reading the string. Only for a line without a backslash or
// a control character, in which every quote opens or closes a string and
// no string needs a check of its bytes.
class QuoteIndex {
public:
    // Indexes the n bytes at p; false (and no index) for a line with a
    // backslash or a control character.
    bool build(const char* p, std::size_t n);
    // The position of the first quote at or after `pos` (at most n), or n
    // or more when there is none.
    std::size_t next(std::size_t pos) const {
        std::uint64_t w = words_[pos >> 6] >> (pos & 63);
        while (w == 0) {
            pos = (pos | 63) + 1;
            w = words_[pos >> 6];
        }
        return pos + static_cast<std::size_t>(std::countr_zero(w));
    }
    const char* base() const { return base_; }
    std::size_t size() const { return size_; }
    // Where the first byte above ASCII is, or about (at most 63 bytes
    // before it); size() when there is none. Before it the line is ASCII,
    // so valid UTF-8.
    std::size_t first_non_ascii() const { return first_non_ascii_; }

private:
    std::vector<std::uint64_t> words_;  // then a word of all ones, where every search ends
    const char* base_ = nullptr;
    std::size_t size_ = 0;
    std::size_t first_non_ascii_ = 0;
};

// A line as the scanner reads it: copied with its padding, its quotes
// indexed where the line lets them be.
class ScannedLine {
public:
    // Takes `line`; false when its quotes are not indexed (a backslash or a
    // control character), which the scanner then finds itself.
    bool load(std::string_view line);
    // Whether the line is UTF-8 (checked from its first byte above ASCII).
    bool valid_utf8() const;
    const char* begin() const { return padded_.data(); }
    const char* end() const { return padded_.data() + size_; }
    const QuoteIndex* quotes() const { return indexed_ ? &quotes_ : nullptr; }

private:
    std::string padded_;
    std::size_t size_ = 0;
    QuoteIndex quotes_;
    bool indexed_ = false;
};

struct ScanValue {
    const char** at;                     // the scanner's position, shared by the values of one line
    const QuoteIndex* quotes = nullptr;  // the line's quotes, when indexed

    [[noreturn]] static void miss() { throw ScanMiss{}; }

    static bool blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
    char peek() const {
        while (static_cast<unsigned char>(**at) <= ' ' && blank(**at)) ++*at;
        return **at;
    }
    void expect(char c) const {
        if (peek() != c) miss();
        ++*at;
    }

    // A string's text up to its closing quote; at the opening quote. The
    // first quote, backslash or control character of each word is found
    // with the zero-byte test, which is exact for the lowest byte it flags.
    std::string_view token() const {
        const char* s = ++*at;
        if (quotes) {
            const std::size_t from = static_cast<std::size_t>(s - quotes->base()), end = quotes->next(from);
            if (end >= quotes->size()) miss();
            *at = quotes->base() + end + 1;
            return {s, end - from};
        }
        const char* p = s;
        constexpr std::uint64_t quotes = bytes::kOnes * '"', backslashes = bytes::kOnes * '\\';
        const auto zero = [](std::uint64_t v) { return (v - bytes::kOnes) & ~v & bytes::kHigh; };
        for (;; p += 8) {
            const std::uint64_t x = bytes::load8(p);
            const std::uint64_t controls = (x - 0x20 * bytes::kOnes) & ~x & bytes::kHigh;
            const std::uint64_t stop = zero(x ^ quotes) | zero(x ^ backslashes) | controls;
            if (stop) {
                p += std::countr_zero(stop) >> 3;
                break;
            }
        }
        if (*p != '"') miss();  // an escape or a control character
        *at = p + 1;
        return {s, static_cast<std::size_t>(p - s)};
    }

    // The scanner does not read null: whatever is read next gives up on it.
    bool is_null() const { return false; }
    bool is_string() const { return peek() == '"'; }
    std::string_view string() const { return token(); }
    bool get_string(std::string_view& out) const { return is_string() && (out = token(), true); }
    bool is_bool() const {
        const char c = peek();
        return c == 't' || c == 'f';
    }
    bool boolean() const {
        if (std::memcmp(*at, "true", 4) == 0) {
            *at += 4;
            return true;
        }
        if (std::memcmp(*at, "false", 5) != 0) miss();
        *at += 5;
        return false;
    }
    bool is_integer() const {
        const char c = peek();
        return c == '-' || (c >= '0' && c <= '9');
    }
    // Only "-?(0|[1-9][0-9]*)" of up to 18 digits; a fraction or exponent
    // after it is refused by the container, which expects a comma.
    bool integer(std::int64_t lo, std::int64_t hi, std::int64_t& out) const {
        const char* p = *at;
        const bool negative = *p == '-';
        p += negative;
        const char* digits = p;
        std::int64_t x = 0;
        for (; *p >= '0' && *p <= '9'; ++p) {
            if (p - digits == 18) miss();  // before x could overflow
            x = x * 10 + (*p - '0');
        }
        const std::size_t n = static_cast<std::size_t>(p - digits);
        if (n == 0 || (*digits == '0' && (n > 1 || negative))) miss();
        *at = p;
        out = negative ? -x : x;
        return out >= lo && out <= hi;
    }
    // Passes over the value at the cursor, nested at most `max_depth` deep.
    // Loosely: what it passes over is either read (and so checked) later or
    // leaves the report to the other reader.
    void skip(int max_depth) const {
        int depth = 0;
        for (;;) {
            const char c = peek();
            if (c == '"') {
                token();
            } else if (c == '{' || c == '[') {
                if (++depth > max_depth) miss();
                ++*at;
                continue;
            } else if (c == '}' || c == ']') {
                if (depth-- == 0) miss();
                ++*at;
            } else if (scalar_byte(c)) {
                while (scalar_byte(**at)) ++*at;
            } else {
                miss();
            }
            if (depth == 0) return;
            const char d = peek();
            if (d == ',' || d == ':') ++*at;
        }
    }
    static bool scalar_byte(char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || c == '-' || c == '+' || c == '.' || c == 'E';
    }

    bool is_array() const { return peek() == '['; }
    template <class F>
    void each_element(F&& f) const {
        items(']', [&] { f(ScanValue{at, quotes}); });
    }
    bool is_object() const { return peek() == '{'; }
    template <class F>
    void each_member(F&& f) const {
        items('}', [&] {
            if (peek() != '"') miss();
            const std::string_view key = token();
            expect(':');
            f(key, ScanValue{at, quotes});
        });
    }

    // The items of the array or object at the cursor, up to `close`, each
    // read by `item` and followed by a comma or the end.
    template <class F>
    void items(char close, F&& item) const {
        ++*at;
        if (peek() == close) {
            ++*at;
            return;
        }
        for (;;) {
            item();
            const char c = peek();
            ++*at;
            if (c == close) return;
            if (c != ',') miss();
        }
    }
};

}  // namespace tamrel::json_binding
