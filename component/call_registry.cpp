#include "component/call_registry.h"

#include "component/procedure_methods.h"

namespace tamrel {

using json_binding::fail;
using json_binding::Path;

namespace {
const Path kArgs{nullptr, "args"};
}

std::string Invocation::str(const char* name) const {
    std::string v;
    json_binding::read(json_binding::NlohmannValue{args_.at(name)}, v, Path{&kArgs, name});
    return v;
}

std::string Invocation::opt_str(const char* name) const {
    if (!args_.contains(name)) return {};  // left out; null is not a String
    return str(name);
}

Date Invocation::date(const char* name) const {
    if (!args_.contains(name) || args_.at(name).is_null()) return {};
    const auto& j = args_.at(name);
    const Path path{&kArgs, name};
    if (!j.is_string()) fail(path, "expected a date text");
    auto d = parse_iso_date(j.get_ref<const std::string&>());
    if (!d) fail(path, "expected \"YYYY-MM-DD\" or \"YYYY-MM-DDTHH:MM:SS\"");
    return *d;
}

std::int32_t Invocation::verf(const char* name) const {
    const auto& j = args_.at(name);
    if (j.is_string()) {
        const auto& s = j.get_ref<const std::string&>();
        if (s == "vmNormal") return 0;
        if (s == "vmSofort") return 1;
        if (s == "vmBV") return 2;
        fail(Path{&kArgs, name}, "expected an integer or one of \"vmNormal\", \"vmSofort\", \"vmBV\"");
    }
    return enm(name);
}

std::int32_t Invocation::enm(const char* name) const {
    std::int32_t v = 0;
    json_binding::read(json_binding::NlohmannValue{args_.at(name)}, v, Path{&kArgs, name});
    return v;
}

bool Invocation::boolean(const char* name) const {
    bool v = false;
    json_binding::read(json_binding::NlohmannValue{args_.at(name)}, v, Path{&kArgs, name});
    return v;
}

const Registry& registry() {
    static const Registry r = [] {
        Registry reg;
        for (const ProcedureDescriptor& p : procedures()) add_methods(reg, p);
        return reg;
    }();
    return r;
}

}  // namespace tamrel
