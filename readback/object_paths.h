// A data object's properties reached by the paths that the record layouts
// name their fields with ("Vorgang.Arbeitgeber.PLZ", "UvAngabe1(i)",
// "DBSE.STKL"), and the object written back as a report of the job format.
// Both walk the property tables beside the data objects.
#pragma once
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

#include "core/indexed.h"
#include "core/property_table.h"
#include "json/json_escape.h"

namespace tamrel::readback {

using properties::Binding;
using properties::Bound;

// Where a field stands among the parts of its line: the entry of a list
// (for "…(i)") and the how-manieth time its block follows (for items of a
// repeating block, "DBSE.STKL").
struct Place {
    std::size_t entry = 0;
    std::size_t item = 1;
};

// A field's value as the property takes it: text, J/N, digits.
template <class M>
bool convert(std::string_view text, M& out) {
    if constexpr (std::is_same_v<M, std::string>) {
        out.assign(text);
        return true;
    } else if constexpr (std::is_same_v<M, bool>) {
        if (text != "J" && text != "N") return false;
        out = text == "J";
        return true;
    } else if constexpr (std::is_integral_v<M>) {
        if (text.empty()) return out = 0, true;
        const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), out);
        return ec == std::errc{} && end == text.data() + text.size();
    } else {
        return false;
    }
}

// A property reached by its path, found once in the property tables: sets
// it from a field's value (false where the value does not suit it).
template <class T>
using Setter = std::function<bool(T&, const Place&, std::string_view)>;

// The setter of the property at `path`; empty where the path names none.
template <Bound T>
Setter<T> resolve(std::string_view path);

namespace detail {

template <class M>
Setter<M> resolve_member(std::string_view rest) {
    if constexpr (Bound<M>) {
        if (rest.size() < 2 || rest[0] != '.') return {};
        return resolve<M>(rest.substr(1));
    } else if constexpr (requires { typename M::value_type; } && !std::is_same_v<M, std::string>) {
        // A repeating block's items: the item the block's place says.
        using Item = typename M::value_type;
        if constexpr (Bound<Item>) {
            if (rest.size() < 2 || rest[0] != '.') return {};
            Setter<Item> inner = resolve<Item>(rest.substr(1));
            if (!inner) return {};
            return [inner](M& m, const Place& at, std::string_view value) {
                if (at.item == 0) return false;
                if (m.size() < at.item) m.resize(at.item);
                return inner(m[at.item - 1], at, value);
            };
        } else {
            return {};
        }
    } else if constexpr (requires(M & x) { x.slot(std::int16_t{}); }) {
        // "(i)": the entry of the list; "(3)": the third.
        if (rest.size() < 3 || rest.front() != '(' || rest.back() != ')') return {};
        const std::string_view index = rest.substr(1, rest.size() - 2);
        const bool by_entry = index == "i";
        std::int16_t fixed = 0;
        if (!by_entry && std::from_chars(index.data(), index.data() + index.size(), fixed).ec != std::errc{}) return {};
        return [by_entry, fixed](M& m, const Place& at, std::string_view value) {
            const std::int16_t i = by_entry ? static_cast<std::int16_t>(at.entry) : fixed;
            using Stored = std::remove_reference_t<decltype(m.slot(i))>;
            if constexpr (std::is_same_v<Stored, std::string>) {
                m.slot(i).assign(value);
            } else {
                bool b = false;
                if (!convert(value, b)) return false;
                m.slot(i) = b;
            }
            return true;
        };
    } else {
        if (!rest.empty()) return {};
        return [](M& m, const Place&, std::string_view value) { return convert(value, m); };
    }
}

// A derived object's table holds its base's entries too.
template <class T, class O, class M>
void try_entry(const properties::Field<O, M>& f, std::string_view path, Setter<T>& found) {
    if (found || path.substr(0, f.name.size()) != f.name) return;
    const std::string_view rest = path.substr(f.name.size());
    if (!rest.empty() && rest[0] != '.' && rest[0] != '(') return;
    Setter<M> inner = resolve_member<M>(rest);
    if (inner)
        found = [member = f.member, inner](T& obj, const Place& at, std::string_view value) {
            return inner(obj.*member, at, value);
        };
}

template <class T, class O, class M>
void try_entry(const properties::Prefixed<O, M>& f, std::string_view path, Setter<T>& found) {
    if (found || path.substr(0, f.prefix.size()) != f.prefix) return;
    Setter<M> inner = resolve<M>(path.substr(f.prefix.size()));
    if (inner)
        found = [member = f.member, inner](T& obj, const Place& at, std::string_view value) {
            return inner(obj.*member, at, value);
        };
}

}  // namespace detail

