// The C interface's generate jobs: tamrel generate's run, its options given
// as JSON and its messages collected instead of printed.
#include <cstdlib>
#include <cstring>
#include <string>

#include <nlohmann/json.hpp>

#include "cli/generate.h"
#include "component/c_api.h"

namespace tamrel::cli {
namespace {

// A copy the caller frees with tamrel_free; nullptr when memory runs out.
char* copied(const std::string& s) {
    char* out = static_cast<char*>(std::malloc(s.size() + 1));
    if (out) std::memcpy(out, s.data(), s.size() + 1);
    return out;
}

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

// Runs the job; `messages` receives what tamrel generate prints.
int run(GenerateOptions& o, const char* job_json, const char* options_json, char** messages, bool memory) {
    std::string said;
    int code;
    try {
        GenerateOptions given = options_of(job_json, options_json);
        given.outputText = o.outputText;
        given.protocolText = o.protocolText;
        if (!memory && given.output.empty()) throw std::runtime_error("options: \"output\" is required");
        o = std::move(given);
        code = generate(o, [&said](const std::string& line) { said += line + "\n"; });
    } catch (const std::exception& e) {
        said += std::string("tamrel generate: ") + e.what() + "\n";
        code = 2;
    }
    if (messages) *messages = copied(said);
    return code;
}

}  // namespace
}  // namespace tamrel::cli

extern "C" int tamrel_generate(const char* job_json, const char* options_json, char** messages) {
    tamrel::cli::GenerateOptions o;
    return tamrel::cli::run(o, job_json, options_json, messages, false);
}

extern "C" int tamrel_generate_memory(const char* job_json, const char* options_json, char** file,
                                      std::size_t* file_length, char** protocol, char** messages) {
    std::string text, proto;
    tamrel::cli::GenerateOptions o;
    o.outputText = &text;
    o.protocolText = protocol ? &proto : nullptr;
    const int code = tamrel::cli::run(o, job_json, options_json, messages, true);
    const bool written = code == 0 || code == 3;
    if (file) *file = written ? tamrel::cli::copied(text) : nullptr;
    if (file_length) *file_length = written ? text.size() : 0;
    if (protocol) *protocol = written ? tamrel::cli::copied(proto) : nullptr;
    return code;
}
