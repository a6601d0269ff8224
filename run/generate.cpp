// tamrel generate: reads the job, writes the transfer file (and the protocol)
// through atomic files, reports progress and the outcome, and turns the
// outcome into the exit code.
#include "run/generate.h"

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

#include "call/describe.h"
#include "run/atomic_file.h"
#include "run/job.h"
#include "run/output_encoding.h"
#include "run/transfer.h"

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

// Every output is checked before anything is generated: each must be
// writable, none may be another (through a link or another spelling of the
// path) nor an input of the run.
// In memory (the C interface) the transfer file and the protocol are no
// files; the findings and the log may still be.
struct Outputs {
    std::optional<OutputTarget> transfer, protocol, findings, log;
};

Outputs resolve_outputs(const GenerateOptions& o, const std::vector<std::string>& inputs) {
    Outputs out;
    struct Named {
        const char* option;
        const std::string& path;
        std::optional<OutputTarget>* target;
    };
    static const std::string none;
    const bool memory = o.outputText != nullptr;
    const Named named[] = {{"--output", memory ? none : o.output, &out.transfer},
                           {"--protocol", memory ? none : o.protocol, &out.protocol},
                           {"--findings", o.findings, &out.findings},
                           {"--log", o.log, &out.log}};
    std::vector<std::pair<std::string, const OutputTarget*>> seen;
    for (const Named& n : named) {
        if (n.path.empty()) continue;
        *n.target = resolve_output(n.path);
        const std::string name = std::string(n.option) + " " + n.path;
        for (const auto& [earlier, target] : seen)
            if (same_file(*target, **n.target)) throw std::runtime_error(name + " names the same file as " + earlier);
        seen.emplace_back(name, &**n.target);
    }
    for (const std::string& in : inputs)
        for (const auto& [name, target] : seen)
            if (same_file(*target, in)) throw std::runtime_error(name + " would overwrite " + in);
    return out;
}

// A --findings or --log file: written by the same atomic path as the
// transfer file, and put in place at the end of the run whatever its
// outcome, since it tells why a run failed.
class SideFile {
public:
    explicit SideFile(const std::optional<OutputTarget>& target) {
        if (target) file_ = std::make_unique<AtomicFile>(*target);
    }
    explicit operator bool() const { return file_ != nullptr; }
    void line(const std::string& text) {
        file_->write(text);
        file_->write("\n");
    }
    AtomicFile* file() const { return file_.get(); }

private:
    std::unique_ptr<AtomicFile> file_;
};

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

// Temporary files of tamrel runs that were killed, in the outputs' folders.
void sweep(const Outputs& outputs, const Say& say) {
    std::set<std::string> folders;
    for (const std::optional<OutputTarget>* t : {&outputs.transfer, &outputs.protocol, &outputs.findings, &outputs.log})
        if (*t && (*t)->is_file()) {
            const OutputTarget* target = &**t;
            const std::string parent = std::filesystem::path(target->real).parent_path().string();
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
    FileSink out(*outputs.transfer);
    std::unique_ptr<FileSink> proto;
    if (outputs.protocol) proto = std::make_unique<FileSink>(*outputs.protocol);
    const TransferCounts counts = write_transfer(job, source, settings, out, proto.get());
    if (proto)
        commit_all({&out.file(), &proto->file()});
    else
        commit_all({&out.file()});
    return counts;
}

// A reports file in UTF-16 (as some Windows editors save text) is named as
// such instead of failing on its first report.
void refuse_utf16(std::istream& in, const std::string& name) {
    const int a = in.get(), b = in.get();
    in.clear();
    in.seekg(0);
    if ((a == 0xFF && b == 0xFE) || (a == 0xFE && b == 0xFF) || (a > 0 && b == 0) || (a == 0 && b > 0))
        throw std::runtime_error(name + ": a UTF-16 file; reports files are UTF-8, one JSON object a line");
}

// Puts the --findings and --log files in place; 4, and said, when one
// cannot be.
int commit_side_files(SideFile& findings, SideFile& log, const Say& say) {
    try {
        if (findings && log)
            commit_all({findings.file(), log.file()});
        else if (findings || log)
            commit_all({findings ? findings.file() : log.file()});
    } catch (const std::exception& e) {
        say(std::string("tamrel generate: ") + e.what());
        return 4;
    }
    return 0;
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
            if (std::filesystem::is_regular_file(file)) refuse_utf16(reports_file, file);
        }
        std::vector<std::string> inputs;
        if (o.jobText.empty()) inputs.push_back(o.job);
        if (!file.empty()) inputs.push_back(file);
        outputs = resolve_outputs(o, inputs);
    } catch (const std::exception& e) {
        say(std::string("tamrel generate: ") + e.what());
        return 2;
    }
    sweep(outputs, say);
    ReportSource source = reports_file.is_open() ? ReportSource(reports_file) : ReportSource(job.reports);
    std::optional<SideFile> findings, log;
    try {
        findings.emplace(outputs.findings);
        log.emplace(outputs.log);
    } catch (const std::exception& e) {
        say(std::string("tamrel generate: ") + e.what());
        return 4;
    }

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
    if (*log)
        settings.failureLog = [&log](std::size_t report, std::size_t line, const std::vector<std::string>& lines) {
            log->line(failure_log_line(report, line, lines));
        };
    // Warnings are told here; an error fails its report, which says why.
    settings.finding = [&findings, &say](std::size_t report, std::size_t line, const checks::Finding& f) {
        if (f.rule->severity == checks::Severity::Warning)
            say("tamrel generate: " + (report ? "report " + std::to_string(report) : std::string("header")) + ": " +
                checks::describe(f));
        if (*findings) findings->line(finding_line(report, line, f));
    };
    if (o.progress)
        settings.progress = [](std::size_t n) { std::cerr << "\rtamrel generate: " << n << " reports" << std::flush; };

    TransferCounts counts;
    int failed = 0;
    try {
        counts = write_outputs(o, outputs, job, source, settings);
    } catch (const ReportFailure& f) {
        say(std::string("tamrel generate: ") + f.what());
        failed = 1;
    } catch (const std::exception& e) {
        say(std::string("tamrel generate: ") + e.what());
        failed = 4;
    }
    // The findings and the log tell why a run failed: they are kept either way.
    if (const int side = commit_side_files(*findings, *log, say)) failed = failed ? failed : side;
    if (failed) {
        say("tamrel generate: no file written");
        return failed;
    }
    if (o.progress && counts.written + counts.failed >= 100000) std::cerr << '\n';
    double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    char summary[160];
    std::snprintf(summary, sizeof summary, "tamrel generate: %zu reports written, %zu failed, %.2f s", counts.written,
                  counts.failed, secs);
    say(summary);
    if (counts.written == 0)
        say("tamrel generate: warning: no report was written; the file holds only its frame records");
    return counts.failed ? 3 : 0;
}

}  // namespace tamrel::cli
