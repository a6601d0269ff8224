// The call protocol: one JSON request in, one JSON response out, for every
// public method of every creatable class.
#pragma once
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/host.h"

namespace tamrel {

struct Method;

// The state that calls with the same clock and test answers share: the host
// (collecting log lines), built once; each invocation checks the argument
// names and runs the method. Failures of the method raise Error; a request
// that cannot be carried out raises json_binding::RequestError.
class CallSession {
public:
    CallSession(const nlohmann::json* now, const nlohmann::json* tests);
    static const Method& method(const nlohmann::json& cls, const nlohmann::json& name);
    std::string invoke(const Method& method, const nlohmann::json& args);

    const std::vector<std::string>& log() const { return *lines_; }
    // Forgets the lines logged so far: a run of many reports takes each
    // report's lines and starts afresh.
    void clear_log() { lines_->clear(); }
    const Host& host() const { return host_; }
    nlohmann::ordered_json& out() { return out_; }

private:
    std::shared_ptr<std::vector<std::string>> lines_;
    Host host_;
    nlohmann::ordered_json out_;
};

// The response to one request object (result/out/log, error/log, or
// request_error).
nlohmann::ordered_json call(const nlohmann::json& request);

// One NDJSON line in, one response line out (without line ending).
// `request_error` tells whether the line was not a valid request.
std::string call_line(std::string_view line, bool& request_error);
// The same into `response`, whose buffer is kept for the next line.
void call_line(std::string_view line, std::string& response, bool& request_error);
// The same through one general JSON document, without the fast path that
// call_line tries first (component/call_fast.h).
std::string call_line_general(std::string_view line, bool& request_error);

}  // namespace tamrel
