// An output file that appears under its name only when complete: written to
// a temporary file beside the file it replaces (or, for a device, a pipe or
// standard output, to an anonymous spool file), put in place by commit_all,
// removed otherwise: on failure, when the run is interrupted or terminated
// (SIGINT, SIGTERM, SIGHUP), and when a file-size limit is reached.
#pragma once
#include <cstdio>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

#include "run/output_target.h"

namespace tamrel::cli {

class AtomicFile {
public:
    explicit AtomicFile(OutputTarget target);  // throws std::runtime_error
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    void write(std::string_view bytes);  // throws std::runtime_error

private:
    friend void commit_all(std::initializer_list<AtomicFile*> files);
    void flush();    // everything on the disk
    void install();  // renamed into place (a replaced file kept aside), or copied to the device
    void undo();     // the replaced file back as it was
    void done();     // the file kept aside dropped
    void copy_to_target();

    OutputTarget target_;
    std::string temp_, backup_;
    static constexpr std::size_t kBufferSize = 1 << 16;
    std::unique_ptr<char[]> buffer_;  // before file_: released after fclose
    std::FILE* file_ = nullptr;
    bool installed_ = false;
    int slot_ = -1;  // its entry among the files the signal handler removes
};

// Puts every file in place, or none: all are flushed first; when one cannot
// be put in place, those already in place get back what they replaced.
// Throws std::runtime_error naming the file.
void commit_all(std::initializer_list<AtomicFile*> files);

}  // namespace tamrel::cli
