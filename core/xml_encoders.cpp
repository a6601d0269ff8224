#include "core/xml_encoders.h"

#include "core/mlGen.h"
#include "core/text.h"

namespace tamrel::mlGen {

void AppendAnXML(std::string& out, std::string_view name, std::string_view value, bool& flag) {
    std::string cleaned = ReplaceSpecialCharText(value);
    std::string_view v = text::trim_blanks(cleaned);
    out += '<';
    out += name;
    if (v.empty()) {
        out += " xsi:nil=\"true\"/>";
        return;
    }
    out += '>';
    out += v;
    out += "</";
    out += name;
    out += '>';
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
