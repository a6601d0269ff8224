#include "run/output_encoding.h"

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "core/printable.h"

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
        case 0x20AC:
            return 0xA4;
        case 0x0160:
            return 0xA6;
        case 0x0161:
            return 0xA8;
        case 0x017D:
            return 0xB4;
        case 0x017E:
            return 0xB8;
        case 0x0152:
            return 0xBC;
        case 0x0153:
            return 0xBD;
        case 0x0178:
            return 0xBE;
        case 0xA4:
        case 0xA6:
        case 0xA8:
        case 0xB4:
        case 0xB8:
        case 0xBC:
        case 0xBD:
        case 0xBE:
            return -1;
        default:
            return cp <= 0xFF ? static_cast<int>(cp) : -1;
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

// Latin Extended-A (U+0100 to U+017F), letter by letter.
constexpr std::string_view kExtendedA[128] = {
    "A", "a", "A",  "a",  "A", "a", "C", "c", "C", "c", "C", "c", "C", "c", "D", "d",  // U+0100
    "D", "d", "E",  "e",  "E", "e", "E", "e", "E", "e", "E", "e", "G", "g", "G", "g",  // U+0110
    "G", "g", "G",  "g",  "H", "h", "H", "h", "I", "i", "I", "i", "I", "i", "I", "i",  // U+0120
    "I", "i", "IJ", "ij", "J", "j", "K", "k", "k", "L", "l", "L", "l", "L", "l", "L",  // U+0130
    "l", "L", "l",  "N",  "n", "N", "n", "N", "n", "n", "N", "n", "O", "o", "O", "o",  // U+0140
    "O", "o", "OE", "oe", "R", "r", "R", "r", "R", "r", "S", "s", "S", "s", "S", "s",  // U+0150
    "S", "s", "T",  "t",  "T", "t", "T", "t", "U", "u", "U", "u", "U", "u", "U", "u",  // U+0160
    "U", "u", "U",  "u",  "W", "w", "Y", "y", "Y", "Z", "z", "Z", "z", "Z", "z", "s",  // U+0170
};

bool ascii_equal_nocase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

}  // namespace

std::string_view substitute(char32_t c) {
    if (c >= 0x100 && c < 0x180) return kExtendedA[c - 0x100];
    switch (c) {
        case 0x0218:
            return "S";  // Ș
        case 0x0219:
            return "s";
        case 0x021A:
            return "T";  // Ț
        case 0x021B:
            return "t";
        case 0x20AC:
            return "EUR";
        case 0x2018:
        case 0x2019:
        case 0x201A:
        case 0x201B:
            return "'";
        case 0x201C:
        case 0x201D:
        case 0x201E:
        case 0x201F:
            return "\"";
        case 0x2010:
        case 0x2011:
        case 0x2012:
        case 0x2013:
        case 0x2014:
        case 0x2212:
            return "-";
        case 0x2026:
            return "...";
        case 0x00BC:
            return "1/4";
        case 0x00BD:
            return "1/2";
        case 0x00BE:
            return "3/4";
        default:
            return {};
    }
}

std::string unicode_name(std::string_view character) {
    std::size_t i = 0;
    return code_point_name(character.empty() ? U'\0' : decode(character, i));
}

std::optional<Encoding> parse_encoding(std::string_view name) {
    for (std::string_view n : {"ISO-8859-1", "ISO8859-1", "ISO_8859-1", "latin1", "latin-1", "l1"})
        if (ascii_equal_nocase(name, n)) return Encoding::Latin1;
    for (std::string_view n : {"ISO-8859-15", "ISO8859-15", "ISO_8859-15", "latin9", "latin-9", "l9"})
        if (ascii_equal_nocase(name, n)) return Encoding::Latin9;
    for (std::string_view n : {"UTF-8", "utf8"})
        if (ascii_equal_nocase(name, n)) return Encoding::Utf8;
    return std::nullopt;
}

checks::FileEncoding file_encoding(Encoding e) {
    switch (e) {
        case Encoding::Latin1:
            return checks::FileEncoding::Latin1;
        case Encoding::Latin9:
            return checks::FileEncoding::Latin9;
        default:
            return checks::FileEncoding::Utf8;
    }
}

const char* encoding_name(Encoding e) {
    switch (e) {
        case Encoding::Latin1:
            return "ISO-8859-1";
        case Encoding::Latin9:
            return "ISO-8859-15";
        default:
            return "UTF-8";
    }
}

EncodeFailure encode(std::string& out, std::string_view text, Encoding e, Unencodable unencodable,
                     std::vector<Substitution>* made) {
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
        const std::string_view character = text.substr(start, i - start);
        if (cp < 0x20 || (cp >= 0x7F && cp < 0xA0)) {
            if (unencodable == Unencodable::Replace) continue;
            return {position, character, cp, true};
        }
        if (e == Encoding::Utf8) {
            out.append(character);
            continue;
        }
        const int b = e == Encoding::Latin9 ? latin9(cp) : (cp <= 0xFF ? static_cast<int>(cp) : -1);
        if (b >= 0) {
            out += static_cast<char>(b);
            continue;
        }
        std::string_view to = unencodable == Unencodable::Fail ? std::string_view{} : substitute(cp);
        if (to.empty() && unencodable == Unencodable::Replace) to = "?";
        if (to.empty()) return {position, character, cp, false};
        out.append(to);
        if (made) made->push_back({character, to});
    }
    return {};
}

}  // namespace tamrel::cli
