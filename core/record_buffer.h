// The bytes of a record (or an XML block) while it is being written: in a
// scratch area of the thread, one per nesting level (a block's writer may be
// running while another builds a block it needs), on the heap only for a
// record beyond that. Writers ask for room, write at the tail, advance it,
// and append the finished record to their output themselves. Buffers are
// locals, released in the reverse order of their making.
//
// The buffer's pointers are plain values and nothing out of line ever sees
// the buffer itself, so the compiler keeps them in registers while the
// record's bytes are written: a buffer holding its own storage (or a
// std::string, which points into itself) would be reloaded from memory
// after every byte stored.
#pragma once
#include <cstddef>
#include <cstring>
#include <string_view>

#include "core/thread_pointer.h"

namespace tamrel {

namespace detail {
inline constexpr std::size_t kScratchSize = 4096;
inline constexpr int kScratchLevels = 8;

struct ScratchAreas {
    int depth = 0;
    char area[kScratchLevels][kScratchSize]{};
};
// Constant-initialised: no TLS init function, which GCC on Windows would
// define once per translation unit and the linker refuse as duplicates.
inline constinit thread_local ScratchAreas scratch_areas;

// The thread's areas; on Windows their address is kept as a ThreadPointer,
// which is faster to reach than the areas themselves.
#ifdef _WIN32
inline ScratchAreas& thread_scratch() {
    if (ScratchAreas* areas = ThreadPointer<ScratchAreas>::get()) return *areas;
    ThreadPointer<ScratchAreas>::set(&scratch_areas);
    return scratch_areas;
}
#else
inline ScratchAreas& thread_scratch() { return scratch_areas; }
#endif

struct Grown {
    char* begin;
    char* limit;
};
// Moves `used` bytes from `begin` to a heap area with room for `bytes` more,
// and frees `heap` (the old heap area, if any).
Grown grow_record(const char* begin, std::size_t used, std::size_t bytes, std::size_t capacity, char* heap);
}  // namespace detail

class RecordBuffer {
public:
    [[gnu::always_inline]] RecordBuffer() : areas_(&detail::thread_scratch()) {
        const int level = areas_->depth++;
        if (level < detail::kScratchLevels) {
            begin_ = tail_ = areas_->area[level];
            limit_ = begin_ + detail::kScratchSize;
        }
    }
    RecordBuffer(const RecordBuffer&) = delete;
    RecordBuffer& operator=(const RecordBuffer&) = delete;
    [[gnu::always_inline]] ~RecordBuffer() {
        --areas_->depth;
        if (heap_) delete[] begin_;
    }

    // Room for `bytes` more bytes at the tail; returns the tail.
    [[gnu::always_inline]] char* room(std::size_t bytes) {
        if (static_cast<std::size_t>(limit_ - tail_) < bytes) [[unlikely]] {
            const std::size_t used = size();
            const detail::Grown g = detail::grow_record(begin_, used, bytes, capacity(), heap_ ? begin_ : nullptr);
            begin_ = g.begin, tail_ = begin_ + used, limit_ = g.limit, heap_ = true;
        }
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
    std::size_t size() const { return static_cast<std::size_t>(tail_ - begin_); }
    std::string_view view() const { return {begin_, size()}; }

private:
    std::size_t capacity() const { return static_cast<std::size_t>(limit_ - begin_); }

    char* begin_ = nullptr;
    char* tail_ = nullptr;
    char* limit_ = nullptr;
    bool heap_ = false;            // begin_ is a heap area of this buffer's own
    detail::ScratchAreas* areas_;  // the thread's, found once
};

}  // namespace tamrel
