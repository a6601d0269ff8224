// The bounds within which JSON from outside is read: a request line or a
// report line, and how deeply its values nest. Whatever arrives, reading it
// takes memory and time in proportion to these bounds, and nesting cannot
// exhaust the stack of the routines that walk a document.
#pragma once
#include <cstddef>
#include <string_view>

#include <nlohmann/json.hpp>

#include "json/json_binding.h"

namespace tamrel {

// One request of the call protocol, or one report line of an NDJSON file.
inline constexpr std::size_t kMaxLineBytes = std::size_t{1} << 20;
// Objects and arrays within one another. A data object needs four levels.
inline constexpr int kMaxJsonDepth = 32;
// Values in one document (a job file with its reports inline), counted as
// its objects, arrays and separating commas.
inline constexpr std::size_t kMaxJsonValues = 2'000'000;

// An object that names a key twice ("args.objMeldung.KsZeileA.1: given
// twice"): the parser would keep only the last value.
struct DuplicateKey : json_binding::RequestError {
    using RequestError::RequestError;
};

// The text of the error for a line above kMaxLineBytes.
std::string line_too_long_text(std::size_t bytes);

// Parses JSON text, refusing nesting deeper than kMaxJsonDepth and more than
// kMaxJsonValues values. Throws nlohmann::json::exception for text that is
// not JSON, DuplicateKey for an object that names a key twice, and
// json_binding::RequestError for a document beyond the bounds.
nlohmann::json parse_bounded(std::string_view text);

}  // namespace tamrel
