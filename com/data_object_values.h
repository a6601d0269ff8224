// The names and values of TamrelObj26's data objects: names in any case,
// Variants as the properties' texts, flags and numbers, the dispatch ids
// beyond the property table's, and the stamps that tell a change.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/indexed.h"

namespace tamrel::com {

namespace objects {

bool same_name(std::wstring_view a, std::string_view b);
// The Variant as a text, flag or number of the property's type; false where
// it cannot be one.
bool take(const VARIANT& v, std::string& out);
bool take(const VARIANT& v, bool& out);
bool take(const VARIANT& v, std::int64_t& out);
void give(const std::string& v, VARIANT& out);
void give(bool v, VARIANT& out);
void give(std::int64_t v, VARIANT& out);
// A failed call with its reason, for the host's error (DISP_E_EXCEPTION).
HRESULT raise(EXCEPINFO* excep, std::string_view source, std::string_view description);

template <class M>
constexpr bool is_vector = false;
template <class M>
constexpr bool is_vector<std::vector<M>> = true;
template <class M>
constexpr bool is_indexed = false;
template <class M>
constexpr bool is_indexed<Indexed<M>> = true;

// The object as a report of the job format, read and written.
constexpr DISPID kLoadJson = 9001;
constexpr DISPID kToJson = 9002;

// The extra names of a repeating group, after the table's properties.
enum Extra : DISPID { kCount = 0, kAdd = 1, kClear = 2 };
constexpr DISPID kExtraBase = 10000;
// A property spelt with a prefix ("AngFmna"): its group's field and its
// place in the nested type's table.
constexpr DISPID kPrefixBase = 100000;
constexpr DISPID prefixed_id(std::size_t field, std::size_t inner) {
    return kPrefixBase + static_cast<DISPID>(field) * 256 + static_cast<DISPID>(inner);
}
constexpr DISPID extra_id(std::size_t field, Extra e) { return kExtraBase + static_cast<DISPID>(field) * 3 + e; }

// When a data object was last changed: a count over all of them, so that an
// object knows whether its copy of its sub-objects is still current.
inline std::uint64_t next_stamp() {
    static std::atomic<std::uint64_t> stamps{0};
    return ++stamps;
}

}  // namespace objects

}  // namespace tamrel::com
