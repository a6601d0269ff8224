// Element encoders of the XML report: one complete element per field, a nil
// element for an empty value. Values are inserted as they are (no escaping).
// The flag is the caller's "block still empty" marker: an element written
// with content clears it; nothing ever sets it.
#pragma once
#include <string>
#include <string_view>

namespace tamrel::mlGen {

// The text without the control characters the text encoders drop.
std::string ReplaceSpecialCharText(std::string_view text);

std::string StrToAnXML(std::string_view name, std::string_view value, bool& flag);
std::string StrToNXML(std::string_view name, std::string_view value, bool& flag);
std::string StrToDateXML(std::string_view name, std::string_view value, bool& flag);

void AppendAnXML(std::string& out, std::string_view name, std::string_view value, bool& flag);
void AppendDateXML(std::string& out, std::string_view name, std::string_view value, bool& flag);

// The same writing at `d`, which has room for XMLRoom bytes (a date element
// eight more); they return the end of the element.
inline std::size_t XMLRoom(std::string_view name, std::string_view value) {
    return 2 * name.size() + value.size() + 24;
}
char* PutAnXML(char* d, std::string_view name, std::string_view value, bool& flag);
char* PutDateXML(char* d, std::string_view name, std::string_view value, bool& flag);

}  // namespace tamrel::mlGen
