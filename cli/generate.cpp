// tamrel generate: reads the job, writes the transfer file (and the protocol)
// through atomic files, reports progress and the outcome, and turns the
// outcome into the exit code.
#include "cli/generate.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <vector>

#include "cli/atomic_file.h"
#include "cli/job.h"
#include "cli/output_encoding.h"
#include "cli/transfer.h"
#include "component/describe.h"

namespace tamrel::cli {
namespace {

class FileSink : public Sink {
public:
    explicit FileSink(const OutputTarget& target) : file_(target) {}
    void write(std::string_view bytes) override { file_.write(bytes); }
    AtomicFile& file() { return file_; }

private:
    AtomicFile file_;
};

// Both outputs are checked before anything is generated: each must be
// writable, neither may be the other (through a link or another spelling
// of the path) nor an input of the run.
struct Outputs {
    OutputTarget transfer;
    std::optional<OutputTarget> protocol;
};

Outputs resolve_outputs(const GenerateOptions& o, const std::vector<std::string>& inputs) {
    Outputs out{resolve_output(o.output), {}};
    if (!o.protocol.empty()) {
        out.protocol = resolve_output(o.protocol);
        if (same_file(out.transfer, *out.protocol))
            throw std::runtime_error("--protocol " + o.protocol + " names the same file as --output " + o.output);
    }
    for (const std::string& in : inputs) {
        if (same_file(out.transfer, in)) throw std::runtime_error("--output " + o.output + " would overwrite " + in);
        if (out.protocol && same_file(*out.protocol, in))
            throw std::runtime_error("--protocol " + o.protocol + " would overwrite " + in);
    }
    return out;
}

// One finding as a line of the --findings file.
std::string finding_line(std::size_t report, std::size_t line, const checks::Finding& f) {
    nlohmann::ordered_json j;
    j["report"] = report;
    if (line) j["line"] = line;
    j.update(finding_json(f));
    return j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

// The log lines of one failed report as a line of the --log file.
std::string failure_log_line(std::size_t report, std::size_t line, const std::vector<std::string>& lines) {
    nlohmann::ordered_json j;
    j["report"] = report;
    if (line) j["line"] = line;
    j["log"] = lines;
    return j.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

// A --findings or --log file, opened for writing (when asked for); false,
// and said, when it cannot be.
bool open_side_file(std::ofstream& f, const std::string& path, const char* option, const Say& say) {
    if (path.empty()) return true;
    f.open(path, std::ios::binary | std::ios::trunc);
    if (f) return true;
    say(std::string("tamrel generate: ") + option + " " + path + ": cannot be written: " + std::strerror(errno));
    return false;
}

// Temporary files of tamrel runs that were killed, in the outputs' folders.
void sweep(const Outputs& outputs, const Say& say) {
    std::set<std::string> folders;
    for (const OutputTarget* t : {&outputs.transfer, outputs.protocol ? &*outputs.protocol : nullptr})
        if (t && t->is_file()) {
            const std::string parent = std::filesystem::path(t->real).parent_path().string();
            folders.insert(parent.empty() ? "." : parent);
        }
    for (const std::string& folder : folders)
        for (const std::string& note : sweep_leftovers(folder)) say("tamrel generate: " + note);
}

// Writes the transfer file and the protocol to their atomic files, or to
// memory; returns what was written.
TransferCounts write_outputs(const GenerateOptions& o, const Outputs& outputs, const Job& job, ReportSource& source,
                             const TransferSettings& settings) {
    if (o.outputText) {
        StringSink out, proto;
        const bool protocol = o.protocolText && !job.procedure->protoMethod.empty();
        const TransferCounts counts = write_transfer(job, source, settings, out, protocol ? &proto : nullptr);
        *o.outputText = std::move(out.text);
        if (protocol) *o.protocolText = std::move(proto.text);
        return counts;
    }
    FileSink out(outputs.transfer);
    std::unique_ptr<FileSink> proto;
    if (outputs.protocol) proto = std::make_unique<FileSink>(*outputs.protocol);
    const TransferCounts counts = write_transfer(job, source, settings, out, proto.get());
    if (proto)
        commit_all({&out.file(), &proto->file()});
    else
        commit_all({&out.file()});
    return counts;
}

}  // namespace

int generate(const GenerateOptions& o, const Say& say) {
    auto started = std::chrono::steady_clock::now();
    Job job;
    auto enc = parse_encoding(o.encoding);
    std::ifstream reports_file;
    Outputs outputs;
    try {
        job = o.jobText.empty() ? read_job(o.job) : parse_job_text(o.jobText, o.job, o.folder);
        if (!enc) throw std::runtime_error(std::string("--encoding: expected ") + kEncodingSpellings);
        if (!o.protocol.empty() && job.procedure->protoMethod.empty())
            throw std::runtime_error("--protocol: " + std::string(job.procedure->cls) + " has no protocol line");
        const std::string file = o.reports.empty() ? job.reportsFile : o.reports;
        if (!file.empty()) {
            if (std::filesystem::is_directory(file))
                throw std::runtime_error(file + ": is a folder, not a reports file");
            reports_file.open(file, std::ios::binary);
            if (!reports_file) throw std::runtime_error(file + ": cannot be read: " + std::strerror(errno));
        }
        if (!o.outputText) {
            std::vector<std::string> inputs;
            if (o.jobText.empty()) inputs.push_back(o.job);
            if (!file.empty()) inputs.push_back(file);
            outputs = resolve_outputs(o, inputs);
        }
    } catch (const std::exception& e) {
        say(std::string("tamrel generate: ") + e.what());
        return 2;
    }
    if (!o.outputText) sweep(outputs, say);
    ReportSource source = reports_file.is_open() ? ReportSource(reports_file) : ReportSource(job.reports);

    TransferSettings settings;
    settings.encoding = *enc;
    settings.crlf = o.crlf;
    settings.keepGoing = o.keepGoing;
    settings.transliterate = o.transliterate;
    settings.leftOut = [&say](const ReportFailure& f) {
        say(std::string("tamrel generate: ") + f.what() + " (left out)");
    };
    settings.note = [&say](const std::string& n) { say("tamrel generate: " + n); };
    settings.check = !o.noCheck;
    std::ofstream findings, log;
    if (!open_side_file(findings, o.findings, "--findings", say) || !open_side_file(log, o.log, "--log", say)) return 2;
    if (log.is_open())
        settings.failureLog = [&log](std::size_t report, std::size_t line, const std::vector<std::string>& lines) {
            log << failure_log_line(report, line, lines) << '\n';
        };
    // Warnings are told here; an error fails its report, which says why.
    settings.finding = [&findings, &say](std::size_t report, std::size_t line, const checks::Finding& f) {
        if (f.rule->severity == checks::Severity::Warning)
            say("tamrel generate: " + (report ? "report " + std::to_string(report) : std::string("header")) + ": " +
                checks::describe(f));
        if (findings.is_open()) findings << finding_line(report, line, f) << '\n';
    };
    if (o.progress)
        settings.progress = [](std::size_t n) { std::cerr << "\rtamrel generate: " << n << " reports" << std::flush; };

    TransferCounts counts;
    try {
        counts = write_outputs(o, outputs, job, source, settings);
    } catch (const ReportFailure& f) {
        say(std::string("tamrel generate: ") + f.what());
        say("tamrel generate: no file written");
        return 1;
    } catch (const std::exception& e) {
        say(std::string("tamrel generate: ") + e.what());
        say("tamrel generate: no file written");
        return 4;
    }
    if (o.progress && counts.written + counts.failed >= 100000) std::cerr << '\n';
    double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    char summary[160];
    std::snprintf(summary, sizeof summary, "tamrel generate: %zu reports written, %zu failed, %.2f s", counts.written,
                  counts.failed, secs);
    say(summary);
    return counts.failed ? 3 : 0;
}

}  // namespace tamrel::cli
