// The bytes of a record (or an XML block) while it is being written: on the
// stack for ordinary records, moved to the heap only when one grows beyond
// that. Writers ask for room, write at the tail and then advance it.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace tamrel {

class RecordBuffer {
public:
    RecordBuffer() = default;
    RecordBuffer(const RecordBuffer&) = delete;
    RecordBuffer& operator=(const RecordBuffer&) = delete;

    // Room for `bytes` more bytes at the tail; returns the tail.
    [[gnu::always_inline]] char* room(std::size_t bytes) {
        if (static_cast<std::size_t>(limit_ - tail_) < bytes) grow(bytes);
        return tail_;
    }
    char* tail() const { return tail_; }
    // What was written at the tail ends at `end`.
    [[gnu::always_inline]] void advance(char* end) { tail_ = end; }
    [[gnu::always_inline]] void put(std::string_view s) {
        std::memcpy(room(s.size()), s.data(), s.size());
        tail_ += s.size();
    }
    char* data() const { return begin_; }
    std::string_view view() const { return {begin_, static_cast<std::size_t>(tail_ - begin_)}; }

private:
    void grow(std::size_t bytes) {
        const std::size_t used = static_cast<std::size_t>(tail_ - begin_);
        std::string bigger(std::max(used + bytes, 2 * static_cast<std::size_t>(limit_ - begin_)), '\0');
        std::memcpy(bigger.data(), begin_, used);
        heap_.swap(bigger);
        begin_ = heap_.data();
        tail_ = begin_ + used;
        limit_ = begin_ + heap_.size();
    }

    static constexpr std::size_t kLocal = 4096;
    char local_[kLocal];
    char* begin_ = local_;
    char* tail_ = local_;
    char* limit_ = local_ + kLocal;
    std::string heap_;
};

}  // namespace tamrel
