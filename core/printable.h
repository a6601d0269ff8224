// A value as a message may quote it: control characters (C0, DEL, C1 —
// line feeds, the escape that starts a terminal sequence) are named by
// their code as <U+001B>, and bytes that are not UTF-8 as <0xC3>, so that
// no message writes raw control bytes to a terminal or breaks a log line.
#pragma once
#include <string>
#include <string_view>

namespace tamrel {

std::string printable(std::string_view utf8);

// "U+0141": a character named by its code point, for messages.
std::string code_point_name(char32_t c);

}  // namespace tamrel
