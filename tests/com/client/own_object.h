// A report's JSON copied into a data object of TamrelObj26 through its
// IDispatch, as a scripting host fills one: texts, numbers and flags put
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

// A new TamrelObj26.<name> filled from `report`; the caller owns it.
// Throws std::runtime_error naming the property that could not be set.
IDispatch* own_object(const std::string& name, const nlohmann::json& report);

}  // namespace client
