#pragma once
#include <cstddef>
#include <string_view>

#include "core/text.h"

namespace tamrel {

// Reads "J" flags back out of a finished record by 1-based character
// position. In a record of one-byte characters a position is an index;
// otherwise a cursor walks forward from the last position read (flags are
// read in ascending order, so the record is walked once).
class FlagReader {
public:
    // `chars` is the record's length in characters, when the caller knows it.
    FlagReader(std::string_view record, std::size_t chars) : record_(record), ascii_(record.size() == chars) {}
    explicit FlagReader(std::string_view record) : record_(record), ascii_(text::is_ascii(record)) {}

    bool j(std::size_t pos) {
        if (ascii_) return pos >= 1 && pos <= record_.size() && record_[pos - 1] == 'J';
        if (pos < chr_) chr_ = 1, byte_ = 0;
        while (chr_ < pos && byte_ < record_.size()) {
            byte_ += text::seq_len(static_cast<unsigned char>(record_[byte_]));
            ++chr_;
        }
        return byte_ < record_.size() && record_[byte_] == 'J';
    }

private:
    std::string_view record_;
    bool ascii_;
    std::size_t chr_ = 1, byte_ = 0;
};

}  // namespace tamrel
