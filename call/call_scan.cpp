// The first of the call protocol's fast readers: the request line scanned
// once, its arguments read from the line straight into the data objects in
// the order the method asks for them (see component/scan_args.h). It takes
// the plain requests, as callers write them: UTF-8 without escapes or
// control characters, the request's keys before "args", and "args" last.
// Anything else it leaves to simdjson's DOM reader (component/call_fast.cpp).
#include <string>
#include <string_view>

#include "call/call_response.h"
#include "json/json_scan.h"
#include "json/scan_args.h"

namespace tamrel::fast_call {

using json_binding::ScanMiss;
using json_binding::ScanValue;

namespace {

bool scan_request(const char*& at, const char* end, const json_binding::QuoteIndex& quotes, std::string& out) {
    const ScanValue cursor{&at, &quotes};
    HeadReader reader;
    cursor.expect('{');
    for (;;) {
        if (cursor.peek() != '"') return false;
        const std::string_view key = cursor.token();
        cursor.expect(':');
        if (key == "args") break;
        if (!reader.read(key, cursor) || cursor.peek() != ',') return false;
        ++at;
    }
    if (!reader.find()) return false;
    const Head& head = reader.head;
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
