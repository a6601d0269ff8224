// The interface of each TamrelObj26 data object, member by member: what its
// type library declares and its dual interface's table holds, in that
// order, with the dispatch id that late binding finds under the same name.
// Both are made from this one list: the type library by the generator
// (com/objects_idl.cpp, on any platform), the table by the server.
//
// For each entry of the object's property table, in its order:
// - a text, flag or number: its property (get and put);
// - an indexed property: the same with a short index;
// - a sub-object: get, and put by `Set`;
// - a repeating group: its item by a long index (from 1), its count (under
//   the count name, unless the table has a property of that name), and the
//   methods `Add<group>` (the new item) and `Clear<group>`;
// - a group spelt with a prefix: one text property for each entry of the
//   nested table, named prefix and entry.
// Then `LoadJson(text)` and `ToJson()`.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include "core/indexed.h"
#include "core/property_table.h"

namespace tamrel::com::members {

// The dispatch ids: an entry of the table is its place from 1; the object
// as JSON; a repeating group's extra members; a prefixed group's entries.
inline constexpr std::int32_t kLoadJson = 9001;
inline constexpr std::int32_t kToJson = 9002;
enum Extra : std::int32_t { kCount = 0, kAdd = 1, kClear = 2 };
inline constexpr std::int32_t kExtraBase = 10000;
inline constexpr std::int32_t kPrefixBase = 100000;
constexpr std::int32_t prefixed_id(std::size_t field, std::size_t inner) {
    return kPrefixBase + static_cast<std::int32_t>(field) * 256 + static_cast<std::int32_t>(inner);
}
constexpr std::int32_t extra_id(std::size_t field, Extra e) {
    return kExtraBase + static_cast<std::int32_t>(field) * 3 + e;
}

template <class M>
constexpr bool is_vector = false;
template <class M>
constexpr bool is_vector<std::vector<M>> = true;
template <class M>
constexpr bool is_indexed = false;
template <class M>
constexpr bool is_indexed<Indexed<M>> = true;

// A name in two parts (a prefix or "Add", and a property's name), so that
// the list is made at compile time.
struct Name {
    std::string_view first, second;
    std::string text() const { return std::string(first) + std::string(second); }
    constexpr bool operator==(std::string_view n) const {
        return first.size() + second.size() == n.size() && n.substr(0, first.size()) == first &&
               n.substr(first.size()) == second;
    }
};

// The count of a repeating group: the object's own count property.
constexpr Name count_name(std::string_view group) {
    if (group == "Position") return {"Anzahl", "Positionen"};
    if (group == "Vorerkrankungen") return {"", "ANZAHLAU"};
    return {"Anzahl", group};
}

// What a member's value is in the interface.
enum class Type : std::uint8_t { None, Text, Long, Integer, Boolean, Object };
// How the member is called: a property's get, put or put by `Set`, or a
// method (with a result of `type`, or an argument of `type` for `LoadJson`).
enum class Role : std::uint8_t { Get, Put, PutRef, Method, MethodWithArgument };
// The index a member takes first: none, an indexed property's (short), a
// group's item number (long).
enum class Index : std::uint8_t { None, Entry, Item };

struct Member {
    Name name;
    std::int32_t id;
    Role role;
    Type type;
    Index index = Index::None;
    const std::type_info* object = nullptr;  // Type::Object: the data object's type
};

template <class V>
constexpr Type type_of() {
    if constexpr (std::is_same_v<V, std::string>)
        return Type::Text;
    else if constexpr (std::is_same_v<V, bool>)
        return Type::Boolean;
    else if constexpr (std::is_same_v<V, std::int32_t>)
        return Type::Long;
    else if constexpr (std::is_same_v<V, std::int16_t>)
        return Type::Integer;
    else
        static_assert(sizeof(V) == 0, "a data object's property is a text, flag, Long or Integer");
}

template <class T>
using FieldsOf = decltype(properties::Binding<T>::fields);

// Whether the table of T has an entry named `n`.
template <class T>
constexpr bool has_field(const Name& n) {
    return std::apply(
        [&](const auto&... e) {
            return (false || ... || [&] {
                if constexpr (requires { e.name; })
                    return n == e.name;
                else
                    return false;
            }());
        },
        properties::Binding<T>::fields);
}

// Calls `emit(Member)` for every member of T's interface, in order.
template <class T, class Emit>
constexpr void each_member(Emit&& emit) {
    std::size_t k = 0;
    auto one = [&](const auto& e) {
        const std::size_t field = k++;
        if constexpr (requires { e.prefix; }) {
            using N = std::remove_cvref_t<decltype(std::declval<T&>().*(e.member))>;
            std::size_t j = 0;
            std::apply(
                [&](const auto&... g) {
                    auto inner = [&](const auto& f) {
                        using V = std::remove_cvref_t<decltype(std::declval<N&>().*(f.member))>;
                        const std::int32_t id = prefixed_id(field, j++);
                        emit(Member{{e.prefix, f.name}, id, Role::Get, type_of<V>()});
                        emit(Member{{e.prefix, f.name}, id, Role::Put, type_of<V>()});
                    };
                    (inner(g), ...);
                },
                properties::Binding<N>::fields);
        } else {
            using M = std::remove_cvref_t<decltype(std::declval<T&>().*(e.member))>;
            const Name name{{}, e.name};
            const auto id = static_cast<std::int32_t>(field + 1);
            if constexpr (properties::Bound<M>) {
                emit(Member{name, id, Role::Get, Type::Object, Index::None, &typeid(M)});
                emit(Member{name, id, Role::PutRef, Type::Object, Index::None, &typeid(M)});
            } else if constexpr (is_vector<M>) {
                using Item = typename M::value_type;
                emit(Member{name, id, Role::Get, Type::Object, Index::Item, &typeid(Item)});
                if (!has_field<T>(count_name(e.name)))
                    emit(Member{count_name(e.name), extra_id(field, kCount), Role::Get, Type::Long});
                emit(Member{
                    {"Add", e.name}, extra_id(field, kAdd), Role::Method, Type::Object, Index::None, &typeid(Item)});
                emit(Member{{"Clear", e.name}, extra_id(field, kClear), Role::Method, Type::None});
            } else if constexpr (is_indexed<M>) {
                using V = std::remove_cvref_t<decltype(std::declval<const M&>()(std::int16_t{}))>;
                emit(Member{name, id, Role::Get, type_of<V>(), Index::Entry});
                emit(Member{name, id, Role::Put, type_of<V>(), Index::Entry});
            } else {
                emit(Member{name, id, Role::Get, type_of<M>()});
                emit(Member{name, id, Role::Put, type_of<M>()});
            }
        }
    };
    std::apply([&](const auto&... e) { (one(e), ...); }, properties::Binding<T>::fields);
    emit(Member{{{}, "LoadJson"}, kLoadJson, Role::MethodWithArgument, Type::Text});
    emit(Member{{{}, "ToJson"}, kToJson, Role::Method, Type::Text});
}

template <class T>
constexpr std::size_t member_count() {
    std::size_t n = 0;
    each_member<T>([&](const Member&) { ++n; });
    return n;
}

// The members of T's interface as a table made at compile time.
template <class T>
struct Members {
    static constexpr std::size_t size = member_count<T>();
    static constexpr auto list = [] {
        struct List {
            Member m[size];
        } out{};
        std::size_t i = 0;
        each_member<T>([&](const Member& m) { out.m[i++] = m; });
        return out;
    }();
};

}  // namespace tamrel::com::members
