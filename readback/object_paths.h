// A data object's properties reached by the paths that the record layouts
// name their fields with ("Vorgang.Arbeitgeber.PLZ", "UvAngabe1(i)",
// "DBSE.STKL"), and the object written back as a report of the job format.
// Both walk the property tables beside the data objects.
#pragma once
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/indexed.h"
#include "core/property_table.h"
#include "readback/json_text.h"

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

// A text property set from a field's value: an append takes the library's
// short path (no overlap to allow for), and keeps the property's buffer; an
// empty value (most fields of a record) is no more than the clearing.
inline void set_text(std::string& out, std::string_view text) {
    out.clear();
    if (!text.empty()) out.append(text);
}

// A field's value as the property takes it: text, J/N, digits.
template <class M>
bool convert(std::string_view text, M& out) {
    if constexpr (std::is_same_v<M, std::string>) {
        set_text(out, text);
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
// it from a field's value (false where the value does not suit it). A
// property that lies inside the object (through its sub-objects, not
// through a list of items) is kept as its offset and a plain function of
// its type, so that setting it is one direct call; an item of a repeating
// block is reached through a general function that finds the item.
template <class T>
class Setter {
public:
    using Member = bool (*)(void* member, const Place& at, std::int16_t fixed, std::string_view value);
    using General = std::function<bool(T&, const Place&, std::string_view)>;

    Setter() = default;
    Setter(Member set, std::size_t offset, std::int16_t fixed) : set_(set), offset_(offset), fixed_(fixed) {}
    explicit Setter(General general) : general_(std::move(general)) {}

    explicit operator bool() const { return set_ || general_; }
    bool operator()(T& obj, const Place& at, std::string_view value) const {
        if (set_) return set_(address(obj), at, fixed_, value);
        return general_ && general_(obj, at, value);
    }
    // Sets the property as `set` would, where `set` is this setter's own
    // function: called by name, so the compiler can inline it.
    template <Member set>
    void set_as(T& obj, const Place& at, std::string_view value) const {
        set(address(obj), at, fixed_, value);
    }
    bool sets_with(Member set) const { return set_ == set; }

    // This setter seen from an object that holds T at `offset`.
    template <class Outer>
    Setter<Outer> within(std::size_t offset) const {
        if (set_) return {set_, offset + offset_, fixed_};
        if (!general_) return {};
        return Setter<Outer>(typename Setter<Outer>::General(
            [offset, inner = general_](Outer& o, const Place& at, std::string_view value) {
                return inner(*reinterpret_cast<T*>(reinterpret_cast<char*>(&o) + offset), at, value);
            }));
    }

private:
    void* address(T& obj) const { return reinterpret_cast<char*>(&obj) + offset_; }
    Member set_ = nullptr;
    std::size_t offset_ = 0;
    std::int16_t fixed_ = 0;
    General general_;
};

// The setter of the property at `path`; empty where the path names none.
template <Bound T>
Setter<T> resolve(std::string_view path);

namespace detail {

// Where a member lies in its object, measured once on an object of the type.
template <class T, class O, class M>
std::size_t offset_of(M O::*member) {
    static const T probe{};
    return static_cast<std::size_t>(reinterpret_cast<const char*>(&(probe.*member)) -
                                    reinterpret_cast<const char*>(&probe));
}

// The entry "(i)" (fixed < 0: the entry of the list the field stands in)
// or "(3)" of an indexed property.
template <class M>
bool set_entry(void* member, const Place& at, std::int16_t fixed, std::string_view value) {
    M& m = *static_cast<M*>(member);
    const std::int16_t i = fixed < 0 ? static_cast<std::int16_t>(at.entry) : fixed;
    using Stored = std::remove_reference_t<decltype(m.slot(i))>;
    if constexpr (std::is_same_v<Stored, std::string>) {
        m.set(i, value);
    } else {
        bool b = false;
        if (!convert(value, b)) return false;
        m.slot(i) = b;
    }
    return true;
}

template <class M>
bool set_plain(void* member, const Place&, std::int16_t, std::string_view value) {
    return convert(value, *static_cast<M*>(member));
}

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
            return Setter<M>(typename Setter<M>::General([inner](M& m, const Place& at, std::string_view value) {
                if (at.item == 0) return false;
                if (m.size() < at.item) m.resize(at.item);
                return inner(m[at.item - 1], at, value);
            }));
        } else {
            return {};
        }
    } else if constexpr (requires(M & x) { x.slot(std::int16_t{}); }) {
        // "(i)": the entry of the list; "(3)": the third.
        if (rest.size() < 3 || rest.front() != '(' || rest.back() != ')') return {};
        const std::string_view index = rest.substr(1, rest.size() - 2);
        std::int16_t fixed = -1;
        if (index != "i" &&
            (std::from_chars(index.data(), index.data() + index.size(), fixed).ec != std::errc{} || fixed < 0))
            return {};
        return {&set_entry<M>, 0, fixed};
    } else {
        if (!rest.empty()) return {};
        return {&set_plain<M>, 0, 0};
    }
}

