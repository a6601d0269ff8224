// The kernels of the request and response scanners (thirty-two bytes a step
// with AVX2, sixteen with SSE2, then byte by byte) against a byte-by-byte
// reading: lines of every length around their steps, with quotes,
// backslashes, control characters, umlauts and broken UTF-8 anywhere. Both
// kernels run on a machine with AVX2; without it both runs take the
// baseline.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "json/cpu_features.h"
#include "json/json_escape.h"
#include "json/json_scan.h"

namespace {

std::vector<std::string> odd_lines() {
    std::mt19937 rng(22);
    // Plain text most of the time, the rest one of the bytes that matter.
    const std::vector<std::string> rare = {"\"",       "\\",           "\x01", "\x1f", "\t", "\n",
                                           "\xC3\xBC", "\xE2\x82\xAC", "\xC3", "\x7f", " "};
    std::vector<std::string> lines;
    for (std::size_t length = 0; length <= 200; ++length) {
        for (int variant = 0; variant < 3; ++variant) {
            std::string line;
            while (line.size() < length) {
                if (rng() % 40 == 0)
                    line += rare[rng() % rare.size()];
                else
                    line += static_cast<char>('a' + rng() % 26);
            }
            lines.push_back(line);
        }
    }
    return lines;
}

// Runs `f` with the baseline kernels, then with AVX2 where the machine has it.
template <class F>
auto both_kernels(F&& f) {
    tamrel::avx2_kernels_off().store(true);
    auto baseline = f();
    tamrel::avx2_kernels_off().store(false);
    return std::pair{baseline, f()};
}

struct Index {
    bool indexed = false;
    std::vector<std::size_t> quotes;
    bool operator==(const Index&) const = default;
};

TEST(ScanKernels, IndexQuotesAsTheBytesSay) {
    for (const std::string& line : odd_lines()) {
        Index expected;
        expected.indexed =
            line.find_first_of(std::string("\\\0", 2)) == std::string::npos &&
            std::none_of(line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
        std::size_t non_ascii = line.size();
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (line[i] == '"' && expected.indexed) expected.quotes.push_back(i);
            if (static_cast<unsigned char>(line[i]) >= 0x80 && non_ascii == line.size()) non_ascii = i;
        }
        const auto [baseline, avx2] = both_kernels([&] {
            tamrel::json_binding::QuoteIndex index;
            std::pair<Index, std::size_t> got{{index.build(line.data(), line.size()), {}}, index.first_non_ascii()};
            if (got.first.indexed)
                for (std::size_t at = index.next(0); at < line.size(); at = index.next(at + 1))
                    got.first.quotes.push_back(at);
            return got;
        });
        for (const auto& [index, first_non_ascii] : {baseline, avx2}) {
            EXPECT_EQ(index, expected) << line;
            // Where the first byte above ASCII is, or up to 63 bytes before it.
            EXPECT_LE(first_non_ascii, non_ascii) << line;
            EXPECT_LE(non_ascii, first_non_ascii + (non_ascii == line.size() ? 0 : 63)) << line;
        }
    }
}

TEST(ScanKernels, EscapeAsTheGeneralWriter) {
    for (const std::string& line : odd_lines()) {
        std::string expected;
        try {
            expected = nlohmann::json(line).dump();
        } catch (const nlohmann::json::type_error&) {
            expected = "not UTF-8";
        }
        const auto [baseline, avx2] = both_kernels([&] {
            std::string out;
            return tamrel::append_json_string(out, line) ? out : "not UTF-8";
        });
        EXPECT_EQ(baseline, expected) << line;
        EXPECT_EQ(avx2, expected) << line;
    }
}

}  // namespace
