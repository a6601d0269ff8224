#include "com/dispatch_reader.h"

#include <memory>
#include <utility>
#include <vector>

#include "com/com_error.h"
#include "com/com_text.h"
#include "core/error.h"

namespace tamrel::com {
namespace {

// VB's error 438, raised for a property the object does not have.
constexpr HRESULT kNoSuchProperty = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 438);

[[noreturn]] void no_such_property(const HostObject& o, std::string_view name) {
    raise(kNoSuchProperty, o.path(),
          "Objekt unterst\xC3\xBCtzt diese Eigenschaft oder Methode nicht: " + std::string(name));
}

// The error a property read raised, as the object gave it.
[[noreturn]] void object_error(EXCEPINFO& e, const HostObject& o) {
    if (e.pfnDeferredFillIn) e.pfnDeferredFillIn(&e);
    const HRESULT hr = e.scode ? e.scode : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, e.wCode);
    std::string source = e.bstrSource ? utf8(e.bstrSource) : o.path();
    std::string description = utf8(e.bstrDescription);
    SysFreeString(e.bstrSource);
    SysFreeString(e.bstrDescription);
    SysFreeString(e.bstrHelpFile);
    raise(static_cast<std::int32_t>(hr), std::move(source), std::move(description));
}

[[noreturn]] void type_mismatch(const HostObject& o, std::string_view name) {
    raise(DISP_E_TYPEMISMATCH, o.path(), "Typen unvertr\xC3\xA4glich: " + std::string(name));
}

// The dispatch ids of the classes met on this thread, by the identifier of
// the interface their type information describes: a class's names mean
// the same ids in every object of it, so each is looked up once. A thread
// of its own: apartment objects are called on their thread, and no lock is
// taken on the way.
NameIds* ids_of_class(IDispatch* object) {
    thread_local std::vector<std::pair<GUID, std::unique_ptr<NameIds>>> classes;
    UINT count = 0;
    ITypeInfo* info = nullptr;
    if (FAILED(object->GetTypeInfoCount(&count)) || count == 0 ||
        FAILED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &info)) || !info)
        return nullptr;
    TYPEATTR* attr = nullptr;
    GUID guid = GUID_NULL;
    if (SUCCEEDED(info->GetTypeAttr(&attr))) {
        guid = attr->guid;
        info->ReleaseTypeAttr(attr);
    }
    info->Release();
    if (guid == GUID_NULL) return nullptr;  // no class to know it by
    for (auto& [g, ids] : classes)
        if (g == guid) return ids.get();
    classes.emplace_back(guid, std::make_unique<NameIds>());
    return classes.back().second.get();
}

}  // namespace

HostObject::HostObject(IDispatch* object, std::string_view name, const HostObject* parent)
    : object_(object), name_(name), parent_(parent) {
    // Scripting hosts' objects may answer only IDispatchEx, and by any case.
    if (FAILED(object_->QueryInterface(__uuidof(IDispatchEx), reinterpret_cast<void**>(&ex_)))) ex_ = nullptr;
    if (!ex_) class_ids_ = ids_of_class(object_);
}

HostObject::~HostObject() {
    if (ex_) ex_->Release();
}

DISPID HostObject::id_of(std::string_view name) const {
    if (class_ids_) {
        if (const DISPID* known = class_ids_->find(name)) return *known;
    } else if (name == last_name_) {
        // An object of no class: the entries of an indexed property and the
        // items of a group, read one after another under one name, ask once.
        return last_id_;
    }
    // Property names are short and ASCII: widened on the stack.
    wchar_t wide[64];
    std::wstring long_name;
    LPOLESTR text = wide;
    if (name.size() < 64) {
        for (std::size_t i = 0; i < name.size(); ++i) wide[i] = static_cast<unsigned char>(name[i]);
        wide[name.size()] = L'\0';
    } else {
        long_name = utf16(name);
        text = long_name.data();
    }
    DISPID id = DISPID_UNKNOWN;
    HRESULT hr = E_NOINTERFACE;
    if (ex_) {
        BSTR b = SysAllocString(text);
        hr = ex_->GetDispID(b, fdexNameCaseInsensitive, &id);
        SysFreeString(b);
    }
    if (FAILED(hr)) hr = object_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(hr)) no_such_property(*this, name);
    if (class_ids_)
        class_ids_->add(name, id);
    else
        last_name_.assign(name), last_id_ = id;
    return id;
}

