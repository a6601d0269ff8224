#include "cli/output_encoding.h"

#include <cstdint>
#include <cstring>

namespace tamrel::cli {
namespace {

char32_t decode(std::string_view s, std::size_t& i) {
    auto c = static_cast<unsigned char>(s[i]);
    if (c < 0x80) return s[i++] & 0x7F;
    int n = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : 1;
    char32_t cp = c & (0x3F >> n);
    for (int k = 1; k <= n && i + k < s.size(); ++k) cp = (cp << 6) | (static_cast<unsigned char>(s[i + k]) & 0x3F);
    i += n + 1;
    return cp;
}

int latin9(char32_t cp) {
    switch (cp) {
        case 0x20AC: return 0xA4;
        case 0x0160: return 0xA6;
        case 0x0161: return 0xA8;
        case 0x017D: return 0xB4;
        case 0x017E: return 0xB8;
        case 0x0152: return 0xBC;
        case 0x0153: return 0xBD;
        case 0x0178: return 0xBE;
        case 0xA4: case 0xA6: case 0xA8: case 0xB4: case 0xB8: case 0xBC: case 0xBD: case 0xBE: return -1;
        default: return cp <= 0xFF ? static_cast<int>(cp) : -1;
    }
}

// Whether eight bytes are all printable ASCII (0x20 to 0x7E), tested at
// once: a byte at or above 0x80, below 0x20, or equal to 0x7F sets its high bit
// in one of the three terms (borrows only ever follow a byte that matched).
bool printable8(const char* p) {
    std::uint64_t x;
    std::memcpy(&x, p, 8);
    constexpr std::uint64_t k01 = 0x0101010101010101ULL, k80 = 0x8080808080808080ULL;
    const std::uint64_t below = (x - 0x20 * k01) & ~x;
    const std::uint64_t y = x ^ (0x7F * k01);
    const std::uint64_t del = (y - k01) & ~y;
    return ((x | below | del) & k80) == 0;
}

}  // namespace

std::optional<Encoding> parse_encoding(std::string_view name) {
    if (name == "ISO-8859-1" || name == "latin1") return Encoding::Latin1;
    if (name == "ISO-8859-15" || name == "latin9") return Encoding::Latin9;
    if (name == "UTF-8" || name == "utf8") return Encoding::Utf8;
    return std::nullopt;
}

const char* encoding_name(Encoding e) {
    switch (e) {
        case Encoding::Latin1: return "ISO-8859-1";
        case Encoding::Latin9: return "ISO-8859-15";
        default: return "UTF-8";
    }
}

EncodeFailure encode(std::string& out, std::string_view text, Encoding e) {
    std::size_t position = 0;
    for (std::size_t i = 0; i < text.size();) {
        // Runs of printable ASCII are the same in every encoding: copied in one go.
        std::size_t run = i;
        while (run + 8 <= text.size() && printable8(text.data() + run)) run += 8;
        while (run < text.size() && static_cast<unsigned char>(text[run]) - 0x20u < 0x5Fu) ++run;
        if (run > i) {
            out.append(text.data() + i, run - i);
            position += run - i;
            i = run;
            continue;
        }
        ++position;
        const std::size_t start = i;
        const char32_t cp = decode(text, i);
        if (cp < 0x20 || (cp >= 0x7F && cp < 0xA0)) return {position, true};
        if (e == Encoding::Utf8) {
            out.append(text.data() + start, i - start);
            continue;
        }
        int b = e == Encoding::Latin9 ? latin9(cp) : (cp <= 0xFF ? static_cast<int>(cp) : -1);
        if (b < 0) return {position, false};
        out += static_cast<char>(b);
    }
    return {};
}

}  // namespace tamrel::cli
