// The names and values of TamrelObj26's data objects: names in any case,
// Variants as the properties' texts, flags and numbers, and the stamps that
// tell a change. The dispatch ids are the interface's (com/object_members.h).
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>

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

// When a data object was last changed: a count over all of them, so that an
// object knows whether its copy of its sub-objects is still current.
inline std::uint64_t next_stamp() {
    static std::atomic<std::uint64_t> stamps{0};
    return ++stamps;
}

}  // namespace objects

}  // namespace tamrel::com
