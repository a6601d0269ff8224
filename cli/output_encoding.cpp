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

bool printable(char c) { return static_cast<unsigned char>(c) - 0x20u < 0x5Fu; }

// Sixteen bytes compared at once (GCC's and Clang's vector extension,
// which becomes the target's vector instructions).
using Bytes16 = unsigned char __attribute__((vector_size(16)));

// Whether the 16 bytes at p are all printable ASCII (0x20 to 0x7E).
bool printable16(const char* p) {
    Bytes16 v;
    std::memcpy(&v, p, 16);
    const auto outside = (v - static_cast<unsigned char>(0x20)) >= static_cast<unsigned char>(0x5F);
    std::uint64_t halves[2];
    std::memcpy(halves, &outside, 16);
    return (halves[0] | halves[1]) == 0;
}

// The length of the run of printable ASCII that starts the text: sixteen
// bytes at a time, then the block that ends the run byte by byte.
std::size_t printable_run(std::string_view s) {
    std::size_t i = 0;
    while (i + 16 <= s.size() && printable16(s.data() + i)) i += 16;
    while (i < s.size() && printable(s[i])) ++i;
    return i;
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
        const std::size_t run = i + printable_run(text.substr(i));
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
