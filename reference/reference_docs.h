// The reference documentation, made from the tables it describes so that
// it cannot drift from them: the call protocol (every class and method with
// its parameters, and examples that are run to write their responses), and
// one page per data object (every property, its type, the record fields it
// feeds, and when the checks require it). `tamrel docs` writes it; a test
// compares it with docs/.
#pragma once
#include <map>
#include <string>

namespace tamrel {

// File name below docs/ ("call-protocol.md", "properties/Meldung.md") to text.
std::map<std::string, std::string> reference_docs();

}  // namespace tamrel
