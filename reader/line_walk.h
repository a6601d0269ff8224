// One line of a transfer file taken apart by the layouts: the record, the
// entries of its list, then each block its fields announce, in the order
// they announce them (a "J" flag, a count, a fixed "J"), with their own
// entries. What does not fit the layouts is told as a problem, and the
// walk stops there.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

#include "checks/finding.h"
#include "core/layout.h"

namespace tamrel::checks {

// A record, block or entry of the line, and where it stands.
struct Part {
    const RecordLayout* layout;  // the form read (a layout's own or one of its forms)
    std::size_t at;              // 0-based character offset in the line
    bool block;                  // a block (not the record itself)
    std::size_t entry;           // 1-based number of a list entry, 0 for the record or block itself
    std::size_t item;            // the how-manieth time this block follows (1-based)
};

// The label of a part in findings and listings: "DBME", "DBSE 2",
// "DSLN position 3", empty for the record itself.
std::string part_label(const Part& p);

// Where the line stops fitting its layouts.
struct WalkProblem {
    const Rule* rule;
    std::size_t at;               // 0-based character offset
    const FieldLayout* announce;  // the record field that announced what is missing, if any
    std::string value;
};

// The characters of a part's field, from the line (empty past its end).
inline std::u32string_view slice(std::u32string_view line, const Part& p, const FieldLayout& f) {
    const std::size_t from = p.at + f.pos - 1u;
    return from >= line.size() ? std::u32string_view{} : line.substr(from, f.len);
}

// Calls `visit(const Part&)` for every part of the line in order; returns
// false with `problem` set where the line does not fit.
template <class Visit>
bool walk_line(std::u32string_view line, const RecordLayout& record, Visit&& visit, WalkProblem& problem);

}  // namespace tamrel::checks

#include "reader/line_walk_impl.h"
