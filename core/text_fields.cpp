// The text and numeric encoders: their general walk (the fast path is
// inline in the header), and the forms that append or return the field.
#include <cstring>
#include <string>

#include "core/error.h"
#include "core/joined.h"
#include "core/routine.h"
#include "core/text.h"
#include "core/text_fields.h"

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

void AppendAn(std::string& out, std::string_view value, int width, bool& filled) {
    const std::size_t w = width < 0 ? 0 : static_cast<std::size_t>(width);
    append_put(out, 4 * w + kPutSlack, [&](char* d) { return PutAn(d, value, w, filled); });
}

void AppendN(std::string& out, std::string_view value, int width, bool& filled) {
    const std::size_t w = width < 0 ? 0 : static_cast<std::size_t>(width);
    append_put(out, 4 * w + kPutSlack, [&](char* d) { return PutN(d, value, w, filled); });
}

std::string StrToAn(std::string_view value, int width, bool& filled) {
    return routine(with_args("mlGen.StrToAn(", value, width, filled), [&](int& line) {
        line = 1;
        std::string out;
        AppendAn(out, value, width, filled);
        return out;
    });
}

std::string StrToN(std::string_view value, int width, bool& filled) {
    return routine(with_args("mlGen.StrToN(", value, width, filled), [&](int& line) {
        line = 1;
        std::string out;
        AppendN(out, value, width, filled);
        return out;
    });
}

}  // namespace tamrel::mlGen
