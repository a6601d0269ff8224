#include "run/output_target.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <regex>
#include <stdexcept>

namespace tamrel::cli {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const std::string& path, const std::string& why) {
    throw std::runtime_error(path + ": " + why);
}

mode_t new_file_mode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

std::string folder_of(const std::string& path) {
    const fs::path parent = fs::path(path).parent_path();
    return parent.empty() ? "." : parent.string();
}

// What makes a file itself: device and inode where it exists, else its
// path with every link and "." or ".." resolved.
struct Identity {
    bool exists = false;
    dev_t dev = 0;
    ino_t ino = 0;
    bool device = false;  // a character device (/dev/null may take both outputs)
    std::string canonical;
};

Identity identity_of_existing(const struct stat& s) { return {true, s.st_dev, s.st_ino, S_ISCHR(s.st_mode), {}}; }

Identity identity_of_path(const std::string& path) {
    struct stat s {};
    if (::stat(path.c_str(), &s) == 0) return identity_of_existing(s);
    Identity id;
    std::error_code ec;
    id.canonical = fs::weakly_canonical(fs::absolute(path), ec).string();
    if (ec) id.canonical = path;
    return id;
}

Identity identity_of(const OutputTarget& t) {
    if (t.kind != OutputTarget::Descriptor) return identity_of_path(t.real);
    struct stat s {};
    if (::fstat(t.fd, &s) == 0) return identity_of_existing(s);
    Identity id;
    id.canonical = "fd " + std::to_string(t.fd);
    return id;
}

// The descriptor a path names when it is one of the process's own open
// files (/dev/stdout, /dev/stderr, /dev/fd/N, /proc/self/fd/N,
// /proc/PID/fd/N of this process), else -1. Such a path is a link to the
// open file: renaming over what it resolves to would replace a file the
// shell opened (for appending, say) instead of writing to it.
int own_descriptor(const std::string& path) {
    if (path == "/dev/stdin") return STDIN_FILENO;
    if (path == "/dev/stdout") return STDOUT_FILENO;
    if (path == "/dev/stderr") return STDERR_FILENO;
    static const std::regex fd_path(
        R"(^/(?:dev/fd|proc/(self|thread-self|[0-9]{1,10})(?:/task/[0-9]{1,10})?/fd)/([0-9]{1,9})$)");
    std::smatch m;
    if (!std::regex_match(path, m, fd_path)) return -1;
    const std::string pid = m[1].str();
    if (!pid.empty() && pid.front() != 's' && pid.front() != 't' && std::stol(pid) != static_cast<long>(::getpid()))
        return -1;
    return std::stoi(m[2].str());
}

bool same(const Identity& a, const Identity& b) {
    if (a.exists != b.exists) return false;
    if (!a.exists) return a.canonical == b.canonical;
    return a.dev == b.dev && a.ino == b.ino && !(a.device && b.device);
}

bool process_alive(long pid) {
    if (pid <= 0 || pid == static_cast<long>(::getpid())) return true;
    return ::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM;
}

}  // namespace

OutputTarget resolve_output(const std::string& path) {
    OutputTarget t;
    t.given = path;
    if (path == "-") {
        t.kind = OutputTarget::Descriptor;
        t.real = "-";
        t.fd = STDOUT_FILENO;
        return t;
    }
    if (path.empty()) throw std::runtime_error("an output path is empty");
    std::string p = path;
    for (int links = 0;; ++links) {
        if (const int fd = own_descriptor(p); fd >= 0) {
            if (::fcntl(fd, F_GETFL) < 0) refuse(path, "names a descriptor that is not open");
            t.kind = OutputTarget::Descriptor;
            t.real = p;
            t.fd = fd;
            return t;
        }
        struct stat ls {};
        if (::lstat(p.c_str(), &ls) != 0) {
            if (errno != ENOENT) refuse(path, std::string("cannot be examined: ") + std::strerror(errno));
            struct stat fs_ {};
            const std::string folder = folder_of(p);
            if (::stat(folder.c_str(), &fs_) != 0 || !S_ISDIR(fs_.st_mode))
                refuse(path, "the folder " + folder + " does not exist");
            t.kind = OutputTarget::NewFile;
            t.real = p;
            t.mode = new_file_mode();
            return t;
        }
        if (S_ISLNK(ls.st_mode)) {
            if (links == 40) refuse(path, "too many levels of symbolic links");
            // A link the kernel resolves to something that is not a path
            // (/dev/stdout to a pipe) is written through directly.
            struct stat s {};
            if (::stat(p.c_str(), &s) == 0 && !S_ISREG(s.st_mode) && !S_ISDIR(s.st_mode)) {
                t.kind = OutputTarget::Direct;
                t.real = p;
                return t;
            }
            std::error_code ec;
            fs::path target = fs::read_symlink(p, ec);
            if (ec) refuse(path, "cannot read the link: " + ec.message());
            p = (target.is_absolute() ? target : fs::path(folder_of(p)) / target).string();
            continue;
        }
        if (S_ISDIR(ls.st_mode)) refuse(path, "is a folder");
        if (!S_ISREG(ls.st_mode)) {
            t.kind = OutputTarget::Direct;
            t.real = p;
            return t;
        }
        t.kind = OutputTarget::ReplaceFile;
        t.real = p;
        t.mode = ls.st_mode & 07777;
        t.uid = ls.st_uid;
        t.gid = ls.st_gid;
        return t;
    }
}

bool same_file(const OutputTarget& a, const OutputTarget& b) { return same(identity_of(a), identity_of(b)); }

bool same_file(const OutputTarget& a, const std::string& input) {
    const Identity in = identity_of_path(input);
    return in.exists && same(identity_of(a), in);
}

std::string temp_pattern(const std::string& real) {
    const fs::path p(real);
    return (fs::path(folder_of(real)) /
            ("." + p.filename().string() + ".tamrel-" + std::to_string(::getpid()) + "-XXXXXX"))
        .string();
}

std::vector<std::string> sweep_leftovers(const std::string& folder) {
    static const std::regex own(R"(^\..+\.tamrel-([0-9]{1,10})-[A-Za-z0-9]{6}$)");
    static const std::regex older(R"(^\..+\.tmp-[A-Za-z0-9]{6}$)");
    std::vector<std::string> notes;
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(folder, ec)) {
        const std::string name = entry.path().filename().string();
        std::smatch m;
        if (std::regex_match(name, m, own)) {
            if (process_alive(std::stol(m[1].str()))) continue;
            if (fs::remove(entry.path(), ec))
                notes.push_back("removed " + entry.path().string() + ", left by an interrupted run");
        } else if (std::regex_match(name, older)) {
            notes.push_back("found " + entry.path().string() +
                            ", perhaps left by an interrupted run of an older version; not removed");
        }
    }
    return notes;
}

}  // namespace tamrel::cli
