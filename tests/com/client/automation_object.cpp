#include "automation_object.h"

#include <map>

#include "com/com_text.h"

using tamrel::com::utf8;

namespace client {

bool same_name(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if ((a[i] | 0x20) != (b[i] | 0x20)) return false;
    return true;
}

HRESULT AutomationObject::QueryInterface(REFIID iid, void** out) {
    if (!out) return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IDispatch) {
        *out = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
}

ULONG AutomationObject::Release() {
    const ULONG n = --refs_;
    if (n == 0) delete this;
    return n;
}

std::atomic<long> AutomationObject::lookups{0};

ITypeInfo* class_info(const std::string& name) {
    static std::map<std::string, ITypeInfo*> made;  // kept for the process
    ITypeInfo*& info = made[name];
    if (info) return info;
#ifdef _WIN64
    constexpr SYSKIND kind = SYS_WIN64;
#else
    constexpr SYSKIND kind = SYS_WIN32;
#endif
    ICreateTypeLib2* lib = nullptr;
    ICreateTypeInfo* type = nullptr;
    std::wstring wide(name.begin(), name.end());
    GUID guid;
    if (FAILED(CoCreateGuid(&guid)) || FAILED(CreateTypeLib2(kind, L"host.tlb", &lib))) return nullptr;
    if (SUCCEEDED(lib->CreateTypeInfo(wide.data(), TKIND_DISPATCH, &type))) {
        type->SetGuid(guid);
        type->QueryInterface(IID_ITypeInfo, reinterpret_cast<void**>(&info));
        type->Release();
    }
    return info;  // the library stays with its type information
}

HRESULT AutomationObject::GetTypeInfoCount(UINT* n) {
    if (!n) return E_POINTER;
    *n = class_ ? 1 : 0;
    return S_OK;
}

HRESULT AutomationObject::GetTypeInfo(UINT i, LCID, ITypeInfo** out) {
    if (!out) return E_POINTER;
    *out = i == 0 ? class_ : nullptr;
    if (!*out) return DISP_E_BADINDEX;
    (*out)->AddRef();
    return S_OK;
}

HRESULT AutomationObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    ++lookups;
    HRESULT hr = S_OK;
    for (UINT i = 0; i < count; ++i) {
        // Names are ASCII as a rule: narrowed on the stack.
        char narrow[64];
        const std::size_t n = wcslen(names[i]);
        bool ascii = n < sizeof narrow;
        for (std::size_t k = 0; ascii && k < n; ++k) {
            ascii = names[i][k] < 0x80;
            narrow[k] = static_cast<char>(names[i][k]);
        }
        ids[i] = ascii ? id_of(std::string_view(narrow, n)) : id_of(utf8(names[i], n));
        if (ids[i] == DISPID_UNKNOWN) hr = DISP_E_UNKNOWNNAME;
    }
    return hr;
}

HRESULT AutomationObject::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT* result, EXCEPINFO* error,
                                 UINT*) {
    VARIANT ignored;
    VARIANT& out = result ? *result : ignored;
    VariantInit(&out);
    static DISPPARAMS none{nullptr, nullptr, 0, 0};
    const HRESULT hr = answer(id, params ? *params : none, out, error);
    if (!result) VariantClear(&ignored);
    return hr;
}

}  // namespace client
