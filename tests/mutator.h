// Seeded random variants of the example reports, shared by the tests that
// hold invariants over many reports.
#pragma once
#include <cctype>
#include <random>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace tamrel::testing {

// Seeded variants of a report: each value kept, emptied, replaced by one of
// the same shape (digits by digits, letters by letters) or by random text;
// flags flipped; small integers chosen among the values that change a
// record; lists shortened or lengthened. The texts hold no markup and no
// control characters: a valid report, not necessarily a sensible one.
class Mutator {
public:
    explicit Mutator(unsigned seed) : rng_(seed) {}

    nlohmann::json vary(const nlohmann::json& v) {
        if (v.is_string()) return text(v.get<std::string>());
        if (v.is_boolean()) return chance(0.3) ? !v.get<bool>() : v.get<bool>();
        if (v.is_number_integer()) {
            static const int picks[] = {0, 1, 2, 3, 4, 8, 15, 16, 17};
            return chance(0.3) ? nlohmann::json(picks[pick(std::size(picks))]) : v;
        }
        if (v.is_array()) {
            nlohmann::json out = nlohmann::json::array();
            for (const auto& e : v)
                if (!chance(0.2)) out.push_back(vary(e));
            if (!v.empty() && chance(0.3) && out.size() < 5) out.push_back(vary(v[pick(v.size())]));
            return out;
        }
        if (v.is_object()) {
            nlohmann::json out = nlohmann::json::object();
            for (const auto& [k, e] : v.items())
                if (!chance(0.1)) out[k] = vary(e);
            return out;
        }
        return v;
    }

private:
    std::string text(const std::string& s) {
        static const std::vector<std::string> letters = {"A", "b", "Z", "q", "Ä", "ö", "ü", "ß", "É", "ñ"};
        static const std::vector<std::string> any = {"0", "7", "9", "A", "x", " ", ",", ".", "-", "+", "Ü", "ß", "/"};
        const double r = dist_(rng_);
        if (r < 0.3) return s;
        if (r < 0.45) return "";
        std::string out;
        if (r < 0.85) {
            for (char c : s) {
                if (c >= '0' && c <= '9')
                    out += static_cast<char>('0' + pick(10));
                else if (std::isalpha(static_cast<unsigned char>(c)))
                    out += letters[pick(letters.size())];
                else
                    out += c;
            }
            return out;
        }
        for (std::size_t n = pick(40); n > 0; --n) out += any[pick(any.size())];
        return out;
    }
    bool chance(double p) { return dist_(rng_) < p; }
    std::size_t pick(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng_); }

    std::mt19937 rng_;
    std::uniform_real_distribution<double> dist_{0.0, 1.0};
};

}  // namespace tamrel::testing
