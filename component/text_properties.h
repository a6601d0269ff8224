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

#include "component/json_binding.h"

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

}  // namespace tamrel::json_binding
