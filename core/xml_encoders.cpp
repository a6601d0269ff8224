#include "core/xml_encoders.h"

#include "core/joined.h"
#include "core/mlGen.h"
#include "core/text.h"

namespace tamrel::mlGen {

namespace {
bool has_control(std::string_view s) {
    if (!bytes::any_below_0e(s.data(), s.size())) return false;  // mostly: tested a word at a time
    for (char c : s)
        if (is_dropped_control(c)) return true;
    return false;
}
}  // namespace

void AppendAnXML(std::string& out, std::string_view name, std::string_view value, bool& flag) {
    std::string cleaned;  // only when there are control characters to drop
    if (has_control(value)) value = cleaned = ReplaceSpecialCharText(value);
    const std::string_view v = text::trim_blanks(value);
    if (v.empty()) {
        append_joined(out, {"<", name, " xsi:nil=\"true\"/>"});
        return;
    }
    append_joined(out, {"<", name, ">", v, "</", name, ">"});
    flag = false;
}

void AppendDateXML(std::string& out, std::string_view name, std::string_view value, bool& flag) {
    std::string_view v = text::trim_blanks(value);
    std::size_t n = text::char_count(v);
    if (n == 8)
        AppendAnXML(out, name, ConvertDate(v), flag);
    else if (n == 20)
        AppendAnXML(out, name, ConvertDateTimeToISO(v), flag);
    else
        AppendAnXML(out, name, v, flag);
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

}  // namespace tamrel::mlGen
