// The JSON mapping of the data objects and structures: each type declares one
// table of (property name, member) pairs; parsing, the rejection of unknown
// keys and the error paths ("objMeldung.Vorgang.Geburtsdatum: expected a
// string") all come from that table.
#pragma once
#include <cstdint>
#include <limits>
#include <algorithm>
#include <map>
#include <utility>
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

[[noreturn]] inline void fail(const std::string& path, std::string_view what) {
    throw RequestError(path + ": " + std::string(what));
}
[[noreturn]] inline void fail(const Path& path, std::string_view what) { fail(path.text(), what); }

inline void read(const json& j, std::string& out, const Path& path) {
    if (!j.is_string()) fail(path, "expected a string");
    out = j.get_ref<const std::string&>();
}

inline void read(const json& j, bool& out, const Path& path) {
    if (!j.is_boolean()) fail(path, "expected true or false");
    out = j.get<bool>();
}

template <class I>
    requires(std::is_integral_v<I> && !std::is_same_v<I, bool>)
void read(const json& j, I& out, const Path& path) {
    if (!j.is_number_integer()) fail(path, "expected an integer");
    bool in_range = j.is_number_unsigned() ? j.get<std::uint64_t>() <= static_cast<std::uint64_t>(std::numeric_limits<I>::max())
                                           : j.get<std::int64_t>() >= std::numeric_limits<I>::min() &&
                                                 j.get<std::int64_t>() <= std::numeric_limits<I>::max();
    if (!in_range) fail(path, sizeof(I) == 2 ? "integer out of the 16-bit range" : "integer out of the 32-bit range");
    out = static_cast<I>(j.get<std::int64_t>());
}

template <class T>
void read(const json& j, Indexed<T>& out, const Path& path) {
    out.clear();
    if (j.is_array()) {
        std::int32_t i = 1;
        for (const auto& e : j) {
            T v{};
            read(e, v, Path{&path, {}, static_cast<std::size_t>(i)});
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
        const Path here{&path, k};
        if (!ok || idx < -32768 || idx > 32767) fail(here, "expected a 16-bit decimal index");
        T v{};
        read(e, v, here);
        out.set(static_cast<std::int16_t>(idx), std::move(v));
    }
}

template <Bound T>
void read(const json& j, T& out, const Path& path);

template <class T>
void read(const json& j, std::vector<T>& out, const Path& path) {
    if (!j.is_array()) fail(path, "expected an array");
    out.clear();
    out.reserve(j.size());
    std::size_t i = 1;
    for (const auto& e : j) {
        T v{};
        read(e, v, Path{&path, {}, i++});
        out.push_back(std::move(v));
    }
}

// The properties of a type, sorted by name, each with its reader: one
// binary search per key instead of a walk over the table.
template <class O>
struct Entry {
    std::string_view name;
    void (*read)(const json&, O&, const Path&);
};

template <class O>
struct Dispatch {
    std::vector<Entry<O>> entries;
    const Entry<O>* find(std::string_view key) const {
        auto it = std::lower_bound(entries.begin(), entries.end(), key,
                                   [](const Entry<O>& e, std::string_view k) { return e.name < k; });
        return it != entries.end() && it->name == key ? &*it : nullptr;
    }
};

template <class O, std::size_t... I>
Dispatch<O> make_dispatch(std::index_sequence<I...>) {
    Dispatch<O> d;
    auto add = [&](const auto& f, auto reader) {
        if constexpr (requires { f.name; }) d.entries.push_back({f.name, reader});
    };
    (add(std::get<I>(Binding<O>::fields),
         +[](const json& j, O& out, const Path& path) {
             const auto& f = std::get<I>(Binding<O>::fields);
             if constexpr (requires { f.name; }) read(j, out.*(f.member), path);
         }),
     ...);
    std::sort(d.entries.begin(), d.entries.end(), [](const Entry<O>& a, const Entry<O>& b) { return a.name < b.name; });
    return d;
}

template <class T, class M, class O>
bool try_prefixed(const Prefixed<T, M>& f, std::string_view key, const json& value, O& out, const Path& path) {
    if (!key.starts_with(f.prefix)) return false;
    static const auto table = make_dispatch<M>(std::make_index_sequence<std::tuple_size_v<decltype(Binding<M>::fields)>>());
    const auto* e = table.find(key.substr(f.prefix.size()));
    if (!e) return false;
    e->read(value, out.*(f.member), path);
    return true;
}
template <class T, class M, class O>
bool try_prefixed(const Field<T, M>&, std::string_view, const json&, O&, const Path&) {
    return false;
}

template <Bound T>
void read(const json& j, T& out, const Path& path) {
    if (!j.is_object()) fail(path, "expected an object");
    static const auto table =
        make_dispatch<T>(std::make_index_sequence<std::tuple_size_v<decltype(Binding<T>::fields)>>());
    for (const auto& [key, value] : j.items()) {
        const Path here{&path, key};
        if (const auto* e = table.find(key)) {
            e->read(value, out, here);
            continue;
        }
        bool known = false;
        std::apply([&](const auto&... f) { ((known = known || try_prefixed(f, key, value, out, here)), ...); },
                   Binding<T>::fields);
        if (!known) fail(here, "unknown property");
    }
    if constexpr (requires { Binding<T>::finish(out, j); }) Binding<T>::finish(out, j);
}

template <class T>
T parse(const json& j, std::string_view path) {
    T v{};
    read(j, v, Path{nullptr, path});
    return v;
}

}  // namespace tamrel::json_binding
