#include "core/error.h"
#include "core/int16.h"

namespace tamrel {

void raise(std::int32_t number, std::string source, std::string description) {
    throw Error(number, std::move(source), std::move(description));
}

void raise_overflow() {
    raise(kErrOverflow, kComponentName,
          "\xC3\x9C"
          "berlauf");
}

}  // namespace tamrel
