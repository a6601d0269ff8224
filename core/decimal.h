// The decimal text of a number, in a small buffer (no allocation).
#pragma once
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tamrel::mlGen {

struct Decimal {
    char buf[24];
    std::size_t len;
    explicit Decimal(std::int64_t v) noexcept;
    operator std::string_view() const noexcept { return {buf, len}; }
};

}  // namespace tamrel::mlGen
