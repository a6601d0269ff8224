// tamrel check, tamrel inspect and tamrel read: a transfer file read back,
// checked against the declared record layouts, shown field by field, or
// turned into the job that makes it.
#pragma once
#include <cstddef>
#include <string>

namespace tamrel::cli {

struct FileOptions {
    std::string path;      // "-": standard input
    std::string encoding;  // empty: found out from the bytes
    bool json = false;     // NDJSON instead of lines or a table
};

// Exit codes: 0 clean, 1 errors found, 2 the file cannot be read.
int check_file(const FileOptions& options);

struct ReadOptions {
    FileOptions file;
    std::string output;      // the job (JSON); empty or "-": standard output
    std::string reportsOut;  // the reports as NDJSON, named by the job's reports_file
    bool errors = false;     // list the error blocks of a returned file instead
};

// Exit codes: 0 read whole, 2 the file cannot be read, 3 records skipped,
// 4 an output cannot be written; with errors: 0 none, 1 errors listed.
int read_file(const ReadOptions& options);

// `record` 0: every record.
int inspect_file(const FileOptions& options, std::size_t record);

}  // namespace tamrel::cli
