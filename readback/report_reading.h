// A data record taken back into the data object it was built from: every
// field whose declaration names a property ("Vorgang.PLZ", "UvAngabe1(i)",
// "DBSE.STKL", "DatensatzData.strVersion") is set from the field's value;
// the fields a builder derives (block flags, counts, fixed texts) are
// left, as the data that produces them is read with the blocks; what a
// procedure writes in a form of its own is read by its own step, given
// the fields the declarations could not place.
#pragma once
#include <span>
#include <string>
#include <string_view>
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

// Sets what the declarations place and returns the fields they do not.
template <Bound T>
std::vector<ReadField> read_declared(T& obj, std::u32string_view line, std::span<const checks::Part> parts,
                                     RecordFrame& frame) {
    std::vector<ReadField> left;
    for (const checks::Part& p : parts) {
        for (const FieldLayout& f : p.layout->fields) {
            // A count of blocks is the property "Anzahl<block>" where the
            // object has one (its entries are read with the blocks).
            if (f.announce == Announce::Count) {
                std::string name = "Anzahl";
                name += f.name;
                assign(obj, name, Place{p.entry, p.item}, field_value(checks::to_utf8(checks::slice(line, p, f)), f));
            }
            if (derived(f)) continue;
            std::string value = field_value(checks::to_utf8(checks::slice(line, p, f)), f);
            if (f.kind == FieldKind::DateTime && f.name.starts_with("created")) {
                frame.created = checks::to_utf8(checks::slice(line, p, f));
                const std::size_t open = f.name.find('(');
                if (open != std::string_view::npos)
                    frame.createdFrom = f.name.substr(open + 1, f.name.size() - open - 2);
                continue;
            }
            const std::string_view path = property_path(f.name);
            const Place at{p.entry, p.item};
            constexpr std::string_view dd = "DatensatzData.";
            const bool placed = path.starts_with(dd) ? assign(frame.datensatz, path.substr(dd.size()), at, value)
                                                     : assign(obj, path, at, value);
            // A field with a remark ("Merkmal1 (1 or 0)") is placed as it
            // stands and still given to the procedure's own reading.
            if (!placed || path.size() != f.name.size()) left.push_back({&f, &p, std::move(value)});
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
