// The call protocol: one JSON request in, one JSON response out, for every
// public method of every creatable class.
#pragma once
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace tamrel {

// The response to one request object (result/out/log, error/log, or
// request_error).
nlohmann::ordered_json call(const nlohmann::json& request);

// One NDJSON line in, one response line out (without line ending).
// `request_error` tells whether the line was not a valid request.
std::string call_line(std::string_view line, bool& request_error);

}  // namespace tamrel
