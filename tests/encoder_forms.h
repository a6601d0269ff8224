// The encoders' forms that return a field instead of writing it: what the
// tests and the fuzzers compare the in-place forms with.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "core/amounts.h"
#include "core/flags.h"

namespace tamrel::mlGen {

inline std::string StrToPB(std::string_view value, int intVor, int intNach, bool& filled) {
    std::string out;
    AppendPB(out, value, intVor, intNach, filled);
    return out;
}

inline std::string StrToBG(std::string_view value, int intVor, int intNach, bool& filled) {
    std::string out;
    AppendBG(out, value, intVor, intNach, filled);
    return out;
}

inline std::string EnmToJN(std::int32_t value, bool& filled) { return std::string(1, JNChar(value, filled)); }

}  // namespace tamrel::mlGen
