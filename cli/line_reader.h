// Reads a stream line by line with a bound on the line length: a longer line
// is kept only up to the bound and the rest of it skipped, so that no line,
// however long, is held in memory whole.
#pragma once
#include <cstddef>
#include <istream>
#include <memory>
#include <string>

namespace tamrel::cli {

class LineReader {
public:
    LineReader(std::istream& in, std::size_t max_bytes);

    // The next line without its ending (LF or CR LF); false at the end of
    // the stream. `length` is the line's full length: when it exceeds the
    // bound, `line` holds only its first max_bytes + 1 bytes.
    bool next(std::string& line, std::size_t& length);

private:
    bool fill();

    std::streambuf* in_;
    std::size_t max_;
    static constexpr std::size_t kChunk = 1 << 16;
    std::unique_ptr<char[]> buf_;
    std::size_t pos_ = 0, end_ = 0;
};

}  // namespace tamrel::cli
