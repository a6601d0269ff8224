// Seeded hostile variants of reports and frame values: each value kept, or
// replaced by one from the whole range a caller could send for its type —
// negative and extreme integers, blank-only and over-long texts, digits where
// letters belong and letters where digits do, dates in other forms,
// control characters, decomposed and foreign letters. Unlike Mutator's
// variants they are mostly invalid: what they exercise is that whatever
// tamrel generate accepts, tamrel check accepts too.
#pragma once
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace tamrel::testing {

class Hostile {
public:
    explicit Hostile(unsigned seed) : rng_(seed) {}

    nlohmann::json vary(const nlohmann::json& v) {
        if (v.is_string()) return chance(0.6) ? v : nlohmann::json(text(v.get<std::string>()));
        if (v.is_boolean()) return chance(0.3) ? !v.get<bool>() : v.get<bool>();
        if (v.is_number_integer()) return chance(0.6) ? v : nlohmann::json(integer());
        if (v.is_array()) {
            nlohmann::json out = nlohmann::json::array();
            for (const auto& e : v)
                if (!chance(0.15)) out.push_back(vary(e));
            if (!v.empty() && chance(0.2)) out.push_back(vary(v[pick(v.size())]));
            return out;
        }
        if (v.is_object()) {
            nlohmann::json out = nlohmann::json::object();
            for (const auto& [k, e] : v.items())
                if (!chance(0.05)) out[k] = vary(e);
            return out;
        }
        return v;
    }

    // The report with `n` of its values (texts, numbers, flags) replaced:
    // a report with a few bad values among good ones, as a user would send.
    nlohmann::json vary_some(nlohmann::json v, std::size_t n) {
        std::vector<nlohmann::json::json_pointer> leaves;
        collect(v, nlohmann::json::json_pointer(), leaves);
        for (std::size_t k = 0; k < n && !leaves.empty(); ++k) {
            nlohmann::json& leaf = v[leaves[pick(leaves.size())]];
            if (leaf.is_string())
                leaf = text(leaf.get<std::string>());
            else if (leaf.is_number_integer())
                leaf = integer();
            else if (leaf.is_boolean())
                leaf = !leaf.get<bool>();
        }
        return v;
    }

    // A value for a text property that may be absent.
    std::string text(const std::string& s) {
        static const std::vector<std::string> kinds = {
            "",
            "   ",
            "-1",
            "0",
            "123456789012345",
            "2023-11-15",
            "20231115",
            "20231399",
            "00000000",
            "99999999",
            "1.5",
            "-12,34",
            "abc",
            "P-0001\n2",
            "1\x1b]0;x\x07",
            "\t",
            "Mu\xCC\x88ller",
            "\xC5\x81ukasz",
            "\xE2\x82\xAC",
            "J",
            "N",
            "X",
            "ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMNOPQRSTUVWXYZ"};
        const double r = dist_(rng_);
        if (r < 0.5) return kinds[pick(kinds.size())];
        if (r < 0.7) return s + kinds[pick(kinds.size())];
        std::string out;
        for (char c : s) out += c >= '0' && c <= '9' ? static_cast<char>('0' + pick(10)) : c;
        if (chance(0.5) && !out.empty()) out.insert(pick(out.size()), 1, "0A- "[pick(4)]);
        return out;
    }

private:
    static void collect(const nlohmann::json& v, const nlohmann::json::json_pointer& at,
                        std::vector<nlohmann::json::json_pointer>& out) {
        if (v.is_object())
            for (const auto& [k, e] : v.items()) collect(e, at / k, out);
        else if (v.is_array())
            for (std::size_t i = 0; i < v.size(); ++i) collect(v[i], at / i, out);
        else
            out.push_back(at);
    }
    std::int64_t integer() {
        static const std::int64_t picks[] = {0,     1,      -1,         2,           99,         100,
                                             32767, -32768, 2147483647, -2147483648, 1234567890, -7};
        return picks[pick(std::size(picks))];
    }
    bool chance(double p) { return dist_(rng_) < p; }
    std::size_t pick(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng_); }

    std::mt19937 rng_;
    std::uniform_real_distribution<double> dist_{0.0, 1.0};
};

}  // namespace tamrel::testing
