// The JSON mapping of the data objects and structures: each type declares one
// table of (property name, member) pairs; parsing, the rejection of unknown
// keys and the error paths ("objMeldung.Vorgang.Geburtsdatum: expected a
// string") all come from that table.
#pragma once
#include <cstdint>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/indexed.h"

namespace tamrel::json_binding {

using json = nlohmann::json;

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

// The JSON table of a group declared with a field list (core/field_list.h).
#define TAMREL_BIND_FIELD(name) std::make_tuple(::tamrel::json_binding::field(#name, &Self::name)),
#define TAMREL_LIST_BINDING(Type, LIST)                                                       \
    template <>                                                                              \
    struct Binding<Type> {                                                                   \
        using Self = Type;                                                                   \
        static constexpr auto fields = std::tuple_cat(LIST(TAMREL_BIND_FIELD) std::tuple<>()); \
    }

template <class T>
concept Bound = requires { Binding<T>::fields; };

[[noreturn]] inline void fail(const std::string& path, std::string_view what) {
    throw RequestError(path + ": " + std::string(what));
}

inline void read(const json& j, std::string& out, const std::string& path) {
    if (!j.is_string()) fail(path, "expected a string");
    out = j.get_ref<const std::string&>();
}

inline void read(const json& j, bool& out, const std::string& path) {
    if (!j.is_boolean()) fail(path, "expected true or false");
    out = j.get<bool>();
}

template <class I>
    requires(std::is_integral_v<I> && !std::is_same_v<I, bool>)
void read(const json& j, I& out, const std::string& path) {
    if (!j.is_number_integer()) fail(path, "expected an integer");
    bool in_range = j.is_number_unsigned() ? j.get<std::uint64_t>() <= static_cast<std::uint64_t>(std::numeric_limits<I>::max())
                                           : j.get<std::int64_t>() >= std::numeric_limits<I>::min() &&
                                                 j.get<std::int64_t>() <= std::numeric_limits<I>::max();
    if (!in_range) fail(path, sizeof(I) == 2 ? "integer out of the 16-bit range" : "integer out of the 32-bit range");
    out = static_cast<I>(j.get<std::int64_t>());
}

template <class T>
void read(const json& j, Indexed<T>& out, const std::string& path) {
    out.clear();
    if (j.is_array()) {
        std::int32_t i = 1;
        for (const auto& e : j) {
            T v{};
            read(e, v, path + "[" + std::to_string(i) + "]");
            out.set(static_cast<std::int16_t>(i), std::move(v));
            if (++i > 32767) fail(path, "more than 32767 entries");
        }
        return;
    }
    if (!j.is_object()) fail(path, "expected an object of index to value, or an array");
    for (const auto& [k, e] : j.items()) {
        std::int64_t idx = 0;
        bool ok = !k.empty() && k.size() <= 6;
        for (char c : k) ok = ok && ((c >= '0' && c <= '9') || (c == '-' && &c == &k[0]));
        if (ok) idx = std::stoll(k);
        if (!ok || idx < -32768 || idx > 32767) fail(path + "." + k, "expected a 16-bit decimal index");
        T v{};
        read(e, v, path + "." + k);
        out.set(static_cast<std::int16_t>(idx), std::move(v));
    }
}

template <Bound T>
void read(const json& j, T& out, const std::string& path);

template <class T>
void read(const json& j, std::vector<T>& out, const std::string& path) {
    if (!j.is_array()) fail(path, "expected an array");
    out.clear();
    out.reserve(j.size());
    std::size_t i = 1;
    for (const auto& e : j) {
        T v{};
        read(e, v, path + "[" + std::to_string(i++) + "]");
        out.push_back(std::move(v));
    }
}

template <class T, class M, class O>
bool try_read(const Field<T, M>& f, std::string_view key, const json& value, O& out, const std::string& path) {
    if (f.name != key) return false;
    read(value, out.*(f.member), path);
    return true;
}

template <class T, class M, class O>
bool try_read(const Prefixed<T, M>& f, std::string_view key, const json& value, O& out, const std::string& path) {
    if (!key.starts_with(f.prefix)) return false;
    std::string_view rest = key.substr(f.prefix.size());
    bool known = false;
    std::apply([&](const auto&... g) { ((known = known || try_read(g, rest, value, out.*(f.member), path)), ...); },
               Binding<M>::fields);
    return known;
}

template <Bound T>
void read(const json& j, T& out, const std::string& path) {
    if (!j.is_object()) fail(path, "expected an object");
    for (const auto& [key, value] : j.items()) {
        bool known = false;
        const std::string here = path + "." + key;
        std::apply([&](const auto&... f) { ((known = known || try_read(f, key, value, out, here)), ...); },
                   Binding<T>::fields);
        if (!known) fail(here, "unknown property");
    }
    if constexpr (requires { Binding<T>::finish(out, j); }) Binding<T>::finish(out, j);
}

template <class T>
T parse(const json& j, const std::string& path) {
    T v{};
    read(j, v, path);
    return v;
}

}  // namespace tamrel::json_binding
