// The value checks that every procedure's rules share: calendar dates in
// the records' form, amounts of a field's width, digit keys.
#pragma once
#include <string_view>

#include "checks/finding.h"

namespace tamrel::checks {

bool real_day(int year, int month, int day);
// "YYYYMMDD" naming a real day.
bool is_date(std::string_view yyyymmdd);
// The rule an amount of whole units (digits only, at most `width`) breaks.
const Rule* whole_amount_fault(std::string_view value, std::size_t width);
// The rule an amount with decimals breaks: digits, at most one decimal
// separator ("," or "."), a leading sign where the field has one, at most
// `integers` digits before the separator and `decimals` after it.
const Rule* decimal_amount_fault(std::string_view value, std::size_t integers, std::size_t decimals, bool sign);
// `width` digits exactly.
bool is_digits(std::string_view value, std::size_t width);

}  // namespace tamrel::checks
