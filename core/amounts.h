// The amount encoders: an amount text ("1.234,56", "-12") written as its
// digits before and after the decimal separator, zero-padded to the field's
// places, unsigned (StrToPB) or with its sign in front (StrToBG).
#pragma once
#include <string>
#include <string_view>

#include "core/text_fields.h"

namespace tamrel::mlGen {

void EnhanceVorNachk(std::string& strVor, int intVor, std::string& strNach, int intNach);

namespace detail {
char* PutAmountGeneral(char* d, std::string_view value, int intVor, int intNach, bool with_sign, bool& filled);
}

// The amount encoders (StrToPB, and StrToBG with `with_sign`) writing at `d`.
// Most amounts of a record are not given: those are zeros, written inline.
[[gnu::always_inline]] inline char* PutAmount(char* d, std::string_view value, int intVor, int intNach, bool with_sign,
                                              bool& filled) {
    if (!value.empty() || intVor < 0 || intNach < 0) [[unlikely]]
        return detail::general(filled, detail::PutAmountGeneral, d, value, intVor, intNach, with_sign);
    if (with_sign) *d++ = '+';
    const auto w = static_cast<std::size_t>(intVor + intNach);
    bytes::pad_field(d, '0', w);
    return d + w;
}

// The amount walk appending the field: the reference the fuzzers hold the
// in-place form to, and the form of the few amounts written outside a Writer.
void AppendPB(std::string& out, std::string_view value, int intVor, int intNach, bool& filled);
void AppendBG(std::string& out, std::string_view value, int intVor, int intNach, bool& filled);

}  // namespace tamrel::mlGen
