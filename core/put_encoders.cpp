// The general walk of the in-place text and numeric encoders (their fast
// path is inline in core/mlGen.h).
#include <cstring>
#include <string>

#include "core/error.h"
#include "core/mlGen.h"
#include "core/text.h"

namespace tamrel::mlGen {
namespace {

// Text fields take UTF-8; anything else is refused, never cut mid-character.
void require_utf8(std::string_view value, const char* routine_name) {
    if (!text::is_valid_utf8(value))
        raise(kErrText, std::string("mlGen.") + routine_name, "Der Text ist kein g\xC3\xBCltiges UTF-8.");
}


}  // namespace

char* detail::PutAnText(char* d, std::string_view value, std::size_t w, bool& filled) {
    if (value.size() <= 16) {
        const bytes::ShortText text = bytes::survey_short_text(value.data(), value.size());
        if (text.ok && text.chars <= w) {
            const std::size_t size = value.size() + (w - text.chars);
            bytes::pad_field(d, ' ', size);
            bytes::copy_short(d, value.data(), value.size());
            if (text.content) filled = true;
            return d + size;
        }
    }
    return PutAnGeneral(d, value, w, filled);
}

char* detail::PutAnGeneral(char* d, std::string_view value, std::size_t w, bool& filled) {
    require_utf8(value, "StrToAn");
    // Mostly a name with umlauts: no control character, fits the field.
    const bytes::Survey text = bytes::survey(value.data(), value.size());
    if (!text.controls && text.chars <= w) {
        std::memcpy(d, value.data(), value.size());
        std::memset(d + value.size(), ' ', w - text.chars);
        if (text.content) filled = true;
        return d + value.size() + (w - text.chars);
    }
    // Control characters are dropped; whole characters are kept up to `w`.
    std::size_t room = w, run = 0, i = 0;
    bool content = false;
    for (; i < value.size(); ++i) {
        const auto c = static_cast<unsigned char>(value[i]);
        if (is_dropped_control(static_cast<char>(c))) {
            std::memcpy(d, value.data() + run, i - run);
            d += i - run;
            run = i + 1;
            continue;
        }
        if ((c & 0xC0) != 0x80) {
            if (room == 0) break;
            --room;
            content |= c != ' ';
        }
    }
    std::memcpy(d, value.data() + run, i - run);
    d += i - run;
    std::memset(d, ' ', room);
    if (content) filled = true;
    return d + room;
}

char* detail::PutNGeneral(char* d, std::string_view value, std::size_t w, bool& filled) {
    require_utf8(value, "StrToN");
    // The rightmost `w` characters are kept, zeros fill the left.
    const std::size_t chars = text::char_count(value);
    const std::string_view kept = chars > w ? text::right(value, w) : value;
    const std::size_t pad = chars > w ? 0 : w - chars;
    std::memset(d, '0', pad);
    std::memcpy(d + pad, kept.data(), kept.size());
    if (kept.find_first_not_of('0') != std::string_view::npos) filled = true;
    return d + pad + kept.size();
}

}  // namespace tamrel::mlGen
