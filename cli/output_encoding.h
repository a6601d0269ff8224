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

// Appends `text` converted to `out`. Returns 0 on success, else the 1-based
// character position of the first character that cannot be encoded.
std::size_t encode(std::string& out, std::string_view text, Encoding e);

}  // namespace tamrel::cli
