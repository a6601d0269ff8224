// The property tables of the data objects and structures: each type declares
// one table of (property name, member) pairs, and every reader of data
// objects (the JSON readers, the COM server's late-bound reader) walks it.
// Standard library only.
#pragma once
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>

namespace tamrel::json_binding {

// A request that cannot be carried out as written.
struct RequestError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

template <class T, class M>
struct Field {
    std::string_view name;
    M T::*member;
};
template <class T, class M>
constexpr Field<T, M> field(std::string_view name, M T::*member) {
    return {name, member};
}

// A group of properties spelt with a common prefix ("MgdVsnr", "MgdKvnr", …)
// that fill one member of a nested type with its own table.
template <class T, class M>
struct Prefixed {
    std::string_view prefix;
    M T::*member;
};
template <class T, class M>
constexpr Prefixed<T, M> prefixed(std::string_view prefix, M T::*member) {
    return {prefix, member};
}

// Specialise with `static constexpr auto fields = std::make_tuple(field(...), ...);`
template <class T>
struct Binding;

template <class T>
concept Bound = requires {
    Binding<T>::fields;
};

// Where a value sits ("args.objMeldung.Vorgang.PLZ"), kept as a chain of
// pieces and turned into text only when a request error is reported.
struct Path {
    const Path* parent = nullptr;
    std::string_view key;   // property name, or empty for an array element
    std::size_t index = 0;  // array element (from 1) when key is empty
    std::string text() const {
        std::string t = parent ? parent->text() : std::string();
        if (!key.empty()) {
            if (parent) t += '.';
            t += key;
        } else {
            t += '[' + std::to_string(index) + ']';
        }
        return t;
    }
};

// Items of a list and entries of an indexed property are numbered by a
// 16-bit index.
inline constexpr std::size_t kMaxItems = 32767;

[[noreturn]] inline void fail(const std::string& path, std::string_view what) {
    throw RequestError(path + ": " + std::string(what));
}
[[noreturn]] inline void fail(const Path& path, std::string_view what) { fail(path.text(), what); }

}  // namespace tamrel::json_binding
