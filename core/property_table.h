// The property tables of the data objects and structures: each type declares
// one table of (property name, member) pairs beside its definition, and
// every reader of data objects (the JSON readers, the COM server's
// late-bound reader) walks it. `complete<T>()` holds a table to its type at
// compile time: every member has its entry. Standard library only.
#pragma once
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace tamrel::properties {

// Data that cannot be read as written (a list longer than its count can
// say): raised by a table's `finish` step, reported by the reader as a
// request error.
struct RequestError : std::runtime_error {
    using std::runtime_error::runtime_error;
};
[[noreturn]] inline void fail(const std::string& path, std::string_view what) {
    throw RequestError(path + ": " + std::string(what));
}

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
// and, for a type whose properties include those of its base, `using base = Base;`.
template <class T>
struct Binding;

template <class T>
concept Bound = requires {
    Binding<T>::fields;
};

namespace detail {
// Converts to any member type: an aggregate takes as many of these as it
// has members (its base counting as one).
struct AnyMember {
    template <class T>
    constexpr operator T&() const noexcept;
    template <class T>
    constexpr operator T&&() const noexcept;
};
template <class T, std::size_t... I>
constexpr bool takes(std::index_sequence<I...>) {
    return requires { T{(void(I), AnyMember{})...}; };
}
template <class T, std::size_t N = 0>
constexpr std::size_t members() {
    if constexpr (!takes<T>(std::make_index_sequence<N + 1>{}))
        return N;
    else
        return members<T, N + 1>();
}
}  // namespace detail

// Whether T's table has as many entries as T has members (an aggregate's
// members; a base's own members instead of the base).
template <Bound T>
constexpr bool complete() {
    constexpr std::size_t entries = std::tuple_size_v<std::remove_cvref_t<decltype(Binding<T>::fields)>>;
    if constexpr (requires { typename Binding<T>::base; })
        return detail::members<T>() - 1 + detail::members<typename Binding<T>::base>() == entries;
    else
        return detail::members<T>() == entries;
}

}  // namespace tamrel::properties
