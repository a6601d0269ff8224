// What a field of each kind may hold, in a transfer file: digits in numeric
// fields, calendar dates, J or N in flags, amounts of digits (after their
// sign), the fixed contents, and the check digits of insurance and
// establishment numbers.
#pragma once
#include <string>
#include <string_view>

#include "checks/finding.h"
#include "core/layout.h"

namespace tamrel::checks {

// The rule that the field's characters break, or nullptr.
const Rule* fault(std::u32string_view text, const FieldLayout& f);

// What the field's raw text means: text without its padding, digits
// without their leading zeros, dates as YYYY-MM-DD, amounts with their
// decimal separator.
std::string decoded(const std::string& raw, const FieldLayout& f);

// The kind's name in listings: "text", "digits", "date", …
const char* kind_name(FieldKind k);

}  // namespace tamrel::checks
