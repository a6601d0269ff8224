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
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/layout.h"
#include "core/objects.h"
#include "core/objects_properties.h"
#include "readback/field_value.h"
#include "readback/object_paths.h"
#include "reader/layout_cache.h"
#include "reader/line_walk.h"
#include "reader/transfer_file.h"

namespace tamrel::readback {

// One field of the line and its value.
struct ReadField {
    const FieldLayout* field;
    const checks::Part* part;
    std::string_view value;
};
// The fields the declarations do not place, given to the procedure's own
// reading: their values are views of the line, or of `made` where a value
// is made anew (an amount), so that no field needs a text of its own.
struct LeftFields {
    std::vector<ReadField> fields;
    std::deque<std::string> made;
    void clear() {
        fields.clear();
        made.clear();
    }
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
// static) and kept for the thread's later records: the fields to read, in
// their order, each with what takes its value.
enum class FieldRole : std::uint8_t {
    // The two that are read apart from the rest (tested as one: below Record).
    Count,    // a count of blocks: the property "Anzahl<block>", where there is one
    Created,  // the record's time stamp
    Record,   // a member of the record identification (DatensatzData)
    Object,   // a property of the data object
};
// The two setters most fields of a record take, called in the walk itself
// rather than through their function: a text, an entry of a list of texts.
enum class Direct : std::uint8_t { None, Text, TextEntry };
template <Bound T>
struct FieldStep {
    const FieldLayout* field;
    FieldRole role;
    bool remarked;  // a remark in brackets: given to the procedure's own reading too
    Setter<T> own;
    Setter<DatensatzData> record;
    Direct direct = Direct::None;
    // The field's place (from 0) and width, kept beside the step: read for every field.
    std::uint16_t from = 0, len = 0;
};

template <Bound T>
Direct direct_of(const Setter<T>& set) {
    if (set.sets_with(&detail::set_plain<std::string>)) return Direct::Text;
    if (set.sets_with(&detail::set_entry<Indexed<std::string>>)) return Direct::TextEntry;
    return Direct::None;
}
template <Bound T>
using LayoutPlan = std::vector<FieldStep<T>>;

template <Bound T>
LayoutPlan<T> make_plan(const RecordLayout& layout) {
    LayoutPlan<T> plan;
    constexpr std::string_view dd = "DatensatzData.";
    for (const FieldLayout& f : layout.fields) {
        const std::string_view path = property_path(f.name);
        FieldStep<T> step{&f, FieldRole::Object, path.size() != f.name.size(), {}, {}};
        step.from = static_cast<std::uint16_t>(f.pos - 1u), step.len = f.len;
        if (f.announce == Announce::Count) {
            step.role = FieldRole::Count;
            step.own = resolve<T>("Anzahl" + std::string(f.name));
        } else if (derived(f)) {
            continue;  // a fixed text, a flag, a reserve
        } else if (f.kind == FieldKind::DateTime && f.name.starts_with("created")) {
            step.role = FieldRole::Created;
        } else if (path.starts_with(dd)) {
            step.role = FieldRole::Record;
            step.record = resolve<DatensatzData>(path.substr(dd.size()));
        } else {
            step.own = resolve<T>(path);
            step.direct = direct_of(step.own);
        }
        plan.push_back(std::move(step));
    }
    return plan;
}

// The plan of a layout, made once a layout and kept for the thread.
template <Bound T>
const LayoutPlan<T>& layout_plan(const RecordLayout& layout) {
    return checks::per_layout<LayoutPlan<T>>(layout, [](const RecordLayout& l) { return make_plan<T>(l); });
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

    // Slices fields in the order of their places: the wide characters
    // before a field are counted on from the field before it.
    class Slicer {
    public:
        explicit Slicer(const LineText& text)
            : text_(text),
              past_wide_(text.wide.empty() ? 0 : text.wide.back().at + 1),
              wide_extra_(text.wide.empty() ? 0 : text.wide.back().extra) {}
        std::string_view slice(std::size_t at, std::size_t len) {
            const std::size_t end = std::min(at + len, text_.chars);
            at = std::min(at, end);
            // Within the text: at <= end <= chars, whose bytes the text holds.
            // After the last wide character (most fields; every field of a
            // line without one) a character's byte is found by one sum.
            if (at >= past_wide_) return {text_.utf8.data() + at + wide_extra_, end - at};
            const std::size_t from = byte_of(at);
            return {text_.utf8.data() + from, byte_of(end) - from};
        }

    private:
        std::size_t byte_of(std::size_t ch) {
            if (ch < last_) next_ = 0, extra_ = 0;  // a field before the last: counted again
            last_ = ch;
            for (; next_ < text_.wide.size() && text_.wide[next_].at < ch; ++next_) extra_ = text_.wide[next_].extra;
            return ch + extra_;
        }
        const LineText& text_;
        const std::size_t past_wide_, wide_extra_;
        std::size_t next_ = 0, extra_ = 0, last_ = 0;
    };
};
const LineText& line_text(std::u32string_view line);
// The same from the bytes the record was read from: taken as they stand
// where the file is ISO-8859-1 or -15 (a byte a character), with only its
// few wide characters written anew.
const LineText& line_text(std::u32string_view record, std::string_view bytes, checks::FileEncoding encoding);

// Sets what the declarations place and gives the fields they do not in
// `left`.
template <Bound T>
void read_declared(T& obj, const LineText& text, std::span<const checks::Part> parts, RecordFrame& frame,
                   LeftFields& left) {
    left.clear();
    std::string scratch;
    LineText::Slicer slicer(text);
    const RecordLayout* last = nullptr;  // the entries of a list come one after another
    const LayoutPlan<T>* plan = nullptr;
    for (const checks::Part& p : parts) {
        const Place at{p.entry, p.item};
        if (p.layout != last) last = p.layout, plan = &layout_plan<T>(*p.layout);
        for (const FieldStep<T>& step : *plan) {
            const std::string_view raw = slicer.slice(p.at + step.from, step.len);
            const FieldLayout& f = *step.field;
            if (step.role < FieldRole::Record) [[unlikely]] {
                if (step.role == FieldRole::Created) {
                    frame.created = raw;
                    const std::size_t open = f.name.find('(');
                    if (open != std::string_view::npos)
                        frame.createdFrom = f.name.substr(open + 1, f.name.size() - open - 2);
                } else if (step.own) {
                    // A count of blocks is the property "Anzahl<block>" where the
                    // object has one (its entries are read with the blocks).
                    step.own(obj, at, field_value(raw, f, scratch));
                }
                continue;
            }
            const std::string_view value = field_value(raw, f, scratch);
            bool placed = true;
            if (step.direct == Direct::Text) {
                step.own.template set_as<&detail::set_plain<std::string>>(obj, at, value);
            } else if (step.direct == Direct::TextEntry) {
                step.own.template set_as<&detail::set_entry<Indexed<std::string>>>(obj, at, value);
            } else {
                placed = step.role == FieldRole::Record ? step.record && step.record(frame.datensatz, at, value)
                                                        : step.own && step.own(obj, at, value);
            }
            // A field with a remark ("Merkmal1 (1 or 0)") is placed as it
            // stands and still given to the procedure's own reading.
            if (!placed || step.remarked) [[unlikely]]
                left.fields.push_back({&f, &p, value.data() == scratch.data() ? left.made.emplace_back(value) : value});
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
