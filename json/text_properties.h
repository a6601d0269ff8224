// The text properties of a data object, walked through its binding table
// with the names a request gives them ("Vorgang.Vorname", "KsZeileA.3",
// "Position[2].PosFeld1"): to name the property that holds a character a
// transfer file cannot carry. Only on that error path: it builds a name per
// property.
#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "json/json_binding.h"

namespace tamrel::json_binding {

using TextVisitor = std::function<bool(const std::string& name, std::string_view value)>;  // true: stop

inline std::string child(const std::string& path, std::string_view name) {
    return path.empty() ? std::string(name) : path + "." + std::string(name);
}

template <class T>
requires(!Bound<T>) bool each_text(const T&, const std::string&, const TextVisitor&) { return false; }
inline bool each_text(const std::string& v, const std::string& path, const TextVisitor& f) { return f(path, v); }
template <Bound T>
bool each_text(const T& v, const std::string& path, const TextVisitor& f, std::string_view prefix = {});
template <class T>
bool each_text(const Indexed<T>& v, const std::string& path, const TextVisitor& f) {
    if constexpr (std::is_same_v<T, std::string>)
        for (std::int32_t i = v.smallest(); i <= v.largest(); ++i)
            if (f(child(path, std::to_string(i)), v(static_cast<std::int16_t>(i)))) return true;
    return false;
}
template <class T>
bool each_text(const std::vector<T>& v, const std::string& path, const TextVisitor& f) {
    for (std::size_t i = 0; i < v.size(); ++i)
        if (each_text(v[i], path + "[" + std::to_string(i + 1) + "]", f)) return true;
    return false;
}

// (A field may be a base class's member: the object is its own type.)
template <class T, class M, class O>
bool each_field(const Field<T, M>& field, const O& v, const std::string& path, const TextVisitor& f,
                std::string_view prefix) {
    return each_text(v.*(field.member), child(path, std::string(prefix) + std::string(field.name)), f);
}
template <class T, class M, class O>
bool each_field(const Prefixed<T, M>& field, const O& v, const std::string& path, const TextVisitor& f,
                std::string_view) {
    return each_text(v.*(field.member), path, f, field.prefix);
}

template <Bound T>
bool each_text(const T& v, const std::string& path, const TextVisitor& f, std::string_view prefix) {
    return std::apply([&](const auto&... field) { return (each_field(field, v, path, f, prefix) || ...); },
                      Binding<T>::fields);
}

// Where a text property sits, as a chain of pieces: turned into the name
// each_text gives it ("Vorgang.Vorname", "KsZeileA.3", "Position[2].PosFeld1")
// only when it is asked for.
struct TextPlace {
    const TextPlace* up = nullptr;
    std::string_view prefix, name;  // a member: its table prefix and name
    std::int32_t key = 0;           // an indexed property's index
    std::size_t item = 0;           // a list's item (from 1)
    enum Kind { Member, Key, Item } kind = Member;
    std::string text() const {
        std::string t = up ? up->text() : std::string();
        switch (kind) {
            case Member:
                return (t.empty() ? t : t + ".") + std::string(prefix) + std::string(name);
            case Key:
                return (t.empty() ? t : t + ".") + std::to_string(key);
            case Item:
                return t + "[" + std::to_string(item) + "]";
        }
        return t;
    }
};

// Printable ASCII only: a text that needs no preparing.
inline bool plain_ascii(std::string_view s) {
    for (char c : s)
        if (static_cast<unsigned char>(c) - 0x20u >= 0x5Fu) return false;
    return true;
}

// Calls edit(value, place) for every text property of `v` that holds
// anything but printable ASCII: the values that may need normalising or
// that hold control characters. Plain texts cost one scan each.
template <class T, class F>
requires(!Bound<T>) void edit_texts(T&, const TextPlace*, F&) {}
template <class F>
void edit_texts(std::string& v, const TextPlace* at, F& edit) {
    if (!plain_ascii(v)) edit(v, *at);
}
template <Bound T, class F>
void edit_texts(T& v, const TextPlace* at, F& edit);
template <class T, class F>
void edit_texts(Indexed<T>& v, const TextPlace* at, F& edit) {
    if constexpr (std::is_same_v<T, std::string>)
        for (std::int32_t i = v.smallest(); i <= v.largest(); ++i) {
            std::string& value = v.slot(static_cast<std::int16_t>(i));
            if (plain_ascii(value)) continue;
            const TextPlace place{at, {}, {}, i, 0, TextPlace::Key};
            edit(value, place);
        }
}
template <class T, class F>
void edit_texts(std::vector<T>& v, const TextPlace* at, F& edit) {
    for (std::size_t i = 0; i < v.size(); ++i) {
        const TextPlace place{at, {}, {}, 0, i + 1, TextPlace::Item};
        edit_texts(v[i], &place, edit);
    }
}
// Calls f(member, place) for every member of a bound object, with its
// place; the members of a prefixed group are its parent's, their names
// prefixed.
template <Bound T, class F>
void each_member(T& v, const TextPlace* at, F&& f, std::string_view prefix = {}) {
    auto one = [&](const auto& field) {
        if constexpr (requires { field.name; }) {
            const TextPlace place{at, prefix, field.name};
            f(v.*(field.member), place);
        } else {
            each_member(v.*(field.member), at, f, field.prefix);
        }
    };
    std::apply([&](const auto&... field) { (one(field), ...); }, Binding<T>::fields);
}

template <Bound T, class F>
void edit_texts(T& v, const TextPlace* at, F& edit) {
    each_member(v, at, [&](auto& member, const TextPlace& place) { edit_texts(member, &place, edit); });
}

// Calls f(member, place) for every text and integer member of `v` and its
// sub-objects, lists and indexed properties left out: the members whose
// place in the object stays where it is from report to report.
template <class T, class F>
requires(!Bound<T>) void each_scalar(T& v, const TextPlace* at, F& f) {
    if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, std::int32_t> || std::is_same_v<T, std::int16_t>)
        f(v, *at);
}
template <Bound T, class F>
void each_scalar(T& v, const TextPlace* at, F& f) {
    each_member(v, at, [&](auto& member, const TextPlace& place) { each_scalar(member, &place, f); });
}

}  // namespace tamrel::json_binding
