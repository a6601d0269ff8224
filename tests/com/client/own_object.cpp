#include "own_object.h"

#include <stdexcept>
#include <vector>

#include "com/com_text.h"

namespace client {
namespace {

using nlohmann::json;

// A Variant that clears itself.
struct Var {
    VARIANT v;
    Var() { VariantInit(&v); }
    ~Var() { VariantClear(&v); }
    Var(const Var&) = delete;
    Var& operator=(const Var&) = delete;
};

void to_variant(const json& j, VARIANT& v) {
    if (j.is_string()) {
        V_VT(&v) = VT_BSTR;
        V_BSTR(&v) = tamrel::com::bstr(j.get_ref<const std::string&>());
    } else if (j.is_boolean()) {
        V_VT(&v) = VT_BOOL;
        V_BOOL(&v) = j.get<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (j.is_number_integer()) {
        V_VT(&v) = VT_I4;
        V_I4(&v) = j.get<LONG>();
    } else if (j.is_number()) {
        V_VT(&v) = VT_R8;
        V_R8(&v) = j.get<double>();
    }
}

DISPID id_of(IDispatch* o, const std::string& name) {
    std::wstring w = tamrel::com::utf16(name);
    LPOLESTR names[] = {w.data()};
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(o->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id)))
        throw std::runtime_error(name + ": no such property");
    return id;
}

// The object's dual interface as its type library describes it: the
// interface pointer and the vtable's description, which ITypeInfo::Invoke
// calls through slot by slot, as a compiled early-bound host does.
struct Dual {
    ITypeInfo* info = nullptr;
    IUnknown* itf = nullptr;
    explicit Dual(IDispatch* o) {
        ITypeInfo* dispatch = nullptr;
        HREFTYPE ref = 0;
        TYPEATTR* attr = nullptr;
        if (FAILED(o->GetTypeInfo(0, LOCALE_USER_DEFAULT, &dispatch))) throw std::runtime_error("no type information");
        const bool ok = SUCCEEDED(dispatch->GetRefTypeOfImplType(-1, &ref)) &&
                        SUCCEEDED(dispatch->GetRefTypeInfo(ref, &info)) && SUCCEEDED(info->GetTypeAttr(&attr));
        dispatch->Release();
        if (!ok) throw std::runtime_error("no dual interface");
        const HRESULT hr = o->QueryInterface(attr->guid, reinterpret_cast<void**>(&itf));
        info->ReleaseTypeAttr(attr);
        if (FAILED(hr)) throw std::runtime_error("the dual interface is not given");
    }
    ~Dual() {
        if (itf) itf->Release();
        if (info) info->Release();
    }
    Dual(const Dual&) = delete;
    Dual& operator=(const Dual&) = delete;
};

// Calls `name` with the arguments in the order written (Invoke takes them
// last first): late bound through IDispatch, or early bound through the
// type library's vtable description.
void call(IDispatch* o, const std::string& name, WORD flags, std::vector<VARIANT> args, VARIANT* result, Binding how) {
    DISPID put = DISPID_PROPERTYPUT;
    std::vector<VARIANT> reversed(args.rbegin(), args.rend());
    DISPPARAMS p{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    if (flags & DISPATCH_PROPERTYPUT) p.rgdispidNamedArgs = &put, p.cNamedArgs = 1;
    HRESULT hr;
    if (how == Binding::Early) {
        const Dual dual(o);
        std::wstring w = tamrel::com::utf16(name);
        LPOLESTR names[] = {w.data()};
        MEMBERID id = MEMBERID_NIL;
        if (FAILED(dual.info->GetIDsOfNames(names, 1, &id)))
            throw std::runtime_error(name + ": not in the type library");
        EXCEPINFO e{};
        hr = dual.info->Invoke(dual.itf, id, flags, &p, result, &e, nullptr);
    } else {
        hr = o->Invoke(id_of(o, name), IID_NULL, LOCALE_USER_DEFAULT, flags, &p, result, nullptr, nullptr);
    }
    for (VARIANT& a : args) VariantClear(&a);
    if (FAILED(hr)) throw std::runtime_error(name + ": refused (" + std::to_string(hr) + ")");
}

VARIANT index(long i) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_I4;
    V_I4(&v) = i;
    return v;
}

VARIANT value(const json& j) {
    VARIANT v;
    VariantInit(&v);
    to_variant(j, v);
    return v;
}

bool all_indices(const json& j) {
    for (const auto& [k, v] : j.items())
        if (k.empty() || k.find_first_not_of("-0123456789") != std::string::npos) return false;
    return !j.empty();
}

void fill(IDispatch* o, const json& report, Binding how) {
    for (const auto& [k, v] : report.items()) {
        if (v.is_null()) continue;
        if (v.is_object() && all_indices(v)) {
            for (const auto& [i, e] : v.items())
                call(o, k, DISPATCH_PROPERTYPUT, {index(std::stol(i)), value(e)}, nullptr, how);
        } else if (v.is_object()) {
            Var sub;
            call(o, k, DISPATCH_PROPERTYGET, {}, &sub.v, how);
            if (V_VT(&sub.v) != VT_DISPATCH) throw std::runtime_error(k + ": no sub-object");
            fill(V_DISPATCH(&sub.v), v, how);
        } else if (v.is_array() && !v.empty() && v[0].is_object()) {
            for (const json& item : v) {
                Var made;
                call(o, "Add" + k, DISPATCH_METHOD, {}, &made.v, how);
                if (V_VT(&made.v) != VT_DISPATCH) throw std::runtime_error("Add" + k + ": no item");
                fill(V_DISPATCH(&made.v), item, how);
            }
        } else if (v.is_array()) {
            for (std::size_t i = 0; i < v.size(); ++i)
                call(o, k, DISPATCH_PROPERTYPUT, {index(static_cast<long>(i + 1)), value(v[i])}, nullptr, how);
        } else {
            call(o, k, DISPATCH_PROPERTYPUT, {value(v)}, nullptr, how);
        }
    }
}

// A value of the COM type `vt` for the member `id`, told apart from the
// member's neighbours.
VARIANT probe(VARTYPE vt, MEMBERID id) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = vt;
    if (vt == VT_BSTR) V_BSTR(&v) = tamrel::com::bstr("v" + std::to_string(id));
    if (vt == VT_I4) V_I4(&v) = id % 100000 + 7;
    if (vt == VT_I2) V_I2(&v) = static_cast<SHORT>(id % 1000 + 3);
    if (vt == VT_BOOL) V_BOOL(&v) = VARIANT_TRUE;
    return v;
}

