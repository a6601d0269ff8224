// A transfer file read back into the job that makes it: the frame values
// from VOSZ, DSKO and the record heads, one report per data record, and
// the error blocks of a returned file beside the reports they belong to.
// Each report is proven before it is given out: the class builds it again
// and the record must come out as it stands in the file; a record that
// does not (another layout version, a form tamrel does not write) is told
// and skipped, never guessed at.
#pragma once
#include <cstddef>
#include <functional>
#include <istream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "reader/returned_errors.h"
#include "reader/transfer_file.h"

namespace tamrel::readback {

struct ReadOptions {
    checks::FileEncoding encoding = checks::FileEncoding::Detect;
};

// A record that was not read into the job.
struct SkippedRecord {
    std::size_t record;  // 1-based line number
    std::string id;      // its identifier
    std::string why;
};

// An error block of a returned file, with what it refers to.
struct ReturnedErrorEntry {
    std::size_t record;           // 1-based line number
    std::size_t report;           // 1-based number among the job's reports; 0 for the frame
    std::string id;               // the record's identifier
    nlohmann::ordered_json keys;  // the report's own keys: insurance number, file reference, …
    checks::ReturnedError error;
    // The field the error names, where its text names one of the record.
    std::string field, property;
    std::uint16_t pos = 0, len = 0;
};

struct ReadResult {
    nlohmann::ordered_json job;  // class, frame values, now; without "reports"
    std::size_t records = 0;     // lines read
    std::size_t reports = 0;     // reports given out
    std::vector<SkippedRecord> skipped;
    std::vector<ReturnedErrorEntry> errors;
};

// Reads the file; `report` receives each report (JSON text) in order.
// Throws std::runtime_error for a file that is no transfer file.
ReadResult read_transfer(std::istream& in, const ReadOptions& options,
                         const std::function<void(const std::string& report)>& report);

// The whole job in memory: the frame values, "reports", and
// "returned_errors" where the file is a return.
struct ReadJob {
    nlohmann::ordered_json job;
    ReadResult result;
};
ReadJob read_job(std::istream& in, const ReadOptions& options);

// Adds the errors of a returned file to `job` as "returned_errors" (none: nothing).
void add_returned_errors(nlohmann::ordered_json& job, const ReadResult& r);

// "record 3 DSME: …" of a skipped record.
std::string describe(const SkippedRecord& s);

// An error entry as JSON: record, report, keys, number, text, field, position, property.
nlohmann::ordered_json to_json(const ReturnedErrorEntry& e);

}  // namespace tamrel::readback