// A derived object's table holds its base's entries too.
template <class T, class O, class M>
void try_entry(const properties::Field<O, M>& f, std::string_view path, Setter<T>& found) {
    if (found || path.substr(0, f.name.size()) != f.name) return;
    const std::string_view rest = path.substr(f.name.size());
    if (!rest.empty() && rest[0] != '.' && rest[0] != '(') return;
    found = resolve_member<M>(rest).template within<T>(offset_of<T>(f.member));
}

template <class T, class O, class M>
void try_entry(const properties::Prefixed<O, M>& f, std::string_view path, Setter<T>& found) {
    if (found || path.substr(0, f.prefix.size()) != f.prefix) return;
    found = resolve<M>(path.substr(f.prefix.size())).template within<T>(offset_of<T>(f.member));
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
void append_members(JsonText& out, const T& obj, std::string_view prefix = {});

namespace detail {

template <class M>
void append_value(JsonText& out, const M& m) {
    if constexpr (std::is_same_v<M, std::string>) {
        out.put_string(m);
    } else if constexpr (std::is_same_v<M, bool>) {
        out.put(m ? std::string_view("true") : std::string_view("false"));
    } else if constexpr (std::is_integral_v<M>) {
        out.put_number(m);
    } else if constexpr (Bound<M>) {
        out.put('{');
        append_members(out, m);
        out.put('}');
    } else if constexpr (requires { m.view(); }) {
        // An indexed property: from index 1 an array of every entry (its
        // bounds are the list's), else its entries that hold anything.
        using Read = typename M::Read;
        if (m.smallest() == 1) {
            out.put('[');
            bool first = true;
            for (const auto& v : m.stored()) {
                if (!first) out.put(',');
                first = false;
                append_value(out, static_cast<Read>(v));
            }
            out.put(']');
            return;
        }
        out.put('{');
        const auto entries = m.view();
        for (std::int32_t i = m.smallest(); i <= m.largest(); ++i) {
            const auto& v = entries(static_cast<std::int16_t>(i));
            if (v == std::remove_cvref_t<decltype(v)>{}) continue;
            out.put_key(i);
            append_value(out, v);
        }
        out.put('}');
    } else {
        out.put('[');
        for (const auto& item : m) {
            if (out.back() != '[') out.put(',');
            append_value(out, item);
        }
        out.put(']');
    }
}

template <class M>
bool is_default(const M& m, const M& fresh) {
    if constexpr (requires { m.view(); } || (requires { m.begin(); } && !std::is_same_v<M, std::string>))
        return m.empty();
    else if constexpr (Bound<M>)
        return false;  // written, and taken back when it holds nothing
    else if constexpr (std::is_same_v<M, std::string>)
        return m.size() == fresh.size() && (m.empty() || m == fresh);
    else
        return m == fresh;
}

// A property's key as the JSON text writes it, quotes and colon included,
// made when the program is compiled: the writer stores it with a few moves.
template <class T, std::size_t I>
inline constexpr auto key_text = [] {
    constexpr std::string_view name = std::get<I>(Binding<T>::fields).name;
    std::array<char, name.size() + 3> key{};
    key[0] = '"';
    for (std::size_t i = 0; i < name.size(); ++i) key[i + 1] = name[i];
    key[name.size() + 1] = '"';
    key[name.size() + 2] = ':';
    return key;
}();

template <class T, std::size_t I>
void append_member(JsonText& out, const T& obj, const T& fresh, std::string_view prefix) {
    constexpr const auto& e = std::get<I>(Binding<T>::fields);
    if constexpr (requires { e.prefix; }) {
        append_members(out, obj.*e.member, e.prefix);
    } else {
        using M = std::remove_cvref_t<decltype(obj.*e.member)>;
        if (is_default(obj.*e.member, fresh.*e.member)) return;
        const std::size_t before = out.size();
        if (prefix.empty())
            out.put_key(key_text<T, I>);
        else
            out.put_key(prefix, e.name);
        append_value(out, obj.*e.member);
        // A sub-object (or a list by index) that holds nothing: only these end in braces.
        if constexpr (Bound<M> || requires(const M& m) { m.view(); })
            if (out.ends_with_empty_object()) out.cut(before);
    }
}

}  // namespace detail

template <Bound T>
void append_members(JsonText& out, const T& obj, std::string_view prefix) {
    static const T fresh{};
    constexpr std::size_t n = std::tuple_size_v<std::remove_cvref_t<decltype(Binding<T>::fields)>>;
    [&]<std::size_t... I>(std::index_sequence<I...>) { (detail::append_member<T, I>(out, obj, fresh, prefix), ...); }
    (std::make_index_sequence<n>{});
}

// The object as one JSON object, written over `out` (its buffer kept).
template <Bound T>
void write_json(const T& obj, std::string& out) {
    out.clear();
    JsonText text(out);
    text.put('{');
    append_members(text, obj);
    text.put('}');
}
template <Bound T>
std::string to_json(const T& obj) {
    std::string out;
    write_json(obj, out);
    return out;
}

}  // namespace tamrel::readback
