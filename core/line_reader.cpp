#include "core/line_reader.h"

#include <cstring>

namespace tamrel {

LineReader::LineReader(std::istream& in, std::size_t max_bytes)
    : source_([buf = in.rdbuf()](char* into, std::size_t size) -> std::size_t {
          const std::streamsize n = buf ? buf->sgetn(into, static_cast<std::streamsize>(size)) : 0;
          return n > 0 ? static_cast<std::size_t>(n) : 0;
      }),
      max_(max_bytes),
      buf_(std::make_unique<char[]>(kChunk)) {}

LineReader::LineReader(std::FILE* in, std::size_t max_bytes)
    : source_([in](char* into, std::size_t size) { return std::fread(into, 1, size, in); }),
      max_(max_bytes),
      buf_(std::make_unique<char[]>(kChunk)) {}

bool LineReader::fill() {
    pos_ = 0;
    end_ = source_(buf_.get(), kChunk);
    return end_ > 0;
}

bool LineReader::next(std::string& line, std::size_t& length) {
    line.clear();
    length = 0;
    if (overlong_) return false;
    bool any = false;
    while (pos_ < end_ || fill()) {
        any = true;
        const char* start = buf_.get() + pos_;
        const std::size_t avail = end_ - pos_;
        const char* nl = static_cast<const char*>(std::memchr(start, '\n', avail));
        const std::size_t take = nl ? static_cast<std::size_t>(nl - start) : avail;
        if (line.size() + take > max_ + 1) {
            // The bound is reached: the rest of the line is not read.
            const std::size_t part = max_ + 1 - line.size();
            line.append(start, part);
            pos_ += part;
            overlong_ = true;
            length = line.size();
            return true;
        }
        line.append(start, take);
        pos_ += take + (nl ? 1 : 0);
        if (nl) break;
    }
    if (!any) return false;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.size() > max_) {  // max + 1 bytes before a CR: still too long
        overlong_ = true;
        length = line.size();
        return true;
    }
    length = line.size();
    return true;
}

std::string line_too_long_text(std::size_t bytes, std::size_t limit) {
    return "line of " + std::to_string(bytes) + " bytes or more, longer than the limit of " + std::to_string(limit) +
           " bytes";
}

}  // namespace tamrel
