#include "call/call_registry.h"

#include "call/procedure_methods.h"

namespace tamrel {

using json_binding::fail;
using json_binding::Path;

bool Invocation::has(std::string_view name) const {
    if (args_) return args_->contains(name);
    return scan_ ? scan_->has(name) : simd_->find(name) != nullptr;
}

std::string Invocation::str(const char* name) const {
    std::string v;
    with_value(name, [&](const auto& value, const Path& path) { json_binding::read(value, v, path); });
    return v;
}

std::string Invocation::opt_str(const char* name) const {
    if (!has(name)) return {};  // left out; null is not a String
    return str(name);
}

Date Invocation::date(const char* name) const {
    if (!has(name)) return {};
    Date d;
    with_value(name, [&](const auto& value, const Path& path) {
        if (value.is_null()) return;
        if (!value.is_string()) fail(path, "expected a date text");
        auto parsed = parse_iso_date(value.string());
        if (!parsed) fail(path, "expected \"YYYY-MM-DD\" or \"YYYY-MM-DDTHH:MM:SS\"");
        d = *parsed;
    });
    return d;
}

std::int32_t Invocation::verf(const char* name) const {
    std::int32_t v = -1;
    bool named = false;
    with_value(name, [&](const auto& value, const Path& path) {
        if (!value.is_string()) return;
        named = true;
        const std::string_view s = value.string();
        if (s == "vmNormal")
            v = 0;
        else if (s == "vmSofort")
            v = 1;
        else if (s == "vmBV")
            v = 2;
        else
            fail(path, "expected an integer or one of \"vmNormal\", \"vmSofort\", \"vmBV\"");
    });
    return named ? v : enm(name);
}

std::int32_t Invocation::enm(const char* name) const {
    std::int32_t v = 0;
    with_value(name, [&](const auto& value, const Path& path) { json_binding::read(value, v, path); });
    return v;
}

bool Invocation::boolean(const char* name) const {
    bool v = false;
    with_value(name, [&](const auto& value, const Path& path) { json_binding::read(value, v, path); });
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
