// The example jobs of examples/, and the call-protocol requests that turn
// one of their reports into its record or its protocol line.
#pragma once
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "call/procedure.h"

namespace tamrel::testing {

struct ExampleJob {
    std::filesystem::path path;
    nlohmann::json job;
    const ProcedureDescriptor* info;
};

inline std::vector<ExampleJob> example_jobs() {
    std::vector<ExampleJob> jobs;
    for (const auto& e : std::filesystem::directory_iterator(std::filesystem::path(TAMREL_SOURCE_DIR) / "examples")) {
        if (e.path().extension() != ".json") continue;
        auto job = nlohmann::json::parse(std::ifstream(e.path()));
        if (!job.contains("reports")) continue;
        jobs.push_back({e.path(), job, find_procedure(job["class"].get<std::string>())});
    }
    std::sort(jobs.begin(), jobs.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
    return jobs;
}

// GenData of the job's class for `report`, with the job's record
// identification, procedure, date and clock.
inline nlohmann::json gen_data_request(const ExampleJob& e, const nlohmann::json& report) {
    const auto& job = e.job;
    nlohmann::json args = {{std::string(e.info->objParam), report}, {"datDate", job["datDate"]}};
    if (e.info->data == DataForm::BeitrNachw) {
        for (const char* k : {"strBNRAb", "strBNRSt", "strVersion", "strMicroseconds"})
            args[k] = job["udtDatensatzData"].value(k, "");
    } else {
        args["udtDatensatzData"] = job["udtDatensatzData"];
    }
    if (e.info->data == DataForm::WithVerfahren) args["enmVerfahren"] = job["enmVerfahren"];
    nlohmann::json request = {
        {"class", std::string(e.info->cls)}, {"method", "GenData"}, {"args", args}, {"now", job["now"]}};
    if (job.contains("tests")) request["tests"] = job["tests"];
    return request;
}

// The protocol line of `report`, where the class has one.
inline nlohmann::json protocol_request(const ExampleJob& e, const nlohmann::json& report, bool error,
                                       const std::string& text) {
    return {{"class", "clsProtoEntry"},
            {"method", std::string(e.info->protoMethod)},
            {"args", {{std::string(e.info->objParam), report}, {"blnError", error}, {"strErrText", text}}},
            {"now", e.job["now"]}};
}

}  // namespace tamrel::testing
