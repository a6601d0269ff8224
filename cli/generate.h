#pragma once
#include <string>

namespace tamrel::cli {

struct GenerateOptions {
    std::string job;
    std::string output;
    std::string protocol;  // empty: no protocol file
    std::string reports;   // NDJSON file overriding the job's reports
    std::string encoding = "ISO-8859-1";
    bool crlf = false;
    bool keepGoing = false;
    bool transliterate = false;
    bool noCheck = false;  // build every report as given, without the checks
    std::string findings;  // NDJSON file of every finding of the checks; empty: none
};

// Exit codes: 0 written; 1 a report failed (nothing written); 2 bad job or
// options; 3 written with failed reports left out (--keep-going);
// 4 the output could not be written.
int generate(const GenerateOptions& options);

}  // namespace tamrel::cli
