#include "json/json_scan.h"

#include <algorithm>

#include <simdjson.h>

#include "json/cpu_features.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif
#if defined(TAMREL_HAVE_AVX2_KERNELS)
#include <immintrin.h>
#endif

namespace tamrel::json_binding {

namespace {

// The whole 64-byte steps of the index: their words of quote bits, whether
// they hold a backslash or a control character, and the step with the first
// byte above ASCII. Returns where the steps ended. The same kernel twice:
// sixteen bytes a compare, and thirty-two where the processor has AVX2.
struct Steps {
    std::size_t end = 0;
    bool refused = false;
    std::size_t first_non_ascii;
};

#if defined(__SSE2__)
Steps index_steps_sse2(const char* p, std::size_t n, std::uint64_t* words) {
    Steps s{0, false, n};
    const __m128i quote = _mm_set1_epi8('"'), backslash = _mm_set1_epi8('\\'), controls_max = _mm_set1_epi8(0x1F);
    __m128i bad = _mm_setzero_si128(), high = _mm_setzero_si128();
    const auto block = [&](std::size_t at) {
        const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
        bad = _mm_or_si128(
            bad, _mm_or_si128(_mm_cmpeq_epi8(x, backslash), _mm_cmpeq_epi8(_mm_min_epu8(x, controls_max), x)));
        high = _mm_or_si128(high, x);
        return static_cast<std::uint64_t>(static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(x, quote))));
    };
    for (; s.end + 64 <= n; s.end += 64) {
        const std::size_t i = s.end;
        words[i >> 6] = block(i) | block(i + 16) << 16 | block(i + 32) << 32 | block(i + 48) << 48;
        if (s.first_non_ascii == n && _mm_movemask_epi8(high)) s.first_non_ascii = i;  // within these 64
    }
    s.refused = _mm_movemask_epi8(bad) != 0;
    return s;
}
#endif

#if defined(TAMREL_HAVE_AVX2_KERNELS)
[[gnu::target("avx2")]] Steps index_steps_avx2(const char* p, std::size_t n, std::uint64_t* words) {
    Steps s{0, false, n};
    const __m256i quote = _mm256_set1_epi8('"'), backslash = _mm256_set1_epi8('\\');
    const __m256i controls_max = _mm256_set1_epi8(0x1F);
    __m256i bad = _mm256_setzero_si256(), high = _mm256_setzero_si256();
    for (; s.end + 64 <= n; s.end += 64) {
        const std::size_t i = s.end;
        const __m256i x = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + i));
        const __m256i y = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p + i + 32));
        const __m256i xy = _mm256_or_si256(_mm256_cmpeq_epi8(x, backslash), _mm256_cmpeq_epi8(y, backslash));
        const __m256i controls = _mm256_or_si256(_mm256_cmpeq_epi8(_mm256_min_epu8(x, controls_max), x),
                                                 _mm256_cmpeq_epi8(_mm256_min_epu8(y, controls_max), y));
        bad = _mm256_or_si256(bad, _mm256_or_si256(xy, controls));
        high = _mm256_or_si256(high, _mm256_or_si256(x, y));
        words[i >> 6] = static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(x, quote))) |
                        std::uint64_t{static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(y, quote)))} << 32;
        if (s.first_non_ascii == n && _mm256_movemask_epi8(high)) s.first_non_ascii = i;
    }
    s.refused = _mm256_movemask_epi8(bad) != 0;
    return s;
}
#endif

Steps index_steps(const char* p, std::size_t n, std::uint64_t* words) {
#if defined(TAMREL_HAVE_AVX2_KERNELS)
    if (cpu_has_avx2()) return index_steps_avx2(p, n, words);
#endif
#if defined(__SSE2__)
    return index_steps_sse2(p, n, words);
#else
    (void)p, (void)words;
    return Steps{0, false, n};
#endif
}

}  // namespace

bool QuoteIndex::build(const char* p, std::size_t n) {
    words_.resize(n / 64 + 2);
    base_ = p;
    size_ = n;
    const Steps steps = index_steps(p, n, words_.data());
    first_non_ascii_ = steps.first_non_ascii;
    bool refused = steps.refused;
    std::size_t i = steps.end;
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
