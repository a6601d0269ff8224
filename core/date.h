// The date value of the component interface: a local date and time of day.
// The all-zero value is the empty date (0), which GetDate turns into "now".
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace tamrel {

struct Date {
    int year = 0, month = 0, day = 0;
    int hour = 0, minute = 0, second = 0;

    bool is_empty() const noexcept {
        return year == 0 && month == 0 && day == 0 && hour == 0 && minute == 0 && second == 0;
    }
    bool operator==(const Date&) const = default;
    auto operator<=>(const Date&) const = default;
};

// "YYYY-MM-DD" or "YYYY-MM-DDTHH:MM:SS"; an empty text is the empty date.
// Anything else (or an impossible date) yields nullopt.
std::optional<Date> parse_iso_date(std::string_view text);

// "yyyymmdd" and "hhnnss" of a date (the formats of the records), written
// at `out` (returning the end) or appended.
char* put_yyyymmdd(char* out, const Date& d);
char* put_hhnnss(char* out, const Date& d);
void append_yyyymmdd(std::string& out, const Date& d);
void append_hhnnss(std::string& out, const Date& d);

// The date as it appears among a routine's arguments in a log line:
// "yyyy-mm-dd hh:nn:ss", the date alone at midnight, the time alone for
// the empty date (the way the date type renders itself as text).
std::string date_as_argument(const Date& d);

}  // namespace tamrel
