// Writing a text as a JSON string the way the call protocol's general path
// (nlohmann-json's serializer) writes it: UTF-8 kept as it is, '"' and '\'
// and the control characters escaped. The records a call returns are long
// runs of plain bytes, so the text is searched 32 or 16 bytes a step for the
// few that need an escape, and copied a run at a time.
#pragma once
#include <string>
#include <string_view>

namespace tamrel {

// Appends `s` quoted and escaped to `out`; false (with `out` partly
// written) when `s` is not valid UTF-8.
bool append_json_string(std::string& out, std::string_view s);

}  // namespace tamrel
