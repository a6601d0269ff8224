#include "component/json_scan.h"

#include <algorithm>

#include <simdjson.h>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tamrel::json_binding {

bool QuoteIndex::build(const char* p, std::size_t n) {
    words_.resize(n / 64 + 2);
    base_ = p;
    size_ = n;
    first_non_ascii_ = n;
    bool refused = false;  // a backslash or a control character
    std::size_t i = 0;
#if defined(__SSE2__)
    // A word of quote bits for each 64 bytes, from four masks of sixteen.
    const __m128i quote = _mm_set1_epi8('"'), backslash = _mm_set1_epi8('\\'), controls_max = _mm_set1_epi8(0x1F);
    __m128i bad = _mm_setzero_si128();
    __m128i high = _mm_setzero_si128();
    const auto block = [&](std::size_t at) {
        const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
        bad = _mm_or_si128(
            bad, _mm_or_si128(_mm_cmpeq_epi8(x, backslash), _mm_cmpeq_epi8(_mm_min_epu8(x, controls_max), x)));
        high = _mm_or_si128(high, x);
        return static_cast<std::uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(x, quote))));
    };
    for (; i + 64 <= n; i += 64) {
        words_[i >> 6] = block(i) | block(i + 16) << 16 | block(i + 32) << 32 | block(i + 48) << 48;
        if (first_non_ascii_ == n && _mm_movemask_epi8(high)) first_non_ascii_ = i;  // within these 64
    }
    refused = _mm_movemask_epi8(bad) != 0;
#endif
    // The bytes after the last whole 64, one at a time.
    std::fill(words_.begin() + static_cast<std::ptrdiff_t>(i >> 6), words_.end() - 1, 0);
    for (; i < n; ++i) {
        const auto c = static_cast<unsigned char>(p[i]);
        words_[i >> 6] |= std::uint64_t{c == '"'} << (i & 63);
        refused |= c == '\\' || c < 0x20;
        if (c >= 0x80 && first_non_ascii_ == n) first_non_ascii_ = i;
    }
    words_.back() = ~std::uint64_t{0};
    return !refused;
}

bool ScannedLine::load(std::string_view line) {
    padded_.assign(line);
    padded_.append(kScanPadding, '\0');
    size_ = line.size();
    return indexed_ = quotes_.build(padded_.data(), size_);
}

bool ScannedLine::valid_utf8() const {
    const std::size_t ascii = quotes_.first_non_ascii();
    return simdjson::validate_utf8(padded_.data() + ascii, size_ - ascii);
}

}  // namespace tamrel::json_binding
