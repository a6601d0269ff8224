#include "readback/field_value.h"

namespace tamrel::readback {

// Integer places without leading zeros, a comma and the decimal places;
// zeros only: empty; a "-" kept in front.
std::string_view amount_value(std::string_view chars, const FieldLayout& f, std::string& v) {
    v.clear();
    if (f.kind == FieldKind::SignedAmount && !chars.empty()) {
        if (chars[0] == '-') v = "-";
        chars.remove_prefix(1);
    }
    if (text::all_of(chars, '0')) return v.empty() ? std::string_view() : (v += '0', std::string_view(v));
    const std::size_t places = chars.size() >= f.decimals ? chars.size() - f.decimals : 0;
    std::string_view whole = chars.substr(0, places);
    while (whole.size() > 1 && whole[0] == '0') whole.remove_prefix(1);
    v += whole.empty() ? std::string_view("0") : whole;
    if (f.decimals > 0) (v += ',') += chars.substr(places);
    return v;
}

}  // namespace tamrel::readback
