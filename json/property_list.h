// Every property of a data object, walked from its binding table: its path
// ("Vorgang.Arbeitgeber.PLZ", "DBSE[].STKL" for a list item's) and its JSON
// type. The reference documentation is made from it, so that it cannot
// drift from what the readers accept.
#pragma once
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "core/indexed.h"
#include "json/json_binding.h"

namespace tamrel {

struct PropertyRow {
    std::string path;
    std::string type;
};

namespace property_list {

template <class M>
struct is_vector : std::false_type {};
template <class I>
struct is_vector<std::vector<I>> : std::true_type {
    using item = I;
};
template <class M>
struct is_indexed : std::false_type {};
template <class I>
struct is_indexed<Indexed<I>> : std::true_type {
    using item = I;
};

template <class M>
std::string scalar() {
    if constexpr (std::is_same_v<M, std::string>)
        return "text";
    else if constexpr (std::is_same_v<M, bool>)
        return "Boolean";
    else if constexpr (std::is_same_v<M, std::int16_t>)
        return "16-bit integer";
    else
        return "32-bit integer";
}

template <class T>
void walk(const std::string& prefix, std::vector<PropertyRow>& rows);

template <class M>
void member(const std::string& path, std::vector<PropertyRow>& rows) {
    if constexpr (json_binding::Bound<M>) {
        walk<M>(path + ".", rows);
    } else if constexpr (is_vector<M>::value) {
        using I = typename is_vector<M>::item;
        if constexpr (json_binding::Bound<I>) {
            rows.push_back({path, "list of objects (array, item 1 first)"});
            walk<I>(path + "[].", rows);
        } else {
            rows.push_back({path, "list of " + scalar<I>() + "s (array)"});
        }
    } else if constexpr (is_indexed<M>::value) {
        rows.push_back({path, "indexed " + scalar<typename is_indexed<M>::item>() +
                                  " (object from index to value, or array from index 1)"});
    } else {
        rows.push_back({path, scalar<M>()});
    }
}

template <class T>
void walk(const std::string& prefix, std::vector<PropertyRow>& rows) {
    auto one = [&](const auto& entry) {
        using M = std::decay_t<decltype(std::declval<T&>().*(entry.member))>;
        if constexpr (requires { entry.prefix; })
            walk<M>(prefix + std::string(entry.prefix), rows);  // "MgdVsnr": the group's own names, prefixed
        else
            member<M>(prefix + std::string(entry.name), rows);
    };
    std::apply([&](const auto&... f) { (one(f), ...); }, json_binding::Binding<T>::fields);
}

}  // namespace property_list

// The rows of data object `T`.
template <class T>
std::vector<PropertyRow> property_rows() {
    std::vector<PropertyRow> rows;
    property_list::walk<T>("", rows);
    return rows;
}

}  // namespace tamrel
