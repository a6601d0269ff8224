// A report's JSON copied into a data object of TamrelObj26 through its
// IDispatch, as a scripting host fills one, or through its dual interface,
// as a compiled host does: texts, numbers and flags put
// by name, the entries of a list (an array from index 1, or an object of
// indices) put with their index, a sub-object filled through the object
// its property gives, and each item of a repeating group made by
// Add<group> and filled.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <nlohmann/json.hpp>

#include <string>

namespace client {

// Late binding (IDispatch, by name), or early binding: the members of the
// object's dual interface called through its vtable as the type library
// lays it out.
enum class Binding { Late, Early };

// A new TamrelObj26.<name> filled from `report`; the caller owns it.
// Throws std::runtime_error naming the property that could not be set.
IDispatch* own_object(const std::string& name, const nlohmann::json& report, Binding how = Binding::Late);

// Every settable property of every class of TamrelObj26 set through its
// dual interface's vtable slot and read back late bound by name, and every
// member's id the one late binding finds. Gives what was checked; throws
// std::runtime_error naming the first member that differs.
std::string check_interfaces();

}  // namespace client
