// The transfer file's character encoding: the library's UTF-8 records
// converted while streaming; a character the encoding cannot hold is an
// error naming it, or is replaced by its usual substitute.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reader/transfer_file.h"

namespace tamrel::cli {

enum class Encoding { Latin1, Latin9, Utf8 };

// Accepts the common spellings, in any case: ISO-8859-1, ISO8859-1,
// latin1, latin-1, l1; ISO-8859-15, latin9, latin-9, l9; UTF-8, utf8.
std::optional<Encoding> parse_encoding(std::string_view name);
const char* encoding_name(Encoding e);  // as in an XML declaration
// How a file written in `e` is read back (tamrel check, inspect).
checks::FileEncoding file_encoding(Encoding e);
inline constexpr const char* kEncodingSpellings =
    "ISO-8859-1 (default; also latin1, l1), ISO-8859-15 (latin9, l9) or UTF-8 (utf8); any case";

// What becomes of a character the encoding cannot hold.
enum class Unencodable {
    Fail,           // the text cannot be written (a record, by default)
    Transliterate,  // its usual substitute (Ł → L, œ → oe), or fail when it has none
    Replace,        // its usual substitute, or "?" (a protocol line, which must always be writable)
};

// The usual substitute of a character in plain ASCII ("L" for "Ł", "oe"
// for "œ", "EUR" for "€"), or empty when it has none (docs/robustness.md
// lists them).
std::string_view substitute(char32_t c);

// Where a text could not be written: the 1-based character position and
// the character itself (its bytes in the text), and whether it is a control
// character (a line break inside a record would break the file's lines).
struct EncodeFailure {
    std::size_t position = 0;
    std::string_view character;
    char32_t code = 0;
    bool control = false;
    explicit operator bool() const { return position != 0; }
};

// "U+0141" for the UTF-8 character "Ł": a name that survives any encoding.
std::string unicode_name(std::string_view character);

struct Substitution {
    std::string_view from;  // the character's bytes in the text
    std::string_view to;
};

// Appends `text` converted to `out`; on failure `out` holds a part of it.
// With Unencodable::Replace control characters are dropped and nothing
// fails. Substitutions made are added to `made` when it is given.
EncodeFailure encode(std::string& out, std::string_view text, Encoding e, Unencodable unencodable = Unencodable::Fail,
                     std::vector<Substitution>* made = nullptr);

}  // namespace tamrel::cli
