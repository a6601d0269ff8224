#include "cli/commands.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/file_commands.h"
#include "cli/generate.h"
#include "cli/line_reader.h"
#include "cli/output_encoding.h"
#include "component/call_protocol.h"
#include "component/json_limits.h"
#include "component/reference_docs.h"
#include "core/version.h"

namespace tamrel::cli {
namespace {

// NDJSON requests in, one response line each, flushed per line. A blank
// line is skipped (it is no request); with `numbered` every response says
// the line of its request as "line", so that no answer can be taken for
// another line's.
int call_stream(std::istream& in, bool numbered) {
    bool any_request_error = false;
    LineReader reader(in, kMaxLineBytes);
    std::string line, response;
    std::size_t length = 0;
    for (std::size_t number = 1; reader.next(line, length); ++number) {
        if (length == line.size() && line.find_first_not_of(" \t") == std::string::npos) continue;
        bool request_error = false;
        call_line(line, response, request_error);
        if (numbered) response.insert(1, "\"line\":" + std::to_string(number) + (response.size() > 2 ? "," : ""));
        std::cout << response << '\n' << std::flush;
        any_request_error |= request_error;
    }
    return any_request_error ? 2 : 0;
}

// Writes the reference documentation below `dir`.
int write_docs(const std::string& dir) {
    for (const auto& [name, text] : reference_docs()) {
        const std::filesystem::path path = std::filesystem::path(dir) / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        if (!(out << text)) {
            std::cerr << "tamrel docs: " << path.string() << ": cannot be written: " << std::strerror(errno) << '\n';
            return 4;
        }
    }
    return 0;
}

constexpr const char* kSubcommands[] = {"call", "generate", "check", "inspect", "docs"};

// A first word that is no option and no subcommand is a typo: said so,
// with the subcommands there are.
bool unknown_subcommand(int argc, char** argv) {
    if (argc < 2 || argv[1][0] == '-') return false;
    for (const char* s : kSubcommands)
        if (std::string_view(argv[1]) == s) return false;
    std::cerr << "tamrel: unknown subcommand \"" << argv[1] << "\"; the subcommands are:";
    for (const char* s : kSubcommands) std::cerr << ' ' << s;
    std::cerr << " (tamrel --help)\n";
    return true;
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
    bool numbered = false;
    callCmd->add_option("FILE", callFile, "Requests file (default, or -: standard input)");
    callCmd->add_flag("--line-numbers", numbered, "Give each response the line number of its request as \"line\"");
    callCmd->footer("Exit codes: 0 every line was a valid request; 2 at least one line got a request_error.");

    auto* genCmd = app.add_subcommand("generate", "Generate a transfer file from a job file");
    GenerateOptions go;
    genCmd->add_option("JOB", go.job, "Job file (JSON, see docs/job-format.md)")->required();
    genCmd->add_option("-o,--output", go.output, "Transfer file to write (-: standard output)")->required();
    genCmd->add_option("--protocol", go.protocol, "Also write one protocol line per report to this file");
    genCmd->add_option("--reports", go.reports, "Read the reports from this NDJSON file instead of the job's");
    genCmd->add_option("--encoding", go.encoding, kEncodingSpellings);
    genCmd->add_flag("--transliterate", go.transliterate,
                     "Write characters the encoding cannot hold as their usual substitutes (L for \u0141, oe for "
                     "\u0153), each told on standard error");
    genCmd->add_flag("--crlf", go.crlf, "End lines with CR LF instead of LF");
    genCmd->add_flag("--keep-going", go.keepGoing, "Leave failed reports out instead of stopping");
    genCmd->add_flag("--no-check", go.noCheck,
                     "Build every report as given, without checking its data first (docs/checks.md)");
    genCmd->add_option("--findings", go.findings, "Write every finding of the checks to this file (NDJSON)");
    genCmd->add_option("--log", go.log,
                       "Write the log lines of every failed report to this file (NDJSON: report, line, log)");

    auto* checkCmd = app.add_subcommand("check", "Check a transfer file: its frame, its records' layouts, its numbers");
    std::string checkFile;
    checkCmd->add_option("FILE", checkFile, "Transfer file (ISO-8859-1, ISO-8859-15 or UTF-8; LF or CR LF)")
        ->required();
    checkCmd->footer("Exit codes: 0 clean; 1 errors found; 2 the file cannot be read.");

    auto* inspectCmd = app.add_subcommand("inspect", "Show a transfer file field by field");
    std::string inspectFile;
    bool inspectJson = false;
    std::size_t inspectRecord = 0;
    inspectCmd->add_option("FILE", inspectFile, "Transfer file")->required();
    inspectCmd->add_flag("--json", inspectJson, "One JSON object per field (NDJSON) instead of a table");
    inspectCmd->add_option("--record", inspectRecord, "Only this record (1 for the first)");

    auto* docsCmd = app.add_subcommand("docs", "Write the reference documentation (call protocol, data objects)");
    std::string docsDir = "docs";
    docsCmd->add_option("DIR", docsDir, "Folder to write into (default: docs)");

    if (unknown_subcommand(argc, argv)) return 2;
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        int code = app.exit(e);
        return code == 0 ? 0 : 2;
    }
    if (*callCmd) {
        if (callFile.empty() || callFile == "-") return call_stream(std::cin, numbered);
        std::ifstream in(callFile);
        if (!in) {
            std::cerr << "tamrel call: " << callFile << ": cannot be read: " << std::strerror(errno) << '\n';
            return 2;
        }
        return call_stream(in, numbered);
    }
    if (*checkCmd) return check_file(checkFile);
    if (*docsCmd) return write_docs(docsDir);
    if (*inspectCmd) return inspect_file(inspectFile, inspectJson, inspectRecord);
    go.progress = isatty(STDERR_FILENO);
    return generate(go, [](const std::string& line) { std::cerr << line << '\n'; });
}

}  // namespace tamrel::cli
