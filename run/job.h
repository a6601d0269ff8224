// A generate job: the class, the frame arguments and the reports (inline or
// from an NDJSON file), as documented in docs/job-format.md.
#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "call/procedure.h"

namespace tamrel::cli {

struct Job {
    const ProcedureDescriptor* procedure = nullptr;
    FrameValues frame;  // strBNRAb, …, enmVerfahren, datDate, udtDSKOData
    DatensatzData datensatz;
    nlohmann::json now;       // null when absent
    nlohmann::json tests;     // null when absent
    nlohmann::json reports;   // array, or null when reportsFile is used
    std::string reportsFile;  // resolved against the job file's folder
};

// A job file larger than this is refused: the reports of a large job belong
// in an NDJSON file (reports_file, or --reports), read one line at a time.
inline constexpr std::uintmax_t kMaxJobBytes = std::uintmax_t{16} << 20;

// Reads and checks a job file; throws std::runtime_error with a clear message.
Job read_job(const std::string& path);
// A job given as JSON text, named `name` in the messages; a relative
// reports_file is resolved against `folder`.
Job parse_job_text(const std::string& text, const std::string& name, const std::string& folder);
// Checks a parsed job; `name` prefixes the messages, a relative reports_file
// is resolved against `folder`.
Job parse_job(const nlohmann::json& j, const std::string& name, const std::string& folder);

}  // namespace tamrel::cli
