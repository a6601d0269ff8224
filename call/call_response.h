// What the call protocol's fast readers share: the request's head (method,
// clock, id), the method table lookup, the argument-name check, and the
// response written straight into the caller's buffer.
#pragma once
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "call/call_registry.h"
#include "core/error.h"
#include "core/short_bytes.h"
#include "json/json_escape.h"
#include "json/json_scan.h"

namespace tamrel::fast_call {

// What the readers find in a request besides its arguments.
struct Head {
    const Method* method = nullptr;
    bool has_now = false;
    Date now;
    enum { None, Integer, Text } id = None;
    std::int64_t id_integer = 0;
    std::string_view id_text;
};

// The class's method, or nullptr where the general path must answer.
const Method* find_method(std::string_view cls, std::string_view name);

// "now": a date text, not empty.
bool parse_now(std::string_view text, Head& head);

// The request's keys besides "args", read as they come (through a value
// adapter of json_binding.h), each once.
class HeadReader {
public:
    Head head;

    // False where the request is left to the next reader: a key given
    // twice, a value of another type, "tests", or a key that is a request
    // error.
    template <class Value>
    bool read(std::string_view key, const Value& value) {
        if (key == "class") return first(kClass) && value.get_string(cls_);
        if (key == "method") return first(kMethod) && value.get_string(name_);
        if (key == "now") {
            std::string_view text;
            return first(kNow) && value.get_string(text) && parse_now(text, head);
        }
        if (key == "id") {
            if (!first(kId)) return false;
            if (value.get_string(head.id_text)) return head.id = Head::Text, true;
            constexpr std::int64_t kLimit = 999'999'999'999'999'999;  // what the scanner reads of an integer
            return value.is_integer() && value.integer(-kLimit, kLimit, head.id_integer) &&
                   (head.id = Head::Integer, true);
        }
        return false;
    }
    // Whether class and method were given and name a method, now head.method.
    bool find() { return (seen_ & kClass) && (seen_ & kMethod) && (head.method = find_method(cls_, name_)); }

private:
    enum : unsigned { kClass = 1, kMethod = 2, kNow = 4, kId = 8 };
    bool first(unsigned key) { return !(seen_ & key) && (seen_ |= key); }
    unsigned seen_ = 0;
    std::string_view cls_, name_;
};

// Every argument name (as `each_name(f)` hands them to f) known, every
// required one given.
template <class EachName>
bool arguments_fit(const Method& method, EachName&& each_name) {
    std::size_t required = 0;
    const bool known = each_name([&](std::string_view name) {
        const auto is = [name](const std::string& n) { return bytes::equal(n, name); };
        if (std::any_of(method.required.begin(), method.required.end(), is)) return ++required, true;
        return std::any_of(method.optional.begin(), method.optional.end(), is);
    });
    return known && required == method.required.size();
}

bool append_lines(std::string& out, const std::vector<std::string>& lines);

// The scanning reader (component/call_scan.cpp): false where it leaves the
// line to the DOM reader.
bool scan_call(std::string_view line, std::string& out);

// Runs the method on the arguments that `invocation(host)` reads and writes
// the response into `out`; false where a request error (or a value the
// reader gave up on) leaves the request to the general path.
template <class MakeInvocation>
bool respond(const Head& p, MakeInvocation&& invocation, std::string& out) {
    std::vector<std::string> lines;
    Host host;
    host.log = [&lines](std::string_view l) { lines.emplace_back(l); };
    if (p.has_now)
        host.now = [&p] { return p.now; };
    else
        host.now = [] { return system_now(); };

    out.clear();
    out += '{';
    if (p.id == Head::Integer) out += "\"id\":" + std::to_string(p.id_integer) + ',';
    if (p.id == Head::Text) {
        out += "\"id\":";
        if (!append_json_string(out, p.id_text)) return false;
        out += ',';
    }
    try {
        Invocation inv = invocation(host);
        const std::string result = p.method->run(inv);
        out += "\"result\":";
        if (!append_json_string(out, result)) return false;
        out += ",\"out\":";
        out += inv.out().empty() ? std::string("{}")
                                 : inv.out().dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
        out += ',';
    } catch (const json_binding::RequestError&) {
        return false;
    } catch (const json_binding::ScanMiss&) {
        return false;
    } catch (const Error& e) {
        out += "\"error\":{\"number\":" + std::to_string(e.number()) + ",\"source\":";
        if (!append_json_string(out, e.source())) return false;
        out += ",\"description\":";
        if (!append_json_string(out, e.description())) return false;
        out += "},";
    }
    if (!append_lines(out, lines)) return false;
    out += '}';
    return true;
}

}  // namespace tamrel::fast_call
