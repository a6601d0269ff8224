// One generate job, arbitrary bytes, processed in memory as tamrel generate
// processes it (with or without the checks): the transfer is either complete, with one line per record,
// or refused with a clear failure; with the checks, the file passes tamrel check.
#include <sstream>
#include <string>
#include <string_view>

#include "checks/rules.h"
#include "json/json_limits.h"
#include "reader/transfer_file.h"
#include "run/job.h"
#include "run/transfer.h"
#include "tests/fuzz/fuzz_invariants.h"

namespace {

using namespace tamrel::cli;

std::size_t count_lines(const std::string& text, std::string_view ending) {
    std::size_t n = 0;
    for (std::size_t p = 0; (p = text.find(ending, p)) != std::string::npos; p += ending.size()) ++n;
    return n;
}

void run(const Job& job, bool keep_going, Encoding encoding, bool crlf, bool check) {
    ReportSource source(job.reports);
    TransferSettings settings;
    settings.check = check;
    settings.encoding = encoding;
    settings.crlf = crlf;
    settings.keepGoing = keep_going;
    StringSink out, proto;
    const bool with_protocol = !job.procedure->protoMethod.empty();
    TransferCounts counts;
    try {
        counts = write_transfer(job, source, settings, out, with_protocol ? &proto : nullptr);
    } catch (const ReportFailure&) {
        return;  // the report or frame that failed is named; nothing would be written
    }
    const bool xml = job.procedure->xml();
    const std::string_view ending = crlf ? "\r\n" : "\n";
    FUZZ_REQUIRE(counts.written + counts.failed == job.reports.size());
    FUZZ_REQUIRE(keep_going || counts.failed == 0);
    // One line per report written, and the frame: VOSZ, DSKO and NCSZ, or
    // the XML declaration, the root element, VOSZ, NCSZ and the root's end.
    FUZZ_REQUIRE(count_lines(out.text, ending) == counts.written + (xml ? 5 : 3));
    FUZZ_REQUIRE(out.text.ends_with(ending));
    if (with_protocol) FUZZ_REQUIRE(count_lines(proto.text, ending) <= counts.written + counts.failed);
    // What is written with the checks on, tamrel check accepts.
    if (check && !xml) {
        std::istringstream in(out.text);
        for (const auto& f : tamrel::checks::check_transfer_file(in, file_encoding(encoding)).findings)
            FUZZ_REQUIRE(f.rule->severity != tamrel::checks::Severity::Error);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    // The first byte chooses the settings; the rest is the job file.
    const unsigned choice = data[0];
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    Job job;
    try {
        job = parse_job(tamrel::parse_bounded(text), "job", ".");
    } catch (const std::exception&) {
        return 0;  // not a job: refused with a message before anything is written
    }
    if (!job.reportsFile.empty()) return 0;  // no files in memory
    const Encoding encodings[] = {Encoding::Latin1, Encoding::Latin9, Encoding::Utf8};
    // The checks only now and then: with them most mutated jobs would stop at
    // the frame's numbers, before any record builder runs.
    run(job, (choice & 1) != 0, encodings[(choice >> 1) % 3], (choice & 8) != 0, (choice & 16) != 0);
    return 0;
}