// Every settable property of one object through its vtable slot, read back
// late bound by name: the slot, its id and its types are the ones the late
// binding finds under the name. Gives the number of members checked.
std::size_t check_members(IDispatch* o, const std::string& cls) {
    const Dual dual(o);
    TYPEATTR* attr = nullptr;
    if (FAILED(dual.info->GetTypeAttr(&attr))) throw std::runtime_error(cls + ": no description");
    const UINT count = attr->cFuncs;
    dual.info->ReleaseTypeAttr(attr);
    std::size_t checked = 0;
    for (UINT f = 0; f < count; ++f) {
        FUNCDESC* fd = nullptr;
        if (FAILED(dual.info->GetFuncDesc(f, &fd))) throw std::runtime_error(cls + ": no member " + std::to_string(f));
        BSTR wname = nullptr;
        dual.info->GetDocumentation(fd->memid, &wname, nullptr, nullptr, nullptr);
        const std::string name = tamrel::com::utf8(wname);
        SysFreeString(wname);
        const MEMBERID id = fd->memid;
        const bool put = fd->invkind == INVOKE_PROPERTYPUT;
        const SHORT params = fd->cParams;
        const VARTYPE value_type = params > 0 ? fd->lprgelemdescParam[params - 1].tdesc.vt : VARTYPE{VT_EMPTY};
        dual.info->ReleaseFuncDesc(fd);
        if (id_of(o, name) != id) throw std::runtime_error(cls + "." + name + ": another id late bound");
        if (!put) continue;
        std::vector<VARIANT> args;
        if (params > 1) args.push_back(index(1));
        args.push_back(probe(value_type, id));
        Var want;
        VariantCopy(&want.v, &args.back());
        call(o, name, DISPATCH_PROPERTYPUT, args, nullptr, Binding::Early);
        Var got;
        call(o, name, DISPATCH_PROPERTYGET, params > 1 ? std::vector<VARIANT>{index(1)} : std::vector<VARIANT>{},
             &got.v, Binding::Late);
        if (FAILED(VariantChangeType(&got.v, &got.v, 0, value_type)) || VarCmp(&got.v, &want.v, 0, 0) != VARCMP_EQ)
            throw std::runtime_error(cls + "." + name + ": set through the interface, read back otherwise");
        ++checked;
    }
    return checked;
}

}  // namespace

std::string check_interfaces() {
    IDispatch* first = own_object("Meldung", json::object());
    ITypeInfo* info = nullptr;
    ITypeLib* lib = nullptr;
    UINT at = 0;
    const bool ok = SUCCEEDED(first->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info)) &&
                    SUCCEEDED(info->GetContainingTypeLib(&lib, &at));
    if (info) info->Release();
    first->Release();
    if (!ok) throw std::runtime_error("TamrelObj26: no type library");
    std::size_t classes = 0, checked = 0;
    for (UINT i = 0, n = lib->GetTypeInfoCount(); i < n; ++i) {
        TYPEKIND kind;
        BSTR wname = nullptr;
        if (FAILED(lib->GetTypeInfoType(i, &kind)) || kind != TKIND_COCLASS) continue;
        lib->GetDocumentation(static_cast<INT>(i), &wname, nullptr, nullptr, nullptr);
        const std::string name = tamrel::com::utf8(wname);
        SysFreeString(wname);
        IDispatch* o = own_object(name, json::object());
        try {
            checked += check_members(o, name);
        } catch (...) {
            o->Release();
            lib->Release();
            throw;
        }
        o->Release();
        ++classes;
    }
    lib->Release();
    return std::to_string(checked) + " properties of " + std::to_string(classes) +
           " classes set through their interfaces and read back by name";
}

IDispatch* own_object(const std::string& name, const json& report, Binding how) {
    CLSID clsid;
    if (FAILED(CLSIDFromProgID(tamrel::com::utf16("TamrelObj26." + name).c_str(), &clsid)))
        throw std::runtime_error("TamrelObj26." + name + " is not registered");
    IDispatch* o = nullptr;
    if (FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(&o))))
        throw std::runtime_error("TamrelObj26." + name + " cannot be created");
    try {
        fill(o, report, how);
    } catch (const std::runtime_error& e) {
        o->Release();
        throw std::runtime_error("TamrelObj26." + name + "." + e.what());
    }
    return o;
}

}  // namespace client
