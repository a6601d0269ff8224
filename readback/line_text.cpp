#include <bit>
#include <cstring>

#include "readback/report_reading.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tamrel::readback {

namespace {

constexpr std::size_t kStep = 16;

// Sixteen characters narrowed to their low bytes; the bits of the result
// mark those of more than seven bits.
unsigned narrow_step(const char32_t* in, char* out) {
#if defined(__SSE2__)
    // Saturating packs keep 0..0xFF as they are and make any larger
    // character (at most 0x10FFFF) 0xFF: the bytes' high bits are the wide
    // characters.
    auto load = [&](int k) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(in) + k); };
    const __m128i lo = _mm_packs_epi32(load(0), load(1)), hi = _mm_packs_epi32(load(2), load(3));
    const __m128i bytes = _mm_packus_epi16(lo, hi);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), bytes);
    return static_cast<unsigned>(_mm_movemask_epi8(bytes));
#else
    unsigned wide = 0;
    for (std::size_t i = 0; i < kStep; ++i) {
        out[i] = static_cast<char>(in[i]);
        wide |= static_cast<unsigned>(in[i] >= 0x80) << i;
    }
    return wide;
#endif
}

// One a thread, kept from line to line.
LineText& thread_text() {
    thread_local LineText text;
    return text;
}

// Sixteen bytes' high bits.
unsigned high_bits(const char* in) {
#if defined(__SSE2__)
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(in))));
#else
    unsigned high = 0;
    for (std::size_t i = 0; i < kStep; ++i)
        high |= static_cast<unsigned>(static_cast<unsigned char>(in[i]) >= 0x80) << i;
    return high;
#endif
}

}  // namespace

const LineText& line_text(std::u32string_view record, std::string_view bytes, checks::FileEncoding encoding) {
    const bool latin = encoding == checks::FileEncoding::Latin1 || encoding == checks::FileEncoding::Latin9;
    if (!latin || bytes.size() < record.size()) return line_text(record);
    LineText& text = thread_text();
    const std::size_t n = record.size();  // the record's bytes: a returned record's blocks follow
    text.chars = n;
    text.wide.clear();
    auto note = [&](std::size_t i) {
        const char32_t c = checks::latin_char(static_cast<unsigned char>(bytes[i]), encoding);
        const std::uint32_t before = text.wide.empty() ? 0 : text.wide.back().extra;
        // Two bytes of UTF-8, or three for the few of ISO-8859-15 from U+0800 (the euro sign).
        text.wide.push_back({static_cast<std::uint32_t>(i), before + (c < 0x800 ? 1u : 2u)});
    };
    std::size_t b = 0;
    for (; b + kStep <= n; b += kStep)
        for (unsigned m = high_bits(bytes.data() + b); m != 0; m &= m - 1)
            note(b + static_cast<std::size_t>(std::countr_zero(m)));
    for (std::size_t i = b; i < n; ++i)
        if (static_cast<unsigned char>(bytes[i]) >= 0x80) note(i);
    if (text.wide.empty()) {
        text.utf8.assign(bytes.data(), n);
        return text;
    }
    // The runs between the wide characters copied, each wide one written as UTF-8.
    text.utf8.resize(n + text.wide.back().extra);
    char* out = text.utf8.data();
    std::size_t from = 0;
    for (const LineText::Wide& w : text.wide) {
        std::memcpy(out, bytes.data() + from, w.at - from);
        out += w.at - from;
        out = checks::walk_detail::put_utf8(out, checks::latin_char(static_cast<unsigned char>(bytes[w.at]), encoding));
        from = w.at + 1;
    }
    std::memcpy(out, bytes.data() + from, n - from);
    return text;
}

const LineText& line_text(std::u32string_view line) {
    LineText& text = thread_text();
    text.chars = line.size();
    text.wide.clear();
    // Narrowed sixteen characters a step; a step that holds a wide
    // character notes where.
    text.utf8.resize(line.size());
    char* const narrow = text.utf8.data();
    auto note = [&](std::size_t i) { text.wide.push_back({static_cast<std::uint32_t>(i), 0}); };
    std::size_t b = 0;
    for (; b + kStep <= line.size(); b += kStep) {
        const unsigned wide = narrow_step(line.data() + b, narrow + b);
        for (unsigned m = wide; m != 0; m &= m - 1) note(b + static_cast<std::size_t>(std::countr_zero(m)));
    }
    for (std::size_t i = b; i < line.size(); ++i) {
        narrow[i] = static_cast<char>(line[i]);
        if (line[i] >= 0x80) note(i);
    }
    if (text.wide.empty()) return text;
    // The wide characters written as UTF-8, from the end backwards, in place.
    std::uint32_t extra = 0;
    char buf[4];
    for (LineText::Wide& w : text.wide) {
        extra += static_cast<std::uint32_t>(checks::walk_detail::put_utf8(buf, line[w.at]) - buf) - 1;
        w.extra = extra;
    }
    text.utf8.resize(line.size() + extra);
    char* const out = text.utf8.data();
    std::size_t end = line.size();  // of the narrowed characters not yet moved
    for (auto w = text.wide.rbegin(); w != text.wide.rend(); ++w) {
        const std::size_t after = w->at + 1;
        std::memmove(out + after + w->extra, out + after, end - after);
        const char* const last = checks::walk_detail::put_utf8(buf, line[w->at]);
        const auto n = static_cast<std::size_t>(last - buf);
        std::memcpy(out + w->at + w->extra - (n - 1), buf, n);
        end = w->at;
    }
    return text;
}

}  // namespace tamrel::readback
