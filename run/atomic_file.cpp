#include "run/atomic_file.h"

#include <fcntl.h>
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
constexpr int kSlots = 8;  // the four outputs of a run, with room
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
        // A file-size limit or a closed pipe makes the write fail (and the
        // files be removed or left as they were) instead of ending the
        // process half way.
        std::signal(SIGXFSZ, SIG_IGN);
        std::signal(SIGPIPE, SIG_IGN);
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

// A new temporary file beside `real`, its name in `name`; -1 on failure.
int make_temp(const std::string& real, std::string& name) {
    const std::string pattern = temp_pattern(real);
    std::vector<char> buf(pattern.begin(), pattern.end());
    buf.push_back('\0');
    const int fd = ::mkstemp(buf.data());
    if (fd >= 0) name = buf.data();
    return fd;
}

}  // namespace

AtomicFile::AtomicFile(OutputTarget target) : target_(std::move(target)) {
    install_handlers_once();
    int fd = -1;
    if (target_.is_file()) {
        fd = make_temp(target_.real, temp_);
        if (fd < 0)
            throw std::runtime_error(target_.given + ": cannot create a temporary file: " + std::strerror(errno));
        slot_ = register_temp(temp_);
        // A new file gets the mode the umask allows, a replaced one keeps
        // its mode and, where the process may, its owner.
        if (target_.kind == OutputTarget::ReplaceFile) {
            [[maybe_unused]] const int owned = ::fchown(fd, target_.uid, target_.gid);  // refused unless privileged
        }
        ::fchmod(fd, target_.mode);
        file_ = ::fdopen(fd, "wb");
    } else {
        file_ = std::tmpfile();  // anonymous: nothing is left behind
    }
    if (!file_) {
        if (fd >= 0) ::close(fd);
        if (!temp_.empty()) std::remove(temp_.c_str());
        unregister_temp(slot_);
        throw std::runtime_error(target_.given + ": cannot open a temporary file: " + std::strerror(errno));
    }
    buffer_ = std::make_unique<char[]>(kBufferSize);
    std::setvbuf(file_, buffer_.get(), _IOFBF, kBufferSize);
}

AtomicFile::~AtomicFile() {
    if (file_) std::fclose(file_);
    if (!installed_ && !temp_.empty()) std::remove(temp_.c_str());
    if (!backup_.empty()) std::remove(backup_.c_str());
    unregister_temp(slot_);
}

void AtomicFile::write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size())
        throw std::runtime_error(target_.given + ": write failed: " + std::strerror(errno));
}

void AtomicFile::flush() {
    if (std::fflush(file_) != 0 || (target_.is_file() && ::fsync(fileno(file_)) != 0))
        throw std::runtime_error(target_.given + ": write failed: " + std::strerror(errno));
}

void AtomicFile::copy_to_target() {
    const bool out = target_.kind == OutputTarget::Descriptor;
    const int fd = out ? target_.fd : ::open(target_.real.c_str(), O_WRONLY | O_CLOEXEC);
    if (fd < 0) throw std::runtime_error(target_.given + ": cannot be opened: " + std::strerror(errno));
    std::rewind(file_);
    char chunk[1 << 16];
    std::size_t n = 0;
    bool ok = true;
    while (ok && (n = std::fread(chunk, 1, sizeof chunk, file_)) > 0) {
        for (std::size_t done = 0; ok && done < n;) {
            const ssize_t w = ::write(fd, chunk + done, n - done);
            if (w > 0)
                done += static_cast<std::size_t>(w);
            else
                ok = w < 0 && errno == EINTR;
        }
    }
    const int err = errno;
    if (!out) ::close(fd);
    if (!ok || std::ferror(file_)) throw std::runtime_error(target_.given + ": write failed: " + std::strerror(err));
}

void AtomicFile::install() {
    if (!target_.is_file()) {
        copy_to_target();
        installed_ = true;
        return;
    }
    // The file replaced stays reachable under a second name until every
    // output is in place, so that a failure can put it back.
    if (target_.kind == OutputTarget::ReplaceFile) {
        std::string name;
        const int fd = make_temp(target_.real, name);
        if (fd >= 0) {
            ::close(fd);
            ::unlink(name.c_str());
            if (::link(target_.real.c_str(), name.c_str()) == 0) backup_ = name;
        }
    }
    std::fclose(file_);
    file_ = nullptr;
    if (std::rename(temp_.c_str(), target_.real.c_str()) != 0)
        throw std::runtime_error(target_.given + ": cannot be written: " + std::strerror(errno));
    installed_ = true;
    unregister_temp(slot_);
    slot_ = -1;
}

void AtomicFile::undo() {
    if (!installed_ || !target_.is_file()) return;
    if (!backup_.empty()) {
        if (std::rename(backup_.c_str(), target_.real.c_str()) == 0) backup_.clear();
    } else if (target_.kind == OutputTarget::NewFile) {
        std::remove(target_.real.c_str());
    }
    installed_ = false;
    temp_.clear();  // renamed away: nothing of ours is left under that name
}

void AtomicFile::done() {
    if (!backup_.empty()) std::remove(backup_.c_str());
    backup_.clear();
}

void commit_all(std::initializer_list<AtomicFile*> files) {
    for (AtomicFile* f : files) f->flush();
    // Streams (a device, a pipe, standard output) are delivered first:
    // when one breaks, no file has been renamed yet, and every file keeps
    // what it held. A rename that fails after them is undone for the files.
    std::vector<AtomicFile*> order;
    for (AtomicFile* f : files)
        if (!f->target_.is_file()) order.push_back(f);
    for (AtomicFile* f : files)
        if (f->target_.is_file()) order.push_back(f);
    std::size_t in_place = 0;
    try {
        for (; in_place < order.size(); ++in_place) order[in_place]->install();
    } catch (...) {
        while (in_place > 0) order[--in_place]->undo();
        throw;
    }
    for (AtomicFile* f : order) f->done();
}

}  // namespace tamrel::cli
