// One transfer file from a job: header, communication record, one line per
// report, trailer, each converted to the file's encoding and line ending and
// handed to a sink as it is made. The sinks decide where the bytes go: an
// atomic file for tamrel generate, memory for tests and fuzzing.
#pragma once
#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "checks/finding.h"
#include "run/job.h"
#include "run/output_encoding.h"
#include "run/report_source.h"

namespace tamrel::cli {

class Sink {
public:
    virtual ~Sink() = default;
    virtual void write(std::string_view bytes) = 0;  // throws std::runtime_error
};

class StringSink : public Sink {
public:
    void write(std::string_view bytes) override { text.append(bytes); }
    std::string text;
};

// A report, frame record or protocol line that could not be made.
struct ReportFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct TransferSettings {
    Encoding encoding = Encoding::Latin1;
    bool crlf = false;
    bool keepGoing = false;
    // Characters the encoding cannot hold are written as their usual
    // substitutes (output_encoding.h), each substitution told to `note`.
    bool transliterate = false;
    std::function<void(const std::string&)> note;
    // Called with the failure of each report left out (keepGoing), and
    // with the number of reports read so far, every 100,000 reports.
    std::function<void(const ReportFailure&)> leftOut;
    // The checks run on the frame and on every report before it is built
    // (checks/checks.h): a report with an error fails as any other; every
    // finding, errors and warnings, is told to `finding` with the report's
    // number (0 for the frame) and its line in the NDJSON file (0 when inline).
    bool check = true;
    std::function<void(std::size_t report, std::size_t line, const checks::Finding&)> finding;
    std::function<void(std::size_t)> progress;
    // Called with the lines the log received while a report failed (what a
    // call's "log" holds), with the report's number and NDJSON line; a
    // report's lines are forgotten after it, kept or not.
    std::function<void(std::size_t report, std::size_t line, const std::vector<std::string>& log)> failureLog;
};

struct TransferCounts {
    std::size_t written = 0;
    std::size_t failed = 0;
};

// Writes the transfer file to `out` and, when `protocol` is given, one
// protocol line per report to it. Throws ReportFailure when a report fails
// (unless keepGoing) or a frame record fails, std::runtime_error when a sink
// cannot be written; what the sinks received is then incomplete.
TransferCounts write_transfer(const Job& job, ReportSource& reports, const TransferSettings& settings, Sink& out,
                              Sink* protocol);

}  // namespace tamrel::cli
