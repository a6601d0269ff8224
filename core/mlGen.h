// The field encoders and checks of module mlGen, and GetCurrDate of mlGlobal.
// Each exists twice: under its own name, returning the field, and as an
// Append… form that writes into a caller's buffer (the record builders' hot
// path, no allocation). The filled flag is only ever set, never cleared.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "core/date.h"

namespace tamrel::mlGen {

std::string StrToAn(std::string_view value, int width, bool& filled);
std::string StrToN(std::string_view value, int width, bool& filled);
std::string StrToPB(std::string_view value, int intVor, int intNach, bool& filled);
std::string StrToBG(std::string_view value, int intVor, int intNach, bool& filled);
std::string EnmToJN(std::int32_t value, bool& filled);
void EnhanceVorNachk(std::string& strVor, int intVor, std::string& strNach, int intNach);
void CheckLength(std::string_view record, std::string_view length, std::string_view name);
std::string ConvertBNRSt(std::string_view number);
Date GetDate(const Date& date);
std::string ReplaceSpecialCharText(std::string_view text);
std::string ConvertDate(std::string_view text);
std::string ConvertDateTimeToISO(std::string_view text);

// The text and numeric encoders writing at `d`, which has room for four
// bytes per character of width; they return the end of what they wrote.
char* PutAn(char* d, std::string_view value, std::size_t width, bool& filled);
char* PutN(char* d, std::string_view value, std::size_t width, bool& filled);

// The amount encoders (StrToPB, and StrToBG with `with_sign`) writing at `d`.
char* PutAmount(char* d, std::string_view value, int intVor, int intNach, bool with_sign, bool& filled);

void AppendAn(std::string& out, std::string_view value, int width, bool& filled);
void AppendN(std::string& out, std::string_view value, int width, bool& filled);
void AppendPB(std::string& out, std::string_view value, int intVor, int intNach, bool& filled);
void AppendBG(std::string& out, std::string_view value, int intVor, int intNach, bool& filled);
void AppendJN(std::string& out, std::int32_t value, bool& filled);
void CheckLength(std::string_view record, int length, std::string_view name);

// The decimal text of a number, in a small buffer (no allocation).
struct Decimal {
    char buf[24];
    std::size_t len;
    explicit Decimal(std::int64_t v) noexcept;
    operator std::string_view() const noexcept { return {buf, len}; }
};

}  // namespace tamrel::mlGen

namespace tamrel::mlGlobal {

std::string GetCurrDate(std::string_view dateText, int format, const Date& date);
void AppendCurrDate(std::string& out, std::string_view dateText, int format, const Date& date);

}  // namespace tamrel::mlGlobal
