// A generate job: the class, the frame arguments and the reports (inline or
// from an NDJSON file), as documented in docs/job-format.md.
#pragma once
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

// Reads and checks a job file; throws std::runtime_error with a clear message.
Job read_job(const std::string& path);

}  // namespace tamrel::cli
