// The C interface's read: a file in memory back into its job.
#include <optional>
#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "capi/c_api.h"
#include "capi/c_text.h"
#include "readback/transfer_reading.h"
#include "run/output_encoding.h"

namespace tamrel {
namespace {

readback::ReadOptions read_options(const char* options_json) {
    readback::ReadOptions o;
    if (!options_json || !*options_json) return o;
    const nlohmann::json j = nlohmann::json::parse(options_json, nullptr, false);
    if (!j.is_object()) throw std::runtime_error("options: expected a JSON object");
    for (const auto& [key, value] : j.items()) {
        if (key != "encoding") throw std::runtime_error("options: unknown option \"" + key + "\"");
        const std::optional<cli::Encoding> e =
            value.is_string() ? cli::parse_encoding(value.get<std::string>()) : std::nullopt;
        if (!e) throw std::runtime_error(std::string("options: \"encoding\" expects ") + cli::kEncodingSpellings);
        o.encoding = cli::file_encoding(*e);
    }
    return o;
}

}  // namespace
}  // namespace tamrel

extern "C" int tamrel_read(const char* file, std::size_t file_length, const char* options_json, char** job_json,
                           char** errors_json, char** messages) {
    using namespace tamrel;
    if (job_json) *job_json = nullptr;
    if (errors_json) *errors_json = nullptr;
    std::string said;
    int code = 2;
    try {
        const readback::ReadOptions options = read_options(options_json);
        std::istringstream in(std::string(file ? file : "", file ? file_length : 0));
        readback::ReadJob r = readback::read_job(in, options);
        for (const readback::SkippedRecord& s : r.result.skipped) said += "tamrel read: " + describe(s) + "\n";
        const auto dump = [](const nlohmann::ordered_json& j) {
            return j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
        };
        if (errors_json) {
            nlohmann::ordered_json errors = nlohmann::ordered_json::array();
            for (const readback::ReturnedErrorEntry& e : r.result.errors) errors.push_back(to_json(e));
            *errors_json = c_text(dump(errors));
        }
        if (job_json) *job_json = c_text(dump(r.job));
        code = r.result.skipped.empty() ? 0 : 3;
    } catch (const std::exception& e) {
        said += std::string("tamrel read: ") + e.what() + "\n";
    }
    if (messages) *messages = c_text(said);
    return code;
}
