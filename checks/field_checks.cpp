#include "checks/field_checks.h"

#include "checks/numbers.h"
#include "checks/rules.h"
#include "checks/values.h"

namespace tamrel::checks {

// A value of blanks only is as missing as an empty one: it would leave a
// blank field where the record needs the value.
void FieldChecks::required(std::string_view name, std::string_view value) const {
    if (value.find_first_not_of(' ') == std::string_view::npos) add(kMissing, name, value);
}

// Zeros and nines are the published "none" and "open" (ongoing) dates.
void FieldChecks::date(std::string_view name, std::string_view value) const {
    if (!value.empty() && !is_date(value) && value != "00000000" && value != "99999999") add(kDate, name, value);
}

void FieldChecks::month(std::string_view name, std::string_view value) const {
    if (!value.empty() && !is_date(std::string(value) + "01")) add(kMonth, name, value);
}

void FieldChecks::period(std::string_view start_name, std::string_view start, std::string_view end) const {
    if (is_date(start) && is_date(end) && start > end)
        add(kPeriod, start_name, std::string(start) + "-" + std::string(end));
}

void FieldChecks::whole_amount(std::string_view name, std::string_view value, std::size_t width) const {
    if (const Rule* r = whole_amount_fault(value, width)) add(*r, name, value);
}

void FieldChecks::decimal_amount(std::string_view name, std::string_view value, std::size_t integers,
                                 std::size_t decimals, bool sign) const {
    if (const Rule* r = decimal_amount_fault(value, integers, decimals, sign)) add(*r, name, value);
}

void FieldChecks::digits(std::string_view name, std::string_view value, std::size_t width) const {
    if (!value.empty() && !is_digits(value, width)) add(kDigits, name, value);
}

// Anything but digits is DIGITS, whatever its length; digits beyond the
// width are KEY-LENGTH (the builder would keep the rightmost).
void FieldChecks::number(std::string_view name, std::string_view value, std::size_t width) const {
    if (!is_digits(value, value.size()))
        add(kDigits, name, value);
    else
        key(name, value, width);
}

void FieldChecks::creation_date(std::string_view name, std::string_view value) const {
    if (!value.empty() && !is_date(value)) add(kCreationDate, name, value);
}

void FieldChecks::one_of(std::string_view name, std::string_view value, std::initializer_list<std::string_view> keys,
                         const Rule& rule) const {
    if (value.empty()) return;
    for (std::string_view k : keys)
        if (k == value) return;
    add(rule, name, value);
}

namespace {
std::size_t characters(std::string_view utf8) {
    std::size_t n = 0;
    for (char c : utf8) n += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return n;
}
}  // namespace

// A text of no more bytes than the width fits without counting its characters.
void FieldChecks::text(std::string_view name, std::string_view value, std::size_t width) const {
    if (value.size() > width && characters(value) > width) add(kTextLength, name, value);
}

void FieldChecks::key(std::string_view name, std::string_view value, std::size_t width) const {
    if (value.size() > width && characters(value) > width) add(kKeyLength, name, value);
}

void FieldChecks::versicherungsnummer(std::string_view name, std::string_view value) const {
    if (value.empty()) return;
    if (const Rule* r = versicherungsnummer_fault(value)) add(*r, name, value);
}

void FieldChecks::betriebsnummer(std::string_view name, std::string_view value) const {
    if (value.empty()) return;
    if (const Rule* r = betriebsnummer_fault(value)) add(*r, name, value);
}

}  // namespace tamrel::checks
