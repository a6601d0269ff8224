// The error convention, as one mechanism. Every routine runs its body through
// routine(context, body): on success nothing else happens; when an Error
// passes through, one log line is written with the routine's context text and
// the statement number that failed, and the very same Error is raised again.
//
// The context is either a fixed literal or a callable that builds the text
// (with the routine's arguments) only when an error happens, so the success
// path never pays for it. The body receives the statement counter by
// reference; record builders hand it to their Writer, which counts fields.
#pragma once
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/date.h"
#include "core/error.h"

namespace tamrel {

// Builds "Fehler <n> in TamrelFile26 <version> (Zeile <line>): <context> -> <description>"
// and hands it to the current host's log sink. Never throws.
void log_error(const Error& e, int line, std::string_view context) noexcept;

std::string log_line(const Error& e, int line, std::string_view context);

// A data object or structure among the arguments: written as "<name>".
struct ObjArg {
    const char* name;
};

namespace detail {
void append_arg(std::string& out, std::string_view v);
void append_arg(std::string& out, const std::string& v);
void append_arg(std::string& out, const char* v);
void append_arg(std::string& out, ObjArg v);
void append_arg(std::string& out, bool v);
void append_arg(std::string& out, const Date& v);
void append_arg(std::string& out, std::int64_t v);
template <std::integral I>
requires(!std::same_as<I, bool>) void append_arg(std::string& out, I v) {
    append_arg(out, static_cast<std::int64_t>(v));
}
}  // namespace detail

// head & arg1 & ", " & arg2 ... & ")": head carries the "(".
template <class... A>
std::string call_text(std::string_view head, const A&... args) {
    std::string out(head);
    bool first = true;
    ((out += first ? "" : ", ", first = false, detail::append_arg(out, args)), ...);
    out += ')';
    return out;
}

// The context of a routine that carries its arguments, worded only when an
// error passes: `head` & the arguments & ")" (see call_text). A literal head
// that does not end with "(" is a fixed text and written alone, whatever the
// arguments. The arguments are held by reference: use it within the full
// expression that runs the routine.
template <class... A>
auto with_args(std::string_view head, const A&... args) {
    return
        [head, &args...] { return !head.empty() && head.back() == '(' ? call_text(head, args...) : std::string(head); };
}

template <class Ctx, class Body>
decltype(auto) routine(const Ctx& context, Body&& body) {
    int line = 0;
    try {
        return body(line);
    } catch (Error& e) {
        if constexpr (std::is_convertible_v<const Ctx&, std::string_view>)
            log_error(e, line, std::string_view(context));
        else
            log_error(e, line, context());
        throw;
    }
}

}  // namespace tamrel
