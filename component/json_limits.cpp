#include "component/json_limits.h"

#include <istream>
#include <string>

#include "component/json_binding.h"

namespace tamrel {
namespace {

using nlohmann::json;

// The parser's callback, called for every value and every start and end of
// an object or array.
struct Bounds {
    std::size_t values = 0;
    bool operator()(int depth, json::parse_event_t event, json&) {
        if ((event == json::parse_event_t::object_start || event == json::parse_event_t::array_start) &&
            depth >= kMaxJsonDepth)
            throw json_binding::RequestError("nested deeper than " + std::to_string(kMaxJsonDepth) + " levels");
        if (event == json::parse_event_t::value && ++values > kMaxJsonValues)
            throw json_binding::RequestError("more than " + std::to_string(kMaxJsonValues) + " values");
        return true;
    }
};

}  // namespace

std::string line_too_long_text(std::size_t bytes) {
    return "line of " + std::to_string(bytes) + " bytes or more, longer than the limit of " +
           std::to_string(kMaxLineBytes) + " bytes";
}

json parse_bounded(std::string_view text) { return json::parse(text, Bounds{}); }
json parse_bounded(std::istream& in) { return json::parse(in, Bounds{}); }

}  // namespace tamrel
