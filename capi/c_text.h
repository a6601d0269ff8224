// The strings the C interface hands out: copies in memory the caller frees
// with tamrel_free.
#pragma once
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace tamrel {

// A NUL-terminated copy of `s`; nullptr when memory runs out.
inline char* c_text(std::string_view s) {
    char* out = static_cast<char*>(std::malloc(s.size() + 1));
    if (!out) return nullptr;
    std::memcpy(out, s.data(), s.size());
    out[s.size()] = '\0';
    return out;
}

}  // namespace tamrel
