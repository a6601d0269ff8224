#include "component/call_fast.h"

#include "component/call_response.h"
#include "component/json_limits.h"

namespace tamrel {
namespace {

using simdjson::dom::element;
using simdjson::dom::element_type;
using simdjson::dom::object;

using Args = Invocation::SimdArgs;
using namespace fast_call;

// The arguments by name, each given once (the data objects' readers refuse
// a property given twice themselves); false for a name given twice or for
// more arguments than any method takes.
bool read_args(object o, Args& args) {
    for (simdjson::dom::key_value_pair kv : o)
        if (args.find(kv.key) || !args.add(kv.key, kv.value)) return false;
    return true;
}

// The request read through simdjson's DOM.
bool document_call(std::string_view line, std::string& out) {
    // The parser and the line in a buffer with simdjson's padding, kept for
    // the thread's next line.
    struct Scratch {
        simdjson::dom::parser parser;
        std::string padded;
    };
    thread_local Scratch scratch;
    scratch.padded.reserve(line.size() + simdjson::SIMDJSON_PADDING);
    scratch.padded.assign(line);
    element doc;
    if (scratch.parser.parse(scratch.padded.data(), scratch.padded.size(), false).get(doc) ||
        doc.type() != element_type::OBJECT)
        return false;
    Head p;
    std::string_view cls, name;
    Args args;
    // The request's keys, each to be given once.
    enum : unsigned { kClass = 1, kMethod = 2, kArgs = 4, kNow = 8, kId = 16 };
    unsigned seen = 0;
    const auto first = [&seen](unsigned key) { return !(seen & key) && (seen |= key); };
    const object request = doc.get_object().value_unsafe();
    for (simdjson::dom::key_value_pair kv : request) {
        if (kv.key == "class") {
            if (!first(kClass) || kv.value.get_string().get(cls)) return false;
        } else if (kv.key == "method") {
            if (!first(kMethod) || kv.value.get_string().get(name)) return false;
        } else if (kv.key == "args") {
            object given;
            if (!first(kArgs) || kv.value.get_object().get(given) || !read_args(given, args)) return false;
        } else if (kv.key == "now") {
            std::string_view text;
            if (!first(kNow) || kv.value.get_string().get(text) || !parse_now(text, p)) return false;
        } else if (kv.key == "id") {
            if (!first(kId)) return false;
            if (kv.value.type() == element_type::INT64)
                p.id = Head::Integer, p.id_integer = kv.value.get_int64().value_unsafe();
            else if (kv.value.type() == element_type::STRING)
                p.id = Head::Text, p.id_text = kv.value.get_string().value_unsafe();
            else
                return false;
        } else {
            return false;  // "tests", or a key that is a request error
        }
    }
    if (!(seen & kClass) || !(seen & kMethod) || !(p.method = find_method(cls, name))) return false;
    if (!arguments_fit(*p.method, [&](auto&& f) { return args.all_names(f); })) return false;
    return respond(
        p, [&](const Host& host) { return Invocation(args, host); }, out);
}

}  // namespace

bool fast_call_line(std::string_view line, std::string& out) {
    return line.size() <= kMaxLineBytes && (fast_call::scan_call(line, out) || document_call(line, out));
}

}  // namespace tamrel
