#include "core/decimal.h"

#include <charconv>

namespace tamrel::mlGen {

Decimal::Decimal(std::int64_t v) noexcept {
    auto r = std::to_chars(buf, buf + sizeof buf, v);
    len = static_cast<std::size_t>(r.ptr - buf);
}

}  // namespace tamrel::mlGen
