#include <cstring>

#include "readback/report_reading.h"

namespace tamrel::readback {

const LineText& line_text(std::u32string_view line) {
    thread_local LineText text;
    text.chars = line.size();
    text.wide.clear();
    // Narrowed sixteen characters a step, in a loop the compiler
    // vectorises; a step that holds a wide character notes where.
    text.utf8.resize(line.size());
    char* const narrow = text.utf8.data();
    constexpr std::size_t kStep = 16;
    auto note_wide = [&](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i)
            if (line[i] >= 0x80) text.wide.push_back({static_cast<std::uint32_t>(i), 0});
    };
    std::size_t b = 0;
    for (; b + kStep <= line.size(); b += kStep) {
        char32_t any = 0;
        for (std::size_t i = 0; i < kStep; ++i) {
            any |= line[b + i];
            narrow[b + i] = static_cast<char>(line[b + i]);
        }
        if (any >= 0x80) note_wide(b, b + kStep);
    }
    for (std::size_t i = b; i < line.size(); ++i) narrow[i] = static_cast<char>(line[i]);
    note_wide(b, line.size());
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
