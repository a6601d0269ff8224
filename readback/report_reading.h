// A data record taken back into the data object it was built from: every
// field whose declaration names a property ("Vorgang.PLZ", "UvAngabe1(i)",
// "DBSE.STKL", "DatensatzData.strVersion") is set from the field's value;
// the fields a builder derives (block flags, counts, fixed texts) are
// left, as the data that produces them is read with the blocks; what a
// procedure writes in a form of its own is read by its own step, given
// the fields the declarations could not place.
#pragma once
#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/layout.h"
#include "core/objects.h"
#include "core/objects_properties.h"
#include "readback/field_value.h"
#include "readback/object_paths.h"
#include "reader/line_walk.h"
#include "reader/transfer_file.h"

namespace tamrel::readback {

// One field of the line and its value.
struct ReadField {
    const FieldLayout* field;
    const checks::Part* part;
    std::string value;
};

// What a data record says beyond its report: the record identification
// shared by the file's records, and the record's creation time.
struct RecordFrame {
    DatensatzData datensatz;
    std::string created;           // yyyymmddhhmmss, as it stands
    std::string_view createdFrom;  // the property that gives the record a time of its own
};

// The field's property path: its declared name up to a remark in brackets.
inline std::string_view property_path(std::string_view name) {
    const std::size_t remark = name.find(" (");
    return remark == std::string_view::npos ? name : name.substr(0, remark);
}

// Whether the builder derives the field rather than writing a property:
// fixed texts, the flags and counts that announce blocks, reserves.
inline bool derived(const FieldLayout& f) {
    return f.kind == FieldKind::Literal || f.announce != Announce::None || f.name == "reserve" ||
           f.name == "identifier";
}

// The setters of the properties a part's fields name, found once a layout
// (the layouts are static) and kept for the thread's later records, one a
// field in the order of its declarations; with `count`, the property
// "Anzahl<block>" of a count of blocks.
template <Bound T>
const std::vector<Setter<T>>& part_setters(const RecordLayout& layout, bool count) {
    thread_local std::unordered_map<const RecordLayout*, std::vector<Setter<T>>> setters[2];
    auto& map = setters[count];
    auto it = map.find(&layout);
    if (it != map.end()) return it->second;
    std::vector<Setter<T>> all;
    for (const FieldLayout& f : layout.fields) {
        const std::string_view path = property_path(f.name);
        constexpr std::string_view dd = "DatensatzData.";
        if (count)
            all.push_back(f.announce == Announce::Count ? resolve<T>("Anzahl" + std::string(f.name)) : Setter<T>());
        else if constexpr (std::is_same_v<T, DatensatzData>)
            all.push_back(path.starts_with(dd) ? resolve<T>(path.substr(dd.size())) : Setter<T>());
        else
            all.push_back(path.starts_with(dd) ? Setter<T>() : resolve<T>(path));
    }
    return map.emplace(&layout, std::move(all)).first->second;
}

// A line as UTF-8, with where each character begins: its fields are
// sliced from it without a text of their own. One a thread, kept from
// line to line.
struct LineText {
    std::string utf8;
    std::vector<std::uint32_t> starts;  // a character's first byte; one more at the end
    std::string_view slice(std::size_t at, std::size_t len) const {
        const std::size_t end = std::min(at + len, starts.size() - 1);
        at = std::min(at, end);
        return std::string_view(utf8).substr(starts[at], starts[end] - starts[at]);
    }
};
const LineText& line_text(std::u32string_view line);

// Sets what the declarations place and returns the fields they do not.
template <Bound T>
std::vector<ReadField> read_declared(T& obj, std::u32string_view line, std::span<const checks::Part> parts,
                                     RecordFrame& frame) {
    std::vector<ReadField> left;
    const LineText& text = line_text(line);
    for (const checks::Part& p : parts) {
        const Place at{p.entry, p.item};
        const auto& own = part_setters<T>(*p.layout, false);
        const auto& counts = part_setters<T>(*p.layout, true);
        const auto& record = part_setters<DatensatzData>(*p.layout, false);
        for (std::size_t k = 0; k < p.layout->fields.size(); ++k) {
            const FieldLayout& f = p.layout->fields[k];
            const bool count = f.announce == Announce::Count;
            if (derived(f) && !count) continue;
            const std::string_view raw = text.slice(p.at + f.pos - 1u, f.len);
            std::string value = field_value(raw, f);
            // A count of blocks is the property "Anzahl<block>" where the
            // object has one (its entries are read with the blocks).
            if (count) {
                if (counts[k]) counts[k](obj, at, value);
                continue;
            }
            if (f.kind == FieldKind::DateTime && f.name.starts_with("created")) {
                frame.created = raw;
                const std::size_t open = f.name.find('(');
                if (open != std::string_view::npos)
                    frame.createdFrom = f.name.substr(open + 1, f.name.size() - open - 2);
                continue;
            }
            const bool placed =
                (record[k] && record[k](frame.datensatz, at, value)) || (own[k] && own[k](obj, at, value));
            // A field with a remark ("Merkmal1 (1 or 0)") is placed as it
            // stands and still given to the procedure's own reading.
            if (!placed || property_path(f.name).size() != f.name.size()) left.push_back({&f, &p, std::move(value)});
        }
    }
    return left;
}

// The value of the left field named `name`, or nullptr.
inline const ReadField* find(std::span<const ReadField> left, std::string_view name) {
    for (const ReadField& r : left)
        if (r.field->name == name) return &r;
    return nullptr;
}

}  // namespace tamrel::readback
