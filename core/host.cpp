#include "core/host.h"

#include <cstdio>
#include <ctime>
#include <string>

#include "core/thread_pointer.h"

namespace tamrel {
namespace {
using Installed = ThreadPointer<const Host>;
}

Date system_now() {
    std::time_t t = std::time(nullptr);
    std::tm tm{};
#ifdef _WIN32
    localtime_s(&tm, &t);  // the thread-safe form of the Windows runtime
#else
    localtime_r(&t, &tm);
#endif
    return Date{tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
}

const Host& default_host() {
    static const Host host{
        [](std::string_view line) {
            std::string text(line);
            text += '\n';
            std::fwrite(text.data(), 1, text.size(), stderr);
        },
        [] { return system_now(); },
        {},
    };
    return host;
}

const Host& current_host() {
    const Host* installed = Installed::get();
    return installed ? *installed : default_host();
}

HostScope::HostScope(const Host& host) : previous_(Installed::get()) { Installed::set(&host); }
HostScope::~HostScope() { Installed::set(previous_); }

Date now() {
    const Host& h = current_host();
    return h.now ? h.now() : system_now();
}

}  // namespace tamrel
