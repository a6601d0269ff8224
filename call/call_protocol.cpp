#include "call/call_protocol.h"

#include <algorithm>
#include <set>

#include "call/call_fast.h"
#include "call/call_registry.h"
#include "core/error.h"
#include "core/text.h"
#include "json/json_limits.h"

namespace tamrel {
namespace {

using json = nlohmann::json;
using ordered_json = nlohmann::ordered_json;
using json_binding::RequestError;

const std::set<std::string, std::less<>> kRequestKeys = {"id", "class", "method", "args", "now", "tests"};

Date parse_now(const json& j) {
    if (!j.is_string()) throw RequestError("now: expected a date text");
    auto d = parse_iso_date(j.get_ref<const std::string&>());
    if (!d || d->is_empty()) throw RequestError("now: expected \"YYYY-MM-DDTHH:MM:SS\"");
    return *d;
}

TextTest list_test(const json& j, const std::string& name) {
    if (!j.is_array()) throw RequestError("tests." + name + ": expected a list of texts");
    auto texts = std::make_shared<std::set<std::string, std::less<>>>();
    for (const auto& e : j) {
        if (!e.is_string()) throw RequestError("tests." + name + ": expected a list of texts");
        texts->insert(e.get<std::string>());
    }
    return [texts](std::string_view t) { return texts->find(t) != texts->end(); };
}

ObjectTests parse_tests(const json& j) {
    if (!j.is_object()) throw RequestError("tests: expected an object");
    ObjectTests t;
    for (const auto& [k, v] : j.items()) {
        if (k == "NameTest")
            t.NameTest = list_test(v, k);
        else if (k == "EmpfBknTest1")
            t.EmpfBknTest1 = list_test(v, k);
        else if (k == "EmpfBknTest2")
            t.EmpfBknTest2 = list_test(v, k);
        else
            throw RequestError("tests." + k + ": unknown test");
    }
    return t;
}

void check_arg_names(const json& args, const Method& method) {
    for (const auto& [k, v] : args.items()) {
        bool known = std::find(method.required.begin(), method.required.end(), k) != method.required.end() ||
                     std::find(method.optional.begin(), method.optional.end(), k) != method.optional.end();
        if (!known) throw RequestError("args." + k + ": unknown parameter");
    }
    for (const auto& r : method.required)
        if (!args.contains(r)) throw RequestError("args." + r + ": missing");
}

ordered_json with_id(const json& request) {
    ordered_json response = ordered_json::object();
    if (request.is_object() && request.contains("id")) response["id"] = request.at("id");
    return response;
}

}  // namespace

CallSession::CallSession(const json* now, const json* tests) : lines_(std::make_shared<std::vector<std::string>>()) {
    host_.log = [lines = lines_](std::string_view l) { lines->emplace_back(l); };
    if (now) {
        Date fixed = parse_now(*now);
        host_.now = [fixed] { return fixed; };
    } else {
        host_.now = [] { return system_now(); };
    }
    if (tests) host_.tests = parse_tests(*tests);
}

const Method& CallSession::method(const json& c, const json& m) {
    if (!c.is_string()) throw RequestError("class: expected a string");
    if (!m.is_string()) throw RequestError("method: expected a string");
    const auto& cls = c.get_ref<const std::string&>();
    const auto& name = m.get_ref<const std::string&>();
    if (cls == "clsGenDef") throw RequestError("class: clsGenDef cannot be created");
    auto it = registry().find(cls);
    if (it == registry().end()) throw RequestError("class: unknown class " + cls);
    auto mt = it->second.find(name);
    if (mt == it->second.end()) throw RequestError("method: " + cls + " has no method " + name);
    return mt->second;
}

std::string CallSession::invoke(const Method& method, const json& args) {
    if (!args.is_object()) throw RequestError("args: expected an object");
    check_arg_names(args, method);
    lines_->clear();
    out_ = ordered_json::object();
    Invocation inv(args, host_);
    std::string result = method.run(inv);
    if (!inv.out().is_null()) out_ = std::move(inv.out());
    return result;
}

ordered_json call(const json& request) {
    ordered_json response = with_id(request);
    try {
        if (!request.is_object()) throw RequestError("request: expected a JSON object");
        for (const auto& [k, v] : request.items())
            if (!kRequestKeys.contains(k)) throw RequestError(k + ": unknown key");
        if (!request.contains("class")) throw RequestError("class: missing");
        if (!request.contains("method")) throw RequestError("method: missing");
        const Method& method = CallSession::method(request.at("class"), request.at("method"));
        CallSession session(request.contains("now") ? &request.at("now") : nullptr,
                            request.contains("tests") ? &request.at("tests") : nullptr);
        static const json kNoArgs = json::object();
        const json& args = request.contains("args") ? request.at("args") : kNoArgs;
        try {
            std::string result = session.invoke(method, args);
            response["result"] = std::move(result);
            response["out"] = std::move(session.out());
            response["log"] = session.log();
        } catch (const Error& e) {
            response["error"] = {{"number", e.number()}, {"source", e.source()}, {"description", e.description()}};
            response["log"] = session.log();
        }
    } catch (const RequestError& e) {
        response.erase("result");
        response.erase("out");
        response.erase("error");
        response.erase("log");
        response["request_error"] = text::sanitize(e.what());
    }
    return response;
}

void call_line(std::string_view line, std::string& response, bool& request_error) {
    request_error = false;
    if (!fast_call_line(line, response)) response = call_line_general(line, request_error);
}

std::string call_line(std::string_view line, bool& request_error) {
    std::string response;
    call_line(line, response, request_error);
    return response;
}

std::string call_line_general(std::string_view line, bool& request_error) {
    auto refuse = [&](std::string text) {
        request_error = true;
        ordered_json r = ordered_json::object();
        r["request_error"] = std::move(text);
        return r.dump();
    };
    if (line.size() > kMaxLineBytes) return refuse("request: " + line_too_long_text(line.size()));
    json request;
    try {
        request = parse_bounded(line);
    } catch (const json::exception& e) {
        return refuse(std::string("not valid JSON: ") + text::sanitize(e.what()));
    } catch (const DuplicateKey& e) {
        return refuse(text::sanitize(e.what()));
    } catch (const RequestError& e) {
        return refuse(std::string("request: ") + e.what());
    }
    ordered_json response = call(request);
    request_error = response.contains("request_error");
    return response.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace tamrel
