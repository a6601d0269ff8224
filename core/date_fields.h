// The date fields: the date a record is made with, the date texts of the
// records (GetCurrDate of mlGlobal) and of the XML report (ISO forms).
#pragma once
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/date.h"

namespace tamrel::mlGen {

// The given date, or now when it is empty.
Date GetDate(const Date& date);
std::string ConvertDate(std::string_view text);
std::string ConvertDateTimeToISO(std::string_view text);

}  // namespace tamrel::mlGen

namespace tamrel::mlGlobal {

std::string GetCurrDate(std::string_view dateText, int format, const Date& date);
// The pieces of GetCurrDate's text, in order: views into the given text or
// into the date's own digits (no allocation).
class CurrDate {
public:
    CurrDate(std::string_view dateText, int format, const Date& date);
    CurrDate(const CurrDate&) = delete;
    CurrDate& operator=(const CurrDate&) = delete;
    std::span<const std::string_view> pieces() const { return {pieces_, count_}; }

private:
    char own_[14];  // yyyymmdd, then hhnnss
    std::string_view pieces_[4];
    std::size_t count_ = 0;
};

}  // namespace tamrel::mlGlobal
