#include "core/date.h"

#include <array>
#include <cstdio>
#include <cstring>

namespace tamrel {
namespace {

bool read_digits(std::string_view s, std::size_t pos, std::size_t n, int& out) {
    int v = 0;
    for (std::size_t i = pos; i < pos + n; ++i) {
        if (s[i] < '0' || s[i] > '9') return false;
        v = v * 10 + (s[i] - '0');
    }
    out = v;
    return true;
}

int days_in_month(int y, int m) {
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
    return m == 2 && leap ? 29 : days[m - 1];
}

constexpr auto kDigitPairs = [] {
    std::array<char, 200> pairs{};
    for (int v = 0; v < 100; ++v)
        pairs[2 * v] = static_cast<char>('0' + v / 10), pairs[2 * v + 1] = static_cast<char>('0' + v % 10);
    return pairs;
}();

// The last two decimal digits of v (a date's fields are 0-99 here, but for
// anything else the same rule holds digit by digit).
char* put2(char* d, int v) {
    if (static_cast<unsigned>(v) < 100) {
        std::memcpy(d, kDigitPairs.data() + 2 * v, 2);
        return d + 2;
    }
    d[0] = static_cast<char>('0' + v / 10 % 10);
    d[1] = static_cast<char>('0' + v % 10);
    return d + 2;
}

}  // namespace

std::optional<Date> parse_iso_date(std::string_view s) {
    if (s.empty()) return Date{};
    if (s.size() != 10 && s.size() != 19) return std::nullopt;
    Date d;
    if (!read_digits(s, 0, 4, d.year) || s[4] != '-' || !read_digits(s, 5, 2, d.month) || s[7] != '-' ||
        !read_digits(s, 8, 2, d.day))
        return std::nullopt;
    if (s.size() == 19) {
        if (s[10] != 'T' || !read_digits(s, 11, 2, d.hour) || s[13] != ':' || !read_digits(s, 14, 2, d.minute) ||
            s[16] != ':' || !read_digits(s, 17, 2, d.second))
            return std::nullopt;
    }
    if (d.year < 100 || d.month < 1 || d.month > 12 || d.day < 1 || d.day > days_in_month(d.year, d.month) ||
        d.hour > 23 || d.minute > 59 || d.second > 59)
        return std::nullopt;
    return d;
}

char* put_yyyymmdd(char* out, const Date& d) {
    return put2(put2(put2(put2(out, d.year / 100), d.year % 100), d.month), d.day);
}

char* put_hhnnss(char* out, const Date& d) { return put2(put2(put2(out, d.hour), d.minute), d.second); }

void append_yyyymmdd(std::string& out, const Date& d) {
    char buf[8];
    out.append(buf, put_yyyymmdd(buf, d));
}

void append_hhnnss(std::string& out, const Date& d) {
    char buf[6];
    out.append(buf, put_hhnnss(buf, d));
}

std::string date_as_argument(const Date& d) {
    char buf[32];
    if (d.year == 0 && d.month == 0 && d.day == 0)
        std::snprintf(buf, sizeof buf, "%02d:%02d:%02d", d.hour, d.minute, d.second);
    else if (d.hour == 0 && d.minute == 0 && d.second == 0)
        std::snprintf(buf, sizeof buf, "%04d-%02d-%02d", d.year, d.month, d.day);
    else
        std::snprintf(buf, sizeof buf, "%04d-%02d-%02d %02d:%02d:%02d", d.year, d.month, d.day, d.hour, d.minute,
                      d.second);
    return buf;
}

}  // namespace tamrel
