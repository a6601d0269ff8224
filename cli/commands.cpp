#include "cli/commands.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include <CLI/CLI.hpp>

#include "call/call_protocol.h"
#include "cli/file_commands.h"
#include "core/line_reader.h"
#include "core/version.h"
#include "json/json_limits.h"
#include "reference/reference_docs.h"
#include "run/generate.h"
#include "run/output_encoding.h"

namespace tamrel::cli {
namespace {

// NDJSON requests in, one response line each, flushed per line. A blank
// line is skipped (it is no request); with `numbered` every response says
// the line of its request as "line", so that no answer can be taken for
// another line's. A line beyond the bound is answered with its request
// error and ends the run: what follows it cannot be told apart from it.
int call_stream(std::istream& in, bool numbered) {
    bool any_request_error = false;
    LineReader reader(in, kMaxLineBytes);
    std::string line, response;
    std::size_t length = 0;
    for (std::size_t number = 1; reader.next(line, length); ++number) {
        if (!reader.overlong() && line.find_first_not_of(" \t") == std::string::npos) continue;
        bool request_error = false;
        call_line(line, response, request_error);
        if (numbered) response.insert(1, "\"line\":" + std::to_string(number) + (response.size() > 2 ? "," : ""));
        std::cout << response << '\n' << std::flush;
        any_request_error |= request_error;
        if (!std::cout) break;  // the reader is gone
    }
    return any_request_error ? 2 : 0;
}

// Writes the reference documentation below `dir` and says what it wrote.
int write_docs(const std::string& dir) {
    std::size_t count = 0;
    for (const auto& [name, text] : reference_docs()) {
        const std::filesystem::path path = std::filesystem::path(dir) / name;
        std::error_code ec;
        std::filesystem::create_directories(path.parent_path(), ec);
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        if (!(out << text)) {
            std::cerr << "tamrel docs: " << path.string() << ": cannot be written: " << std::strerror(errno) << '\n';
            return 4;
        }
        std::cout << path.string() << '\n';
        ++count;
    }
    std::cerr << "tamrel docs: " << count << " files written below " << dir << '\n';
    return 0;
}

// An option given with an empty path names no file: refused, as a missing
// value would be, instead of quietly writing nothing.
bool empty_path_given(const CLI::App& cmd, std::initializer_list<std::pair<const char*, const std::string*>> paths) {
    for (const auto& [option, value] : paths)
        if (cmd.count(option) && value->empty()) {
            std::cerr << "tamrel " << cmd.get_name() << ": " << option << ": the path is empty\n";
            return true;
        }
    return false;
}

constexpr const char* kSubcommands[] = {"call", "generate", "check", "inspect", "read", "docs"};

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
    app.footer("Every subcommand has its own --help, with its exit codes.");

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

    genCmd->footer(
        "Exit codes: 0 success; 1 a report failed, nothing written; 2 bad command line, job or request;\n"
        "3 written with failed reports left out (--keep-going); 4 the output could not be written.");

    const char* fileHelp = "Transfer file (-: standard input)";
    const char* encodingHelp =
        "How the file's bytes are read: ISO-8859-1, ISO-8859-15 or UTF-8 (default: UTF-8 when the whole file is, "
        "else ISO-8859-1)";
    auto* checkCmd = app.add_subcommand("check", "Check a transfer file: its frame, its records' layouts, its numbers");
    FileOptions checkFile;
    checkCmd->add_option("FILE", checkFile.path, fileHelp)->required();
    checkCmd->add_option("--encoding", checkFile.encoding, encodingHelp);
    checkCmd->add_flag("--json", checkFile.json,
                       "One JSON object per finding (NDJSON, as generate's --findings); the summary goes to standard "
                       "error");
    checkCmd->footer("Exit codes: 0 clean; 1 errors found; 2 the file cannot be read.");

    auto* inspectCmd = app.add_subcommand("inspect", "Show a transfer file field by field");
    FileOptions inspectFile;
    std::size_t inspectRecord = 0;
    inspectCmd->add_option("FILE", inspectFile.path, fileHelp)->required();
    inspectCmd->add_option("--encoding", inspectFile.encoding, encodingHelp);
    inspectCmd->add_flag("--json", inspectFile.json, "One JSON object per field (NDJSON) instead of a table");
    inspectCmd->add_option("--record", inspectRecord, "Only this record (1 for the first)")
        ->check(CLI::Validator(
            [](std::string& v) {
                return v.find_first_not_of('0') == std::string::npos ? std::string("records are counted from 1")
                                                                     : std::string();
            },
            "1 or more"));
    inspectCmd->footer("Exit codes: 0 shown; 2 the file cannot be read, or it has no such record.");

    auto* readCmd = app.add_subcommand(
        "read", "Read a transfer file back into the job that makes it (or list a returned file's errors)");
    ReadOptions ro;
    readCmd->add_option("FILE", ro.file.path, fileHelp)->required();
    readCmd->add_option("--encoding", ro.file.encoding, encodingHelp);
    readCmd->add_option("-o,--output", ro.output, "Job file to write (default, or -: standard output)");
    readCmd->add_option("--reports-out", ro.reportsOut,
                        "Write the reports to this NDJSON file, one a line, and name it in the job (large files)");
    readCmd->add_flag("--errors", ro.errors,
                      "List the error blocks of a returned file: record, the report's keys, error, field, property");
    readCmd->add_flag("--json", ro.file.json, "With --errors: one JSON object per error (NDJSON)");
    readCmd->footer(
        "Exit codes: 0 every record read; 2 the file cannot be read; 3 records skipped (each told on standard "
        "error);\n4 an output could not be written. With --errors: 0 no errors, 1 errors listed.");

    auto* docsCmd = app.add_subcommand("docs", "Write the reference documentation (call protocol, data objects)");
    std::string docsDir;
    docsCmd->add_option("DIR", docsDir, "Folder to write into (the project's docs/: tamrel docs docs)")->required();
    docsCmd->footer(
        "Exit codes: 0 written (each file's path on standard output); 2 bad command line; 4 a file "
        "could not be written.");

    if (argc < 2) {
        std::cerr << "tamrel: a subcommand is required:";
        for (const char* sub : kSubcommands) std::cerr << ' ' << sub;
        std::cerr << " (tamrel --help)\n";
        return 2;
    }
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
    if (*genCmd && empty_path_given(*genCmd, {{"--output", &go.output},
                                              {"--protocol", &go.protocol},
                                              {"--reports", &go.reports},
                                              {"--findings", &go.findings},
                                              {"--log", &go.log}}))
        return 2;
    if (*checkCmd) return check_file(checkFile);
    if (*readCmd) {
        if (empty_path_given(*readCmd, {{"--output", &ro.output}, {"--reports-out", &ro.reportsOut}})) return 2;
        return read_file(ro);
    }
    if (*docsCmd) return write_docs(docsDir);
    if (*inspectCmd) return inspect_file(inspectFile, inspectRecord);
    go.progress = isatty(STDERR_FILENO);
    return generate(go, [](const std::string& line) { std::cerr << line << '\n'; });
}

}  // namespace tamrel::cli
