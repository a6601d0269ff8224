#include "component/call_fast.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "component/call_registry.h"
#include "component/json_limits.h"
#include "core/error.h"

namespace tamrel {
namespace {

using simdjson::dom::element;
using simdjson::dom::element_type;
using simdjson::dom::object;

// An object's keys, each given once (the data objects' readers refuse a
// property given twice themselves).
bool keys_once(object o) {
    std::string_view keys[16];
    std::size_t n = 0;
    for (simdjson::dom::key_value_pair kv : o) {
        if (n == std::size(keys) || std::find(keys, keys + n, kv.key) != keys + n) return false;
        keys[n++] = kv.key;
    }
    return true;
}

// Appends `s` as a JSON string as the general path's serializer writes it
// (UTF-8 kept, control characters escaped); false for text that is not UTF-8.
// Whether any of the eight bytes of `w` needs an escape: below 0x20, '"'
// or '\\'.
inline bool any_special(std::uint64_t w) {
    constexpr std::uint64_t ones = 0x0101010101010101ULL, highs = 0x8080808080808080ULL;
    auto zero_byte = [](std::uint64_t x) { return (x - ones) & ~x & highs; };
    const std::uint64_t below = (w - ones * 0x20) & ~w & highs;
    return (below | zero_byte(w ^ (ones * '"')) | zero_byte(w ^ (ones * '\\'))) != 0;
}

bool append_string(std::string& out, std::string_view s) {
    if (!simdjson::validate_utf8(s.data(), s.size())) return false;
    out += '"';
    std::size_t from = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        // Whole words of plain bytes are passed over eight at a time.
        while (i + 8 <= s.size()) {
            std::uint64_t w;
            std::memcpy(&w, s.data() + i, 8);
            if (any_special(w)) break;
            i += 8;
        }
        if (i >= s.size()) break;
        const auto c = static_cast<unsigned char>(s[i]);
        if (c >= 0x20 && c != '"' && c != '\\') continue;
        out.append(s, from, i - from);
        from = i + 1;
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\b':
                out += "\\b";
                break;
            case '\t':
                out += "\\t";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\f':
                out += "\\f";
                break;
            case '\r':
                out += "\\r";
                break;
            default: {
                char u[7];
                std::snprintf(u, sizeof u, "\\u%04x", c);
                out += u;
            }
        }
    }
    out.append(s, from, s.size() - from);
    out += '"';
    return true;
}

bool append_lines(std::string& out, const std::vector<std::string>& lines) {
    out += "\"log\":[";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i) out += ',';
        if (!append_string(out, lines[i])) return false;
    }
    out += ']';
    return true;
}

// What both readers find in a request, besides its arguments.
struct Parsed {
    const Method* method = nullptr;
    bool has_now = false;
    Date now;
    enum { None, Integer, Text } id = None;
    std::int64_t id_integer = 0;
    std::string_view id_text;
};

// The class's method, or nullptr where the general path must answer.
const Method* find_method(std::string_view cls, std::string_view name) {
    if (cls == "clsGenDef") return nullptr;
    const auto c = registry().find(cls);
    if (c == registry().end()) return nullptr;
    const auto m = c->second.find(name);
    return m == c->second.end() ? nullptr : &m->second;
}

// Every argument name known, every required one given once.
template <class Names>
bool arguments_fit(const Method& method, const Names& names) {
    std::size_t required = 0;
    for (std::string_view name : names) {
        if (std::find(method.required.begin(), method.required.end(), name) != method.required.end())
            ++required;
        else if (std::find(method.optional.begin(), method.optional.end(), name) == method.optional.end())
            return false;
    }
    return required == method.required.size();
}

bool parse_now(std::string_view text, Parsed& p) {
    const auto d = parse_iso_date(text);
    if (!d || d->is_empty()) return false;
    p.has_now = true;
    p.now = *d;
    return true;
}

