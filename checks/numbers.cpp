#include "checks/numbers.h"

#include "checks/rules.h"
#include "checks/values.h"

namespace tamrel::checks {
namespace {

bool digits(std::string_view s) {
    for (char c : s)
        if (c < '0' || c > '9') return false;
    return true;
}
int number(std::string_view two) { return (two[0] - '0') * 10 + (two[1] - '0'); }
int digit_sum(int n) { return n / 10 + n % 10; }

}  // namespace

int versicherungsnummer_check_digit(std::string_view v) {
    // The letter becomes its place in the alphabet, two digits: eleven
    // characters give twelve digits, weighted 2 1 2 5 7 1 2 1 2 1 2 1; the
    // digit sums of the products, added, modulo 10.
    const int letter = (v[8] | 0x20) - 'a' + 1;
    const int d[12] = {v[0] - '0', v[1] - '0', v[2] - '0',  v[3] - '0',  v[4] - '0', v[5] - '0',
                       v[6] - '0', v[7] - '0', letter / 10, letter % 10, v[9] - '0', v[10] - '0'};
    constexpr int weight[12] = {2, 1, 2, 5, 7, 1, 2, 1, 2, 1, 2, 1};
    int sum = 0;
    for (int i = 0; i < 12; ++i) sum += digit_sum(d[i] * weight[i]);
    return sum % 10;
}

const Rule* versicherungsnummer_fault(std::string_view v) {
    if (v.size() != 12 || !digits(v.substr(0, 8)) || !digits(v.substr(9, 3))) return &kVsnrForm;
    const char letter = static_cast<char>(v[8] & ~0x20);
    if (letter < 'A' || letter > 'Z') return &kVsnrForm;
    const int area = number(v.substr(0, 2));
    if (area < 2 || area > 89) return &kVsnrArea;
    // A two-digit year: any century will do, so 29 February is allowed.
    if (!real_day(2000 + number(v.substr(6, 2)), number(v.substr(4, 2)), number(v.substr(2, 2)))) return &kVsnrDate;
    if (versicherungsnummer_check_digit(v) != v[11] - '0') return &kVsnrCheckDigit;
    return nullptr;
}

int betriebsnummer_check_digit(std::string_view b) {
    // The first seven digits weighted 1 2 1 2 1 2 1; the digit sums of the
    // products, added, modulo 10.
    int sum = 0;
    for (int i = 0; i < 7; ++i) sum += digit_sum((b[static_cast<std::size_t>(i)] - '0') * (i % 2 + 1));
    return sum % 10;
}

const Rule* betriebsnummer_fault(std::string_view b) {
    if (b.size() != 8 || !digits(b)) return &kBnrForm;
    const int check = betriebsnummer_check_digit(b), last = b[7] - '0';
    if (last != check && last != (check + 5) % 10) return &kBnrCheckDigit;
    return nullptr;
}

}  // namespace tamrel::checks
