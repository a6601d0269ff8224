#include "run/input_texts.h"

#include <cstdlib>
#include <cstring>

#include <utf8proc.h>

#include "core/printable.h"
#include "core/text.h"

namespace tamrel::cli {

void to_nfc(std::string& text) {
    // Every character below U+0300 is in form C whatever follows it: texts of
    // Latin-1 letters and Latin Extended-A, the usual case, are left alone.
    bool any = false;
    for (char c : text) any |= static_cast<unsigned char>(c) >= 0xCC;
    if (!any) return;
    utf8proc_uint8_t* composed = nullptr;
    const utf8proc_ssize_t n =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()),
                     &composed, static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
    if (n >= 0) text.assign(reinterpret_cast<const char*>(composed), static_cast<std::size_t>(n));
    std::free(composed);
}

bool may_need_preparing(std::string_view line) {
    if (std::memchr(line.data(), '\\', line.size()) || std::memchr(line.data(), 0x7F, line.size())) return true;
    // A raw control character (which a lenient JSON reader may let through)
    // or a lead byte other than 0xC3 (U+00C0 to U+00FF): one pass without
    // branches, which the compiler turns into vector steps.
    unsigned char any = 0;
    for (const char c : line) {
        const auto b = static_cast<unsigned char>(c);
        any |= static_cast<unsigned char>((b < 0x20) | ((b >= 0xC0) & (b != 0xC3)));
    }
    return any != 0;
}

void InputTexts::note(std::string_view name, std::string_view original, std::string_view from, std::string_view to) {
    if (!substituted_.empty()) substituted_ += ", ";
    substituted_ += std::string(name) + " \"" + printable(original) + "\": \"" + printable(from) + "\" (" +
                    unicode_name(from) + ") written as \"" + std::string(to) + "\"";
}

std::string InputTexts::prepare(std::string& value, const Name& name) {
    to_nfc(value);
    std::string original;  // kept for the messages once something is found
    for (std::size_t done = 0;;) {
        scratch_.clear();
        const EncodeFailure f = encode(scratch_, std::string_view(value).substr(done), encoding_);
        if (!f) return {};
        if (original.empty()) original = value;
        // The failure's place in the whole value.
        const std::size_t at = static_cast<std::size_t>(f.character.data() - value.data());
        const std::string character(f.character);
        std::string_view to;
        if (f.control) {
            if (!transliterate_) {
                const std::size_t position = text::char_count(std::string_view(value).substr(0, at)) + 1;
                return name() + " \"" + printable(original) + "\": the control character " + unicode_name(character) +
                       " (character " + std::to_string(position) +
                       ") cannot be written in a transfer file; --transliterate writes it as a blank";
            }
            to = " ";
        } else {
            to = transliterate_ ? substitute(f.code) : std::string_view();
            if (to.empty()) {  // the record's encoding names it with its property
                done = at + character.size();
                continue;
            }
        }
        note(name(), original, character, to);
        value.replace(at, character.size(), to);
        done = at + to.size();
    }
}

}  // namespace tamrel::cli
