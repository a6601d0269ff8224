// tamrel check and tamrel inspect: a transfer file read back, checked
// against the declared record layouts, or shown field by field.
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

// `record` 0: every record.
int inspect_file(const FileOptions& options, std::size_t record);

}  // namespace tamrel::cli
