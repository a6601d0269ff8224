// The document around the XML report's fragments: the declaration with the
// file's encoding and the root element `kotkv`, one line each, and the
// root's end after the trailer. clsGenAsyl makes the fragments; whoever
// writes a whole file puts them between these lines.
#pragma once
#include <string>
#include <string_view>

namespace tamrel::xml {

inline std::string declaration(std::string_view encoding) {
    return "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?>";
}
inline constexpr std::string_view kRootOpen = "<kotkv xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">";
inline constexpr std::string_view kRootClose = "</kotkv>";

}  // namespace tamrel::xml
