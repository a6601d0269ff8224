#include "core/routine.h"

#include "core/host.h"
#include "core/text.h"
#include "core/version.h"

namespace tamrel {

std::string log_line(const Error& e, int line, std::string_view context) {
    std::string msg = "Fehler ";
    msg += std::to_string(e.number());
    msg += " in ";
    msg += kComponentName;
    msg += ' ';
    msg += kVersionText;
    msg += " (Zeile ";
    msg += std::to_string(line);
    msg += "): ";
    msg += text::sanitize(context);
    msg += " -> ";
    msg += e.description();
    return msg;
}

void log_error(const Error& e, int line, std::string_view context) noexcept {
    try {
        const Host& host = current_host();
        if (host.log) host.log(log_line(e, line, context));
    } catch (...) {
        // A failing log destination must never replace or lose the error.
    }
}

namespace detail {
void append_arg(std::string& out, std::string_view v) { out += v; }
void append_arg(std::string& out, const std::string& v) { out += v; }
void append_arg(std::string& out, const char* v) { out += v; }
void append_arg(std::string& out, ObjArg v) {
    out += '<';
    out += v.name;
    out += '>';
}
void append_arg(std::string& out, bool v) { out += v ? "True" : "False"; }
void append_arg(std::string& out, const Date& v) { out += date_as_argument(v); }
void append_arg(std::string& out, std::int64_t v) { out += std::to_string(v); }
}  // namespace detail

}  // namespace tamrel
