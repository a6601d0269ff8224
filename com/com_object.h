// A generator object of the server: IDispatch answered from the
// embedded type library (so late-bound callers reach the same vtable as
// early-bound ones), and ISupportErrorInfo.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oaidl.h>

#include <new>

#include "TamrelFile26.h"
#include "com/com_base.h"
#include "com/structure_args.h"

namespace tamrel::com {

// The type information of an interface of the type library (cached).
ITypeInfo* type_info(REFIID iid);

template <class Itf>
class Dual : public ComBase<Itf, ISupportErrorInfo, IID_ISupportErrorInfo> {
public:
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
};

}  // namespace tamrel::com
