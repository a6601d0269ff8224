#include "json_object.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "com/class_factory.h"
#include "com/com_text.h"
#include "com/server_host.h"

using tamrel::com::bstr;
using tamrel::com::utf16;
using tamrel::com::utf8;

namespace client {
namespace {

bool starts_with_name(std::string_view text, std::string_view stem) {
    return text.size() >= stem.size() && same_name(text.substr(0, stem.size()), stem);
}
bool ends_with_name(std::string_view text, std::string_view tail) {
    return text.size() >= tail.size() && same_name(text.substr(text.size() - tail.size()), tail);
}

// The entries of an indexed property: an array from 1, or an object of
// index to value.
bool indexed(const json& v) {
    if (v.is_array()) return std::none_of(v.begin(), v.end(), [](const json& e) { return e.is_object(); });
    if (!v.is_object() || v.empty()) return false;
    for (const auto& [k, e] : v.items())
        if (k.empty() || k.find_first_not_of("0123456789") != std::string::npos || e.is_object()) return false;
    return true;
}
void index_range(const json& v, long& lo, long& hi) {
    if (v.is_array()) {
        lo = 1, hi = static_cast<long>(v.size());
        return;
    }
    lo = 32767, hi = 0;
    for (const auto& [k, e] : v.items()) {
        const long i = std::stol(k);
        lo = std::min(lo, i), hi = std::max(hi, i);
    }
}
const json* entry(const json& v, long index) {
    if (v.is_array()) return index >= 1 && static_cast<std::size_t>(index) <= v.size() ? &v[index - 1] : nullptr;
    if (v.is_object()) {
        const auto it = v.find(std::to_string(index));
        return it == v.end() ? nullptr : &*it;
    }
    return nullptr;
}

// An object (a group's item) is made of the class `cls`.
HRESULT to_variant(const json* v, VARIANT& out, const std::string& cls = {}) {
    if (!v || v->is_null()) return S_OK;
    if (v->is_string()) {
        V_VT(&out) = VT_BSTR;
        V_BSTR(&out) = bstr(v->get_ref<const std::string&>());
    } else if (v->is_boolean()) {
        V_VT(&out) = VT_BOOL;
        V_BOOL(&out) = v->get<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (v->is_number_integer()) {
        const long long n = v->get<long long>();
        if (n >= INT32_MIN && n <= INT32_MAX) {
            V_VT(&out) = VT_I4;
            V_I4(&out) = static_cast<LONG>(n);
        } else {
            V_VT(&out) = VT_I8;
            V_I8(&out) = n;
        }
    } else if (v->is_number()) {
        V_VT(&out) = VT_R8;
        V_R8(&out) = v->get<double>();
    } else if (v->is_object()) {
        V_VT(&out) = VT_DISPATCH;
        V_DISPATCH(&out) = new JsonObject(*v, cls);
    }
    return S_OK;
}

HRESULT raise(const json& spec, EXCEPINFO* error) {
    if (!error) return DISP_E_EXCEPTION;
    *error = EXCEPINFO{};
    error->scode = static_cast<SCODE>(spec.at(0).get<long long>());
    error->bstrSource = bstr(spec.at(1).get<std::string>());
    error->bstrDescription = bstr(spec.at(2).get<std::string>());
    return DISP_E_EXCEPTION;
}

long index_argument(const DISPPARAMS& params) {
    if (params.cArgs != 1) return 0;
    if (V_VT(&params.rgvarg[0]) == VT_I4) return V_I4(&params.rgvarg[0]);
    VARIANT i;
    VariantInit(&i);
    if (FAILED(VariantChangeType(&i, &params.rgvarg[0], 0, VT_I4))) return 0;
    return V_I4(&i);
}

}  // namespace

std::size_t JsonObject::NameHash::operator()(std::string_view name) const {
    std::uint64_t h = 14695981039346656037ull;  // FNV-1a over the name in lower case
    for (char c : name) h = (h ^ static_cast<unsigned char>(c | 0x20)) * 1099511628211ull;
    return static_cast<std::size_t>(h);
}

namespace {

// The names of a class of the host's, in the order first met: their ids,
// the same in every object of the class, as a compiled class's are.
std::vector<std::string>& class_names(const std::string& cls) {
    static std::map<std::string, std::vector<std::string>> names;
    return names[cls];
}

const json* key_of(const json& v, std::string_view name) {
    if (v.is_object())
        for (const auto& [k, x] : v.items())
            if (same_name(k, name)) return &x;
    return nullptr;
}

}  // namespace

JsonObject::JsonObject(const json& value, std::string cls) : value_(value), class_name_(std::move(cls)) {
    if (class_name_.empty()) {
        init_keys();
        return;
    }
    class_ = class_info(class_name_);
    names_ = &class_names(class_name_);
    std::vector<std::string>& names = *names_;
    if (value.is_object())
        for (const auto& [k, v] : value.items())
            if (std::none_of(names.begin(), names.end(), [&](const std::string& n) { return same_name(n, k); }))
                names.push_back(k);
    for (const std::string& n : names) {
        slots_.push_back({n, key_of(value, n), false, 0, {}, nullptr});
        ids_.emplace(n, static_cast<DISPID>(slots_.size()));
    }
    for (Slot& slot : slots_)
        if (!slot.value) slot.has_derived = derived(slot.name, slot.derived);
}

JsonObject::JsonObject(const json& value) : value_(value) { init_keys(); }

void JsonObject::init_keys() {
    if (!value_.is_object()) return;
    for (const auto& [k, v] : value_.items()) {
        slots_.push_back({k, &v, false, 0, {}, nullptr});
        ids_.emplace(k, static_cast<DISPID>(slots_.size()));
    }
}

JsonObject::~JsonObject() {
    for (Slot& s : slots_)
        if (s.child) s.child->Release();
}

const json* JsonObject::member(std::string_view name) const {
    const auto it = ids_.find(name);
    return it == ids_.end() ? nullptr : slots_[static_cast<std::size_t>(it->second - 1)].value;
}

// What the JSON reader takes when the JSON leaves it out: the bounds of an
// indexed property ("KsErster", "UvLetzter") from the indices of its lists,
// the count of a repeating group from its items.
bool JsonObject::derived(std::string_view name, long& out) const {
    const bool first = ends_with_name(name, "Erster"), last = ends_with_name(name, "Letzter");
    if ((first || last) && name.size() > 2) {
        bool any = false;
        long lo = 1, hi = 0;
        for (const auto& [k, v] : value_.items()) {
            if (!starts_with_name(k, name.substr(0, 2)) || !indexed(v)) continue;
            long l = 0, h = 0;
            index_range(v, l, h);
            lo = any ? std::min(lo, l) : l, hi = any ? std::max(hi, h) : h, any = true;
        }
        out = first ? lo : hi;
        return true;
    }
    if (!starts_with_name(name, "Anzahl")) return false;
    std::string group(name.substr(6));
    if (same_name(group, "Positionen")) group = "Position";
    if (same_name(group, "AU")) group = "Vorerkrankungen";
    const json* items = member(group);
    if (!items || !items->is_array()) return false;
    out = static_cast<long>(items->size());
    return true;
}

DISPID JsonObject::id_of(std::string_view name) {
    if (const auto it = ids_.find(name); it != ids_.end()) return it->second;
    if (!class_name_.empty()) {
        catch_up();
        if (const auto it = ids_.find(name); it != ids_.end()) return it->second;
        names_->emplace_back(name);  // the class's next id
    }
    return add(name);
}

DISPID JsonObject::add(std::string_view name) {
    Slot slot{std::string(name), key_of(value_, name), false, 0, {}, nullptr};
    if (!slot.value) slot.has_derived = derived(name, slot.derived);
    slots_.push_back(std::move(slot));
    ids_.emplace(std::string(name), static_cast<DISPID>(slots_.size()));
    return static_cast<DISPID>(slots_.size());
}

void JsonObject::catch_up() {
    while (slots_.size() < names_->size()) add((*names_)[slots_.size()]);
}

// A property read without an index: texts kept in UTF-16, sub-objects kept.
HRESULT JsonObject::whole(Slot& slot, VARIANT& result) {
    const json& v = *slot.value;
    if (v.is_string()) {
        if (slot.text.empty() && !v.get_ref<const std::string&>().empty())
            slot.text = utf16(v.get_ref<const std::string&>());
        V_VT(&result) = VT_BSTR;
        V_BSTR(&result) = SysAllocStringLen(slot.text.data(), static_cast<UINT>(slot.text.size()));
        return S_OK;
    }
    if (v.is_object()) {
        if (!slot.child) slot.child = new JsonObject(v, class_name_.empty() ? "" : class_name_ + "_" + slot.name);
        slot.child->AddRef();
        V_VT(&result) = VT_DISPATCH;
        V_DISPATCH(&result) = slot.child;
        return S_OK;
    }
    return to_variant(&v, result);
}

HRESULT JsonObject::answer(DISPID id, const DISPPARAMS& params, VARIANT& result, EXCEPINFO* error) {
    if (names_ && slots_.size() < names_->size()) catch_up();  // an id another object of the class was asked for first
    if (id < 1 || static_cast<std::size_t>(id) > slots_.size()) return DISP_E_MEMBERNOTFOUND;
    Slot& slot = slots_[static_cast<std::size_t>(id - 1)];
    const long index = index_argument(params);
    if (!slot.value) {
        if (index == 0 && slot.has_derived) {
            V_VT(&result) = VT_I4;
            V_I4(&result) = slot.derived;
        }
        return S_OK;
    }
    if (slot.value->is_object() && slot.value->contains("$raise")) return raise(slot.value->at("$raise"), error);
    if (index == 0) return whole(slot, result);
    const json* e = entry(*slot.value, index);
    if (!e || !e->is_object()) return to_variant(e, result);
    return to_variant(e, result, class_name_.empty() ? "" : class_name_ + "_" + slot.name);  // a group's item
}

namespace {
constexpr const char* kTests[] = {"NameTest", "EmpfBknTest1", "EmpfBknTest2"};
}

DISPID TestAnswers::id_of(std::string_view name) {
    for (DISPID i = 0; i < 3; ++i)
        if (same_name(kTests[i], name)) return i + 1;
    return DISPID_UNKNOWN;
}

HRESULT TestAnswers::answer(DISPID id, const DISPPARAMS& params, VARIANT& result, EXCEPINFO*) {
    if (id < 1 || id > 3 || params.cArgs != 1) return DISP_E_BADPARAMCOUNT;
    VARIANT text;
    VariantInit(&text);
    if (FAILED(VariantChangeType(&text, &params.rgvarg[0], 0, VT_BSTR))) return DISP_E_TYPEMISMATCH;
    const std::string asked = utf8(V_BSTR(&text));
    VariantClear(&text);
    const auto list = tests_.find(kTests[id - 1]);
    const bool yes = list != tests_.end() && std::find(list->begin(), list->end(), asked) != list->end();
    V_VT(&result) = VT_BOOL;
    V_BOOL(&result) = yes ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
}

namespace {

// The client's own class id for its test object.
constexpr CLSID kTestAnswers = {0x3f1e2a5c, 0x7d41, 0x4b8e, {0x9a, 0x60, 0x2c, 0x51, 0xe8, 0x0b, 0x4f, 0x17}};

// Under HKEY_CLASSES_ROOT: wine does not merge the user's classes into it.
std::wstring prog_id_key() { return tamrel::com::kObjectTestsProgId; }

}  // namespace

TestAnswersRegistration::TestAnswersRegistration(const json& tests) {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, prog_id_key().c_str());
    if (tests.is_null()) return;
    auto* f =
        new tamrel::com::ClassFactory([&tests] { return static_cast<IUnknown*>(new TestAnswers(tests)); }, nullptr);
    CoRegisterClassObject(kTestAnswers, f, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_);
    f->Release();
    wchar_t guid[64];
    StringFromGUID2(kTestAnswers, guid, 64);
    HKEY k = nullptr;
    if (RegCreateKeyExW(HKEY_CLASSES_ROOT, (prog_id_key() + L"\\CLSID").c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &k,
                        nullptr) == ERROR_SUCCESS) {
        RegSetValueExW(k, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(guid),
                       static_cast<DWORD>((wcslen(guid) + 1) * sizeof(wchar_t)));
        RegCloseKey(k);
    }
}

TestAnswersRegistration::~TestAnswersRegistration() {
    if (cookie_) CoRevokeClassObject(cookie_);
    RegDeleteTreeW(HKEY_CLASSES_ROOT, prog_id_key().c_str());
}

}  // namespace client
