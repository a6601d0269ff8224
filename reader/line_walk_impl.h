// The walk of checks/line_walk.h: a template, so that the checker's and the
// listing's visits are inlined into it.
#pragma once
#include <algorithm>
#include <vector>

#include "checks/rules.h"
#include "reader/layout_cache.h"

namespace tamrel::checks {
namespace walk_detail {

inline bool starts_with(std::u32string_view line, std::size_t at, std::string_view id) {
    if (at + id.size() > line.size()) return false;
    for (std::size_t i = 0; i < id.size(); ++i)
        if (line[at + i] != static_cast<unsigned char>(id[i])) return false;
    return true;
}

// The number written in `digits`, or -1.
inline long number(std::u32string_view digits) {
    if (digits.empty()) return -1;
    long v = 0;
    for (char32_t c : digits) {
        if (c < U'0' || c > U'9') return -1;
        v = v * 10 + static_cast<long>(c - U'0');
    }
    return v;
}

// What the walk looks at in a layout of a hundred fields: its fixed texts
// and the fields that announce blocks, found once a layout.
struct LayoutFacts {
    std::vector<const FieldLayout*> literals, announcing;
};
inline const LayoutFacts& facts(const RecordLayout& l) {
    return per_layout<LayoutFacts>(l, [](const RecordLayout& layout) {
        LayoutFacts found;
        for (const FieldLayout& f : layout.fields) {
            if (f.kind == FieldKind::Literal && !f.block) found.literals.push_back(&f);
            if (f.announce != Announce::None) found.announcing.push_back(&f);
        }
        return found;
    });
}

inline bool literals_match(std::u32string_view line, std::size_t at, const RecordLayout& l) {
    for (const FieldLayout* f : facts(l).literals)
        if (!starts_with(line, at + f->pos - 1u, f->literal)) return false;
    return true;
}

// The form of `l` that the text at `at` is read by: the first whose fixed
// fields match and which fits the line, else the last whose fixed fields
// match, else the first.
inline const RecordLayout& form(std::u32string_view line, std::size_t at, const RecordLayout& l) {
    if (l.forms.empty()) return l;
    const RecordLayout* matching = nullptr;
    for (const RecordLayout* f : l.forms) {
        if (!literals_match(line, at, *f)) continue;
        if (at + f->length <= line.size()) return *f;
        matching = f;
    }
    return matching ? *matching : *l.forms.front();
}

// Writes `c` as UTF-8 at `d` (room for four bytes); returns the end.
inline char* put_utf8(char* d, char32_t c) {
    if (c < 0x80) {
        *d++ = static_cast<char>(c);
    } else if (c < 0x800) {
        *d++ = static_cast<char>(0xC0 | (c >> 6));
        *d++ = static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        *d++ = static_cast<char>(0xE0 | (c >> 12));
        *d++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        *d++ = static_cast<char>(0x80 | (c & 0x3F));
    } else {
        *d++ = static_cast<char>(0xF0 | (c >> 18));
        *d++ = static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        *d++ = static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        *d++ = static_cast<char>(0x80 | (c & 0x3F));
    }
    return d;
}

inline std::string utf8_of(std::u32string_view s) {
    std::string out(s.size() * 4, '\0');
    char* d = out.data();
    for (const char32_t c : s) d = put_utf8(d, c);
    out.resize(static_cast<std::size_t>(d - out.data()));
    return out;
}

// Visits the part at `at` and its entries; returns its whole length, or 0
// with `problem` set where it runs past the line's end.
template <class Visit>
std::size_t take(std::u32string_view line, std::size_t at, const RecordLayout& l, bool block, std::size_t item,
                 Visit& visit, WalkProblem& problem) {
    std::size_t entries = 0;
    if (l.entry) {
        const long n = number(line.substr(std::min(line.size(), at + l.count_pos - 1u), l.count_len));
        entries = n < 0 ? 0 : static_cast<std::size_t>(n);
    }
    const std::size_t length = l.length + entries * (l.entry ? l.entry->length : 0);
    if (at + length > line.size()) {
        problem = {&kRecordLength, at, nullptr,
                   (block ? std::string(l.id) + ": " : std::string()) + std::to_string(line.size() - at) +
                       " instead of " + std::to_string(length)};
        return 0;
    }
    visit(Part{&l, at, block, 0, item});
    for (std::size_t k = 0; k < entries; ++k)
        visit(Part{l.entry, at + l.length + k * l.entry->length, block, k + 1, item});
    return length;
}

}  // namespace walk_detail

template <class Visit>
bool walk_line(std::u32string_view line, const RecordLayout& record, Visit&& visit, WalkProblem& problem) {
    using namespace walk_detail;
    const RecordLayout& r = form(line, 0, record);
    std::size_t at = take(line, 0, r, false, 1, visit, problem);
    if (at == 0) return false;
    const std::vector<const FieldLayout*>& announcing = facts(r).announcing;
    if (announcing.empty() && at != line.size()) {  // a record that stands alone: too long
        problem = {&kRecordLength, 0, nullptr, std::to_string(line.size()) + " instead of " + std::to_string(at)};
        return false;
    }
    for (const FieldLayout* announce : announcing) {
        const FieldLayout& f = *announce;
        const RecordLayout& b = *f.block;
        const std::u32string_view text = line.substr(f.pos - 1u, f.len);
        long times = 0;
        switch (f.announce) {
            case Announce::Flag:
                times = text == U"J" ? 1 : 0;
                break;
            case Announce::Count:
                times = std::max(0L, number(text));
                break;
            case Announce::Always:
                times = 1;
                break;
            case Announce::Optional:
                times = starts_with(line, at, b.id) ? 1 : 0;
                break;
            case Announce::None:
                break;
        }
        for (long i = 1; i <= times; ++i) {
            if (!starts_with(line, at, b.id)) {
                problem = {&kBlockMissing, at, &f, utf8_of(line.substr(at, 4))};
                return false;
            }
            const std::size_t length =
                take(line, at, form(line, at, b), true, static_cast<std::size_t>(i), visit, problem);
            if (length == 0) return false;
            at += length;
        }
        if (f.announce != Announce::Optional && starts_with(line, at, b.id)) {
            problem = {&kBlockUnannounced, at, &f, utf8_of(line.substr(at, 4))};
            return false;
        }
    }
    if (at != line.size()) {
        problem = {&kBlockUnannounced, at, nullptr, utf8_of(line.substr(at, 4))};
        return false;
    }
    return true;
}

}  // namespace tamrel::checks
