// A generate job: the class, the frame arguments and the reports (inline or
// from an NDJSON file), as documented in docs/job-format.md.
#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

namespace tamrel::cli {

struct ClassInfo {
    const char* cls;
    const char* objParam;     // the data object's parameter name in GenData
    const char* protoMethod;  // clsProtoEntry method, or nullptr
    enum Frames { GroupA, Meldung, BeitrErh, BeitrNachw, Asyl } frames;
};

const ClassInfo* find_class(const std::string& cls);

struct Job {
    const ClassInfo* info = nullptr;
    nlohmann::json frame;       // strBNRAb, strBNREm, strFileNr, strFirma, strDatum
    nlohmann::json enmVerfahren = 0;
    nlohmann::json datDate;     // null when absent
    nlohmann::json dsko = nlohmann::json::object();
    nlohmann::json datensatz = nlohmann::json::object();
    nlohmann::json now;         // null when absent
    nlohmann::json tests;       // null when absent
    nlohmann::json reports;     // array, or null when reportsFile is used
    std::string reportsFile;    // resolved against the job file's folder
};

// A job file larger than this is refused: the reports of a large job belong
// in an NDJSON file (reports_file, or --reports), read one line at a time.
inline constexpr std::uintmax_t kMaxJobBytes = std::uintmax_t{16} << 20;

// Reads and checks a job file; throws std::runtime_error with a clear message.
Job read_job(const std::string& path);
// Checks a parsed job; `name` prefixes the messages, a relative reports_file
// is resolved against `folder`.
Job parse_job(const nlohmann::json& j, const std::string& name, const std::string& folder);

}  // namespace tamrel::cli
