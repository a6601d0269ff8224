// The reports of a transfer: the job's inline array, or an NDJSON stream
// read one bounded line at a time.
#pragma once
#include <cstddef>
#include <istream>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "core/line_reader.h"

namespace tamrel::cli {

class ReportSource {
public:
    explicit ReportSource(const nlohmann::json& reports) : array_(&reports) {}
    explicit ReportSource(std::istream& ndjson);

    // The next report: `element` points into the job's array, or `line`
    // holds the text of a non-blank line. False at the end. `length` is the
    // line's full length, which may exceed what `line` holds (see
    // LineReader): such a line is the last one read. A UTF-8 byte order
    // mark before the first line is passed over.
    bool next(const nlohmann::json*& element, std::string& line, std::size_t& length);
    // The line of the NDJSON file that the last report came from (blank
    // lines counted), 0 for the job's inline reports.
    std::size_t line_number() const { return line_number_; }

private:
    const nlohmann::json* array_ = nullptr;
    std::size_t pos_ = 0;
    std::optional<LineReader> lines_;
    std::size_t line_number_ = 0;
    bool first_ = true;
};

}  // namespace tamrel::cli
