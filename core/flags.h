// The J/N flag fields: "J" for 1, "N" for 2, a blank otherwise.
#pragma once
#include <cstdint>

namespace tamrel::mlGen {

inline char JNChar(std::int32_t value, bool& filled) {
    const char c = value == 1 ? 'J' : value == 2 ? 'N' : ' ';
    if (c != ' ') filled = true;
    return c;
}

}  // namespace tamrel::mlGen
