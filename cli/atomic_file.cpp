#include "cli/atomic_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace tamrel::cli {

AtomicFile::AtomicFile(std::string target) : target_(std::move(target)) {
    std::filesystem::path p(target_);
    std::filesystem::path dir = p.parent_path().empty() ? "." : p.parent_path();
    std::string pattern = (dir / ("." + p.filename().string() + ".tmp-XXXXXX")).string();
    std::vector<char> buf(pattern.begin(), pattern.end());
    buf.push_back('\0');
    int fd = mkstemp(buf.data());
    if (fd < 0) throw std::runtime_error(target_ + ": cannot create a temporary file: " + std::strerror(errno));
    temp_ = buf.data();
    fchmod(fd, 0644);
    file_ = fdopen(fd, "wb");
    if (!file_) {
        ::close(fd);
        std::remove(temp_.c_str());
        throw std::runtime_error(target_ + ": cannot open the temporary file");
    }
    buffer_ = std::make_unique<char[]>(kBufferSize);
    std::setvbuf(file_, buffer_.get(), _IOFBF, kBufferSize);
}

AtomicFile::~AtomicFile() {
    if (file_) std::fclose(file_);
    if (!committed_) std::remove(temp_.c_str());
}

void AtomicFile::write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size())
        throw std::runtime_error(target_ + ": write failed: " + std::strerror(errno));
}

void AtomicFile::commit() {
    if (std::fflush(file_) != 0 || fsync(fileno(file_)) != 0)
        throw std::runtime_error(target_ + ": write failed: " + std::strerror(errno));
    std::fclose(file_);
    file_ = nullptr;
    if (std::rename(temp_.c_str(), target_.c_str()) != 0)
        throw std::runtime_error(target_ + ": cannot be written: " + std::strerror(errno));
    committed_ = true;
}

}  // namespace tamrel::cli
