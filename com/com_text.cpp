#include "com/com_text.h"

#include <new>

#include "com/com_error.h"
#include "core/objects_properties.h"
#include "core/property_table.h"

namespace tamrel::com {

std::string utf8(const wchar_t* text, std::size_t length) {
    if (length == 0) return {};
    // Most values are ASCII: copied without the system's converter.
    std::size_t i = 0;
    while (i < length && text[i] < 0x80) ++i;
    if (i == length) return std::string(text, text + length);
    const int n = WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(length), nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<std::size_t>(n), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(length), out.data(), n, nullptr, nullptr);
    return out;
}

std::wstring utf16(std::string_view text) {
    if (text.empty()) return {};
    const int n = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring out(static_cast<std::size_t>(n), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), out.data(), n);
    return out;
}

// Straight into the BSTR: one allocation, none for a buffer between. A
// record is mostly ASCII: widened by a loop the compiler vectorises, the
// system's converter only for the rest.
BSTR bstr(std::string_view text) {
    std::size_t ascii = 0;
    while (ascii < text.size() && static_cast<unsigned char>(text[ascii]) < 0x80) ++ascii;
    const std::string_view rest = text.substr(ascii);
    const int n =
        rest.empty() ? 0 : MultiByteToWideChar(CP_UTF8, 0, rest.data(), static_cast<int>(rest.size()), nullptr, 0);
    BSTR b = SysAllocStringLen(nullptr, static_cast<UINT>(ascii + static_cast<std::size_t>(n)));
    if (!b) throw std::bad_alloc();
    for (std::size_t i = 0; i < ascii; ++i) b[i] = static_cast<unsigned char>(text[i]);
    if (n) MultiByteToWideChar(CP_UTF8, 0, rest.data(), static_cast<int>(rest.size()), b + ascii, n);
    return b;
}

bool missing(const VARIANT& v) { return V_VT(&v) == VT_ERROR && V_ERROR(&v) == DISP_E_PARAMNOTFOUND; }

namespace {}  // namespace

Date date_arg(const VARIANT& arg) {
    const VARIANT& v = deref(arg);
    if (missing(v) || V_VT(&v) == VT_EMPTY) return {};
    VARIANT d;
    VariantInit(&d);
    throw_if_failed(VariantChangeType(&d, const_cast<VARIANT*>(&v), 0, VT_DATE));
    if (V_DATE(&d) == 0.0) return {};
    SYSTEMTIME t{};
    if (!VariantTimeToSystemTime(V_DATE(&d), &t)) throw_if_failed(DISP_E_TYPEMISMATCH);
    return Date{t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond};
}

std::string text_arg(const VARIANT* arg) {
    if (!arg) return {};
    const VARIANT& v = deref(*arg);
    if (missing(v) || V_VT(&v) == VT_EMPTY || V_VT(&v) == VT_NULL) return {};
    if (V_VT(&v) == VT_BSTR) return utf8(V_BSTR(&v));
    if (V_VT(&v) == (VT_BYREF | VT_BSTR)) return V_BSTRREF(&v) ? utf8(*V_BSTRREF(&v)) : std::string();
    VARIANT s;
    VariantInit(&s);
    throw_if_failed(VariantChangeType(&s, const_cast<VARIANT*>(&v), 0, VT_BSTR));
    std::string out = utf8(V_BSTR(&s));
    VariantClear(&s);
    return out;
}

void set_text_arg(VARIANT* arg, std::string_view text) {
    if (!arg) return;
    VARIANT* v = arg;
    if (V_VT(v) == (VT_BYREF | VT_VARIANT) && V_VARIANTREF(v)) v = V_VARIANTREF(v);
    if (missing(*v)) return;  // left out: nobody to hand the date back to
    BSTR b = bstr(text);
    if (V_VT(v) == (VT_BYREF | VT_BSTR) && V_BSTRREF(v)) {
        SysFreeString(*V_BSTRREF(v));
        *V_BSTRREF(v) = b;
        return;
    }
    VariantClear(v);
    V_VT(v) = VT_BSTR;
    V_BSTR(v) = b;
}

namespace {
// A structure of the type library is its members' BSTRs in the order of the
// property table of the library's own structure: member k is the table's
// field k.
template <class Com, class T>
auto members(Com& d) {
    static_assert(sizeof(Com) == std::tuple_size_v<decltype(properties::Binding<T>::fields)> * sizeof(BSTR));
    if constexpr (std::is_const_v<Com>)
        return reinterpret_cast<const BSTR*>(&d);
    else
        return reinterpret_cast<BSTR*>(&d);
}

template <class T, class Com>
T read_structure(const Com& d) {
    T out;
    const BSTR* m = members<const Com, T>(d);
    std::size_t k = 0;
    std::apply([&](const auto&... f) { ((out.*(f.member) = utf8(m[k++])), ...); }, properties::Binding<T>::fields);
    return out;
}

// Members equal to `before` (what was read from `out`) are left as they
// are: a call that changes nothing allocates nothing.
template <class T, class Com>
void write_structure(const T& d, Com& out, const T* before) {
    BSTR* m = members<Com, T>(out);
    std::size_t k = 0;
    auto one = [&](const std::string& value, const std::string* was) {
        if (!was || *was != value) {
            BSTR b = bstr(value);  // made before the old one is freed: a failure leaves the member intact
            SysFreeString(m[k]);
            m[k] = b;
        }
        ++k;
    };
    std::apply([&](const auto&... f) { (one(d.*(f.member), before ? &(before->*(f.member)) : nullptr), ...); },
               properties::Binding<T>::fields);
}
}  // namespace

DSKOData from_com(const ::DSKOData& d) { return read_structure<DSKOData>(d); }
DatensatzData from_com(const ::DatensatzData& d) { return read_structure<DatensatzData>(d); }
void to_com(const DSKOData& d, ::DSKOData& out, const DSKOData* before) { write_structure(d, out, before); }
void to_com(const DatensatzData& d, ::DatensatzData& out, const DatensatzData* before) {
    write_structure(d, out, before);
}

}  // namespace tamrel::com
