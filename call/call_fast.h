// The fast path of the call protocol: a request line read with simdjson's
// DOM parser and answered without a general JSON document, for the
// requests that are plainly valid. Whatever it is not sure of (text that is
// not JSON, duplicate keys, deep nesting, unknown names, values of the
// wrong type, test answers, an id other than an integer or a plain text, a
// response text that is not UTF-8) it leaves to the general path, which
// gives every request error its exact text; a test holds the two paths to
// the same responses.
#pragma once
#include <string>
#include <string_view>

namespace tamrel {

// Writes the response line into `out` (emptied first, its buffer kept);
// false where the general path must answer.
bool fast_call_line(std::string_view line, std::string& out);

}  // namespace tamrel
