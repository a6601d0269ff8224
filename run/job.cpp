#include "run/job.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <stdexcept>

#include "call/call_protocol.h"
#include "call/call_registry.h"
#include "call/procedure_methods.h"
#include "core/objects_properties.h"
#include "json/field_table.h"
#include "json/json_binding.h"
#include "json/json_limits.h"

namespace tamrel::cli {

using nlohmann::json;

namespace {

// The file's text, refused beyond kMaxJobBytes (also when it is a pipe).
std::string read_job_text(const std::string& path) {
    if (std::filesystem::is_directory(path)) throw std::runtime_error(path + ": is a folder, not a job file");
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error(path + ": cannot be read: " + std::strerror(errno));
    std::string text;
    char chunk[1 << 16];
    while (const std::streamsize n = in.rdbuf()->sgetn(chunk, sizeof chunk)) {
        if (n <= 0) break;
        text.append(chunk, static_cast<std::size_t>(n));
        if (text.size() > kMaxJobBytes)
            throw std::runtime_error(path + ": more than the " + std::to_string(kMaxJobBytes) +
                                     " bytes a job file may hold; give the reports as an NDJSON reports_file");
    }
    return text;
}

// Reads the job-level values as the methods read them, so that a value of
// the wrong type is reported as a fault of the job, before any output.
void read_values(Job& job, const json& j, const std::string& path) {
    try {
        CallSession session(job.now.is_null() ? nullptr : &job.now, job.tests.is_null() ? nullptr : &job.tests);
        json args = json::object();
        for (const char* k : {"strBNRAb", "strBNREm", "strFileNr", "strFirma", "strDatum", "datDate"})
            if (j.contains(k)) args[k] = j[k];
        args["enmVerfahren"] = j.value("enmVerfahren", json(0));
        args["udtDSKOData"] = j.value("udtDSKOData", json::object());
        args["udtDatensatzData"] = j.value("udtDatensatzData", json::object());
        Invocation inv(args, session.host());
        job.frame = read_frame_values(inv, *job.procedure);
        // The communication record names the parties of the header: where
        // the job leaves them out, they are the header's.
        const json& dsko = args["udtDSKOData"];
        DSKOData& d = job.frame.udtDSKOData;
        if (dsko.is_object() && !dsko.contains("strBNRAb")) d.strBNRAb = job.frame.strBNRAb;
        if (dsko.is_object() && !dsko.contains("strBNREm")) d.strBNREm = job.frame.strBNREm;
        job.datensatz = inv.object<DatensatzData>("udtDatensatzData");
    } catch (const json_binding::RequestError& e) {
        std::string_view what = e.what();
        if (what.starts_with("args.")) what.remove_prefix(5);
        throw std::runtime_error(path + ": " + std::string(what));
    }
}

}  // namespace

Job read_job(const std::string& path) {
    return parse_job_text(read_job_text(path), path, std::filesystem::path(path).parent_path().string());
}

Job parse_job_text(const std::string& text, const std::string& name, const std::string& folder) {
    if (text.size() > kMaxJobBytes)
        throw std::runtime_error(name + ": more than the " + std::to_string(kMaxJobBytes) +
                                 " bytes a job may hold; give the reports as an NDJSON reports_file");
    json j;
    try {
        j = parse_bounded(text);
    } catch (const json::exception& e) {
        throw std::runtime_error(name + ": not valid JSON: " + e.what());
    } catch (const DuplicateKey& e) {
        throw std::runtime_error(name + ": " + e.what());
    } catch (const json_binding::RequestError& e) {
        throw std::runtime_error(name + ": " + e.what() + "; give the reports as an NDJSON reports_file");
    }
    return parse_job(j, name, folder);
}

Job parse_job(const json& j, const std::string& path, const std::string& folder) {
    if (!j.is_object()) throw std::runtime_error(path + ": expected a JSON object");
    static const std::set<std::string> keys = {
        "class", "strBNRAb", "strBNREm", "strFileNr", "strFirma", "strDatum", "enmVerfahren", "datDate", "udtDSKOData",
        "udtDatensatzData", "now", "tests", "reports", "reports_file",
        // The error blocks of a returned file, which tamrel read keeps beside the reports: not generated.
        "returned_errors"};
    for (const auto& [k, v] : j.items())
        if (!keys.contains(k)) throw std::runtime_error(path + ": " + k + ": unknown key");
    Job job;
    if (!j.contains("class")) throw std::runtime_error(path + ": class: missing");
    if (!j["class"].is_string()) throw std::runtime_error(path + ": class: expected a string");
    job.procedure = find_procedure(j["class"].get_ref<const std::string&>());
    if (!job.procedure)
        throw std::runtime_error(path + ": class: unknown generator class " + j["class"].get<std::string>());
    for (const char* k : {"strBNRAb", "strBNREm", "strFileNr", "strFirma"})
        if (!j.contains(k)) throw std::runtime_error(path + ": " + k + ": missing");
    if (j.contains("now")) job.now = j["now"];
    if (j.contains("tests")) job.tests = j["tests"];
    bool inline_reports = j.contains("reports"), file_reports = j.contains("reports_file");
    if (inline_reports == file_reports)
        throw std::runtime_error(path + ": give the reports either as \"reports\" or as \"reports_file\"");
    if (inline_reports) {
        if (!j["reports"].is_array()) throw std::runtime_error(path + ": reports: expected an array");
        job.reports = j["reports"];
    } else {
        if (!j["reports_file"].is_string()) throw std::runtime_error(path + ": reports_file: expected a string");
        std::filesystem::path p = j["reports_file"].get<std::string>();
        if (p.is_relative()) p = std::filesystem::path(folder) / p;
        job.reportsFile = p.string();
    }
    read_values(job, j, path);
    return job;
}

}  // namespace tamrel::cli
