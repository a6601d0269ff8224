#include "protocol/proto_fields.h"

#include "core/routine.h"
#include "core/text.h"

namespace tamrel::proto {
namespace {

void append_field(std::string& out, std::string_view value, bool quoted, bool firstField, bool amount) {
    if (!firstField) out += ';';
    if (quoted) out += '"';
    if (amount) {
        for (char c : value) {
            if (c == '+') continue;
            out += c == '.' ? ',' : c;
        }
    } else {
        out += value;
    }
    if (quoted) out += '"';
}

std::string_view ja_nein(std::int32_t v) { return v == 1 ? "J" : v == 2 ? "N" : ""; }

}  // namespace

std::string GetProtField(std::string_view value, bool quoted, bool firstField, bool amount) {
    std::string out;
    append_field(out, value, quoted, firstField, amount);
    return out;
}

std::string GetProtFieldJaNein(std::int32_t value) { return GetProtField(ja_nein(value), true, false, false); }

// Double quotes, then CR LF pairs, then lone LFs become ";" (one pass gives
// the same result as the three replacements in that order).
std::string CorrectErrText(std::string_view text) {
    std::string s;
    s.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '"' || c == '\n') {
            s += ';';
        } else if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            s += ';';
            ++i;
        } else {
            s += c;
        }
    }
    return s;
}

Line& Line::first(std::string_view v) {
    append_field(out_, v, true, true, false);
    return *this;
}
Line& Line::q(std::string_view v) {
    append_field(out_, v, true, false, false);
    return *this;
}
Line& Line::raw(std::string_view v) {
    append_field(out_, v, false, false, false);
    return *this;
}
Line& Line::amount(std::string_view v) {
    append_field(out_, v, true, false, true);
    return *this;
}
Line& Line::jn(std::int32_t v) {
    append_field(out_, ja_nein(v), true, false, false);
    return *this;
}

std::string Line::finish(bool error, std::string_view errText) {
    append_field(out_, error ? "1" : "0", false, false, false);
    std::string cleaned = CorrectErrText(errText);
    append_field(out_, text::left(cleaned, 255), true, false, false);
    return std::move(out_);
}

}  // namespace tamrel::proto
