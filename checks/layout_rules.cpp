#include "checks/layout_rules.h"

#include <map>
#include <mutex>

#include "checks/field_checks.h"
#include "checks/rules.h"

namespace tamrel::checks {
namespace {

bool ruled(FieldKind k) { return k == FieldKind::Date || k == FieldKind::DateOrBlank || k == FieldKind::N; }

void collect(const RecordLayout& r, std::map<std::string_view, const FieldLayout*>& out) {
    for (const FieldLayout& f : r.fields) {
        if (ruled(f.kind) && f.announce == Announce::None) out.emplace(f.name, &f);
        if (f.block) collect(*f.block, out);
    }
    if (r.entry) collect(*r.entry, out);
    for (const RecordLayout* form : r.forms) collect(*form, out);
}

std::size_t digit_count(std::int64_t v) {
    std::size_t n = 1;
    for (; v >= 10; v /= 10) ++n;
    return n;
}

void integer(const FieldChecks& c, const FieldLayout& f, std::int64_t v) {
    if (v < 0 || digit_count(v) > f.len) c.add(kNumberRange, f.name, std::to_string(v));
}

// Whether the procedure's own rules have said something of the property:
// the layout rule then adds nothing.
bool found(const Findings& f, std::string_view name) {
    for (const Finding& x : f.list())
        if (x.field == name) return true;
    return false;
}

}  // namespace

const FieldLayout* ruled_field(std::span<const RecordLayout* const> records, std::string_view path) {
    static std::mutex m;
    static std::map<const RecordLayout* const*, std::map<std::string_view, const FieldLayout*>> by_records;
    const std::lock_guard lock(m);
    auto [it, fresh] = by_records.try_emplace(records.data());
    if (fresh)
        for (const RecordLayout* r : records) collect(*r, it->second);
    const auto f = it->second.find(path);
    return f == it->second.end() ? nullptr : f->second;
}

void check_by_layout(std::span<const LayoutRule> rules, Findings& f) {
    const FieldChecks c(f);
    for (const LayoutRule& r : rules) {
        const FieldLayout& field = *r.field;
        if (!f.list().empty() && found(f, field.name)) continue;
        if (r.int32) {
            integer(c, field, *r.int32);
        } else if (r.int16) {
            integer(c, field, *r.int16);
        } else if (field.kind == FieldKind::N) {
            c.number(field.name, *r.text, field.len);
        } else if (field.kind == FieldKind::Date ||
                   r.text->find_first_not_of(' ') != std::string::npos) {  // a text date field may be blank
            c.date(field.name, *r.text);
        }
    }
}

}  // namespace tamrel::checks
