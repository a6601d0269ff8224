// What a reader works out once a record layout and keeps for the thread:
// the layouts are static (`constexpr`), so a layout's address names it for
// the program's life. The last few asked for are kept in a short list (a
// record has a handful of layouts) in front of the map of all, so that the
// map is not searched for every part of every record.
#pragma once
#include <cstddef>
#include <iterator>
#include <unordered_map>

#include "core/layout.h"

namespace tamrel::checks {

// The value `make(layout)` gave, made the first time the thread asks for it.
// One cache a type of value and a kind of `make`.
template <class V, class Make>
const V& per_layout(const RecordLayout& layout, Make&& make) {
    struct Recent {
        const RecordLayout* layout = nullptr;
        const V* value = nullptr;
    };
    thread_local Recent recent[8];
    thread_local std::size_t next = 0;
    for (const Recent& r : recent)
        if (r.layout == &layout) return *r.value;
    thread_local std::unordered_map<const RecordLayout*, V> all;
    auto it = all.find(&layout);
    if (it == all.end()) it = all.emplace(&layout, make(layout)).first;
    recent[next++ % std::size(recent)] = {&layout, &it->second};
    return it->second;
}

}  // namespace tamrel::checks
