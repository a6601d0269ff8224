// tamrel generate: the host that the library expects. It calls the generator
// for header, communication record, each report and trailer, converts the
// records to the file's encoding and line ending while streaming, and writes
// the transfer file (and the protocol) atomically.
#include "cli/generate.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>

#include "cli/atomic_file.h"
#include "cli/job.h"
#include "cli/output_encoding.h"
#include "component/call_protocol.h"
#include "component/call_registry.h"
#include "component/report_runner.h"
#include "component/shared_bindings.h"
#include "core/error.h"

namespace tamrel::cli {
namespace {

using nlohmann::json;

// A report that could not be turned into its record.
struct ReportFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Iterates the reports: the job's array, or an NDJSON file read line by line
// (each line handed on as text, parsed by the runner).
class ReportSource {
public:
    ReportSource(const Job& job, const std::string& override_file) {
        std::string file = override_file.empty() ? job.reportsFile : override_file;
        if (!file.empty()) {
            stream_ = std::make_unique<std::ifstream>(file);
            if (!*stream_) throw std::runtime_error(file + ": cannot be read");
        } else {
            array_ = &job.reports;
        }
    }
    // The next report: `element` points into the job's array, or `line`
    // holds the text. False at the end.
    bool next(const json*& element, std::string& line) {
        if (array_) {
            if (pos_ >= array_->size()) return false;
            element = &(*array_)[pos_++];
            return true;
        }
        element = nullptr;
        while (std::getline(*stream_, line)) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            if (line.find_first_not_of(" \t") != std::string::npos) return true;
        }
        return false;
    }

private:
    const json* array_ = nullptr;
    std::size_t pos_ = 0;
    std::unique_ptr<std::ifstream> stream_;
};

// Values of the XML report must hold no markup characters: the library
// inserts them as they are.
void check_markup(const json& v, const std::string& path, std::size_t index) {
    if (v.is_string()) {
        const auto& s = v.get_ref<const std::string&>();
        if (s.find_first_of("&<>") != std::string::npos)
            throw ReportFailure("report " + std::to_string(index) + ": " + path +
                                ": holds a markup character (&, < or >), which an XML report cannot carry");
    } else if (v.is_object()) {
        for (const auto& [k, e] : v.items()) check_markup(e, path + "." + k, index);
    } else if (v.is_array()) {
        std::size_t i = 1;
        for (const auto& e : v) check_markup(e, path + "[" + std::to_string(i++) + "]", index);
    }
}

void check_markup_text(const std::string& line, const std::string& param, std::size_t index) {
    if (line.find_first_of("&<>") == std::string::npos) return;
    json parsed = json::parse(line, nullptr, false);
    if (!parsed.is_discarded()) check_markup(parsed, param, index);
}

class TransferRun {
public:
    TransferRun(const Job& job, const GenerateOptions& o, Encoding enc)
        : job_(job),
          options_(o),
          enc_(enc),
          session_(job.now.is_null() ? nullptr : &job.now, job.tests.is_null() ? nullptr : &job.tests) {}

    // Calls a method of the job's class (or of clsProtoEntry for the
    // protocol lines) with `args`; a failure becomes a ReportFailure.
    std::string call_method(const char* method, const json& args, const std::string& what) {
        const bool protocol = std::string_view(method).starts_with("CreateProto");
        const Method& m = CallSession::method(protocol ? "clsProtoEntry" : job_.info->cls, method);
        try {
            return session_.invoke(m, args);
        } catch (const json_binding::RequestError& e) {
            throw ReportFailure(what + ": " + e.what());
        } catch (const tamrel::Error& e) {
            throw ReportFailure(what + ": error " + std::to_string(e.number()) + ", " + e.source() + ": " +
                                e.description());
        }
    }

    json vosz_args() const {
        json a = job_.frame;
        a.erase("strCount");
        if (job_.info->frames != ClassInfo::BeitrErh) a["enmVerfahren"] = job_.enmVerfahren;
        if (!job_.datDate.is_null()) a["datDate"] = job_.datDate;
        return a;
    }
    json dsko_args() const {
        json a = {{"udtDSKOData", job_.dsko}};
        if (job_.info->frames == ClassInfo::BeitrNachw) a["enmVerfahren"] = job_.enmVerfahren;
        if (!job_.datDate.is_null()) a["datDate"] = job_.datDate;
        return a;
    }
    // Runs a step of one report; a request error or a library error becomes
    // the report's failure.
    template <class F>
    auto run(const std::string& what, F&& step) -> decltype(step()) {
        try {
            return step();
        } catch (const json_binding::RequestError& e) {
            throw ReportFailure(what + ": " + e.what());
        } catch (const tamrel::Error& e) {
            throw ReportFailure(what + ": error " + std::to_string(e.number()) + ", " + e.source() + ": " +
                                e.description());
        }
    }

