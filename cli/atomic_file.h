// An output file that appears under its name only when complete: written to
// a temporary file in the same folder, renamed on commit, removed otherwise:
// on failure, when the run is interrupted or terminated (SIGINT, SIGTERM,
// SIGHUP), and when a file-size limit is reached.
#pragma once
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace tamrel::cli {

class AtomicFile {
public:
    explicit AtomicFile(std::string target);  // throws std::runtime_error
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    void write(std::string_view bytes);  // throws std::runtime_error
    void commit();                       // throws std::runtime_error

private:
    std::string target_, temp_;
    static constexpr std::size_t kBufferSize = 1 << 16;
    std::unique_ptr<char[]> buffer_;  // before file_: released after fclose
    std::FILE* file_ = nullptr;
    bool committed_ = false;
    int slot_ = -1;  // its entry among the files the signal handler removes
};

}  // namespace tamrel::cli
