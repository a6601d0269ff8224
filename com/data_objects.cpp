#include "com/data_objects.h"

#include <cctype>

#include "com/com_text.h"
#include "com/data_object.h"
#include "com/object_classes.h"

namespace tamrel::com {

// {A4091A5A-2927-4775-AAF5-6119551522E8}
const IID IID_ITamrelData = {0xa4091a5a, 0x2927, 0x4775, {0xaa, 0xf5, 0x61, 0x19, 0x55, 0x15, 0x22, 0xe8}};

namespace objects {

bool same_name(std::wstring_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const wchar_t x = a[i];
        const auto y = static_cast<unsigned char>(b[i]);
        if (x > 0x7f || std::tolower(static_cast<int>(x)) != std::tolower(y)) return false;
    }
    return true;
}

namespace {

// Calls `read` with the Variant changed to `type`; false where it cannot be.
template <class Read>
bool changed(const VARIANT& v, VARTYPE type, Read&& read) {
    VARIANT t;
    VariantInit(&t);
    if (FAILED(VariantChangeType(&t, const_cast<VARIANT*>(&v), 0, type))) return false;
    const Value held(t);
    read(held.v);
    return true;
}

}  // namespace

bool take(const VARIANT& v, std::string& out) {
    return changed(v, VT_BSTR, [&](const VARIANT& t) { out = utf8(V_BSTR(&t)); });
}

bool take(const VARIANT& v, bool& out) {
    return changed(v, VT_BOOL, [&](const VARIANT& t) { out = V_BOOL(&t) != VARIANT_FALSE; });
}

bool take(const VARIANT& v, std::int64_t& out) {
    return changed(v, VT_I4, [&](const VARIANT& t) { out = V_I4(&t); });
}

void give(const std::string& v, VARIANT& out) {
    V_VT(&out) = VT_BSTR;
    V_BSTR(&out) = bstr(v);
}

void give(bool v, VARIANT& out) {
    V_VT(&out) = VT_BOOL;
    V_BOOL(&out) = v ? VARIANT_TRUE : VARIANT_FALSE;
}

void give(std::int64_t v, VARIANT& out) {
    V_VT(&out) = VT_I4;
    V_I4(&out) = static_cast<LONG>(v);
}

HRESULT raise(EXCEPINFO* excep, std::string_view source, std::string_view description) {
    if (!excep) return E_INVALIDARG;
    *excep = EXCEPINFO{};
    excep->bstrSource = bstr(source);
    excep->bstrDescription = bstr(description);
    excep->scode = E_INVALIDARG;
    return DISP_E_EXCEPTION;
}

}  // namespace objects

namespace {

template <class T>
IUnknown* make_data_object() {
    return static_cast<IDispatch*>(new DataObject<T>());
}

// The class ids and interfaces of the classes, by their names in the type library.
void identify(std::vector<DataClassEntry>& classes, ITypeLib* lib) {
    if (!lib) return;
    for (UINT i = 0, n = lib->GetTypeInfoCount(); i < n; ++i) {
        BSTR name = nullptr;
        TYPEKIND kind;
        ITypeInfo* info = nullptr;
        if (FAILED(lib->GetDocumentation(static_cast<INT>(i), &name, nullptr, nullptr, nullptr))) continue;
        const std::string text = utf8(name);
        SysFreeString(name);
        if (FAILED(lib->GetTypeInfoType(i, &kind)) || FAILED(lib->GetTypeInfo(i, &info))) continue;
        TYPEATTR* attr = nullptr;
        if (SUCCEEDED(info->GetTypeAttr(&attr))) {
            for (DataClassEntry& c : classes) {
                if (kind == TKIND_COCLASS && text == c.name) c.clsid = attr->guid;
                if (kind == TKIND_DISPATCH && text == "_" + c.name) {
                    c.iid = attr->guid;
                    info->AddRef();
                    c.info = info;
                }
            }
            info->ReleaseTypeAttr(attr);
        }
        info->Release();
    }
}

}  // namespace

const std::vector<DataClassEntry>& data_classes() {
    static const std::vector<DataClassEntry> classes = [] {
        std::vector<DataClassEntry> out;
        members::each_class([&]<class T>(const std::string& name, const char*) {
            out.push_back({name, &typeid(T), &make_data_object<T>, CLSID{}, IID{}, nullptr});
        });
        identify(out, type_library(2));
        return out;
    }();
    return classes;
}

const DataClassEntry& data_class(const std::type_info& type) {
    for (const DataClassEntry& c : data_classes())
        if (*c.type == type) return c;
    static const DataClassEntry none{"", &typeid(void), nullptr, CLSID{}, IID{}, nullptr};
    return none;
}

}  // namespace tamrel::com
