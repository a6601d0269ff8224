// A small automation object for the test client: reference counting, the
// IDispatch boilerplate, and two hooks a subclass fills in: the dispatch id
// of a name (any case) and the answer to a call of that id.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <atomic>
#include <string>
#include <string_view>

namespace client {

bool same_name(std::string_view a, std::string_view b);  // ASCII, any case

// Type information for a class of the host's own, named `name`: an empty
// dispatch interface with an identifier of its own, made once a process.
// A compiled host's classes have it; the server keeps dispatch ids by it.
ITypeInfo* class_info(const std::string& name);

class AutomationObject : public IDispatch {
public:
    // Calls of GetIDsOfNames on all objects of the process, for the tests of
    // the server's lookups.
    static std::atomic<long> lookups;

    virtual ~AutomationObject() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT i, LCID, ITypeInfo** out) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT* result,
                                     EXCEPINFO* error, UINT*) override;

protected:
    // The object's class, for GetTypeInfo (nullptr: none).
    ITypeInfo* class_ = nullptr;
    // DISPID_UNKNOWN for a name the object does not know.
    virtual DISPID id_of(std::string_view name) = 0;
    virtual HRESULT answer(DISPID id, const DISPPARAMS& params, VARIANT& result, EXCEPINFO* error) = 0;

private:
    std::atomic<ULONG> refs_{1};
};

}  // namespace client
