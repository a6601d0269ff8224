#include "core/printable.h"

#include <cstdio>

#include "core/text.h"

namespace tamrel {

std::string code_point_name(char32_t c) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "U+%04X", static_cast<unsigned>(c));
    return buf;
}

std::string printable(std::string_view s) {
    std::string out;
    out.reserve(s.size());
    for (std::size_t i = 0; i < s.size();) {
        const auto c = static_cast<unsigned char>(s[i]);
        const std::size_t n = text::seq_len(c);
        if (i + n > s.size() || !text::is_valid_utf8(s.substr(i, n))) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "<0x%02X>", c);
            out += buf;
            ++i;
            continue;
        }
        if (c < 0x20 || c == 0x7F) {
            out += "<" + code_point_name(c) + ">";
        } else if (c == 0xC2 && static_cast<unsigned char>(s[i + 1]) < 0xA0) {
            out += "<" + code_point_name(static_cast<unsigned char>(s[i + 1])) + ">";  // C1
        } else {
            out.append(s, i, n);
        }
        i += n;
    }
    return out;
}

}  // namespace tamrel
