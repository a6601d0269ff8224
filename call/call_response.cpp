#include "call/call_response.h"

namespace tamrel::fast_call {

// The last method found is remembered, as a caller mostly calls one method
// over and over (the table is built once, so its entries stay where they are).
const Method* find_method(std::string_view cls, std::string_view name) {
    thread_local std::string last_cls, last_name;
    thread_local const Method* last = nullptr;
    if (last && bytes::equal(cls, last_cls) && bytes::equal(name, last_name)) return last;
    if (cls == "clsGenDef") return nullptr;
    const auto c = registry().find(cls);
    if (c == registry().end()) return nullptr;
    const auto m = c->second.find(name);
    if (m == c->second.end()) return nullptr;
    last_cls.assign(cls);
    last_name.assign(name);
    return last = &m->second;
}

bool parse_now(std::string_view text, Head& head) {
    const auto d = parse_iso_date(text);
    if (!d || d->is_empty()) return false;
    head.has_now = true;
    head.now = *d;
    return true;
}

bool append_lines(std::string& out, const std::vector<std::string>& lines) {
    out += "\"log\":[";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i) out += ',';
        if (!append_json_string(out, lines[i])) return false;
    }
    out += ']';
    return true;
}

}  // namespace tamrel::fast_call
