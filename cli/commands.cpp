#include "cli/commands.h"

#include <fstream>
#include <iostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/generate.h"
#include "cli/line_reader.h"
#include "component/call_protocol.h"
#include "component/json_limits.h"
#include "core/version.h"

namespace tamrel::cli {
namespace {

// NDJSON requests in, one response line each, flushed per line.
int call_stream(std::istream& in) {
    bool any_request_error = false;
    LineReader reader(in, kMaxLineBytes);
    std::string line;
    std::size_t length = 0;
    while (reader.next(line, length)) {
        if (length == line.size() && line.find_first_not_of(" \t") == std::string::npos) continue;
        bool request_error = false;
        std::cout << call_line(line, request_error) << '\n' << std::flush;
        any_request_error |= request_error;
    }
    return any_request_error ? 2 : 0;
}

}  // namespace

int run(int argc, char** argv) {
    CLI::App app{"tamrel: records of the German social-insurance reporting procedures"};
    app.set_version_flag("--version", std::string("tamrel ") + kVersionText);
    app.require_subcommand(1);
    app.footer(
        "Exit codes: 0 success; 1 a report failed, nothing written; 2 bad command line, job or request;\n"
        "3 written with failed reports left out (--keep-going); 4 the output could not be written.");

    auto* callCmd = app.add_subcommand("call", "Call the library with JSON requests, one per line (NDJSON)");
    std::string callFile;
    callCmd->add_option("FILE", callFile, "Requests file (default: standard input)");
    callCmd->footer("Exit codes: 0 every line was a valid request; 2 at least one line got a request_error.");

    auto* genCmd = app.add_subcommand("generate", "Generate a transfer file from a job file");
    GenerateOptions go;
    genCmd->add_option("JOB", go.job, "Job file (JSON, see docs/job-format.md)")->required();
    genCmd->add_option("-o,--output", go.output, "Transfer file to write")->required();
    genCmd->add_option("--protocol", go.protocol, "Also write one protocol line per report to this file");
    genCmd->add_option("--reports", go.reports, "Read the reports from this NDJSON file instead of the job's");
    genCmd->add_option("--encoding", go.encoding, "ISO-8859-1 (default), ISO-8859-15 or UTF-8");
    genCmd->add_flag("--crlf", go.crlf, "End lines with CR LF instead of LF");
    genCmd->add_flag("--keep-going", go.keepGoing, "Leave failed reports out instead of stopping");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        int code = app.exit(e);
        return code == 0 ? 0 : 2;
    }
    if (*callCmd) {
        if (callFile.empty()) return call_stream(std::cin);
        std::ifstream in(callFile);
        if (!in) {
            std::cerr << "tamrel call: " << callFile << ": cannot be read\n";
            return 2;
        }
        return call_stream(in);
    }
    return generate(go);
}

}  // namespace tamrel::cli
