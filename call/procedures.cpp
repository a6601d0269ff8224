#include <vector>

#include "call/procedure.h"
#include "call/procedures/families.h"
#include "call/report_runner.h"

namespace tamrel {

std::span<const ProcedureDescriptor> procedures() {
    static const std::vector<ProcedureDescriptor> all = [] {
        std::vector<ProcedureDescriptor> v;
        for (auto family : {families::reports(), families::queries(), families::certificates(), families::xml()})
            v.insert(v.end(), family.begin(), family.end());
        return v;
    }();
    return all;
}

const ProcedureDescriptor* find_procedure(std::string_view cls) {
    for (const ProcedureDescriptor& p : procedures())
        if (p.cls == cls) return &p;
    return nullptr;
}

std::unique_ptr<ReportRunner> make_runner(std::string_view cls, const RunnerSettings& settings) {
    const ProcedureDescriptor* p = find_procedure(cls);
    return p ? p->runner(*p, settings) : nullptr;
}

}  // namespace tamrel
