#include "core/mlGen.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>

#include "core/error.h"
#include "core/host.h"
#include "core/joined.h"
#include "core/routine.h"
#include "core/short_bytes.h"
#include "core/text.h"

namespace tamrel::mlGen {
namespace {

constexpr std::string_view kCheckLength = "mlGen.CheckLength";

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
    const std::size_t w = width < 0 ? 0 : static_cast<std::size_t>(width);
    append_put(out, 4 * w + kPutSlack, [&](char* d) { return PutAn(d, value, w, filled); });
}

void AppendN(std::string& out, std::string_view value, int width, bool& filled) {
    const std::size_t w = width < 0 ? 0 : static_cast<std::size_t>(width);
    append_put(out, 4 * w + kPutSlack, [&](char* d) { return PutN(d, value, w, filled); });
}

char* detail::PutAmountGeneral(char* d, std::string_view value, int intVor, int intNach, bool with_sign, bool& filled) {
    // Fast path: digits, separators and (where allowed) signs that fit the
    // field. Anything else goes the full way, which raises the error.
    constexpr std::size_t kMax = 128;
    char vor[kMax], nach[kMax];
    std::size_t nv = 0, nn = 0;
    bool separator_seen = false, ok = intVor >= 0 && intNach >= 0;
    char sign = 0;
    for (std::size_t i = 0; ok && i < value.size(); ++i) {
        const char c = value[i];
        if (c >= '0' && c <= '9') {
            if (separator_seen ? nn == kMax : nv == kMax) ok = false;
            else if (separator_seen) nach[nn++] = c;
            else vor[nv++] = c;
        } else if (c == '+' || c == '-') {
            if (with_sign) sign = c;
            else ok = c == '+';
        } else if (c == ',' || c == '.') {
            if (separator_seen) {
                if (nv + nn > kMax) ok = false;
                else {
                    std::memcpy(vor + nv, nach, nn);
                    nv += nn;
                }
            }
            separator_seen = true;
            nn = 0;
        } else {
            ok = false;
        }
    }
    const auto wv = static_cast<std::size_t>(intVor < 0 ? 0 : intVor);
    const auto wn = static_cast<std::size_t>(intNach < 0 ? 0 : intNach);
    if (!ok || nv > wv || nn > wn) {
        std::string field;
        append_amount(field, value, intVor, intNach, filled, with_sign);
        std::memcpy(d, field.data(), field.size());
        return d + field.size();
    }
    if (with_sign) *d++ = sign ? sign : '+';
    bytes::pad_field(d, '0', wv);
    bytes::copy_short(d + wv - nv, vor, nv);
    d += wv;
    bytes::pad_field(d, '0', wn);
    bytes::copy_short(d, nach, nn);
    d += wn;
    for (std::size_t i = 0; i < nv + nn && !filled; ++i)
        if ((i < nv ? vor[i] : nach[i - nv]) != '0') filled = true;
    return d;
}

void AppendPB(std::string& out, std::string_view value, int intVor, int intNach, bool& filled) {
    append_amount(out, value, intVor, intNach, filled, false);
}

void AppendBG(std::string& out, std::string_view value, int intVor, int intNach, bool& filled) {
    append_amount(out, value, intVor, intNach, filled, true);
}

void AppendJN(std::string& out, std::int32_t value, bool& filled) { out += JNChar(value, filled); }

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
        if (!is_dropped_control(c)) out += c;
    return out;
}

namespace {
// Characters `start` (1-based) to `start + len - 1` of a text of `chars`
// characters: a plain substring when every character is one byte.
std::string_view piece(std::string_view t, std::size_t chars, std::size_t start, std::size_t len) {
    return t.size() == chars ? t.substr(start - 1, len) : text::mid(t, start, len);
}
}  // namespace

std::string ConvertDate(std::string_view value) {
    const std::string_view t = text::trim_blanks(value);
    const std::size_t chars = text::char_count(t);
    if (chars != 8) return std::string(t);
    std::string out;
    out.reserve(t.size() + 2);
    out.append(piece(t, chars, 1, 4)).append("-").append(piece(t, chars, 5, 2)).append("-");
    out.append(piece(t, chars, 7, 2));
    return out;
}

std::string ConvertDateTimeToISO(std::string_view value) {
    const std::string_view t = text::trim_blanks(value);
    const std::size_t chars = text::char_count(t);
    if (chars != 20) return std::string(t);
    std::string out;
    out.reserve(t.size() + 6);
    out.append(piece(t, chars, 1, 4)).append("-").append(piece(t, chars, 5, 2)).append("-");
    out.append(piece(t, chars, 7, 2)).append("T").append(piece(t, chars, 9, 2)).append(":");
    out.append(piece(t, chars, 11, 2)).append(":").append(piece(t, chars, 13, 2)).append(".");
    out.append(t.size() == chars ? t.substr(14) : text::right(t, 6));
    return out;
}

}  // namespace tamrel::mlGen

namespace tamrel::mlGlobal {

CurrDate::CurrDate(std::string_view dateText, int format, const Date& date) {
    std::string_view t = dateText;
    std::size_t chars = text::char_count(dateText);
    if (chars < 8) {
        t = std::string_view(own_, static_cast<std::size_t>(put_yyyymmdd(own_, date) - own_));
        chars = 8;
    }
    // Day from the right end, month from characters 5-6, year from 1-4.
    const bool ascii = t.size() == chars;
    const std::string_view day = ascii ? t.substr(t.size() - 2) : text::right(t, 2);
    const std::string_view month = ascii ? t.substr(4, 2) : text::mid(t, 5, 2);
    const std::string_view year = ascii ? t.substr(0, 4) : text::left(t, 4);
    const auto add = [this](std::string_view piece) { pieces_[count_++] = piece; };
    switch (format) {
        case 0: add(year), add(month), add(day); break;
        case 1:
            add(year), add(month), add(day);
            if (chars >= 14)
                add(ascii ? t.substr(8, 6) : text::mid(t, 9, 6));
            else
                add({own_ + 8, static_cast<std::size_t>(put_hhnnss(own_ + 8, date) - (own_ + 8))});
            break;
        case 2: add(day), add(month), add(year); break;
        default: break;
    }
}

void AppendCurrDate(std::string& out, std::string_view dateText, int format, const Date& date) {
    const CurrDate text(dateText, format, date);
    for (std::string_view piece : text.pieces()) out.append(piece);
}

std::string GetCurrDate(std::string_view dateText, int format, const Date& date) {
    std::string out;
    AppendCurrDate(out, dateText, format, date);
    return out;
}

}  // namespace tamrel::mlGlobal
