#include "reader/field_kinds.h"

#include "checks/numbers.h"
#include "checks/rules.h"
#include "checks/values.h"

namespace tamrel::checks {
namespace {

bool all_digits(std::u32string_view s) {
    for (char32_t c : s)
        if (c < U'0' || c > U'9') return false;
    return true;
}

bool all_of(std::u32string_view s, char32_t c) { return s.find_first_not_of(c) == std::u32string_view::npos; }

// ASCII text of a field that holds ASCII only (checked by the caller).
std::string ascii(std::u32string_view s) {
    std::string out(s.size(), ' ');
    for (std::size_t i = 0; i < s.size(); ++i) out[i] = static_cast<char>(s[i]);
    return out;
}

// YYYYMMDD of a real day, eight digits (checked by the caller), without a copy.
bool date_of_digits(std::u32string_view s) {
    char d[8];
    for (std::size_t i = 0; i < 8; ++i) d[i] = static_cast<char>(s[i]);
    return is_date(std::string_view(d, 8));
}

std::u32string_view trimmed(std::u32string_view s) {
    while (!s.empty() && s.back() == U' ') s.remove_suffix(1);
    return s;
}

bool ascii_only(std::u32string_view s) {
    for (char32_t c : s)
        if (c >= 0x80) return false;
    return true;
}

bool literal_is(std::u32string_view s, std::string_view literal) {
    if (s.size() != literal.size()) return false;
    for (std::size_t i = 0; i < s.size(); ++i)
        if (s[i] != static_cast<unsigned char>(literal[i])) return false;
    return true;
}

bool date_time(std::u32string_view s) {
    if (s.size() != 14 || !all_digits(s)) return false;
    const std::string t = ascii(s);
    return is_date(t.substr(0, 8)) && t.substr(8, 2) <= "23" && t.substr(10, 2) <= "59" && t.substr(12, 2) <= "59";
}

}  // namespace

const Rule* fault(std::u32string_view text, const FieldLayout& f) {
    switch (f.kind) {
        case FieldKind::Literal:
            return literal_is(text, f.literal) ? nullptr : &kFieldLiteral;
        case FieldKind::N:
            return text.size() == f.len && all_digits(text) ? nullptr : &kDigits;
        case FieldKind::DateOrBlank:
            if (all_of(text, U' ')) return nullptr;
            [[fallthrough]];
        case FieldKind::Date:
            if (text.size() != 8 || !all_digits(text)) return &kDate;
            return all_of(text, U'0') || all_of(text, U'9') || date_of_digits(text) ? nullptr : &kDate;
        case FieldKind::DateTime:
            return date_time(text) ? nullptr : &kDateTime;
        case FieldKind::Flag:
            return text == U"J" || text == U"N" ? nullptr : &kFlag;
        case FieldKind::Amount:
            return all_digits(text) && text.size() == f.len ? nullptr : &kAmountDigits;
        case FieldKind::SignedAmount:
            return text.size() == f.len && !text.empty() && (text[0] == U'+' || text[0] == U'-') &&
                           all_digits(text.substr(1))
                       ? nullptr
                       : &kAmountDigits;
        case FieldKind::Vsnr: {
            const std::u32string_view v = trimmed(text);
            if (v.empty() || all_of(v, U'0')) return nullptr;  // none given, or pseudonymised
            return ascii_only(v) ? versicherungsnummer_fault(ascii(v)) : &kVsnrForm;
        }
        case FieldKind::Bnr: {
            const std::u32string_view v = trimmed(text);
            if (v.empty()) return nullptr;
            return ascii_only(v) ? betriebsnummer_fault(ascii(v)) : &kBnrForm;
        }
        case FieldKind::Code:
        case FieldKind::An:
            return nullptr;
    }
    return nullptr;
}

std::string decoded(const std::string& raw, const FieldLayout& f) {
    std::string s = raw;
    switch (f.kind) {
        case FieldKind::An:
        case FieldKind::Code:
        case FieldKind::Vsnr:
        case FieldKind::Bnr:
            while (!s.empty() && s.back() == ' ') s.pop_back();
            break;
        case FieldKind::N: {
            const std::size_t first = s.find_first_not_of('0');
            s = first == std::string::npos ? (s.empty() ? s : "0") : s.substr(first);
            break;
        }
        case FieldKind::Date:
        case FieldKind::DateOrBlank:
        case FieldKind::DateTime:
            if (s.find_first_not_of('0') == std::string::npos || s.find_first_not_of(' ') == std::string::npos) {
                s.clear();  // none given
            } else if (s.find_first_not_of('9') == std::string::npos) {
                s = "open";
            } else if (s.size() >= 8) {
                std::string d = s.substr(0, 4) + "-" + s.substr(4, 2) + "-" + s.substr(6, 2);
                if (s.size() == 14) d += "T" + s.substr(8, 2) + ":" + s.substr(10, 2) + ":" + s.substr(12, 2);
                s = d;
            }
            break;
        case FieldKind::Amount:
        case FieldKind::SignedAmount: {
            std::string sign;
            if (f.kind == FieldKind::SignedAmount && !s.empty()) sign = s[0] == '-' ? "-" : "", s.erase(0, 1);
            const std::size_t point = s.size() >= f.decimals ? s.size() - f.decimals : 0;
            std::string whole = s.substr(0, point);
            const std::size_t first = whole.find_first_not_of('0');
            whole = first == std::string::npos ? "0" : whole.substr(first);
            s = sign + whole + (f.decimals ? "," + s.substr(point) : std::string());
            break;
        }
        case FieldKind::Literal:
        case FieldKind::Flag:
            break;
    }
    return s;
}

const char* kind_name(FieldKind k) {
    switch (k) {
        case FieldKind::Literal:
            return "fixed";
        case FieldKind::Code:
            return "code";
        case FieldKind::An:
            return "text";
        case FieldKind::N:
            return "digits";
        case FieldKind::Date:
            return "date";
        case FieldKind::DateOrBlank:
            return "date/blank";
        case FieldKind::DateTime:
            return "date-time";
        case FieldKind::Flag:
            return "flag";
        case FieldKind::Amount:
            return "amount";
        case FieldKind::SignedAmount:
            return "amount+-";
        case FieldKind::Vsnr:
            return "vsnr";
        case FieldKind::Bnr:
            return "bnr";
    }
    return "";
}

}  // namespace tamrel::checks
