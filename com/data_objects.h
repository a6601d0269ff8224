// The creatable classes of TamrelObj26, the data objects: one for each
// data-object interface (the procedures' objects, the shared Vorgang,
// Arbeitgeber and Empfaenger, the structures), and one for each kind of
// sub-object and item they hold, registered under "TamrelObj26.<name>".
// Their class ids and interfaces are the type library's (the DLL's second
// type library, com/TamrelObj26.idl).
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oaidl.h>

#include <string>
#include <typeinfo>
#include <vector>

namespace tamrel::com {

struct DataClassEntry {
    std::string name;
    const std::type_info* type;
    IUnknown* (*create)();
    CLSID clsid;      // the coclass's
    IID iid;          // its dual interface's
    ITypeInfo* info;  // its dual interface, described
};

// Every class, the type library's identifiers filled in.
const std::vector<DataClassEntry>& data_classes();
// The class of the data object type `type`.
const DataClassEntry& data_class(const std::type_info& type);

// The server's type libraries, loaded once: 1 TamrelFile26 (the
// generators), 2 TamrelObj26 (the data objects); nullptr where one cannot be.
ITypeLib* type_library(int index);

}  // namespace tamrel::com
