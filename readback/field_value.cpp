#include "readback/field_value.h"

namespace tamrel::readback {

namespace {

bool all_of(std::string_view chars, char c) { return chars.find_first_not_of(c) == std::string_view::npos; }

std::string amount_value(std::string_view chars, const FieldLayout& f) {
    std::string sign;
    if (f.kind == FieldKind::SignedAmount && !chars.empty()) {
        if (chars[0] == '-') sign = "-";
        chars.remove_prefix(1);
    }
    if (all_of(chars, '0')) return sign.empty() ? std::string() : sign + "0";
    const std::size_t places = chars.size() >= f.decimals ? chars.size() - f.decimals : 0;
    std::string_view whole = chars.substr(0, places);
    while (whole.size() > 1 && whole[0] == '0') whole.remove_prefix(1);
    std::string v = sign + std::string(whole.empty() ? "0" : whole);
    if (f.decimals > 0) v += ',' + std::string(chars.substr(places));
    return v;
}

}  // namespace

std::string field_value(std::string_view chars, const FieldLayout& f) {
    switch (f.kind) {
        case FieldKind::N:
        case FieldKind::Date:
        case FieldKind::DateTime:
            return all_of(chars, '0') ? std::string() : std::string(chars);
        case FieldKind::Amount:
        case FieldKind::SignedAmount:
            return amount_value(chars, f);
        case FieldKind::Flag:
        case FieldKind::Literal:
            return std::string(chars);
        default: {
            const std::size_t end = chars.find_last_not_of(' ');
            return std::string(chars.substr(0, end == std::string_view::npos ? 0 : end + 1));
        }
    }
}

}  // namespace tamrel::readback
