// Where an output of tamrel generate goes, decided before anything is
// generated: a new file, an existing file to replace (a symbolic link is
// followed to the file it names, which is replaced beside itself), a device
// or pipe written directly, or one of the process's own open files
// ("-", /dev/stdout, /dev/fd/N, /proc/self/fd/N), written in place at its
// offset: a file the shell opened for appending keeps what it held.
#pragma once
#include <sys/types.h>

#include <string>
#include <vector>

namespace tamrel::cli {

struct OutputTarget {
    enum Kind { NewFile, ReplaceFile, Direct, Descriptor } kind = NewFile;
    std::string given;   // the path as the user wrote it
    std::string real;    // the file to create or replace, links followed; the device or pipe for Direct
    mode_t mode = 0644;  // of the file written
    uid_t uid = 0;       // of a replaced file, kept where the process may
    gid_t gid = 0;
    int fd = -1;  // of a Descriptor: standard output for "-"
    bool is_file() const { return kind == NewFile || kind == ReplaceFile; }
};

// Throws std::runtime_error naming the path when it cannot be written (a
// folder, a folder that does not exist, a loop of links).
OutputTarget resolve_output(const std::string& path);

// Whether two outputs, or an output and an input file, are the same file
// (also through a link or another spelling of the path).
bool same_file(const OutputTarget& a, const OutputTarget& b);
bool same_file(const OutputTarget& a, const std::string& input);

// The temporary files of tamrel's own kind in `folder`
// (".NAME.tamrel-PID-XXXXXX") whose run has ended are removed; their names
// and those of older hidden ".NAME.tmp-XXXXXX" files, which are only
// reported, are returned as messages.
std::vector<std::string> sweep_leftovers(const std::string& folder);

// The temporary name pattern of a file written for `real` (for mkstemp).
std::string temp_pattern(const std::string& real);

}  // namespace tamrel::cli
