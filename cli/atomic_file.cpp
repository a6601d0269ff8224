#include "cli/atomic_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace tamrel::cli {
namespace {

// The temporary files being written, for the signal handler: fixed storage,
// since a handler may neither allocate nor lock.
constexpr int kSlots = 4;
char g_temp_path[kSlots][4096];
volatile std::sig_atomic_t g_temp_used[kSlots];

// An interrupted or terminated run leaves no temporary file behind; the
// signal then ends the process as it would have.
extern "C" void remove_temps_and_reraise(int sig) {
    for (int i = 0; i < kSlots; ++i)
        if (g_temp_used[i]) ::unlink(g_temp_path[i]);
    std::signal(sig, SIG_DFL);
    std::raise(sig);
}

void install_handlers_once() {
    static const bool installed = [] {
        struct sigaction sa {};
        sa.sa_handler = remove_temps_and_reraise;
        sigemptyset(&sa.sa_mask);
        for (int sig : {SIGINT, SIGTERM, SIGHUP}) sigaction(sig, &sa, nullptr);
        // A file-size limit makes the write fail (and the file be removed)
        // instead of ending the process.
        std::signal(SIGXFSZ, SIG_IGN);
        return true;
    }();
    (void)installed;
}

int register_temp(const std::string& path) {
    if (path.size() >= sizeof g_temp_path[0]) return -1;
    for (int i = 0; i < kSlots; ++i)
        if (!g_temp_used[i]) {
            std::memcpy(g_temp_path[i], path.c_str(), path.size() + 1);
            g_temp_used[i] = 1;
            return i;
        }
    return -1;
}

void unregister_temp(int slot) {
    if (slot >= 0) g_temp_used[slot] = 0;
}

}  // namespace

AtomicFile::AtomicFile(std::string target) : target_(std::move(target)) {
    install_handlers_once();
    std::filesystem::path p(target_);
    std::filesystem::path dir = p.parent_path().empty() ? "." : p.parent_path();
    std::string pattern = (dir / ("." + p.filename().string() + ".tmp-XXXXXX")).string();
    std::vector<char> buf(pattern.begin(), pattern.end());
    buf.push_back('\0');
    int fd = mkstemp(buf.data());
    if (fd < 0) throw std::runtime_error(target_ + ": cannot create a temporary file: " + std::strerror(errno));
    temp_ = buf.data();
    slot_ = register_temp(temp_);
    fchmod(fd, 0644);
    file_ = fdopen(fd, "wb");
    if (!file_) {
        ::close(fd);
        unregister_temp(slot_);
        std::remove(temp_.c_str());
        throw std::runtime_error(target_ + ": cannot open the temporary file");
    }
    buffer_ = std::make_unique<char[]>(kBufferSize);
    std::setvbuf(file_, buffer_.get(), _IOFBF, kBufferSize);
}

AtomicFile::~AtomicFile() {
    if (file_) std::fclose(file_);
    if (!committed_) std::remove(temp_.c_str());
    unregister_temp(slot_);
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
    unregister_temp(slot_);
}

}  // namespace tamrel::cli
