// The first of the call protocol's fast readers: the request line scanned
// once, its arguments read from the line straight into the data objects in
// the order the method asks for them (see component/scan_args.h). It takes
// the plain requests, as callers write them: UTF-8 without escapes or
// control characters, the request's keys before "args", and "args" last.
// Anything else it leaves to simdjson's DOM reader (component/call_fast.cpp).
#include <string>
#include <string_view>

#include "component/call_response.h"
#include "component/json_scan.h"
#include "component/scan_args.h"

namespace tamrel::fast_call {

using json_binding::ScanMiss;
using json_binding::ScanValue;

namespace {

// The request's keys, each to be given once.
enum : unsigned { kClass = 1, kMethod = 2, kNow = 4, kId = 8 };

// Reads one of the request's keys before "args"; false where the request
// is left to the other readers.
bool read_head_key(std::string_view key, const ScanValue& value, unsigned& seen, Head& head, std::string_view& cls,
                   std::string_view& name) {
    const auto first = [&seen](unsigned k) { return !(seen & k) && (seen |= k); };
    if (key == "class") return first(kClass) && value.get_string(cls);
    if (key == "method") return first(kMethod) && value.get_string(name);
    if (key == "now") {
        std::string_view text;
        return first(kNow) && value.get_string(text) && parse_now(text, head);
    }
    if (key == "id") {
        if (!first(kId)) return false;
        if (value.get_string(head.id_text)) return head.id = Head::Text, true;
        constexpr std::int64_t kLimit = 999'999'999'999'999'999;  // what the scanner reads of an integer
        return value.is_integer() && value.integer(-kLimit, kLimit, head.id_integer) && (head.id = Head::Integer, true);
    }
    return false;  // "tests", or a key that is a request error
}

bool scan_request(const char*& at, const char* end, const json_binding::QuoteIndex& quotes, std::string& out) {
    const ScanValue cursor{&at, &quotes};
    Head head;
    std::string_view cls, name;
    unsigned seen = 0;
    cursor.expect('{');
    for (;;) {
        if (cursor.peek() != '"') return false;
        const std::string_view key = cursor.token();
        cursor.expect(':');
        if (key == "args") break;
        if (!read_head_key(key, cursor, seen, head, cls, name) || cursor.peek() != ',') return false;
        ++at;
    }
    if (!(seen & kClass) || !(seen & kMethod) || !(head.method = find_method(cls, name))) return false;
    ScanArgs args(&at, &quotes);
    if (!respond(
            head, [&](const Host& host) { return Invocation(args, host); }, out))
        return false;
    if (!args.all_read() || !arguments_fit(*head.method, [&](auto&& f) { return args.all_names(f); })) return false;
    if (cursor.peek() != '}') return false;
    ++at;
    return cursor.peek() == '\0' && at == end;
}

}  // namespace

bool scan_call(std::string_view line, std::string& out) {
    thread_local json_binding::ScannedLine scanned;
    if (!scanned.load(line) || !scanned.valid_utf8()) return false;
    const char* at = scanned.begin();
    try {
        return scan_request(at, scanned.end(), *scanned.quotes(), out);
    } catch (const ScanMiss&) {
        return false;
    }
}

}  // namespace tamrel::fast_call
