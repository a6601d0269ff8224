// Reads a host's data object through late binding into the record library's
// data object, walking the same property table as the JSON readers: each
// property by name, sub-objects recursively, the entries of an indexed
// property over their bounds, the items of a repeating group up to its count.
// Any automation object works: the data-object library's, a VB6 or VBScript
// class, a .NET object visible to COM.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <dispex.h>
#include <oleauto.h>

#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

#include "com/name_ids.h"
#include "com/object_members.h"
#include "core/indexed.h"
#include "core/property_table.h"

namespace tamrel::com {

// One object of the host, named by its path ("objMeldung.Vorgang") for the
// log line of a failing read: a top object (`parent` nullptr) by its own
// name, a sub-object by its parent's path and its property's name. The path
// is put together only when an error names it.
class HostObject {
public:
    HostObject(IDispatch* object, std::string_view name, const HostObject* parent = nullptr);
    ~HostObject();
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;
    // The property's value (an entry or item when `index` > 0). A property
    // the object lacks, or whose read raises, raises the object's error.
    VARIANT get(std::string_view name, long index = 0) const;
    // The result of the object's method `name` called with one text.
    VARIANT call(std::string_view name, std::string_view text) const;
    std::string path() const { return parent_ ? parent_->path() + "." + std::string(name_) : std::string(name_); }

private:
    DISPID id_of(std::string_view name) const;
    VARIANT invoke(std::string_view name, VARIANT* argument) const;
    IDispatch* object_;
    IDispatchEx* ex_ = nullptr;  // the scripting hosts' interface, when the object has it
    // The ids of the object's class, where its type information names the
    // class: each name looked up once a thread.
    NameIds* class_ids_ = nullptr;
    mutable std::string last_name_;  // without a class: the last name asked, and its id
    mutable DISPID last_id_ = DISPID_UNKNOWN;
    std::string_view name_;
    const HostObject* parent_;
};

// A Variant that clears itself. Most of a report's values are numbers,
// flags or empty: only a text, an object or an array is handed to the
// system to be freed (a reference owns nothing).
struct Value {
    VARIANT v;
    explicit Value(VARIANT x) : v(x) {}
    ~Value() {
        const VARTYPE t = V_VT(&v);
        if (!(t & VT_BYREF) &&
            ((t & VT_ARRAY) || t == VT_BSTR || t == VT_DISPATCH || t == VT_UNKNOWN || t == VT_RECORD))
            VariantClear(&v);
    }
    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;
};

void convert(const VARIANT& v, std::string& out, const HostObject& o, std::string_view name);
void convert(const VARIANT& v, bool& out, const HostObject& o, std::string_view name);
void convert(const VARIANT& v, std::int64_t& out, std::int64_t lo, std::int64_t hi, const HostObject& o,
             std::string_view name);
// The sub-object a property holds (nullptr for Nothing or Empty).
IDispatch* object_of(const VARIANT& v, const HostObject& o, std::string_view name);

template <properties::Bound T>
void read_object(IDispatch* object, T& out, std::string_view name, const HostObject* parent = nullptr);

namespace reading {

// The count of a repeating group: the object's own count property, which
// the property table binds too where the record writes it.
inline std::string count_name(std::string_view group) { return members::count_name(group).text(); }

template <class M>
void read_value(const HostObject& o, std::string_view name, M& out, long index = 0) {
    Value v(o.get(name, index));
    if constexpr (std::is_same_v<M, std::string> || std::is_same_v<M, bool>) {
        convert(v.v, out, o, name);
    } else if constexpr (std::is_integral_v<M>) {
        std::int64_t x = 0;
        convert(v.v, x, std::numeric_limits<M>::min(), std::numeric_limits<M>::max(), o, name);
        out = static_cast<M>(x);
    } else if constexpr (properties::Bound<M>) {
        if (IDispatch* sub = object_of(v.v, o, name)) read_object(sub, out, name, &o);
    }
}

template <class T>
constexpr bool is_group = false;
template <class T>
constexpr bool is_group<std::vector<T>> = true;
template <class T>
constexpr bool is_group<Indexed<T>> = true;

// The value of the object's 16-bit property `name` as the first pass read
// it; false where the table binds no such property.
template <class O>
bool read_before(const O& out, std::string_view name, std::int16_t& value) {
    bool found = false;
    std::apply(
        [&](const auto&... f) {
            auto one = [&](const auto& e) {
                if constexpr (requires { e.name; }) {
                    using M = std::remove_cvref_t<decltype(out.*(e.member))>;
                    if constexpr (std::is_same_v<M, std::int16_t>)
                        if (!found && e.name == name) value = out.*(e.member), found = true;
                }
            };
            (one(f), ...);
        },
        properties::Binding<O>::fields);
    return found;
}

// The bounds of an indexed property: its object's first and last entry.
// "Ks…" and "Uv…" carry their own, which the first pass read with the
// object's other properties: each list takes them from there instead of
// asking the object again.
template <class O>
void bounds(const HostObject& o, const O& out, std::string_view name, std::int16_t& first, std::int16_t& last) {
    const std::string stem(name.substr(0, 2));
    if (!read_before(out, stem + "Erster", first)) read_value(o, stem + "Erster", first);
    if (!read_before(out, stem + "Letzter", last)) read_value(o, stem + "Letzter", last);
}

template <class O, class E>
void read_group(const HostObject& o, O& out, std::string_view name, Indexed<E>& entries) {
    std::int16_t first = 1, last = 0;
    bounds(o, out, name, first, last);
    entries.clear();
    if (last >= first) entries.reserve(static_cast<std::size_t>(last - first + 1));
    for (std::int32_t i = first; i <= last; ++i) {
        E x{};
        read_value(o, name, x, i);
        entries.set(static_cast<std::int16_t>(i), std::move(x));
    }
}

template <class O, class Item>
void read_group(const HostObject& o, O&, std::string_view name, std::vector<Item>& items) {
    std::int16_t count = 0;
    read_value(o, count_name(name), count);
    items.assign(count > 0 ? static_cast<std::size_t>(count) : 0, Item{});
    for (std::size_t i = 0; i < items.size(); ++i) read_value(o, name, items[i], static_cast<long>(i + 1));
}

// First pass: every property but the indexed ones and the groups, whose
// bounds and counts are properties of their own.
template <class O, class T, class M>
void read_field(const HostObject& o, O& out, const properties::Field<T, M>& f, bool second) {
    if constexpr (is_group<M>) {
        if (second) read_group(o, out, f.name, out.*(f.member));
    } else if (!second) {
        read_value(o, f.name, out.*(f.member));
    }
}
// Properties spelt with a common prefix ("MgdVsnr") fill a nested type from
// the same object.
template <class O, class T, class M>
void read_field(const HostObject& o, O& out, const properties::Prefixed<T, M>& f, bool second) {
    if (second) return;
    M& nested = out.*(f.member);
    std::apply(
        [&](const auto&... g) {
            (read_value(o, std::string(f.prefix) + std::string(g.name), nested.*(g.member)), ...);
        },
        properties::Binding<M>::fields);
}

}  // namespace reading

template <properties::Bound T>
void read_object(IDispatch* object, T& out, std::string_view name, const HostObject* parent) {
    const HostObject o(object, name, parent);
    for (bool second : {false, true})
        std::apply([&](const auto&... f) { (reading::read_field(o, out, f, second), ...); },
                   properties::Binding<T>::fields);
}

}  // namespace tamrel::com
