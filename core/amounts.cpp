#include "core/amounts.h"

#include "core/error.h"
#include "core/routine.h"
#include "core/text.h"

namespace tamrel::mlGen {
namespace {

// The walk of the amount encoders: digits, signs, separators. Returns the
// sign character seen last (0 when none).
char split_amount(std::string_view value, std::string& vor, std::string& nach, bool sign_allowed, const char* source,
                  int& line) {
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
        if (!text::all_of(vor, '0') || !text::all_of(nach, '0')) filled = true;
        if (signed_) out += sign ? sign : '+';
        out += vor;
        out += nach;
    });
}

}  // namespace

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
            if (separator_seen ? nn == kMax : nv == kMax)
                ok = false;
            else if (separator_seen)
                nach[nn++] = c;
            else
                vor[nv++] = c;
        } else if (c == '+' || c == '-') {
            if (with_sign)
                sign = c;
            else
                ok = c == '+';
        } else if (c == ',' || c == '.') {
            if (separator_seen) {
                if (nv + nn > kMax)
                    ok = false;
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

}  // namespace tamrel::mlGen
