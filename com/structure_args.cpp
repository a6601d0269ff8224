#include "com/structure_args.h"

#include <new>

#include "com/com_object.h"
#include "com/com_text.h"
#include "com/data_object_values.h"
#include "com/own_data.h"

namespace tamrel::com {
namespace {

// The object an argument holds, by value or by reference.
IDispatch* object_in(const VARIANT& v) {
    const VARIANT& d = deref(v);
    if (V_VT(&d) == VT_DISPATCH) return V_DISPATCH(&d);
    if (V_VT(&d) == (VT_BYREF | VT_DISPATCH) && V_DISPATCHREF(&d)) return *V_DISPATCHREF(&d);
    return nullptr;
}

}  // namespace

struct StructureArgs::Swap {
    virtual ~Swap() = default;
    virtual void write_back() = 0;
    void* pointer = nullptr;  // the structure
};

namespace {

template <class T, class Com>
struct SwapOf final : StructureArgs::Swap {
    SwapOf(IDispatch* o, const T& value) : object(o) {
        pointer = &com;
        to_com(value, com);
        object->AddRef();
    }
    ~SwapOf() override {
        for (BSTR* m = reinterpret_cast<BSTR*>(&com); m < reinterpret_cast<BSTR*>(&com + 1); ++m) SysFreeString(*m);
        object->Release();
    }
    void write_back() override { replace_data(object, from_com(com)); }
    IDispatch* object;
    Com com{};
};

template <class T, class Com>
bool swap_in(IDispatch* o, std::vector<std::unique_ptr<StructureArgs::Swap>>& swapped) {
    const T* value = own_data<T>(o);
    if (!value) return false;
    swapped.push_back(std::make_unique<SwapOf<T, Com>>(o, *value));
    return true;
}

}  // namespace

StructureArgs::StructureArgs(const DISPPARAMS* params) {
    if (!params || !params->rgvarg) return;
    args_.assign(params->rgvarg, params->rgvarg + params->cArgs);
    for (const VARIANT& a : args_)
        if (IDispatch* o = object_in(a))
            swap_in<DatensatzData, ::DatensatzData>(o, swapped_) || swap_in<DSKOData, ::DSKOData>(o, swapped_);
}

namespace {

// The interface's vtable view: a dual interface's dispatch view leaves out
// a method's result and its slot. The caller releases it.
ITypeInfo* vtable_view(ITypeInfo* info) {
    HREFTYPE vtable = 0;
    ITypeInfo* view = nullptr;
    if (FAILED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &vtable)) ||
        FAILED(info->GetRefTypeInfo(vtable, &view))) {
        info->AddRef();
        return info;
    }
    return view;
}

// The description of method `id`; nullptr when it is none.
FUNCDESC* method(ITypeInfo* info, DISPID id) {
    TYPEATTR* attr = nullptr;
    if (FAILED(info->GetTypeAttr(&attr))) return nullptr;
    const WORD count = attr->cFuncs;
    info->ReleaseTypeAttr(attr);
    for (UINT i = 0; i < count; ++i) {
        FUNCDESC* f = nullptr;
        if (FAILED(info->GetFuncDesc(i, &f))) continue;
        if (f->memid == id && f->invkind == INVOKE_FUNC) return f;
        info->ReleaseFuncDesc(f);
    }
    return nullptr;
}

using Slot = void*;
template <class... A>
HRESULT call_slot(void* self, Slot slot, A... a) {
    using Fn = HRESULT(STDMETHODCALLTYPE*)(void*, A...);
    return reinterpret_cast<Fn>(slot)(self, a...);
}

HRESULT exception(HRESULT hr, EXCEPINFO* excep) {
    if (!excep) return hr;
    *excep = EXCEPINFO{};
    IErrorInfo* info = nullptr;
    if (GetErrorInfo(0, &info) == S_OK && info) {
        info->GetSource(&excep->bstrSource);
        info->GetDescription(&excep->bstrDescription);
        info->Release();
    }
    excep->scode = hr;
    return DISP_E_EXCEPTION;
}

}  // namespace

// The methods that take a structure: GenDSKO(udt, [enm,] date) and
// GenData(obj, udt, [enm,] date), each with its result last.
HRESULT StructureArgs::call(ITypeInfo* dispatch_view, void* self, DISPID id, VARIANT* result, EXCEPINFO* excep) {
    ITypeInfo* info = vtable_view(dispatch_view);
    FUNCDESC* f = method(info, id);
    if (!f) {
        info->Release();
        return DISP_E_MEMBERNOTFOUND;
    }
    const SHORT params = f->cParams;
    const SHORT given = static_cast<SHORT>(args_.size());
    const bool has_object = params > 0 && f->lprgelemdescParam[0].tdesc.vt == VT_DISPATCH;
    const Slot slot = (*reinterpret_cast<Slot**>(self))[f->oVft / sizeof(Slot)];
    info->ReleaseFuncDesc(f);
    info->Release();
    // Arguments come last first; the result is the last parameter, not given.
    auto arg = [&](SHORT i) -> const VARIANT* { return i < given ? &deref(args_[given - 1 - i]) : nullptr; };
    VARIANT missing_date;
    VariantInit(&missing_date);
    V_VT(&missing_date) = VT_ERROR;
    V_ERROR(&missing_date) = DISP_E_PARAMNOTFOUND;
    const SHORT first = has_object ? 1 : 0;  // the structure's place
    if (given < first + 1 || given > params - 1 || swapped_.size() != 1) return DISP_E_BADPARAMCOUNT;
    void* structure = swapped_.front()->pointer;
    const bool with_number = params - first == 4;  // an enumeration or number before the date
    const VARIANT* date = arg(static_cast<SHORT>(first + (with_number ? 2 : 1)));
    const VARIANT d = date ? *date : missing_date;
    LONG number = 0;
    if (with_number) {
        const VARIANT* n = arg(static_cast<SHORT>(first + 1));
        std::int64_t x = 0;
        if (!n || !objects::take(*n, x)) return DISP_E_TYPEMISMATCH;
        number = static_cast<LONG>(x);
    }
    BSTR out = nullptr;
    HRESULT hr;
    if (has_object) {
        const VARIANT* o = arg(0);
        IDispatch* obj = o ? object_in(*o) : nullptr;
        hr = with_number ? call_slot(self, slot, obj, structure, number, d, &out)
                         : call_slot(self, slot, obj, structure, d, &out);
    } else {
        hr =
            with_number ? call_slot(self, slot, structure, number, d, &out) : call_slot(self, slot, structure, d, &out);
    }
    if (FAILED(hr)) return exception(hr, excep);
    if (result) {
        VariantInit(result);
        V_VT(result) = VT_BSTR;
        V_BSTR(result) = out;
    } else {
        SysFreeString(out);
    }
    return S_OK;
}

StructureArgs::~StructureArgs() {
    for (const auto& s : swapped_) {
        try {
            s->write_back();
        } catch (const std::bad_alloc&) {
            // the object keeps what it held: nothing thrown leaves a destructor
        }
    }
}

}  // namespace tamrel::com
