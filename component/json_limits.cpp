#include "component/json_limits.h"

#include <string>

#include "component/json_binding.h"

namespace tamrel {
namespace {

using nlohmann::json;

// Checks the bounds in one pass over the text before it is parsed (the
// parser's own callback interface rescans each array after every element,
// which is quadratic in the array's length).
void check_bounds(std::string_view text) {
    int depth = 0;
    std::size_t values = 0;
    bool in_string = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (in_string) {
            if (c == '\\') ++i;
            else if (c == '"') in_string = false;
            continue;
        }
        switch (c) {
            case '"': in_string = true; break;
            case '[':
            case '{':
                if (++depth > kMaxJsonDepth)
                    throw json_binding::RequestError("nested deeper than " + std::to_string(kMaxJsonDepth) + " levels");
                [[fallthrough]];
            case ',':
                if (++values > kMaxJsonValues)
                    throw json_binding::RequestError("more than " + std::to_string(kMaxJsonValues) + " values");
                break;
            case ']':
            case '}': --depth; break;
            default: break;
        }
    }
}

}  // namespace

std::string line_too_long_text(std::size_t bytes) {
    return "line of " + std::to_string(bytes) + " bytes or more, longer than the limit of " +
           std::to_string(kMaxLineBytes) + " bytes";
}

json parse_bounded(std::string_view text) {
    check_bounds(text);
    return json::parse(text);
}

}  // namespace tamrel
