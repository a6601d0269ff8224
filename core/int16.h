// The 16-bit integers of the component's counts and lengths: arithmetic that
// leaves -32768..32767 raises the runtime's overflow error.
#pragma once
#include <cstdint>

#include "core/error.h"

namespace tamrel {

// The runtime's overflow error (number 6, "Überlauf"), raised by every
// 16-bit count or length computation that leaves -32768..32767.
[[noreturn]] void raise_overflow();

// 16-bit arithmetic with the overflow error (inline: loop counters use it).
inline std::int16_t checked16(std::int64_t v) {
    if (v < -32768 || v > 32767) raise_overflow();
    return static_cast<std::int16_t>(v);
}
inline std::int16_t add16(std::int32_t a, std::int32_t b) { return checked16(std::int64_t{a} + b); }
inline std::int16_t mul16(std::int32_t a, std::int32_t b) { return checked16(std::int64_t{a} * b); }

}  // namespace tamrel
