// Reads a stream line by line with a bound on the line length, applied
// while the line is read: a line that reaches the bound is handed out with
// what was read of it, and the reader stops there. A line without end
// (/dev/zero, a file without line breaks) therefore costs the bound in
// memory and time, never more.
#pragma once
#include <cstddef>
#include <cstdio>
#include <functional>
#include <istream>
#include <memory>
#include <string>

namespace tamrel {

class LineReader {
public:
    // Fills `into` with up to `size` bytes; 0 at the end of the input.
    using Source = std::function<std::size_t(char* into, std::size_t size)>;
    LineReader(std::istream& in, std::size_t max_bytes);
    LineReader(std::FILE* in, std::size_t max_bytes);

    // The next line without its ending (LF or CR LF); false at the end of
    // the input and after a line longer than the bound. `length` is the
    // line's length, or max_bytes + 1 for a line longer than the bound, of
    // which `line` holds the first max_bytes + 1 bytes.
    bool next(std::string& line, std::size_t& length);
    // Whether the last line was longer than the bound (the reader stopped).
    bool overlong() const { return overlong_; }

private:
    bool fill();

    Source source_;
    std::size_t max_;
    static constexpr std::size_t kChunk = 1 << 16;
    std::unique_ptr<char[]> buf_;
    std::size_t pos_ = 0, end_ = 0;
    bool overlong_ = false;
};

// "line of B bytes or more, longer than the limit of L bytes"
std::string line_too_long_text(std::size_t bytes, std::size_t limit);

}  // namespace tamrel
