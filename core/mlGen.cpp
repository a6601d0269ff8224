#include "core/mlGen.h"

#include <algorithm>
#include <charconv>

#include "core/error.h"
#include "core/host.h"
#include "core/routine.h"
#include "core/text.h"

namespace tamrel::mlGen {
namespace {

constexpr std::string_view kCheckLength = "mlGen.CheckLength";

bool is_control(char c) { return c == '\r' || c == '\n' || c == '\t'; }

bool has_non_ascii(std::string_view s) {
    for (unsigned char c : s)
        if (c >= 0x80) return true;
    return false;
}

// Text fields take UTF-8; anything else is refused, never cut mid-character.
void require_utf8(std::string_view value, const char* routine_name) {
    if (has_non_ascii(value) && !text::is_valid_utf8(value))
        raise(kErrText, std::string("mlGen.") + routine_name, "Der Text ist kein g\xC3\xBCltiges UTF-8.");
}

void append_repeated(std::string& out, char c, std::size_t n) { out.append(n, c); }

bool all_of(std::string_view s, char c) {
    for (char x : s)
        if (x != c) return false;
    return true;
}

// The walk of the amount encoders: digits, signs, separators. Returns the
// sign character seen last (0 when none).
char split_amount(std::string_view value, std::string& vor, std::string& nach, bool sign_allowed,
                  const char* source, int& line) {
    bool separator_seen = false;
    char sign = 0;
    for (char c : value) {
        if (c >= '0' && c <= '9') {
            (separator_seen ? nach : vor) += c;
        } else if (c == '+' || c == '-') {
            line = 7;
            if (sign_allowed)
                sign = c;
            else if (c != '+')
                raise(kErrAmount, source, "Der Betrag darf nicht negativ sein.");
        } else if (c == ',' || c == '.') {
            if (separator_seen) vor += nach;
            separator_seen = true;
            nach.clear();
        } else {
            line = 9;
            raise(kErrAmount, source, "Der Betrag enth\xC3\xA4lt ung\xC3\xBCltige Zeichen.");
        }
    }
    return sign;
}

void append_amount(std::string& out, std::string_view value, int intVor, int intNach, bool& filled, bool signed_) {
    const char* source = signed_ ? "mlGen.StrToBG" : "mlGen.StrToPB";
    routine(source, [&](int& line) {
        std::string vor, nach;
        char sign = split_amount(value, vor, nach, signed_, source, line);
        line = 10;
        EnhanceVorNachk(vor, intVor, nach, intNach);
        line = 11;
        if (!all_of(vor, '0') || !all_of(nach, '0')) filled = true;
        if (signed_) out += sign ? sign : '+';
        out += vor;
        out += nach;
    });
}

}  // namespace

Decimal::Decimal(std::int64_t v) noexcept {
    auto r = std::to_chars(buf, buf + sizeof buf, v);
    len = static_cast<std::size_t>(r.ptr - buf);
}

void AppendAn(std::string& out, std::string_view value, int width, bool& filled) {
    if (width < 0) width = 0;
    require_utf8(value, "StrToAn");
    std::size_t room = static_cast<std::size_t>(width);
    bool content = false;
    for (std::size_t i = 0; i < value.size() && room > 0;) {
        char c = value[i];
        if (is_control(c)) {
            ++i;
            continue;
        }
        std::size_t n = text::seq_len(static_cast<unsigned char>(c));
        out.append(value.substr(i, n));
        content |= c != ' ';
        i += n;
        --room;
    }
    append_repeated(out, ' ', room);
    if (content) filled = true;
}

void AppendN(std::string& out, std::string_view value, int width, bool& filled) {
    if (width < 0) width = 0;
    require_utf8(value, "StrToN");
    std::size_t chars = text::char_count(value);
    std::size_t w = static_cast<std::size_t>(width);
    std::string_view kept = value;
    if (chars >= w)
        kept = text::right(value, w);
    else
        append_repeated(out, '0', w - chars);
    out += kept;
    if (!all_of(kept, '0')) filled = true;
}

void AppendPB(std::string& out, std::string_view value, int intVor, int intNach, bool& filled) {
    append_amount(out, value, intVor, intNach, filled, false);
}

void AppendBG(std::string& out, std::string_view value, int intVor, int intNach, bool& filled) {
    append_amount(out, value, intVor, intNach, filled, true);
}

void AppendJN(std::string& out, std::int32_t value, bool& filled) {
    char c = value == 1 ? 'J' : value == 2 ? 'N' : ' ';
    out += c;
    if (c != ' ') filled = true;
}

std::string StrToAn(std::string_view value, int width, bool& filled) {
    return routine([&] { return call_text("mlGen.StrToAn(", value, width, filled); }, [&](int& line) {
        line = 1;
        std::string out;
        AppendAn(out, value, width, filled);
        return out;
    });
}

std::string StrToN(std::string_view value, int width, bool& filled) {
    return routine([&] { return call_text("mlGen.StrToN(", value, width, filled); }, [&](int& line) {
        line = 1;
        std::string out;
        AppendN(out, value, width, filled);
        return out;
    });
}

std::string StrToPB(std::string_view value, int intVor, int intNach, bool& filled) {
    std::string out;
    AppendPB(out, value, intVor, intNach, filled);
    return out;
}

std::string StrToBG(std::string_view value, int intVor, int intNach, bool& filled) {
    std::string out;
    AppendBG(out, value, intVor, intNach, filled);
    return out;
}

std::string EnmToJN(std::int32_t value, bool& filled) {
    std::string out;
    AppendJN(out, value, filled);
    return out;
}

void EnhanceVorNachk(std::string& strVor, int intVor, std::string& strNach, int intNach) {
    routine("mlGen.EnhanceVorNachk", [&](int& line) {
        line = 1;
        auto vor = static_cast<std::size_t>(intVor < 0 ? 0 : intVor);
        auto nach = static_cast<std::size_t>(intNach < 0 ? 0 : intNach);
        if (strVor.size() > vor)
            raise(kErrAmount, "mlGen.EnhanceVorNachk",
                  strVor + " enth\xC3\xA4lt mehr Vorkommastellen als " + std::to_string(intVor) + ".");
        strVor.insert(0, vor - strVor.size(), '0');
        line = 3;
        if (strNach.size() > nach)
            raise(kErrAmount, "mlGen.EnhanceVorNachk",
                  strNach + " enth\xC3\xA4lt mehr Nachkommastellen als " + std::to_string(intNach) + ".");
        strNach.append(nach - strNach.size(), '0');
    });
}

void CheckLength(std::string_view record, int length, std::string_view name) {
    if (text::char_count(record) == static_cast<std::size_t>(length)) return;
    routine(kCheckLength, [&](int& line) {
        line = 1;
        raise(kErrLength, std::string(kCheckLength), "L\xC3\xA4nge " + std::string(name) + " ist nicht korrekt.");
    });
}

void CheckLength(std::string_view record, std::string_view length, std::string_view name) {
    int required = 0;
    auto r = std::from_chars(length.data(), length.data() + length.size(), required);
    if (r.ec != std::errc() || r.ptr != length.data() + length.size()) required = -1;
    CheckLength(record, required, name);
}

std::string ConvertBNRSt(std::string_view number) {
    constexpr std::string_view kExcluded = "15000002,33333330,80000008,80000031,99999993";
    bool outside = number > std::string_view("10899999") || number < std::string_view("10600000");
    if (outside && kExcluded.find(number) == std::string_view::npos) return std::string(number);
    return {};
}

Date GetDate(const Date& date) { return date.is_empty() ? tamrel::now() : date; }

std::string ReplaceSpecialCharText(std::string_view value) {
    std::string out;
    out.reserve(value.size());
    for (char c : value)
        if (!is_control(c)) out += c;
    return out;
}

std::string ConvertDate(std::string_view value) {
    std::string_view t = text::trim_blanks(value);
    if (text::char_count(t) != 8) return std::string(t);
    std::string out;
    out.append(text::mid(t, 1, 4)).append("-").append(text::mid(t, 5, 2)).append("-").append(text::mid(t, 7, 2));
    return out;
}

std::string ConvertDateTimeToISO(std::string_view value) {
    std::string_view t = text::trim_blanks(value);
    if (text::char_count(t) != 20) return std::string(t);
    std::string out;
    out.append(text::mid(t, 1, 4)).append("-").append(text::mid(t, 5, 2)).append("-").append(text::mid(t, 7, 2));
    out.append("T").append(text::mid(t, 9, 2)).append(":").append(text::mid(t, 11, 2)).append(":");
    out.append(text::mid(t, 13, 2)).append(".").append(text::right(t, 6));
    return out;
}

}  // namespace tamrel::mlGen

namespace tamrel::mlGlobal {

void AppendCurrDate(std::string& out, std::string_view dateText, int format, const Date& date) {
    char own[8];
    std::string_view t = dateText;
    if (text::char_count(dateText) < 8) {
        std::string tmp;
        append_yyyymmdd(tmp, date);
        std::copy(tmp.begin(), tmp.end(), own);
        t = std::string_view(own, 8);
    }
    std::string_view day = text::right(t, 2), month = text::mid(t, 5, 2), year = text::left(t, 4);
    switch (format) {
        case 0: out.append(year).append(month).append(day); break;
        case 1:
            out.append(year).append(month).append(day);
            if (text::char_count(t) >= 14)
                out.append(text::mid(t, 9, 6));
            else
                append_hhnnss(out, date);
            break;
        case 2: out.append(day).append(month).append(year); break;
        default: break;
    }
}

std::string GetCurrDate(std::string_view dateText, int format, const Date& date) {
    std::string out;
    AppendCurrDate(out, dateText, format, date);
    return out;
}

}  // namespace tamrel::mlGlobal
