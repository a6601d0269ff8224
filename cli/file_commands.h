// tamrel check and tamrel inspect: a transfer file read back, checked
// against the declared record layouts, or shown field by field.
#pragma once
#include <string>

namespace tamrel::cli {

// Exit codes: 0 clean, 1 errors found, 2 the file cannot be read.
int check_file(const std::string& path);

// `record` 0: every record; `json`: NDJSON instead of a table.
int inspect_file(const std::string& path, bool json, std::size_t record);

}  // namespace tamrel::cli