// Runs the method on the arguments that `invocation(host)` reads and writes
// the response; nothing where a request error (or a value the reader gave
// up on) leaves the request to the general path.
template <class MakeInvocation>
std::optional<std::string> respond(const Parsed& p, MakeInvocation&& invocation) {
    std::vector<std::string> lines;
    Host host;
    host.log = [&lines](std::string_view l) { lines.emplace_back(l); };
    if (p.has_now)
        host.now = [&p] { return p.now; };
    else
        host.now = [] { return system_now(); };

    std::string out;
    out.reserve(4096);
    out += '{';
    if (p.id == Parsed::Integer) out += "\"id\":" + std::to_string(p.id_integer) + ',';
    if (p.id == Parsed::Text) {
        out += "\"id\":";
        if (!append_string(out, p.id_text)) return std::nullopt;
        out += ',';
    }
    try {
        Invocation inv = invocation(host);
        const std::string result = p.method->run(inv);
        out += "\"result\":";
        if (!append_string(out, result)) return std::nullopt;
        out += ",\"out\":";
        out += inv.out().empty() ? std::string("{}")
                                 : inv.out().dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
        out += ',';
    } catch (const json_binding::RequestError&) {
        return std::nullopt;
    } catch (const Error& e) {
        out += "\"error\":{\"number\":" + std::to_string(e.number()) + ",\"source\":";
        if (!append_string(out, e.source())) return std::nullopt;
        out += ",\"description\":";
        if (!append_string(out, e.description())) return std::nullopt;
        out += "},";
    }
    if (!append_lines(out, lines)) return std::nullopt;
    out += '}';
    return out;
}

// The request read through simdjson's DOM.
std::optional<std::string> document_call(std::string_view line) {
    // The line in a buffer with simdjson's padding, kept for the next line.
    thread_local simdjson::dom::parser parser;
    thread_local std::string padded;
    padded.reserve(line.size() + simdjson::SIMDJSON_PADDING);
    padded.assign(line);
    element doc;
    if (parser.parse(padded.data(), padded.size(), false).get(doc) || doc.type() != element_type::OBJECT)
        return std::nullopt;
    const object request = doc.get_object().value_unsafe();
    if (!keys_once(request)) return std::nullopt;
    Parsed p;
    std::string_view cls, name;
    object given;
    bool has_args = false;
    for (simdjson::dom::key_value_pair kv : request) {
        if (kv.key == "class") {
            if (kv.value.get_string().get(cls)) return std::nullopt;
        } else if (kv.key == "method") {
            if (kv.value.get_string().get(name)) return std::nullopt;
        } else if (kv.key == "args") {
            if (kv.value.get_object().get(given) || !keys_once(given)) return std::nullopt;
            has_args = true;
        } else if (kv.key == "now") {
            std::string_view text;
            if (kv.value.get_string().get(text) || !parse_now(text, p)) return std::nullopt;
        } else if (kv.key == "id") {
            if (kv.value.type() == element_type::INT64)
                p.id = Parsed::Integer, p.id_integer = kv.value.get_int64().value_unsafe();
            else if (kv.value.type() == element_type::STRING)
                p.id = Parsed::Text, p.id_text = kv.value.get_string().value_unsafe();
            else
                return std::nullopt;
        } else {
            return std::nullopt;  // "tests", or a key that is a request error
        }
    }
    if (!(p.method = find_method(cls, name))) return std::nullopt;
    if (!has_args) {
        if (!p.method->required.empty()) return std::nullopt;
        thread_local simdjson::dom::parser empty_parser;
        element empty;
        if (empty_parser.parse("{}", 2).get(empty)) return std::nullopt;
        given = empty.get_object().value_unsafe();
    }
    std::vector<std::string_view> names;
    for (simdjson::dom::key_value_pair kv : given) names.push_back(kv.key);
    if (!arguments_fit(*p.method, names)) return std::nullopt;
    return respond(p, [&](const Host& host) { return Invocation(given, host); });
}

}  // namespace

std::optional<std::string> fast_call_line(std::string_view line) {
    if (line.size() > kMaxLineBytes) return std::nullopt;
    return document_call(line);
}

}  // namespace tamrel
