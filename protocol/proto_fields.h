// The field helpers of the protocol lines and the small line builder that
// every CreateProto… method uses: fields with their leading ";", then the
// unquoted error marker and the first 255 characters of the cleaned error text.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace tamrel::proto {

std::string GetProtField(std::string_view value, bool quoted, bool firstField, bool amount);
std::string GetProtFieldJaNein(std::int32_t value);
std::string CorrectErrText(std::string_view text);

class Line {
public:
    Line& first(std::string_view v);   // quoted, no separator in front
    Line& q(std::string_view v);       // quoted
    Line& raw(std::string_view v);     // unquoted (dates, counts)
    Line& amount(std::string_view v);  // quoted, amount-normalised
    Line& jn(std::int32_t v);
    Line& jn(bool v) { return q(v ? "J" : "N"); }
    // Error marker and error text; returns the finished line.
    std::string finish(bool error, std::string_view errText);

private:
    std::string out_;
};

}  // namespace tamrel::proto
