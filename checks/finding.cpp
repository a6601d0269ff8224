#include "checks/finding.h"

#include "core/printable.h"

namespace tamrel::checks {

std::string describe(const Finding& f) {
    // No quotes: the text may end up in a protocol line, which has its own.
    return std::string(f.rule->severity == Severity::Error ? "error " : "warning ") + std::string(f.rule->id) + " " +
           f.field + (f.value.empty() ? std::string() : " (" + printable(f.value) + ")") + ": " +
           std::string(f.rule->english);
}

}  // namespace tamrel::checks
