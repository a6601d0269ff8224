// The C interface's generate jobs: tamrel generate's run, its options given
// as JSON and its messages collected instead of printed.
#include <string>

#include <nlohmann/json.hpp>

#include "capi/c_api.h"
#include "capi/c_text.h"
#include "run/generate.h"

namespace tamrel::cli {
namespace {

// The options of tamrel generate from their JSON form; throws
// std::runtime_error naming the option at fault.
GenerateOptions options_of(const char* job_json, const char* options_json) {
    GenerateOptions o;
    o.job = "job";
    o.jobText = job_json ? job_json : "";
    if (o.jobText.empty()) throw std::runtime_error("job: no job given");
    if (!options_json || !*options_json) return o;
    const nlohmann::json j = nlohmann::json::parse(options_json, nullptr, false);
    if (!j.is_object()) throw std::runtime_error("options: expected a JSON object");
    for (const auto& item : j.items()) {
        const std::string& key = item.key();
        const nlohmann::json& value = item.value();
        auto text = [&](std::string& to) {
            if (!value.is_string()) throw std::runtime_error("options: \"" + key + "\" expects a text");
            to = value.get<std::string>();
        };
        auto flag = [&](bool& to) {
            if (!value.is_boolean()) throw std::runtime_error("options: \"" + key + "\" expects true or false");
            to = value.get<bool>();
        };
        bool check = true;
        if (key == "output")
            text(o.output);
        else if (key == "protocol")
            text(o.protocol);
        else if (key == "reports")
            text(o.reports);
        else if (key == "folder")
            text(o.folder);
        else if (key == "encoding")
            text(o.encoding);
        else if (key == "findings")
            text(o.findings);
        else if (key == "log")
            text(o.log);
        else if (key == "crlf")
            flag(o.crlf);
        else if (key == "keep_going")
            flag(o.keepGoing);
        else if (key == "transliterate")
            flag(o.transliterate);
        else if (key == "check")
            flag(check), o.noCheck = !check;
        else
            throw std::runtime_error("options: unknown option \"" + key + "\"");
    }
    return o;
}

// Runs the job, into files or (where `text` is given) into memory;
// `messages` receives what tamrel generate prints.
int run(const char* job_json, const char* options_json, char** messages, std::string* text, std::string* protocol) {
    std::string said;
    int code;
    try {
        GenerateOptions o = options_of(job_json, options_json);
        o.outputText = text;
        o.protocolText = protocol;
        if (!text && o.output.empty()) throw std::runtime_error("options: \"output\" is required");
        code = generate(o, [&said](const std::string& line) { said += line + "\n"; });
    } catch (const std::exception& e) {
        said += std::string("tamrel generate: ") + e.what() + "\n";
        code = 2;
    }
    if (messages) *messages = c_text(said);
    return code;
}

}  // namespace
}  // namespace tamrel::cli

extern "C" int tamrel_generate(const char* job_json, const char* options_json, char** messages) {
    return tamrel::cli::run(job_json, options_json, messages, nullptr, nullptr);
}

extern "C" int tamrel_generate_memory(const char* job_json, const char* options_json, char** file,
                                      std::size_t* file_length, char** protocol, char** messages) {
    std::string text, proto;
    const int code = tamrel::cli::run(job_json, options_json, messages, &text, protocol ? &proto : nullptr);
    const bool written = code == 0 || code == 3;
    if (file) *file = written ? tamrel::c_text(text) : nullptr;
    if (file_length) *file_length = written ? text.size() : 0;
    if (protocol) *protocol = written ? tamrel::c_text(proto) : nullptr;
    return code;
}
