// The creatable classes of TamrelObj26, the data objects: one a data-object
// interface (the procedures' objects and the shared Vorgang, Arbeitgeber
// and Empfaenger), registered under "TamrelObj26.<name>".
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <unknwn.h>

#include <cstddef>

namespace tamrel::com {

struct DataClassEntry {
    const char* name;
    CLSID clsid;
    IUnknown* (*create)();
};

extern const DataClassEntry kDataClasses[];
extern const std::size_t kDataClassCount;

}  // namespace tamrel::com
