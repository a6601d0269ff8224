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

// How each field of a layout is read, found once a layout (the layouts are
// static) and kept for the thread's later records.
enum class FieldRole : std::uint8_t {
    Skip,     // derived: a fixed text, a flag, a reserve
    Count,    // a count of blocks: the property "Anzahl<block>", where there is one
    Created,  // the record's time stamp
    Record,   // a member of the record identification (DatensatzData)
    Object,   // a property of the data object
};
template <Bound T>
struct LayoutPlan {
    std::vector<FieldRole> roles;
    std::vector<bool> remarked;  // a remark in brackets: given to the procedure's own reading too
    std::vector<Setter<T>> own;
    std::vector<Setter<DatensatzData>> record;
};

template <Bound T>
const LayoutPlan<T>& layout_plan(const RecordLayout& layout) {
    thread_local std::unordered_map<const RecordLayout*, LayoutPlan<T>> plans;
    auto it = plans.find(&layout);
    if (it != plans.end()) return it->second;
    LayoutPlan<T> plan;
    constexpr std::string_view dd = "DatensatzData.";
    for (const FieldLayout& f : layout.fields) {
        const std::string_view path = property_path(f.name);
        FieldRole role = FieldRole::Object;
        Setter<T> own;
        Setter<DatensatzData> record;
        if (f.announce == Announce::Count) {
            role = FieldRole::Count;
            own = resolve<T>("Anzahl" + std::string(f.name));
        } else if (derived(f)) {
            role = FieldRole::Skip;
        } else if (f.kind == FieldKind::DateTime && f.name.starts_with("created")) {
            role = FieldRole::Created;
        } else if (path.starts_with(dd)) {
            role = FieldRole::Record;
            record = resolve<DatensatzData>(path.substr(dd.size()));
        } else {
            own = resolve<T>(path);
        }
        plan.roles.push_back(role);
        plan.remarked.push_back(path.size() != f.name.size());
        plan.own.push_back(std::move(own));
        plan.record.push_back(std::move(record));
    }
    return plans.emplace(&layout, std::move(plan)).first->second;
}

// A line as UTF-8: its fields are sliced from it without a text of their
// own. Where a character takes more than one byte is kept beside it (few
// in a line), so that a field's characters are found by their number.
// One a thread, kept from line to line.
struct LineText {
    std::string utf8;
    std::size_t chars = 0;
    struct Wide {
        std::uint32_t at;     // the character's number
        std::uint32_t extra;  // the bytes more than one of it and every wide character before it
    };
    std::vector<Wide> wide;
    std::size_t byte_of(std::size_t ch) const {
        std::size_t extra = 0;
        for (const Wide& w : wide) {
            if (w.at >= ch) break;
            extra = w.extra;
        }
        return ch + extra;
    }
    std::string_view slice(std::size_t at, std::size_t len) const {
        const std::size_t end = std::min(at + len, chars);
        at = std::min(at, end);
        if (wide.empty()) return std::string_view(utf8).substr(at, end - at);
        const std::size_t from = byte_of(at);
        return std::string_view(utf8).substr(from, byte_of(end) - from);
    }
};
const LineText& line_text(std::u32string_view line);

// Sets what the declarations place and gives the fields they do not in
// `left`. A value becomes a text of its own only there.
template <Bound T>
void read_declared(T& obj, const LineText& text, std::span<const checks::Part> parts, RecordFrame& frame,
                   std::vector<ReadField>& left) {
    left.clear();
    std::string scratch;
    for (const checks::Part& p : parts) {
        const Place at{p.entry, p.item};
        const LayoutPlan<T>& plan = layout_plan<T>(*p.layout);
        for (std::size_t k = 0; k < p.layout->fields.size(); ++k) {
            const FieldRole role = plan.roles[k];
            if (role == FieldRole::Skip) continue;
            const FieldLayout& f = p.layout->fields[k];
            const std::string_view raw = text.slice(p.at + f.pos - 1u, f.len);
            if (role == FieldRole::Created) {
                frame.created = raw;
                const std::size_t open = f.name.find('(');
                if (open != std::string_view::npos)
                    frame.createdFrom = f.name.substr(open + 1, f.name.size() - open - 2);
                continue;
            }
            const std::string_view value = field_value(raw, f, scratch);
            // A count of blocks is the property "Anzahl<block>" where the
            // object has one (its entries are read with the blocks).
            if (role == FieldRole::Count) {
                if (plan.own[k]) plan.own[k](obj, at, value);
                continue;
            }
            const bool placed = role == FieldRole::Record ? plan.record[k] && plan.record[k](frame.datensatz, at, value)
                                                          : plan.own[k] && plan.own[k](obj, at, value);
            // A field with a remark ("Merkmal1 (1 or 0)") is placed as it
            // stands and still given to the procedure's own reading.
            if (!placed || plan.remarked[k]) left.push_back({&f, &p, std::string(value)});
        }
    }
}

// The value of the left field named `name`, or nullptr.
inline const ReadField* find(std::span<const ReadField> left, std::string_view name) {
    for (const ReadField& r : left)
        if (r.field->name == name) return &r;
    return nullptr;
}

}  // namespace tamrel::readback
