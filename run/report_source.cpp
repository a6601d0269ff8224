#include "run/report_source.h"

#include "json/json_limits.h"

namespace tamrel::cli {

ReportSource::ReportSource(std::istream& ndjson) { lines_.emplace(ndjson, kMaxLineBytes); }

bool ReportSource::next(const nlohmann::json*& element, std::string& line, std::size_t& length) {
    if (array_) {
        if (pos_ >= array_->size()) return false;
        element = &(*array_)[pos_++];
        length = 0;
        return true;
    }
    element = nullptr;
    while (lines_->next(line, length)) {
        ++line_number_;
        if (first_) {
            first_ = false;
            if (line.starts_with("\xEF\xBB\xBF")) {
                line.erase(0, 3);
                length -= 3;
            }
        }
        if (lines_->overlong() || line.find_first_not_of(" \t") != std::string::npos) return true;
    }
    return false;
}

}  // namespace tamrel::cli
