// The dual interface of a data object, for early-bound hosts: a table with
// the interface's members in the type library's order (com/object_members.h
// gives both), each entry a small function that calls the object's own
// Invoke with the member's dispatch id and turns the Variants into the
// interface's types. So a property set through the interface lands where a
// late-bound set lands, by the same code.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <utility>

#include "com/com_error.h"
#include "com/com_text.h"
#include "com/object_members.h"
#include "com/own_data.h"

namespace tamrel::com {

// What the interface pointer points to: the table and the object behind it.
using TableEntry = void (*)();
template <class Owner>
struct DualView {
    const TableEntry* table;
    Owner* owner;
};

namespace dual {

using members::Index;
using members::Role;
using members::Type;

// The C++ type of a member's value in the interface, by its Type.
template <Type T>
using Com =
    std::tuple_element_t<static_cast<std::size_t>(T), std::tuple<void, BSTR, LONG, SHORT, VARIANT_BOOL, IDispatch*>>;

// A Variant that borrows the argument (nothing to clear).
inline void borrow(VARIANT& v, BSTR x) { V_VT(&v) = VT_BSTR, V_BSTR(&v) = x; }
inline void borrow(VARIANT& v, LONG x) { V_VT(&v) = VT_I4, V_I4(&v) = x; }
inline void borrow(VARIANT& v, SHORT x) { V_VT(&v) = VT_I2, V_I2(&v) = x; }
inline void borrow(VARIANT& v, IDispatch* x) { V_VT(&v) = VT_DISPATCH, V_DISPATCH(&v) = x; }
inline void borrow_flag(VARIANT& v, VARIANT_BOOL x) { V_VT(&v) = VT_BOOL, V_BOOL(&v) = x; }

// An object's dual interface where it is one of ours, else the object.
inline IDispatch* dual_of(IDispatch* d) {
    ITamrelData* own = nullptr;
    if (d && SUCCEEDED(d->QueryInterface(IID_ITamrelData, reinterpret_cast<void**>(&own)))) {
        IDispatch* view = own->dual();
        own->Release();
        return view;
    }
    if (d) d->AddRef();
    return d;
}

// The result as the interface's type; the Variant is left empty.
template <Type T>
HRESULT take(VARIANT& v, Com<T>* out) {
    if constexpr (T == Type::Object) {
        *out = V_VT(&v) == VT_DISPATCH ? dual_of(V_DISPATCH(&v)) : nullptr;
        const bool object = V_VT(&v) == VT_DISPATCH;
        VariantClear(&v);
        return object ? S_OK : DISP_E_TYPEMISMATCH;
    } else {
        constexpr VARTYPE vt = T == Type::Text      ? VT_BSTR
                               : T == Type::Long    ? VT_I4
                               : T == Type::Integer ? VT_I2
                                                    : VT_BOOL;
        const HRESULT hr = VariantChangeType(&v, &v, 0, vt);
        if (FAILED(hr)) {
            VariantClear(&v);
            return hr;
        }
        if constexpr (T == Type::Text) *out = V_BSTR(&v);
        if constexpr (T == Type::Long) *out = V_I4(&v);
        if constexpr (T == Type::Integer) *out = V_I2(&v);
        if constexpr (T == Type::Boolean) *out = V_BOOL(&v);
        V_VT(&v) = VT_EMPTY;  // the text is the caller's now
        return S_OK;
    }
}

// A failure as an early-bound caller sees it: the exception's source and
// description become the thread's IErrorInfo.
inline HRESULT failed(HRESULT hr, EXCEPINFO& e) {
    if (hr != DISP_E_EXCEPTION) return hr;
    set_error_info(utf8(e.bstrSource), utf8(e.bstrDescription));
    SysFreeString(e.bstrSource);
    SysFreeString(e.bstrDescription);
    SysFreeString(e.bstrHelpFile);
    return FAILED(e.scode) ? e.scode : E_FAIL;
}

template <class Owner>
HRESULT call_owner(DualView<Owner>* view, std::int32_t id, WORD flags, DISPPARAMS& params, VARIANT* result) {
    EXCEPINFO e{};
    const HRESULT hr = view->owner->Invoke(id, IID_NULL, 0, flags, &params, result, &e, nullptr);
    return FAILED(hr) ? failed(hr, e) : hr;
}

// A property's get or a method with a result.
template <class Owner, std::int32_t Id, Role R, Type T, class... Ix>
HRESULT STDMETHODCALLTYPE get(DualView<Owner>* view, Ix... index, Com<T>* out) {
    if (!out) return E_POINTER;
    VARIANT args[1];
    DISPPARAMS params{args, nullptr, sizeof...(Ix), 0};
    (borrow(args[0], index), ...);
    VARIANT result;
    VariantInit(&result);
    const HRESULT hr = call_owner(view, Id, R == Role::Get ? DISPATCH_PROPERTYGET : DISPATCH_METHOD, params, &result);
    if (FAILED(hr)) return hr;
    return take<T>(result, out);
}

// A property's put (or put by `Set`), or a method with an argument.
template <class Owner, std::int32_t Id, Role R, Type T, class... Ix>
HRESULT STDMETHODCALLTYPE put(DualView<Owner>* view, Ix... index, Com<T> value) {
    VARIANT args[1 + sizeof...(Ix)];  // the value first, then the index
    if constexpr (T == Type::Boolean)
        borrow_flag(args[0], value);
    else
        borrow(args[0], value);
    (borrow(args[1], index), ...);
    DISPID named = DISPID_PROPERTYPUT;
    constexpr bool method = R == Role::MethodWithArgument;
    DISPPARAMS params{args, method ? nullptr : &named, 1 + sizeof...(Ix), method ? 0u : 1u};
    constexpr WORD flags = R == Role::Put      ? DISPATCH_PROPERTYPUT
                           : R == Role::PutRef ? DISPATCH_PROPERTYPUTREF
                                               : DISPATCH_METHOD;
    return call_owner(view, Id, flags, params, nullptr);
}

// A method without arguments or result.
template <class Owner, std::int32_t Id>
HRESULT STDMETHODCALLTYPE call(DualView<Owner>* view) {
    DISPPARAMS params{nullptr, nullptr, 0, 0};
    return call_owner(view, Id, DISPATCH_METHOD, params, nullptr);
}

template <class F>
TableEntry entry_of(F* f) {
    return reinterpret_cast<TableEntry>(f);
}

// The table entry of member I of T's interface.
template <class Owner, class T, std::size_t I>
TableEntry entry() {
    constexpr members::Member m = members::Members<T>::list.m[I];
    constexpr bool reads = m.role == Role::Get || (m.role == Role::Method && m.type != Type::None);
    if constexpr (reads) {
        if constexpr (m.index == Index::Entry)
            return entry_of(&get<Owner, m.id, m.role, m.type, SHORT>);
        else if constexpr (m.index == Index::Item)
            return entry_of(&get<Owner, m.id, m.role, m.type, LONG>);
        else
            return entry_of(&get<Owner, m.id, m.role, m.type>);
    } else if constexpr (m.role == Role::Method) {
        return entry_of(&call<Owner, m.id>);
    } else {
        if constexpr (m.index == Index::Entry)
            return entry_of(&put<Owner, m.id, m.role, m.type, SHORT>);
        else
            return entry_of(&put<Owner, m.id, m.role, m.type>);
    }
}

// IUnknown and IDispatch, the object's own.
template <class Owner>
HRESULT STDMETHODCALLTYPE query(DualView<Owner>* v, REFIID iid, void** out) {
    return v->owner->QueryInterface(iid, out);
}
template <class Owner>
ULONG STDMETHODCALLTYPE add_ref(DualView<Owner>* v) {
    return v->owner->AddRef();
}
template <class Owner>
ULONG STDMETHODCALLTYPE release(DualView<Owner>* v) {
    return v->owner->Release();
}
template <class Owner>
HRESULT STDMETHODCALLTYPE type_info_count(DualView<Owner>* v, UINT* n) {
    return v->owner->GetTypeInfoCount(n);
}
template <class Owner>
HRESULT STDMETHODCALLTYPE type_info(DualView<Owner>* v, UINT i, LCID lcid, ITypeInfo** out) {
    return v->owner->GetTypeInfo(i, lcid, out);
}
template <class Owner>
HRESULT STDMETHODCALLTYPE ids_of_names(DualView<Owner>* v, REFIID iid, LPOLESTR* names, UINT n, LCID lcid,
                                       DISPID* ids) {
    return v->owner->GetIDsOfNames(iid, names, n, lcid, ids);
}
template <class Owner>
HRESULT STDMETHODCALLTYPE invoke(DualView<Owner>* v, DISPID id, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* p,
                                 VARIANT* result, EXCEPINFO* e, UINT* arg_err) {
    return v->owner->Invoke(id, iid, lcid, flags, p, result, e, arg_err);
}

// ISupportErrorInfo: every failure of the dual interface sets IErrorInfo.
template <class Owner>
HRESULT STDMETHODCALLTYPE supports_error_info(DualView<Owner>*, REFIID) {
    return S_OK;
}

}  // namespace dual

// The table of ISupportErrorInfo for objects of type Owner, so that an
// early-bound host (VB6, VBA) shows the description a failure carries.
template <class Owner>
const TableEntry* error_info_table() {
    using namespace dual;
    static const std::array<TableEntry, 4> table{entry_of(&query<Owner>), entry_of(&add_ref<Owner>),
                                                 entry_of(&release<Owner>), entry_of(&supports_error_info<Owner>)};
    return table.data();
}

// The table of T's dual interface for objects of type Owner.
template <class Owner, class T>
const TableEntry* dual_table() {
    static const auto table = []<std::size_t... I>(std::index_sequence<I...>) {
        using namespace dual;
        return std::array<TableEntry, 7 + sizeof...(I)>{entry_of(&query<Owner>),     entry_of(&add_ref<Owner>),
                                                        entry_of(&release<Owner>),   entry_of(&type_info_count<Owner>),
                                                        entry_of(&type_info<Owner>), entry_of(&ids_of_names<Owner>),
                                                        entry_of(&invoke<Owner>),    entry<Owner, T, I>()...};
    }
    (std::make_index_sequence<members::Members<T>::size>{});
    return table.data();
}

}  // namespace tamrel::com
