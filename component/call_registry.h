// The table behind the call protocol: for each creatable class, its methods
// with their parameter names (required and optional) and how to invoke them.
#pragma once
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "component/json_binding.h"
#include "component/json_simd.h"
#include "core/host.h"

namespace tamrel {

// One call's arguments, read strictly by name and type, from a parsed
// nlohmann document or from simdjson's DOM (the fast path of call_line).
class Invocation {
public:
    Invocation(const nlohmann::json& args, const Host& host) : args_(&args), host_(host) {}
    Invocation(simdjson::dom::object args, const Host& host) : simd_(args), host_(host) {}

    const Host& host() const { return host_; }
    std::string str(const char* name) const;      // String parameter
    std::string opt_str(const char* name) const;  // optional String
    Date date(const char* name) const;            // optional Date
    std::int32_t verf(const char* name) const;    // VerfMerkmal
    std::int32_t enm(const char* name) const;     // other enumerations
    bool boolean(const char* name) const;
    template <class T>
    T object(std::string_view name) const {
        T v{};
        with_value(name,
                   [&](const auto& value, const json_binding::Path& path) { json_binding::read(value, v, path); });
        return v;
    }
    nlohmann::ordered_json& out() { return out_; }

private:
    bool has(std::string_view name) const;
    // Calls f(value, path) with the argument `name` through the adapter of
    // the document it is in.
    template <class F>
    void with_value(std::string_view name, F&& f) const {
        static const json_binding::Path args{nullptr, "args"};
        const json_binding::Path path{&args, name};
        if (args_) {
            f(json_binding::NlohmannValue{args_->at(name)}, path);
        } else {
            f(json_binding::SimdValue{simd_.at_key(name).value_unsafe()}, path);
        }
    }

    const nlohmann::json* args_ = nullptr;  // or, when null, simd_
    simdjson::dom::object simd_;
    const Host& host_;
    nlohmann::ordered_json out_ = nlohmann::ordered_json::object();
};

struct Method {
    std::vector<std::string> required;
    std::vector<std::string> optional;
    std::function<std::string(Invocation&)> run;
};

using ClassTable = std::map<std::string, Method, std::less<>>;
using Registry = std::map<std::string, ClassTable, std::less<>>;

const Registry& registry();

}  // namespace tamrel
