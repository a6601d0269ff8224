#include "core/xml_encoders.h"

#include "core/date_fields.h"
#include "core/joined.h"
#include "core/text.h"
#include "core/text_fields.h"

namespace tamrel::mlGen {

namespace {
bool has_control(std::string_view s) {
    if (!bytes::any_below_0e(s.data(), s.size())) return false;  // mostly: tested a word at a time
    for (char c : s)
        if (is_dropped_control(c)) return true;
    return false;
}

[[gnu::always_inline]] inline char* copy(char* d, std::string_view s) {
    bytes::copy_short(d, s.data(), s.size());
    return d + s.size();
}

[[gnu::always_inline]] inline char* put_element(char* d, std::string_view name, std::string_view value, bool& flag) {
    const std::string_view v = text::trim_blanks(value);
    *d++ = '<';
    d = copy(d, name);
    if (v.empty()) return copy(d, " xsi:nil=\"true\"/>");
    *d++ = '>';
    d = copy(d, v);
    d = copy(d, "</");
    d = copy(d, name);
    *d++ = '>';
    flag = false;
    return d;
}

// Control characters are dropped first (rare: kept out of the common path).
[[gnu::noinline]] char* put_cleaned(char* d, std::string_view name, std::string_view value, bool& flag) {
    return put_element(d, name, ReplaceSpecialCharText(value), flag);
}
}  // namespace

char* PutAnXML(char* d, std::string_view name, std::string_view value, bool& flag) {
    return has_control(value) ? put_cleaned(d, name, value, flag) : put_element(d, name, value, flag);
}

char* PutDateXML(char* d, std::string_view name, std::string_view value, bool& flag) {
    const std::string_view v = text::trim_blanks(value);
    const std::size_t n = text::char_count(v);
    if (n == 8) return PutAnXML(d, name, ConvertDate(v), flag);
    if (n == 20) return PutAnXML(d, name, ConvertDateTimeToISO(v), flag);
    return PutAnXML(d, name, v, flag);
}

void AppendAnXML(std::string& out, std::string_view name, std::string_view value, bool& flag) {
    append_put(out, XMLRoom(name, value), [&](char* d) { return PutAnXML(d, name, value, flag); });
}

void AppendDateXML(std::string& out, std::string_view name, std::string_view value, bool& flag) {
    append_put(out, XMLRoom(name, value) + 8, [&](char* d) { return PutDateXML(d, name, value, flag); });
}

std::string StrToAnXML(std::string_view name, std::string_view value, bool& flag) {
    std::string out;
    AppendAnXML(out, name, value, flag);
    return out;
}

std::string StrToNXML(std::string_view name, std::string_view value, bool& flag) {
    return StrToAnXML(name, value, flag);
}

std::string StrToDateXML(std::string_view name, std::string_view value, bool& flag) {
    std::string out;
    AppendDateXML(out, name, value, flag);
    return out;
}

std::string ReplaceSpecialCharText(std::string_view value) {
    std::string out;
    out.reserve(value.size());
    for (char c : value)
        if (!is_dropped_control(c)) out += c;
    return out;
}

}  // namespace tamrel::mlGen
