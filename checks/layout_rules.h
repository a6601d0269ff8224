// The checks that follow from the record layouts alone, so that no field is
// missed: a property that feeds a date field holds a date, an integer that
// feeds a numeric field is neither negative nor wider than the field, a
// text that feeds one holds digits that fit it. Bound to a data object's
// members once (by its report runner), run on every report before its
// record is built.
#pragma once
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "checks/finding.h"
#include "core/layout.h"

namespace tamrel::checks {

struct LayoutRule {
    const FieldLayout* field;  // its name is the property's path
    const std::string* text = nullptr;
    const std::int32_t* int32 = nullptr;
    const std::int16_t* int16 = nullptr;
};

// The field of the data records `records` (a generator class's `kRecords`,
// their blocks and entries included) that the property `path` feeds and
// that a layout rule applies to (a date or a numeric field), or nullptr.
const FieldLayout* ruled_field(std::span<const RecordLayout* const> records, std::string_view path);

void check_by_layout(std::span<const LayoutRule> rules, Findings& f);

}  // namespace tamrel::checks
