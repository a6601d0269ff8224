#include "call/call_fast.h"

#include <utility>

#include "call/call_response.h"
#include "json/json_limits.h"
#include "json/json_simd.h"

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
    HeadReader reader;
    Args args;
    bool has_args = false;
    const object request = doc.get_object().value_unsafe();
    for (simdjson::dom::key_value_pair kv : request) {
        if (kv.key == "args") {
            object given;
            if (std::exchange(has_args, true) || kv.value.get_object().get(given) || !read_args(given, args))
                return false;
        } else if (!reader.read(kv.key, json_binding::SimdValue{kv.value})) {
            return false;
        }
    }
    if (!reader.find()) return false;
    const Head& p = reader.head;
    if (!arguments_fit(*p.method, [&](auto&& f) { return args.all_names(f); })) return false;
    return respond(
        p, [&](const Host& host) { return Invocation(args, host); }, out);
}

}  // namespace

bool fast_call_line(std::string_view line, std::string& out) {
    return line.size() <= kMaxLineBytes && (fast_call::scan_call(line, out) || document_call(line, out));
}

}  // namespace tamrel
