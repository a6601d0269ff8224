#include "checks/values.h"

#include "checks/rules.h"

namespace tamrel::checks {

bool real_day(int year, int month, int day) {
    if (month < 1 || month > 12 || day < 1) return false;
    constexpr int days[12] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month == 2 && day == 29) return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return day <= days[month - 1];
}

bool is_digits(std::string_view value, std::size_t width) {
    if (value.size() != width) return false;
    for (char c : value)
        if (c < '0' || c > '9') return false;
    return true;
}

bool is_date(std::string_view d) {
    if (!is_digits(d, 8)) return false;
    auto n = [&](std::size_t at, std::size_t len) {
        int v = 0;
        for (std::size_t i = at; i < at + len; ++i) v = v * 10 + (d[i] - '0');
        return v;
    };
    return n(0, 4) >= 1800 && real_day(n(0, 4), n(4, 2), n(6, 2));
}

const Rule* whole_amount_fault(std::string_view value, std::size_t width) {
    for (char c : value) {
        if (c == '-') return &kAmountNegative;
        if (c < '0' || c > '9') return &kAmountChars;
    }
    return value.size() > width ? &kAmountTooLong : nullptr;
}

const Rule* decimal_amount_fault(std::string_view value, std::size_t integers, std::size_t decimals, bool sign) {
    if (!value.empty() && (value[0] == '-' || value[0] == '+')) {
        if (value[0] == '-' && !sign) return &kAmountNegative;
        value.remove_prefix(1);
    }
    std::size_t before = 0, after = 0;
    bool separator = false;
    for (char c : value) {
        if (c == '-') return sign ? &kAmountChars : &kAmountNegative;
        if (c == ',' || c == '.') {
            if (separator) return &kAmountChars;
            separator = true;
        } else if (c >= '0' && c <= '9') {
            ++(separator ? after : before);
        } else {
            return &kAmountChars;
        }
    }
    if (before > integers) return &kAmountTooLong;
    return after > decimals ? &kAmountDecimals : nullptr;
}

}  // namespace tamrel::checks
