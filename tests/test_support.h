// Helpers shared by the tests: a host whose log lines and clock the test owns.
#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/error.h"
#include "core/host.h"

namespace tamrel::testing {

// Numbers that pass the checks, for tests whose subject is elsewhere.
inline constexpr const char* kSenderBnr = "98765432";
inline constexpr const char* kReceiverBnr = "12345671";
inline constexpr const char* kInsuranceNumber = "65170839J003";

struct RecordingHost {
    std::vector<std::string> lines;
    Date clock{2024, 3, 5, 8, 9, 10};
    Host host{[this](std::string_view l) { lines.emplace_back(l); }, [this] { return clock; }, {}};
    HostScope scope{host};
};

// Runs `f`, expecting a tamrel::Error; returns it.
template <class F>
Error expect_error(F&& f) {
    try {
        f();
    } catch (const Error& e) {
        return e;
    }
    throw std::runtime_error("expected a tamrel::Error");
}

}  // namespace tamrel::testing

namespace tamrel::testing {

// A text as characters (records count characters, not bytes).
inline std::u32string chars(std::string_view utf8) {
    std::u32string out;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        const int n = c < 0x80 ? 0 : c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : 1;
        char32_t cp = n ? c & (0x3F >> n) : c;
        for (int k = 1; k <= n; ++k) cp = (cp << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        out += cp;
        i += static_cast<std::size_t>(n) + 1;
    }
    return out;
}

// A file's bytes.
inline std::string slurp(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

// Expected fields, written the way the layout tables read.
inline std::string an(std::string_view v, std::size_t width) {
    std::string s(v);
    s.resize(width, ' ');
    return s;
}
inline std::string n(std::string_view v, std::size_t width) {
    return std::string(width > v.size() ? width - v.size() : 0, '0') + std::string(v);
}
inline std::string blanks(std::size_t width) { return std::string(width, ' '); }

// What a builder of the Append… form appends to an empty buffer.
template <class Append>
std::string appended(Append&& append) {
    std::string out;
    append(out);
    return out;
}

}  // namespace tamrel::testing

namespace tamrel::testing {

// A fresh, empty folder of the running test's own ("tamrel-KIND-PID-TEST"):
// each test of a fixture that writes files works in its own.
inline std::filesystem::path fresh_folder(const std::string& kind) {
    const auto dir =
        std::filesystem::temp_directory_path() / ("tamrel-" + kind + "-" + std::to_string(::getpid()) + "-" +
                                                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(dir);
    std::filesystem::create_directories(dir);
    return dir;
}

}  // namespace tamrel::testing
