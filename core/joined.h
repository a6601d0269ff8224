// Texts put together for one field (contribution groups, key parts): in a
// small buffer on the stack, since the parts are a few characters each;
// only an unusually long result goes to the heap.
#pragma once
#include <cstring>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "core/short_bytes.h"

namespace tamrel {

inline std::size_t total_size(std::span<const std::string_view> parts) {
    std::size_t n = 0;
    for (std::string_view p : parts) n += p.size();
    return n;
}

// Copies the parts one after another to `d`; returns the end.
inline char* copy_parts(char* d, std::span<const std::string_view> parts) {
    for (std::string_view p : parts) {
        bytes::copy_short(d, p.data(), p.size());
        d += p.size();
    }
    return d;
}

class Joined {
public:
    Joined(std::initializer_list<std::string_view> parts) : Joined(std::span(parts.begin(), parts.size())) {}
    explicit Joined(std::span<const std::string_view> parts) {
        const std::size_t n = total_size(parts);
        char* start = local_;
        if (n > sizeof local_) {
            heap_.resize(n);
            start = heap_.data();
        }
        copy_parts(start, parts);
        view_ = {start, n};
    }
    Joined(const Joined&) = delete;
    Joined& operator=(const Joined&) = delete;

    operator std::string_view() const { return view_; }

private:
    char local_[64];
    std::string heap_;
    std::string_view view_;
};

// Runs an in-place writer on the end of a string: room for `max_bytes`,
// then the string is cut to what was written.
template <class Put>
void append_put(std::string& out, std::size_t max_bytes, Put&& put) {
    const std::size_t start = out.size();
    out.resize(start + max_bytes);
    const char* end = put(out.data() + start);
    out.resize(static_cast<std::size_t>(end - out.data()));
}

// Appends the texts to `out` with one growth of the string.
inline void append_joined(std::string& out, std::initializer_list<std::string_view> parts) {
    const std::span<const std::string_view> all(parts.begin(), parts.size());
    append_put(out, total_size(all), [&](char* d) { return copy_parts(d, all); });
}

}  // namespace tamrel