VARIANT HostObject::invoke(std::string_view name, VARIANT* argument) const {
    const DISPID id = id_of(name);
    DISPPARAMS params{argument, nullptr, argument ? 1u : 0u, 0};
    VARIANT result{};  // VT_EMPTY, as VariantInit makes it
    EXCEPINFO e{};
    const HRESULT hr = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                                       &params, &result, &e, nullptr);
    if (hr == DISP_E_EXCEPTION) object_error(e, *this);
    if (hr == DISP_E_MEMBERNOTFOUND) no_such_property(*this, name);
    throw_if_failed(hr);
    return result;
}

VARIANT HostObject::get(std::string_view name, long index) const {
    VARIANT arg{};
    V_VT(&arg) = VT_I4;
    V_I4(&arg) = index;
    return invoke(name, index > 0 ? &arg : nullptr);
}

VARIANT HostObject::call(std::string_view name, std::string_view text) const {
    VARIANT text_arg;
    VariantInit(&text_arg);
    V_VT(&text_arg) = VT_BSTR;
    V_BSTR(&text_arg) = bstr(text);
    Value arg(text_arg);
    return invoke(name, &arg.v);
}

namespace {
bool empty(const VARIANT& v) { return V_VT(&v) == VT_EMPTY || V_VT(&v) == VT_NULL; }

void change(const VARIANT& v, VARIANT& out, VARTYPE type, const HostObject& o, std::string_view name) {
    VariantInit(&out);
    if (FAILED(VariantChangeType(&out, const_cast<VARIANT*>(&v), 0, type))) type_mismatch(o, name);
}
}  // namespace

void convert(const VARIANT& value, std::string& out, const HostObject& o, std::string_view name) {
    const VARIANT& v = deref(value);
    out.clear();
    if (empty(v)) return;
    if (V_VT(&v) == VT_BSTR) return assign_utf8(out, V_BSTR(&v), units(V_BSTR(&v)));
    VARIANT s;
    change(v, s, VT_BSTR, o, name);
    assign_utf8(out, V_BSTR(&s), units(V_BSTR(&s)));
    VariantClear(&s);
}

void convert(const VARIANT& value, bool& out, const HostObject& o, std::string_view name) {
    const VARIANT& v = deref(value);
    if (empty(v)) {
        out = false;
        return;
    }
    if (V_VT(&v) == VT_BOOL) {
        out = V_BOOL(&v) != VARIANT_FALSE;
        return;
    }
    VARIANT b;
    change(v, b, VT_BOOL, o, name);
    out = V_BOOL(&b) != VARIANT_FALSE;
}

void convert(const VARIANT& value, std::int64_t& out, std::int64_t lo, std::int64_t hi, const HostObject& o,
             std::string_view name) {
    const VARIANT& v = deref(value);
    std::int64_t x = 0;
    switch (V_VT(&v)) {  // the usual types without the system's conversion
        case VT_EMPTY:
        case VT_NULL:
            break;
        case VT_I2:
            x = V_I2(&v);
            break;
        case VT_I4:
            x = V_I4(&v);
            break;
        case VT_UI1:
            x = V_UI1(&v);
            break;
        default: {
            VARIANT n;
            change(v, n, VT_I8, o, name);
            x = V_I8(&n);
        }
    }
    if (x < lo || x > hi)
        raise(DISP_E_OVERFLOW, o.path(),
              "\xC3\x9C"
              "berlauf: " +
                  std::string(name));
    out = x;
}

IDispatch* object_of(const VARIANT& value, const HostObject& o, std::string_view name) {
    const VARIANT& v = deref(value);
    if (empty(v)) return nullptr;
    if (V_VT(&v) == VT_DISPATCH) return V_DISPATCH(&v);
    type_mismatch(o, name);
}

}  // namespace tamrel::com
