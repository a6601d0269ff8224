// The server's classes in the order of the type library: name, class and
// default interface identifiers, and how to make one (none for clsGenDef,
// which is public but not creatable).
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <unknwn.h>

#include <cstddef>

namespace tamrel::com {

struct ClassEntry {
    const char* name;
    CLSID clsid;
    IID iid;
    IUnknown* (*create)();
};

extern const ClassEntry kClasses[];
extern const std::size_t kClassCount;

}  // namespace tamrel::com
