// What a report runner makes of the report it read: its record and protocol
// line, or the error that stopped it, as one text to compare.
#pragma once
#include <functional>
#include <string>

#include "call/report_runner.h"
#include "core/error.h"
#include "json/json_binding.h"

namespace tamrel::testing {

inline std::string outcome(ReportRunner& runner, const std::function<void()>& read,
                           const std::function<void(const Error&)>& on_error = {}) {
    try {
        read();
        return runner.data() + "|" + runner.protocol(false, {});
    } catch (const json_binding::RequestError& e) {
        return std::string("request error: ") + e.what();
    } catch (const Error& e) {
        if (on_error) on_error(e);
        return "error " + std::to_string(e.number()) + ": " + e.description();
    }
}

}  // namespace tamrel::testing
