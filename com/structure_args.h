// The structures DSKOData and DatensatzData given as objects: a scripting
// host cannot pass a structure, so where a method takes one it may pass a
// TamrelObj26.DSKOData or TamrelObj26.DatensatzData object instead. The
// arguments of a late-bound call are looked through first: such an object
// becomes the structure it holds, the method (GenDSKO, GenData) is called
// through its vtable slot with it, and what the method wrote into the
// structure goes back into the object after the call.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oaidl.h>

#include <memory>
#include <vector>

namespace tamrel::com {

class StructureArgs {
public:
    explicit StructureArgs(const DISPPARAMS* params);
    ~StructureArgs();  // writes the structures back into their objects
    StructureArgs(const StructureArgs&) = delete;
    StructureArgs& operator=(const StructureArgs&) = delete;
    // Whether an argument is a structure's object.
    bool any() const { return !swapped_.empty(); }
    // Calls method `id` of `self` (described by `info`) with the arguments,
    // the structures in place of their objects, as the type library's
    // Invoke would; a method's failure comes back as DISP_E_EXCEPTION with
    // `excep` filled from its error information.
    HRESULT call(ITypeInfo* info, void* self, DISPID id, VARIANT* result, EXCEPINFO* excep);

    struct Swap;  // one structure passed in place of its object

private:
    std::vector<VARIANT> args_;  // the caller's, last first
    std::vector<std::unique_ptr<Swap>> swapped_;
};

}  // namespace tamrel::com
