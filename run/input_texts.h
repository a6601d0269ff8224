// The texts of a report, and of the frame, made ready as they are read,
// before they are checked and built into records:
// - normalised to NFC, so that a decomposed "u" + U+0308 is the "ü" that
//   ISO-8859-1 holds;
// - a control character (C0, DEL, C1) is an error naming the property, or
//   with --transliterate a blank;
// - with --transliterate a character the encoding cannot hold becomes its
//   usual substitute here, in the property, so that a substitute longer than
//   the character ("EUR" for "€") is cut to its field like any text and the
//   record keeps its widths.
#pragma once
#include <functional>
#include <string>
#include <string_view>

#include "run/output_encoding.h"

namespace tamrel::cli {

class InputTexts {
public:
    InputTexts(Encoding encoding, bool transliterate) : encoding_(encoding), transliterate_(transliterate) {}

    // Prepares `value`, the property `name()` (asked for only when there is
    // something to say). Returns the error, empty when there is none; the
    // substitutions made are added to substituted().
    using Name = std::function<std::string()>;
    std::string prepare(std::string& value, const Name& name);

    // The substitutions since the last clear(), in words:
    // `Vorgang.Vorname "Łukasz": "Ł" (U+0141) written as "L"`, …
    const std::string& substituted() const { return substituted_; }
    void clear() { substituted_.clear(); }

private:
    void note(std::string_view name, std::string_view original, std::string_view from, std::string_view to);

    Encoding encoding_;
    bool transliterate_;
    std::string substituted_, scratch_;
};

// The text in Unicode normalisation form C (unchanged when it is already).
void to_nfc(std::string& text);

// Whether a report given as this JSON line may hold a text to prepare: an
// escape or a raw control character, DEL, or any character beyond U+007F
// but the Latin-1 letters U+00C0 to U+00FF (C1 controls, and what may be
// decomposed or not encodable). A line of ASCII and umlauts needs nothing:
// its texts are walked only when this is true.
bool may_need_preparing(std::string_view json_line);

}  // namespace tamrel::cli