    // The runner that turns each report into its record: the record
    // identification, procedure and date of the job, read once.
    std::unique_ptr<ReportRunner> runner() const {
        json a = {{"udtDatensatzData", job_.datensatz}, {"enmVerfahren", job_.enmVerfahren}};
        if (!job_.datDate.is_null()) a["datDate"] = job_.datDate;
        Invocation inv(a, session_.host());
        RunnerSettings settings{&session_.host(), inv.object<DatensatzData>("udtDatensatzData"),
                                job_.info->frames == ClassInfo::BeitrNachw ? inv.enm("enmVerfahren")
                                                                          : inv.verf("enmVerfahren"),
                                inv.date("datDate")};
        return make_runner(job_.info->cls, settings);
    }
    json ncsz_args(std::size_t count) const {
        json a = {{"strBNRAb", job_.frame.value("strBNRAb", json())},
                  {"strBNREm", job_.frame.value("strBNREm", json())},
                  {"strFileNr", job_.frame.value("strFileNr", json())},
                  {"strCount", std::to_string(count)}};
        if (job_.info->frames == ClassInfo::Meldung || job_.info->frames == ClassInfo::BeitrNachw)
            a["enmVerfahren"] = job_.enmVerfahren;
        if (!job_.datDate.is_null()) a["datDate"] = job_.datDate;
        return a;
    }

    // The record text in the file's encoding, with its line ending.
    std::string encoded_line(const std::string& record, const std::string& what) const {
        std::string out;
        out.reserve(record.size() + 2);
        if (std::size_t pos = encode(out, record, enc_))
            throw ReportFailure(what + ": the character at position " + std::to_string(pos) + " cannot be written in " +
                                encoding_name(enc_));
        out += options_.crlf ? "\r\n" : "\n";
        return out;
    }

private:
    const Job& job_;
    const GenerateOptions& options_;
    Encoding enc_;
    CallSession session_;
};

}  // namespace

int generate(const GenerateOptions& o) {
    auto started = std::chrono::steady_clock::now();
    Job job;
    auto enc = parse_encoding(o.encoding);
    try {
        job = read_job(o.job);
        if (!enc) throw std::runtime_error("--encoding: expected ISO-8859-1, ISO-8859-15 or UTF-8");
        if (!o.protocol.empty() && !job.info->protoMethod)
            throw std::runtime_error("--protocol: " + std::string(job.info->cls) + " has no protocol line");
    } catch (const std::exception& e) {
        std::cerr << "tamrel generate: " << e.what() << '\n';
        return 2;
    }
    const bool xml = job.info->frames == ClassInfo::Asyl;
    const bool progress = isatty(STDERR_FILENO);
    std::size_t written = 0, failed = 0, index = 0;
    try {
        TransferRun gen(job, o, *enc);
        ReportSource source(job, o.reports);
        AtomicFile out(o.output);
        std::unique_ptr<AtomicFile> proto;
        if (!o.protocol.empty()) proto = std::make_unique<AtomicFile>(o.protocol);

        if (xml) {
            check_markup(job.frame, "frame", 0);
            out.write(gen.encoded_line(std::string("<?xml version=\"1.0\" encoding=\"") + encoding_name(*enc) + "\"?>",
                                       "header"));
            out.write(gen.encoded_line("<kotkv xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">", "header"));
        }
        out.write(gen.encoded_line(gen.call_method("GenVOSZ", gen.vosz_args(), "header VOSZ"), "header VOSZ"));
        if (!xml) out.write(gen.encoded_line(gen.call_method("GenDSKO", gen.dsko_args(), "DSKO"), "DSKO"));

        std::unique_ptr<ReportRunner> runner = gen.runner();
        const std::string param = job.info->objParam;
        const json* element = nullptr;
        std::string text;
        while (true) {
            ++index;
            const std::string what = "report " + std::to_string(index);
            bool read = false;  // whether the report could be read into its object
            try {
                if (!source.next(element, text)) break;
                if (xml) element ? check_markup(*element, param, index) : check_markup_text(text, param, index);
                gen.run(what, [&] { element ? runner->read(*element) : runner->read_text(text); });
                read = true;
                const std::string line = gen.encoded_line(gen.run(what, [&] { return runner->data(); }), what);
                std::string proto_line;
                if (proto)
                    proto_line = gen.encoded_line(gen.run(what + " protocol", [&] { return runner->protocol(false, {}); }),
                                                  what + " protocol");
                out.write(line);
                if (proto) proto->write(proto_line);
                ++written;
            } catch (const ReportFailure& f) {
                if (!o.keepGoing) throw;
                ++failed;
                std::cerr << "tamrel generate: " << f.what() << " (left out)\n";
                // A report that cannot even be read has no protocol line of its own.
                if (proto && read)
                    proto->write(gen.encoded_line(
                        gen.run(what + " protocol", [&] { return runner->protocol(true, f.what()); }), what + " protocol"));
            }
            if (progress && index % 100000 == 0) std::cerr << "\rtamrel generate: " << index << " reports" << std::flush;
        }
        if (progress && index > 100000) std::cerr << '\n';
        std::size_t count = written + (xml ? 0 : 1);
        out.write(gen.encoded_line(gen.call_method("GenNCSZ", gen.ncsz_args(count), "trailer NCSZ"), "trailer NCSZ"));
        if (xml) out.write(gen.encoded_line("</kotkv>", "trailer"));
        out.commit();
        if (proto) proto->commit();
    } catch (const ReportFailure& f) {
        std::cerr << "tamrel generate: " << f.what() << "\ntamrel generate: no file written\n";
        return 1;
    } catch (const std::exception& e) {
        std::cerr << "tamrel generate: " << e.what() << "\ntamrel generate: no file written\n";
        return 4;
    }
    double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    char summary[160];
    std::snprintf(summary, sizeof summary, "tamrel generate: %zu reports written, %zu failed, %.2f s\n", written, failed,
                  secs);
    std::cerr << summary;
    return failed ? 3 : 0;
}

}  // namespace tamrel::cli
