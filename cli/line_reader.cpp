#include "cli/line_reader.h"

#include <cstring>

namespace tamrel::cli {

LineReader::LineReader(std::istream& in, std::size_t max_bytes)
    : in_(in.rdbuf()), max_(max_bytes), buf_(std::make_unique<char[]>(kChunk)) {}

bool LineReader::fill() {
    pos_ = 0;
    const std::streamsize n = in_ ? in_->sgetn(buf_.get(), kChunk) : 0;
    end_ = n > 0 ? static_cast<std::size_t>(n) : 0;
    return end_ > 0;
}

bool LineReader::next(std::string& line, std::size_t& length) {
    line.clear();
    length = 0;
    bool any = false;
    while (pos_ < end_ || fill()) {
        any = true;
        const char* start = buf_.get() + pos_;
        const std::size_t avail = end_ - pos_;
        const char* nl = static_cast<const char*>(std::memchr(start, '\n', avail));
        const std::size_t take = nl ? static_cast<std::size_t>(nl - start) : avail;
        if (line.size() <= max_) line.append(start, std::min(take, max_ + 1 - line.size()));
        length += take;
        pos_ += take + (nl ? 1 : 0);
        if (nl) break;
    }
    if (!any) return false;
    if (length <= max_ + 1 && !line.empty() && line.back() == '\r') {
        line.pop_back();
        --length;
    }
    return true;
}

}  // namespace tamrel::cli
