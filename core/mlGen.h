// The field encoders and checks of module mlGen, and GetCurrDate of mlGlobal.
// Each exists twice: under its own name, returning the field, and as an
// Append… form that writes into a caller's buffer (the record builders' hot
// path, no allocation). The filled flag is only ever set, never cleared.
#pragma once
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/date.h"
#include "core/short_bytes.h"

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
// bytes per character of width plus kPutSlack; they return the end of the
// field. Bytes past that end are scratch (short fields are padded with one
// fixed-size store), overwritten by the next field or cut off.
inline constexpr std::size_t kPutSlack = bytes::kSlack;

// The control characters the text encoders drop: CR, LF and TAB.
inline bool is_dropped_control(char c) { return c == '\r' || c == '\n' || c == '\t'; }

namespace detail {
// The encoders' general walk, for what the inline fast path leaves: values
// longer than their field, UTF-8, control characters. The fuzzers hold the
// fast path to it.
char* PutAnGeneral(char* d, std::string_view value, std::size_t width, bool& filled);
char* PutNGeneral(char* d, std::string_view value, std::size_t width, bool& filled);
// What the text encoder's inline path leaves: short names with umlauts are
// surveyed and copied word-wise here, everything else takes the general walk.
char* PutAnText(char* d, std::string_view value, std::size_t width, bool& filled);

// Calls a general walk with a flag of its own and hands the result on: the
// caller's flag is often a member of the writer, and handing its address out
// of line would keep the whole writer in memory.
template <class Walk, class... A>
[[gnu::always_inline]] inline char* general(bool& filled, Walk walk, char* d, A... args) {
    bool own = false;
    char* end = walk(d, args..., own);
    if (own) filled = true;
    return end;
}
}  // namespace detail

namespace detail {
// Most values are a few plain ASCII characters that fit their field: those
// are copied onto a field padded with `pad` (to its left end, or its right
// end for numbers) here, without a call; the rest go to `walk`.
template <char pad, bool right, class Walk>
[[gnu::always_inline]] inline char* put_plain(char* d, std::string_view value, std::size_t w, bool& filled, Walk walk) {
    if (value.empty()) {  // the most common value of all
        bytes::pad_field(d, pad, w);
        return d + w;
    }
    bool content = false;
    if (value.size() > w || !bytes::scan_plain(value.data(), value.size(), pad, content)) [[unlikely]]
        return general(filled, walk, d, value, w);
    bytes::pad_field(d, pad, w);
    bytes::copy_short(right ? d + w - value.size() : d, value.data(), value.size());
    if (content) filled = true;
    return d + w;
}
}  // namespace detail

[[gnu::always_inline]] inline char* PutAn(char* d, std::string_view value, std::size_t w, bool& filled) {
    return detail::put_plain<' ', false>(d, value, w, filled, detail::PutAnText);
}

[[gnu::always_inline]] inline char* PutN(char* d, std::string_view value, std::size_t w, bool& filled) {
    return detail::put_plain<'0', true>(d, value, w, filled, detail::PutNGeneral);
}

namespace detail {
char* PutAmountGeneral(char* d, std::string_view value, int intVor, int intNach, bool with_sign, bool& filled);
}

// The amount encoders (StrToPB, and StrToBG with `with_sign`) writing at `d`.
// Most amounts of a record are not given: those are zeros, written inline.
[[gnu::always_inline]] inline char* PutAmount(char* d, std::string_view value, int intVor, int intNach, bool with_sign,
                                              bool& filled) {
    if (!value.empty() || intVor < 0 || intNach < 0) [[unlikely]]
        return detail::general(filled, detail::PutAmountGeneral, d, value, intVor, intNach, with_sign);
    if (with_sign) *d++ = '+';
    const auto w = static_cast<std::size_t>(intVor + intNach);
    bytes::pad_field(d, '0', w);
    return d + w;
}

void AppendAn(std::string& out, std::string_view value, int width, bool& filled);
void AppendN(std::string& out, std::string_view value, int width, bool& filled);
void AppendPB(std::string& out, std::string_view value, int intVor, int intNach, bool& filled);
void AppendBG(std::string& out, std::string_view value, int intVor, int intNach, bool& filled);
void AppendJN(std::string& out, std::int32_t value, bool& filled);
// The character of EnmToJN: "J" for 1, "N" for 2, a blank otherwise.
inline char JNChar(std::int32_t value, bool& filled) {
    const char c = value == 1 ? 'J' : value == 2 ? 'N' : ' ';
    if (c != ' ') filled = true;
    return c;
}
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
