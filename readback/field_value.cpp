#include "readback/field_value.h"

#include "readback/report_reading.h"

namespace tamrel::readback {

bool all_of(std::string_view chars, char c) { return chars.find_first_not_of(c) == std::string_view::npos; }

namespace {

std::string amount_value(std::string_view chars, const FieldLayout& f) {
    std::string sign;
    if (f.kind == FieldKind::SignedAmount && !chars.empty()) {
        if (chars[0] == '-') sign = "-";
        chars.remove_prefix(1);
    }
    if (all_of(chars, '0')) return sign.empty() ? std::string() : sign + "0";
    const std::size_t places = chars.size() >= f.decimals ? chars.size() - f.decimals : 0;
    std::string_view whole = chars.substr(0, places);
    while (whole.size() > 1 && whole[0] == '0') whole.remove_prefix(1);
    std::string v = sign + std::string(whole.empty() ? "0" : whole);
    if (f.decimals > 0) v += ',' + std::string(chars.substr(places));
    return v;
}

}  // namespace

std::string field_value(std::string_view chars, const FieldLayout& f) {
    switch (f.kind) {
        case FieldKind::N:
        case FieldKind::Date:
        case FieldKind::DateTime:
            return all_of(chars, '0') ? std::string() : std::string(chars);
        case FieldKind::Amount:
        case FieldKind::SignedAmount:
            return amount_value(chars, f);
        case FieldKind::Flag:
        case FieldKind::Literal:
            return std::string(chars);
        default: {
            const std::size_t end = chars.find_last_not_of(' ');
            return std::string(chars.substr(0, end == std::string_view::npos ? 0 : end + 1));
        }
    }
}

const LineText& line_text(std::u32string_view line) {
    thread_local LineText text;
    text.utf8.resize(line.size() * 4);
    text.starts.resize(line.size() + 1);
    char* const base = text.utf8.data();
    char* d = base;
    std::uint32_t* start = text.starts.data();
    for (std::size_t i = 0; i < line.size();) {
        // A run of ASCII, one byte a character, in a loop the compiler widens.
        std::size_t run = i;
        while (run < line.size() && line[run] < 0x80) ++run;
        const auto offset = static_cast<std::uint32_t>(d - base);
        for (std::size_t k = i; k < run; ++k) {
            start[k - i] = offset + static_cast<std::uint32_t>(k - i);
            d[k - i] = static_cast<char>(line[k]);
        }
        start += run - i, d += run - i, i = run;
        if (i == line.size()) break;
        const char32_t c = line[i++];
        *start++ = static_cast<std::uint32_t>(d - base);
        if (c < 0x800) {
            *d++ = static_cast<char>(0xC0 | (c >> 6));
            *d++ = static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            *d++ = static_cast<char>(0xE0 | (c >> 12));
            *d++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            *d++ = static_cast<char>(0x80 | (c & 0x3F));
        } else {
            *d++ = static_cast<char>(0xF0 | (c >> 18));
            *d++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            *d++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            *d++ = static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    *start = static_cast<std::uint32_t>(d - base);
    text.utf8.resize(static_cast<std::size_t>(d - base));
    return text;
}

}  // namespace tamrel::readback
