#include "readback/report_reading.h"

namespace tamrel::readback {

const LineText& line_text(std::u32string_view line) {
    thread_local LineText text;
    text.utf8.resize(line.size() * 4);
    text.starts.resize(line.size() + 1);
    char* const base = text.utf8.data();
    char* d = base;
    std::uint32_t* start = text.starts.data();
    for (std::size_t i = 0; i < line.size();) {
        // A run of ASCII, one byte a character, in a loop of its own.
        std::size_t run = i;
        while (run < line.size() && line[run] < 0x80) ++run;
        const auto offset = static_cast<std::uint32_t>(d - base);
        for (std::size_t k = i; k < run; ++k) {
            start[k - i] = offset + static_cast<std::uint32_t>(k - i);
            d[k - i] = static_cast<char>(line[k]);
        }
        start += run - i, d += run - i, i = run;
        if (i == line.size()) break;
        *start++ = static_cast<std::uint32_t>(d - base);
        d = checks::walk_detail::put_utf8(d, line[i++]);
    }
    *start = static_cast<std::uint32_t>(d - base);
    text.utf8.resize(static_cast<std::size_t>(d - base));
    return text;
}

}  // namespace tamrel::readback
