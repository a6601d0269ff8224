#include "json/json_escape.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

// simdjson's validator where the build has it; the Windows server, which
// links no simdjson, takes the text helpers' own.
#if __has_include(<simdjson.h>)
#include <simdjson.h>
#define TAMREL_VALID_UTF8(p, n) simdjson::validate_utf8(p, n)
#else
#include "core/text.h"
#define TAMREL_VALID_UTF8(p, n) tamrel::text::is_valid_utf8(std::string_view(p, n))
#endif

#include "json/cpu_features.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif
#if defined(TAMREL_HAVE_AVX2_KERNELS)
#include <immintrin.h>
#endif

#include "core/short_bytes.h"

namespace tamrel {
namespace {

#if defined(TAMREL_HAVE_AVX2_KERNELS)
// The 32-byte steps of plain_run_end where the processor has AVX2: the
// position of the first byte that needs attention, or (not found) where the
// whole steps ended.
struct Stop {
    std::size_t at;
    bool found;
};
[[gnu::target("avx2")]] Stop plain_steps_avx2(const char* p, std::size_t n, std::size_t i, bool utf8_checked) {
    const __m256i quote = _mm256_set1_epi8('"'), backslash = _mm256_set1_epi8('\\');
    const __m256i below = _mm256_set1_epi8(0x20), controls_max = _mm256_set1_epi8(0x1F);
    for (; i + 32 <= n; i += 32) {
        const __m256i x = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + i));
        // Signed, "below 0x20" takes in the bytes from 0x80 up as well.
        const __m256i low =
            utf8_checked ? _mm256_cmpeq_epi8(_mm256_min_epu8(x, controls_max), x) : _mm256_cmpgt_epi8(below, x);
        const __m256i hit =
            _mm256_or_si256(low, _mm256_or_si256(_mm256_cmpeq_epi8(x, quote), _mm256_cmpeq_epi8(x, backslash)));
        if (const unsigned mask = static_cast<unsigned>(_mm256_movemask_epi8(hit)))
            return {i + static_cast<std::size_t>(std::countr_zero(mask)), true};
    }
    return {i, false};
}
#endif

// The first byte at or after `i` that is below 0x20, '"' or '\', or, unless
// `utf8_checked`, 0x80 or above; s.size() when there is none.
std::size_t plain_run_end(std::string_view s, std::size_t i, bool utf8_checked) {
    const char* p = s.data();
    const std::size_t n = s.size();
#if defined(TAMREL_HAVE_AVX2_KERNELS)
    if (cpu_has_avx2()) {
        const Stop stop = plain_steps_avx2(p, n, i, utf8_checked);
        if (stop.found) return stop.at;
        i = stop.at;
    }
#endif
#if defined(__SSE2__)
    const __m128i quote = _mm_set1_epi8('"'), backslash = _mm_set1_epi8('\\');
    const __m128i below = _mm_set1_epi8(0x20), controls_max = _mm_set1_epi8(0x1F);
    const auto hits = [&](std::size_t at) {
        const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
        // Signed, "below 0x20" takes in the bytes from 0x80 up as well.
        const __m128i low = utf8_checked ? _mm_cmpeq_epi8(_mm_min_epu8(x, controls_max), x) : _mm_cmplt_epi8(x, below);
        return _mm_or_si128(low, _mm_or_si128(_mm_cmpeq_epi8(x, quote), _mm_cmpeq_epi8(x, backslash)));
    };
    const auto first = [](std::size_t at, __m128i hit) {
        const int mask = _mm_movemask_epi8(hit);
        return mask ? at + static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(mask))) : std::size_t(-1);
    };
    // Sixty-four bytes a step while none needs attention, then sixteen.
    for (; i + 64 <= n; i += 64) {
        const __m128i a = hits(i), b = hits(i + 16), c = hits(i + 32), d = hits(i + 48);
        if (_mm_movemask_epi8(_mm_or_si128(_mm_or_si128(a, b), _mm_or_si128(c, d))) == 0) continue;
        for (const auto& [at, hit] :
             {std::pair{i, a}, std::pair{i + 16, b}, std::pair{i + 32, c}, std::pair{i + 48, d}})
            if (const std::size_t found = first(at, hit); found != std::size_t(-1)) return found;
    }
    for (; i + 16 <= n; i += 16)
        if (const std::size_t found = first(i, hits(i)); found != std::size_t(-1)) return found;
#else
    using bytes::kHigh;
    using bytes::kOnes;
    const auto zero_byte = [](std::uint64_t x) { return (x - kOnes) & ~x & kHigh; };
    for (; i + 8 <= n; i += 8) {
        const std::uint64_t w = bytes::load8(p + i);
        const std::uint64_t hit = ((w - kOnes * 0x20) & ~w & kHigh) | zero_byte(w ^ (kOnes * '"')) |
                                  zero_byte(w ^ (kOnes * '\\')) | (utf8_checked ? 0 : w & kHigh);
        // Exact for the lowest byte flagged, which is the one wanted.
        if (hit) return i + static_cast<std::size_t>(std::countr_zero(hit) >> 3);
    }
#endif
    for (; i < n; ++i) {
        const auto c = static_cast<unsigned char>(p[i]);
        if (c < 0x20 || c == '"' || c == '\\' || (c >= 0x80 && !utf8_checked)) return i;
    }
    return n;
}

void append_escape(std::string& out, unsigned char c) {
    switch (c) {
        case '"':
            out += "\\\"";
            return;
        case '\\':
            out += "\\\\";
            return;
        case '\b':
            out += "\\b";
            return;
        case '\t':
            out += "\\t";
            return;
        case '\n':
            out += "\\n";
            return;
        case '\f':
            out += "\\f";
            return;
        case '\r':
            out += "\\r";
            return;
        default: {
            static constexpr char hex[] = "0123456789abcdef";
            const char u[6] = {'\\', 'u', '0', '0', hex[c >> 4], hex[c & 15]};
            out.append(u, sizeof u);
        }
    }
}

}  // namespace

bool append_json_string(std::string& out, std::string_view s) {
    // A short value (most properties) is classified inline: less than what
    // the wide search costs to set up.
    if (s.size() <= 32 && json_text_kind(s) == JsonTextKind::Plain) {
        const std::size_t at = out.size();
        out.resize(at + s.size() + 2);
        char* p = out.data() + at;
        *p = '"';
        std::memcpy(p + 1, s.data(), s.size());
        p[s.size() + 1] = '"';
        return true;
    }
    out += '"';
    bool utf8_checked = false;
    std::size_t from = 0;
    for (std::size_t i = 0;; ++i) {
        i = plain_run_end(s, i, utf8_checked);
        if (i == s.size()) break;
        const auto c = static_cast<unsigned char>(s[i]);
        if (c >= 0x80) {
            // What came before is ASCII, so the rest is checked once, from here.
            if (!TAMREL_VALID_UTF8(s.data() + i, s.size() - i)) return false;
            utf8_checked = true;
            continue;
        }
        out.append(s.data() + from, i - from);
        append_escape(out, c);
        from = i + 1;
    }
    out.append(s.data() + from, s.size() - from);
    out += '"';
    return true;
}

}  // namespace tamrel
