// What the checks of a report find: the rule broken, the property that
// breaks it and its value. An error means the receiving office's acceptance
// check would reject the report; a warning that it would take it, but
// probably not as meant.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace tamrel::checks {

enum class Severity { Error, Warning };

// One rule, with its messages in German and English. Every rule is listed
// in kRules (rules.h) and, with its source, in docs/checks.md.
struct Rule {
    std::string_view id;
    Severity severity;
    std::string_view german, english;
};

struct Finding {
    const Rule* rule;
    std::string field;  // the property's path: "Vorgang.Versicherungsnummer"
    std::string value;
};

class Findings {
public:
    void add(const Rule& rule, std::string field, std::string_view value) {
        list_.push_back({&rule, std::move(field), std::string(value)});
    }
    bool has_errors() const {
        for (const Finding& f : list_)
            if (f.rule->severity == Severity::Error) return true;
        return false;
    }
    const std::vector<Finding>& list() const { return list_; }

private:
    std::vector<Finding> list_;
};

// "error VSNR-CHECKDIGIT Vorgang.Versicherungsnummer (65170839J004): insurance number: wrong check digit"
std::string describe(const Finding& f);

}  // namespace tamrel::checks
