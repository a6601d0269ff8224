#include "com/com_text.h"

#include <cstdint>
#include <cstring>
#include <new>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "com/com_error.h"
#include "core/objects_properties.h"
#include "core/property_table.h"

namespace tamrel::com {

void assign_utf8(std::string& out, const wchar_t* text, std::size_t length) {
    out.clear();
    // Most values are short ASCII: copied unit by unit, without the
    // system's converter and without a call into the string library.
    if (length > 15) out.reserve(length);
    for (std::size_t i = 0; i < length; ++i) {
        if (text[i] >= 0x80) {
            const int n = WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(length), nullptr, 0, nullptr, nullptr);
            out.resize(static_cast<std::size_t>(n));
            WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(length), out.data(), n, nullptr, nullptr);
            return;
        }
        out.push_back(static_cast<char>(text[i]));
    }
}

std::string utf8(const wchar_t* text, std::size_t length) {
    std::string out;
    assign_utf8(out, text, length);
    return out;
}

namespace {

// UTF-8 to UTF-16 into `out`, which has room for one unit a byte and
// sixteen more (a text never has more units than bytes). The system's
// converter took a third of a call's time for a record with an umlaut;
// here ASCII goes sixteen bytes at a time (SSE2, where the target has it)
// or eight, and only the other characters one by one. A sequence cut short
// by the end becomes U+FFFD, so no text is read past its end.
std::size_t decode(std::string_view text, wchar_t* out) {
    const auto* p = reinterpret_cast<const unsigned char*>(text.data());
    const auto* end = p + text.size();
    std::size_t n = 0;
    auto put = [&](unsigned unit) { out[n++] = static_cast<wchar_t>(unit); };
    while (p < end) {
#if defined(__SSE2__)
        if (end - p >= 16) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
            const int mask = _mm_movemask_epi8(v);
            if (mask == 0) {
                const __m128i zero = _mm_setzero_si128();
                _mm_storeu_si128(reinterpret_cast<__m128i*>(out + n), _mm_unpacklo_epi8(v, zero));
                _mm_storeu_si128(reinterpret_cast<__m128i*>(out + n + 8), _mm_unpackhi_epi8(v, zero));
                n += 16;
                p += 16;
                continue;
            }
            // The ASCII before the first other byte, then that character.
            for (const auto* ascii_end = p + __builtin_ctz(static_cast<unsigned>(mask)); p < ascii_end; ++p)
                out[n++] = static_cast<wchar_t>(*p);
        }
#else
        std::uint64_t word;
        if (end - p >= 8 && (std::memcpy(&word, p, 8), (word & 0x8080808080808080ull) == 0)) {
            for (int i = 0; i < 8; ++i) out[n + i] = static_cast<wchar_t>(p[i]);
            n += 8;
            p += 8;
            continue;
        }
#endif
        const unsigned b = *p;
        const std::ptrdiff_t len = b < 0xC0 ? 1 : b < 0xE0 ? 2 : b < 0xF0 ? 3 : 4;
        if (end - p < len) {
            put(0xFFFD);
            ++p;
            continue;
        }
        if (len == 1) {
            put(b);
        } else if (len == 2) {
            put(((b & 0x1F) << 6) | (p[1] & 0x3F));
        } else if (len == 3) {
            put(((b & 0x0F) << 12) | ((p[1] & 0x3F) << 6) | (p[2] & 0x3F));
        } else {
            const unsigned c =
                (((b & 0x07) << 18) | ((p[1] & 0x3F) << 12) | ((p[2] & 0x3F) << 6) | (p[3] & 0x3F)) - 0x10000;
            put(0xD800 | ((c >> 10) & 0x3FF));
            put(0xDC00 | (c & 0x3FF));
        }
        p += len;
    }
    return n;
}

}  // namespace

std::wstring utf16(std::string_view text) {
    std::wstring out(text.size() + 16, L'\0');  // room for the last sixteen-byte store
    out.resize(decode(text, out.data()));
    return out;
}

// Decoded on the stack, then copied into the BSTR: one allocation, and no
// thread-local buffer, whose every lookup on Windows is a call into the
// threads library.
BSTR bstr(std::string_view text) {
    constexpr std::size_t kLocal = 4096;  // every record with its blocks
    wchar_t local[kLocal];
    std::wstring large;
    wchar_t* units = local;
    if (text.size() + 16 > kLocal) {
        large.resize(text.size() + 16);
        units = large.data();
    }
    BSTR b = SysAllocStringLen(units, static_cast<UINT>(decode(text, units)));
    if (!b) throw std::bad_alloc();
    return b;
}

bool missing(const VARIANT& v) { return V_VT(&v) == VT_ERROR && V_ERROR(&v) == DISP_E_PARAMNOTFOUND; }

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
    std::apply([&](const auto&... f) { ((assign_utf8(out.*(f.member), m[k], units(m[k])), ++k), ...); },
               properties::Binding<T>::fields);
    return out;
}

// Whether a BSTR holds `text`. A text has at least as many UTF-8 bytes as
// UTF-16 units, as many only when it is ASCII: then unit by unit.
bool holds(BSTR b, std::string_view text) {
    const std::size_t n = units(b);
    if (n > text.size()) return false;
    if (n < text.size()) return utf8(b, n) == text;
    for (std::size_t i = 0; i < n; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x80 || b[i] != static_cast<wchar_t>(c)) return false;
    }
    return true;
}

// Members that already hold their value are left as they are: a call that
// changes nothing allocates nothing.
template <class T, class Com>
void write_structure(const T& d, Com& out) {
    BSTR* m = members<Com, T>(out);
    std::size_t k = 0;
    auto one = [&](const std::string& value) {
        if (!holds(m[k], value)) {
            BSTR b = bstr(value);  // made before the old one is freed: a failure leaves the member intact
            SysFreeString(m[k]);
            m[k] = b;
        }
        ++k;
    };
    std::apply([&](const auto&... f) { (one(d.*(f.member)), ...); }, properties::Binding<T>::fields);
}
}  // namespace

DSKOData from_com(const ::DSKOData& d) { return read_structure<DSKOData>(d); }
DatensatzData from_com(const ::DatensatzData& d) { return read_structure<DatensatzData>(d); }
void to_com(const DSKOData& d, ::DSKOData& out) { write_structure(d, out); }
void to_com(const DatensatzData& d, ::DatensatzData& out) { write_structure(d, out); }

}  // namespace tamrel::com
