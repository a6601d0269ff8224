#include "core/error.h"

namespace tamrel {

void raise(std::int32_t number, std::string source, std::string description) {
    throw Error(number, std::move(source), std::move(description));
}

void raise_overflow() { raise(kErrOverflow, kComponentName, "\xC3\x9C" "berlauf"); }

static std::int16_t checked16(std::int64_t v) {
    if (v < -32768 || v > 32767) raise_overflow();
    return static_cast<std::int16_t>(v);
}

std::int16_t add16(std::int32_t a, std::int32_t b) { return checked16(std::int64_t{a} + b); }
std::int16_t mul16(std::int32_t a, std::int32_t b) { return checked16(std::int64_t{a} * b); }

}  // namespace tamrel
