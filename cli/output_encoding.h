// The transfer file's character encoding: the library's UTF-8 records
// converted while streaming; a character the encoding cannot hold is an
// error naming its character position.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace tamrel::cli {

enum class Encoding { Latin1, Latin9, Utf8 };

std::optional<Encoding> parse_encoding(std::string_view name);
const char* encoding_name(Encoding e);  // as in an XML declaration

// Where a text could not be written: the 1-based character position of the
// first character that the encoding cannot hold, or that is a control
// character (a line break inside a record would break the file's lines).
struct EncodeFailure {
    std::size_t position = 0;
    bool control = false;
    explicit operator bool() const { return position != 0; }
};

// Appends `text` converted to `out`; on failure `out` holds a part of it.
EncodeFailure encode(std::string& out, std::string_view text, Encoding e);

}  // namespace tamrel::cli
