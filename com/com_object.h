// An object of the server: reference counting, IDispatch answered from the
// embedded type library (so late-bound callers reach the same vtable as
// early-bound ones), and ISupportErrorInfo.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oaidl.h>

#include <atomic>
#include <new>

#include "TamrelFile26.h"
#include "com/structure_args.h"

namespace tamrel::com {

// Objects and locks alive in the process (DllCanUnloadNow).
extern std::atomic<long> g_live;

// The type information of an interface of the type library (cached).
ITypeInfo* type_info(REFIID iid);

template <class Itf>
class Dual : public Itf, public ISupportErrorInfo {
public:
    Dual() { ++g_live; }
    virtual ~Dual() { --g_live; }

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        if (!out) return E_POINTER;
        if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Itf)) {
            *out = static_cast<Itf*>(this);
        } else if (iid == IID_ISupportErrorInfo) {
            *out = static_cast<ISupportErrorInfo*>(this);
        } else {
            *out = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG n = --refs_;
        if (n == 0) delete this;
        return n;
    }

    // IDispatch
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override {
        if (!n) return E_POINTER;
        *n = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** out) override {
        if (!out) return E_POINTER;
        *out = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        ITypeInfo* info = type_info(__uuidof(Itf));
        if (!info) return TYPE_E_ELEMENTNOTFOUND;
        info->AddRef();
        *out = info;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        ITypeInfo* info = type_info(__uuidof(Itf));
        return info ? DispGetIDsOfNames(info, names, count, ids) : TYPE_E_ELEMENTNOTFOUND;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                                     EXCEPINFO* excep, UINT* arg_err) override {
        ITypeInfo* info = type_info(__uuidof(Itf));
        if (!info) return TYPE_E_ELEMENTNOTFOUND;
        try {
            StructureArgs structures(params);  // a structure given as its object
            if (structures.any() && (flags & DISPATCH_METHOD))
                return structures.call(info, static_cast<Itf*>(this), id, result, excep);
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY;
        }
        return info->Invoke(static_cast<Itf*>(this), id, flags, params, result, excep, arg_err);
    }

    // ISupportErrorInfo
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == __uuidof(Itf) ? S_OK : S_FALSE;
    }

private:
    std::atomic<ULONG> refs_{1};
};

}  // namespace tamrel::com
