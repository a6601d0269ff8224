#pragma once
#include <functional>
#include <string>

namespace tamrel::cli {

struct GenerateOptions {
    std::string job;      // the job file, or the name of `jobText` in messages
    std::string jobText;  // the job itself, as JSON (instead of reading `job`)
    std::string folder;   // where a relative reports_file of `jobText` is
    // Memory instead of files: the transfer file and the protocol go here
    // and `output`/`protocol` are not used (a protocol is made when
    // `protocolText` is given and the class has protocol lines).
    std::string* outputText = nullptr;
    std::string* protocolText = nullptr;
    bool progress = false;  // the running count on standard error
    std::string output;
    std::string protocol;  // empty: no protocol file
    std::string reports;   // NDJSON file overriding the job's reports
    std::string encoding = "ISO-8859-1";
    bool crlf = false;
    bool keepGoing = false;
    bool transliterate = false;
    bool noCheck = false;  // build every report as given, without the checks
    std::string findings;  // NDJSON file of every finding of the checks; empty: none
    std::string log;       // NDJSON file of the log lines of every failed report; empty: none
};

// Exit codes: 0 written; 1 a report failed (nothing written); 2 bad job or
// options; 3 written with failed reports left out (--keep-going);
// 4 the output could not be written. Every message ("tamrel generate: …",
// without line ending) goes to `say`.
using Say = std::function<void(const std::string&)>;
int generate(const GenerateOptions& options, const Say& say);

}  // namespace tamrel::cli
