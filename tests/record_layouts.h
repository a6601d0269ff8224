// The published shape of each procedure's output, independent of the
// builders: which record starts it, how long each record and block is, and
// which positions of the record announce which blocks. `follows` walks a
// generated text along it and tells the first place where they disagree.
#pragma once
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/text.h"

namespace tamrel::testing {

// The text as characters (the records count characters, not bytes).
using Chars = std::u32string;

inline Chars chars(std::string_view utf8) {
    Chars out;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        const int n = c < 0x80 ? 0 : c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : 1;
        char32_t cp = n ? c & (0x3F >> n) : c;
        for (int k = 1; k <= n; ++k) cp = (cp << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        out += cp;
        i += static_cast<std::size_t>(n) + 1;
    }
    return out;
}

// The number written at 1-based positions [pos, pos + width), or -1.
inline int number_at(const Chars& t, std::size_t pos, std::size_t width) {
    if (pos - 1 + width > t.size()) return -1;
    int v = 0;
    for (std::size_t i = pos - 1; i < pos - 1 + width; ++i) {
        if (t[i] < U'0' || t[i] > U'9') return -1;
        v = v * 10 + static_cast<int>(t[i] - U'0');
    }
    return v;
}

// How a record position announces a block: a "J" flag, a two-digit count
// of repeated blocks, or a block that may be sent or left out (it is sent
// when it holds data, whatever the record says).
struct Announce {
    enum Kind { Flag, Count, Optional } kind;
    std::size_t pos;
    std::string_view block;
};

struct RecordLayout {
    std::string_view id;
    // The record's length, from the record itself (some depend on a count).
    std::function<std::size_t(const Chars&)> length;
    std::vector<Announce> blocks;  // in the order they are appended
};

struct Procedure {
    std::vector<RecordLayout> records;  // by identifier (positions 1-4)
    // Block lengths; a block's own text may fix its length (a count inside).
    std::map<std::string, std::function<std::size_t(const Chars&, std::size_t at)>, std::less<>> blocks;
};

inline auto fixed(std::size_t n) {
    return [n](const Chars&, std::size_t = 0) { return n; };
}

// Walks `text` along the procedure's layout; an empty result means it fits.
inline std::string follows(const Procedure& p, std::string_view utf8) {
    const Chars t = chars(utf8);
    if (t.size() < 4) return "shorter than an identifier";
    const std::u32string id = t.substr(0, 4);
    const RecordLayout* r = nullptr;
    for (const auto& l : p.records)
        if (chars(l.id) == id) r = &l;
    if (!r) return "no record of this procedure starts the text";
    const std::size_t record_length = r->length(t);
    if (t.size() < record_length) return std::string(r->id) + " shorter than " + std::to_string(record_length);
    std::size_t at = record_length;
    auto next_is = [&](std::string_view block) { return at + 4 <= t.size() && t.substr(at, 4) == chars(block); };
    auto take = [&](std::string_view block) -> std::string {
        const auto& len = p.blocks.at(std::string(block));
        const std::size_t n = len(t, at);
        if (at + n > t.size()) return std::string(block) + " runs past the end";
        at += n;
        return {};
    };
    for (const auto& a : r->blocks) {
        if (a.kind == Announce::Optional) {
            if (next_is(a.block))
                if (auto e = take(a.block); !e.empty()) return e;
            continue;
        }
        const int times = a.kind == Announce::Flag ? (t[a.pos - 1] == U'J' ? 1 : 0) : number_at(t, a.pos, 2);
        if (times < 0) return "no count at " + std::to_string(a.pos);
        for (int i = 0; i < times; ++i) {
            if (!next_is(a.block))
                return std::string(a.block) + " announced at " + std::to_string(a.pos) + " is missing";
            if (auto e = take(a.block); !e.empty()) return e;
        }
        if (next_is(a.block))
            return std::string(a.block) + " sent though position " + std::to_string(a.pos) + " does not announce it";
    }
    if (at != t.size()) return "unexpected text after the blocks at character " + std::to_string(at + 1);
    return {};
}

}  // namespace tamrel::testing
