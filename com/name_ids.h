// The dispatch ids of one class's property names, looked up on every
// property read of a host's object. An open-addressed table hashed from a
// name's length and its first and last eight bytes, compared a word at a
// time: a class has a few hundred names at most, and the standard map's
// byte hash and library compare took a fifth of a report's read.
#pragma once
#include <windows.h>  // first: the other system headers build on it

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tamrel::com {

class NameIds {
public:
    // The id of `name`, nullptr when not yet known.
    const DISPID* find(std::string_view name) const {
        if (slots_.empty()) return nullptr;
        for (std::size_t i = hash(name) & mask();; i = (i + 1) & mask()) {
            const Slot& s = slots_[i];
            if (!s.used) return nullptr;
            if (same(s.name, name)) return &s.id;
        }
    }
    void add(std::string_view name, DISPID id) {
        if (2 * (count_ + 1) > slots_.size()) grow();
        put(std::string(name), id);
    }

private:
    struct Slot {
        std::string name;
        DISPID id = 0;
        bool used = false;
    };
    std::size_t mask() const { return mask_; }
    static std::uint64_t word(const char* p) {
        std::uint64_t w;
        std::memcpy(&w, p, 8);
        return w;
    }
    static std::size_t hash(std::string_view name) {
        const std::size_t n = name.size();
        std::uint64_t a = n, b = 0;
        if (n >= 8) {
            a ^= word(name.data()), b = word(name.data() + n - 8);
        } else {
            for (std::size_t i = 0; i < n; ++i) b = b << 8 | static_cast<unsigned char>(name[i]);
        }
        // Every byte taken reaches the low bits, which pick the slot: many
        // names share their first or last bytes ("KsZeileA", "KsZeileB").
        std::uint64_t h = a * 0x9E3779B97F4A7C15ull ^ std::rotl(b * 0xC2B2AE3D27D4EB4Full, 31);
        h ^= h >> 33;
        h *= 0xFF51AFD7ED558CCDull;
        return static_cast<std::size_t>(h ^ h >> 33);
    }
    // Equal names, eight bytes at a time (the last word overlapping).
    static bool same(const std::string& a, std::string_view b) {
        const std::size_t n = a.size();
        if (n != b.size()) return false;
        if (n < 8) {
            for (std::size_t i = 0; i < n; ++i)
                if (a[i] != b[i]) return false;
            return true;
        }
        for (std::size_t i = 0; i + 8 < n; i += 8)
            if (word(a.data() + i) != word(b.data() + i)) return false;
        return word(a.data() + n - 8) == word(b.data() + n - 8);
    }
    void put(std::string name, DISPID id) {
        std::size_t i = hash(name) & mask();
        while (slots_[i].used) i = (i + 1) & mask();
        slots_[i] = Slot{std::move(name), id, true};
        ++count_;
    }
    void grow() {
        std::vector<Slot> old(std::max<std::size_t>(64, 2 * slots_.size()));
        old.swap(slots_);
        mask_ = slots_.size() - 1;
        count_ = 0;
        for (Slot& s : old)
            if (s.used) put(std::move(s.name), s.id);
    }
    std::vector<Slot> slots_;  // a power of two, at most half used
    std::size_t mask_ = 0;
    std::size_t count_ = 0;
};

}  // namespace tamrel::com
