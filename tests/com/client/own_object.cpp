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

// Calls `name` with the arguments in the order written (Invoke takes them last first).
void call(IDispatch* o, const std::string& name, WORD flags, std::vector<VARIANT> args, VARIANT* result) {
    DISPID put = DISPID_PROPERTYPUT;
    std::vector<VARIANT> reversed(args.rbegin(), args.rend());
    DISPPARAMS p{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    if (flags & DISPATCH_PROPERTYPUT) p.rgdispidNamedArgs = &put, p.cNamedArgs = 1;
    const HRESULT hr = o->Invoke(id_of(o, name), IID_NULL, LOCALE_USER_DEFAULT, flags, &p, result, nullptr, nullptr);
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

void fill(IDispatch* o, const json& report) {
    for (const auto& [k, v] : report.items()) {
        if (v.is_null()) continue;
        if (v.is_object() && all_indices(v)) {
            for (const auto& [i, e] : v.items())
                call(o, k, DISPATCH_PROPERTYPUT, {index(std::stol(i)), value(e)}, nullptr);
        } else if (v.is_object()) {
            Var sub;
            call(o, k, DISPATCH_PROPERTYGET, {}, &sub.v);
            if (V_VT(&sub.v) != VT_DISPATCH) throw std::runtime_error(k + ": no sub-object");
            fill(V_DISPATCH(&sub.v), v);
        } else if (v.is_array() && !v.empty() && v[0].is_object()) {
            for (const json& item : v) {
                Var made;
                call(o, "Add" + k, DISPATCH_METHOD, {}, &made.v);
                if (V_VT(&made.v) != VT_DISPATCH) throw std::runtime_error("Add" + k + ": no item");
                fill(V_DISPATCH(&made.v), item);
            }
        } else if (v.is_array()) {
            for (std::size_t i = 0; i < v.size(); ++i)
                call(o, k, DISPATCH_PROPERTYPUT, {index(static_cast<long>(i + 1)), value(v[i])}, nullptr);
        } else {
            call(o, k, DISPATCH_PROPERTYPUT, {value(v)}, nullptr);
        }
    }
}

}  // namespace

IDispatch* own_object(const std::string& name, const json& report) {
    CLSID clsid;
    if (FAILED(CLSIDFromProgID(tamrel::com::utf16("TamrelObj26." + name).c_str(), &clsid)))
        throw std::runtime_error("TamrelObj26." + name + " is not registered");
    IDispatch* o = nullptr;
    if (FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(&o))))
        throw std::runtime_error("TamrelObj26." + name + " cannot be created");
    try {
        fill(o, report);
    } catch (const std::runtime_error& e) {
        o->Release();
        throw std::runtime_error("TamrelObj26." + name + "." + e.what());
    }
    return o;
}

}  // namespace client
