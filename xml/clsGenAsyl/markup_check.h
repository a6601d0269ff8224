// The XML report's builders insert every text as it is, so a text holding a
// markup character would break the document: the rule MARKUP of the checks
// and the file writer's refusal run before them, wherever texts go into an
// XML report.
#pragma once
#include <string_view>

namespace tamrel::xml {

inline bool holds_markup(std::string_view text) { return text.find_first_of("&<>") != std::string_view::npos; }

// What is wrong with such a text, after the name of its property.
inline constexpr std::string_view kMarkupFault =
    "holds a markup character (&, < or >), which an XML report cannot carry";

}  // namespace tamrel::xml
