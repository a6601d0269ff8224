#include "readback/field_value.h"

namespace tamrel::readback {

namespace {

bool all_of(std::string_view chars, char c) { return chars.find_first_not_of(c) == std::string_view::npos; }

std::string_view amount_value(std::string_view chars, const FieldLayout& f, std::string& v) {
    v.clear();
    if (f.kind == FieldKind::SignedAmount && !chars.empty()) {
        if (chars[0] == '-') v = "-";
        chars.remove_prefix(1);
    }
    if (all_of(chars, '0')) return v.empty() ? std::string_view() : (v += '0', std::string_view(v));
    const std::size_t places = chars.size() >= f.decimals ? chars.size() - f.decimals : 0;
    std::string_view whole = chars.substr(0, places);
    while (whole.size() > 1 && whole[0] == '0') whole.remove_prefix(1);
    v += whole.empty() ? std::string_view("0") : whole;
    if (f.decimals > 0) (v += ',') += chars.substr(places);
    return v;
}

}  // namespace

std::string_view field_value(std::string_view chars, const FieldLayout& f, std::string& scratch) {
    switch (f.kind) {
        case FieldKind::N:
        case FieldKind::Date:
        case FieldKind::DateTime:
            return all_of(chars, '0') ? std::string_view() : chars;
        case FieldKind::Amount:
        case FieldKind::SignedAmount:
            return amount_value(chars, f, scratch);
        case FieldKind::Flag:
        case FieldKind::Literal:
            return chars;
        default: {
            const std::size_t end = chars.find_last_not_of(' ');
            return chars.substr(0, end == std::string_view::npos ? 0 : end + 1);
        }
    }
}

}  // namespace tamrel::readback
