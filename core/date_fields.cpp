#include "core/date_fields.h"

#include "core/host.h"
#include "core/text.h"

namespace tamrel::mlGen {

Date GetDate(const Date& date) { return date.is_empty() ? tamrel::now() : date; }

namespace {
// Characters `start` (1-based) to `start + len - 1` of a text of `chars`
// characters: a plain substring when every character is one byte.
std::string_view piece(std::string_view t, std::size_t chars, std::size_t start, std::size_t len) {
    return t.size() == chars ? t.substr(start - 1, len) : text::mid(t, start, len);
}
}  // namespace

std::string ConvertDate(std::string_view value) {
    const std::string_view t = text::trim_blanks(value);
    const std::size_t chars = text::char_count(t);
    if (chars != 8) return std::string(t);
    std::string out;
    out.reserve(t.size() + 2);
    out.append(piece(t, chars, 1, 4)).append("-").append(piece(t, chars, 5, 2)).append("-");
    out.append(piece(t, chars, 7, 2));
    return out;
}

std::string ConvertDateTimeToISO(std::string_view value) {
    const std::string_view t = text::trim_blanks(value);
    const std::size_t chars = text::char_count(t);
    if (chars != 20) return std::string(t);
    std::string out;
    out.reserve(t.size() + 6);
    out.append(piece(t, chars, 1, 4)).append("-").append(piece(t, chars, 5, 2)).append("-");
    out.append(piece(t, chars, 7, 2)).append("T").append(piece(t, chars, 9, 2)).append(":");
    out.append(piece(t, chars, 11, 2)).append(":").append(piece(t, chars, 13, 2)).append(".");
    out.append(t.size() == chars ? t.substr(14) : text::right(t, 6));
    return out;
}

}  // namespace tamrel::mlGen

namespace tamrel::mlGlobal {

CurrDate::CurrDate(std::string_view dateText, int format, const Date& date) {
    std::string_view t = dateText;
    std::size_t chars = text::char_count(dateText);
    if (chars < 8) {
        t = std::string_view(own_, static_cast<std::size_t>(put_yyyymmdd(own_, date) - own_));
        chars = 8;
    }
    // Day from the right end, month from characters 5-6, year from 1-4.
    const bool ascii = t.size() == chars;
    const std::string_view day = ascii ? t.substr(t.size() - 2) : text::right(t, 2);
    const std::string_view month = ascii ? t.substr(4, 2) : text::mid(t, 5, 2);
    const std::string_view year = ascii ? t.substr(0, 4) : text::left(t, 4);
    const auto add = [this](std::string_view piece) { pieces_[count_++] = piece; };
    switch (format) {
        case 0:
            add(year), add(month), add(day);
            break;
        case 1:
            add(year), add(month), add(day);
            if (chars >= 14)
                add(ascii ? t.substr(8, 6) : text::mid(t, 9, 6));
            else
                add({own_ + 8, static_cast<std::size_t>(put_hhnnss(own_ + 8, date) - (own_ + 8))});
            break;
        case 2:
            add(day), add(month), add(year);
            break;
        default:
            break;
    }
}

std::string GetCurrDate(std::string_view dateText, int format, const Date& date) {
    const CurrDate text(dateText, format, date);
    std::string out;
    for (std::string_view piece : text.pieces()) out.append(piece);
    return out;
}

}  // namespace tamrel::mlGlobal
