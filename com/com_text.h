// The values of the automation interface as the record library takes them:
// BSTRs (UTF-16) as UTF-8 strings, the Date of a Variant as a Date, and the
// two structures member by member.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <oleauto.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "TamrelFile26.h"
#include "core/date.h"
#include "core/objects.h"

namespace tamrel::com {

std::string utf8(const wchar_t* text, std::size_t length);
void assign_utf8(std::string& out, const wchar_t* text, std::size_t length);
// A BSTR's length in UTF-16 units, from the byte count that precedes its
// text (as SysStringLen reads it, without a call into the system).
inline std::size_t units(BSTR text) { return text ? reinterpret_cast<const std::uint32_t*>(text)[-1] / 2 : 0; }
inline std::string utf8(BSTR text) { return utf8(text, units(text)); }
std::wstring utf16(std::string_view text);
// A new BSTR of the text; the caller owns it. Throws std::bad_alloc.
BSTR bstr(std::string_view text);

// The Variant a by-reference Variant points at, or the Variant itself.
inline const VARIANT& deref(const VARIANT& v) {
    return V_VT(&v) == (VT_BYREF | VT_VARIANT) && V_VARIANTREF(&v) ? *V_VARIANTREF(&v) : v;
}

// An optional parameter the caller left out (Invoke passes DISP_E_PARAMNOTFOUND).
bool missing(const VARIANT& v);
// The optional Date: left out or empty is the empty date (GetDate's "now");
// a value that is no date raises DISP_E_TYPEMISMATCH.
Date date_arg(const VARIANT& v);
// The optional in/out String strDatum: its text, and writing the text back.
std::string text_arg(const VARIANT* v);
void set_text_arg(VARIANT* v, std::string_view text);

DSKOData from_com(const ::DSKOData& d);
DatensatzData from_com(const ::DatensatzData& d);
// Writes the members back into the caller's structure (in/out parameters):
// only those whose text differs from what the member holds.
void to_com(const DSKOData& d, ::DSKOData& out);
void to_com(const DatensatzData& d, ::DatensatzData& out);

}  // namespace tamrel::com
