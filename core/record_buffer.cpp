#include "core/record_buffer.h"

#include <algorithm>

namespace tamrel::detail {

Grown grow_record(const char* begin, std::size_t used, std::size_t bytes, std::size_t capacity, char* heap) {
    const std::size_t size = std::max(used + bytes, std::max(2 * capacity, kScratchSize));
    char* grown = new char[size];
    if (used > 0) std::memcpy(grown, begin, used);
    delete[] heap;
    return {grown, grown + size};
}

}  // namespace tamrel::detail
