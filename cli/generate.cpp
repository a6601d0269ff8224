// tamrel generate: reads the job, writes the transfer file (and the protocol)
// through atomic files, reports progress and the outcome, and turns the
// outcome into the exit code.
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
#include "cli/transfer.h"

namespace tamrel::cli {
namespace {

class FileSink : public Sink {
public:
    explicit FileSink(const std::string& path) : file_(path) {}
    void write(std::string_view bytes) override { file_.write(bytes); }
    void commit() { file_.commit(); }

private:
    AtomicFile file_;
};

}  // namespace

int generate(const GenerateOptions& o) {
    auto started = std::chrono::steady_clock::now();
    Job job;
    auto enc = parse_encoding(o.encoding);
    std::ifstream reports_file;
    try {
        job = read_job(o.job);
        if (!enc) throw std::runtime_error("--encoding: expected ISO-8859-1, ISO-8859-15 or UTF-8");
        if (!o.protocol.empty() && !job.info->protoMethod)
            throw std::runtime_error("--protocol: " + std::string(job.info->cls) + " has no protocol line");
        const std::string file = o.reports.empty() ? job.reportsFile : o.reports;
        if (!file.empty()) {
            reports_file.open(file, std::ios::binary);
            if (!reports_file) throw std::runtime_error(file + ": cannot be read");
        }
    } catch (const std::exception& e) {
        std::cerr << "tamrel generate: " << e.what() << '\n';
        return 2;
    }
    ReportSource source = reports_file.is_open() ? ReportSource(reports_file) : ReportSource(job.reports);

    const bool tty = isatty(STDERR_FILENO);
    TransferSettings settings;
    settings.encoding = *enc;
    settings.crlf = o.crlf;
    settings.keepGoing = o.keepGoing;
    settings.leftOut = [](const ReportFailure& f) { std::cerr << "tamrel generate: " << f.what() << " (left out)\n"; };
    if (tty) settings.progress = [](std::size_t n) { std::cerr << "\rtamrel generate: " << n << " reports" << std::flush; };

    TransferCounts counts;
    try {
        FileSink out(o.output);
        std::unique_ptr<FileSink> proto;
        if (!o.protocol.empty()) proto = std::make_unique<FileSink>(o.protocol);
        counts = write_transfer(job, source, settings, out, proto.get());
        out.commit();
        if (proto) proto->commit();
    } catch (const ReportFailure& f) {
        std::cerr << "tamrel generate: " << f.what() << "\ntamrel generate: no file written\n";
        return 1;
    } catch (const std::exception& e) {
        std::cerr << "tamrel generate: " << e.what() << "\ntamrel generate: no file written\n";
        return 4;
    }
    if (tty && counts.written + counts.failed >= 100000) std::cerr << '\n';
    double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    char summary[160];
    std::snprintf(summary, sizeof summary, "tamrel generate: %zu reports written, %zu failed, %.2f s\n", counts.written,
                  counts.failed, secs);
    std::cerr << summary;
    return counts.failed ? 3 : 0;
}

}  // namespace tamrel::cli