template <Bound T>
Setter<T> resolve(std::string_view path) {
    Setter<T> found;
    std::apply([&](const auto&... f) { (detail::try_entry<T>(f, path, found), ...); }, Binding<T>::fields);
    return found;
}

// Sets the property at `path` from a field's value; false where the path
// names no property, or the value does not suit it.
template <Bound T>
bool assign(T& obj, std::string_view path, const Place& at, std::string_view value) {
    const Setter<T> set = resolve<T>(path);
    return set && set(obj, at, value);
}

// The object's properties that differ from a new object's, as the members
// of a JSON object (without braces; empty when none differs).
template <Bound T>
void append_members(std::string& out, const T& obj, std::string_view prefix = {});

namespace detail {

inline void key(std::string& out, std::string_view prefix, std::string_view name) {
    const bool comma = !out.empty() && out.back() != '{' && out.back() != '[';
    // One append for the whole key: names are short, and each append is a call.
    char buf[64];
    const std::size_t n = comma + 1 + prefix.size() + name.size() + 2;
    if (n > sizeof buf) {
        if (comma) out += ',';
        ((((out += '"') += prefix) += name) += "\":");
        return;
    }
    char* p = buf;
    if (comma) *p++ = ',';
    *p++ = '"';
    p = std::copy(prefix.begin(), prefix.end(), p);
    p = std::copy(name.begin(), name.end(), p);
    *p++ = '"';
    *p++ = ':';
    out.append(buf, n);
}

template <class M>
void append_value(std::string& out, const M& m) {
    if constexpr (std::is_same_v<M, std::string>) {
        append_json_string(out, m);
    } else if constexpr (std::is_same_v<M, bool>) {
        out += m ? "true" : "false";
    } else if constexpr (std::is_integral_v<M>) {
        out += std::to_string(m);
    } else if constexpr (Bound<M>) {
        out += '{';
        append_members(out, m);
        out += '}';
    } else if constexpr (requires { m.view(); }) {
        // An indexed property: from index 1 an array of every entry (its
        // bounds are the list's), else its entries that hold anything.
        const bool from_one = m.smallest() == 1;
        out += from_one ? '[' : '{';
        for (std::int32_t i = m.smallest(); i <= m.largest(); ++i) {
            const auto& v = m(static_cast<std::int16_t>(i));
            if (from_one) {
                if (i > 1) out += ',';
            } else {
                if (v == std::remove_cvref_t<decltype(v)>{}) continue;
                key(out, {}, std::to_string(i));
            }
            append_value(out, v);
        }
        out += from_one ? ']' : '}';
    } else {
        out += '[';
        for (const auto& item : m) {
            if (out.back() != '[') out += ',';
            append_value(out, item);
        }
        out += ']';
    }
}

template <class M>
bool is_default(const M& m, const M& fresh) {
    if constexpr (requires { m.view(); } || (requires { m.begin(); } && !std::is_same_v<M, std::string>))
        return m.empty();
    else if constexpr (Bound<M>)
        return false;  // written, and taken back when it holds nothing
    else
        return m == fresh;
}

}  // namespace detail

template <Bound T>
void append_members(std::string& out, const T& obj, std::string_view prefix) {
    static const T fresh{};
    std::apply(
        [&](const auto&... f) {
            auto one = [&](const auto& e) {
                if constexpr (requires { e.prefix; }) {
                    append_members(out, obj.*e.member, e.prefix);
                } else {
                    if (detail::is_default(obj.*e.member, fresh.*e.member)) return;
                    const std::size_t before = out.size();
                    detail::key(out, prefix, e.name);
                    detail::append_value(out, obj.*e.member);
                    if (out.ends_with(":{}")) out.resize(before);  // a sub-object that holds nothing
                }
            };
            (one(f), ...);
        },
        Binding<T>::fields);
}

// The object as one JSON object.
template <Bound T>
std::string to_json(const T& obj) {
    std::string out = "{";
    append_members(out, obj);
    out += '}';
    return out;
}

}  // namespace tamrel::readback
