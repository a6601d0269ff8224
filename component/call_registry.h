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
#include "core/host.h"

namespace tamrel {

// One call's arguments, read strictly by name and type.
class Invocation {
public:
    Invocation(const nlohmann::json& args, const Host& host) : args_(args), host_(host) {}

    const Host& host() const { return host_; }
    std::string str(const char* name) const;      // String parameter
    std::string opt_str(const char* name) const;  // optional String
    Date date(const char* name) const;            // optional Date
    std::int32_t verf(const char* name) const;    // VerfMerkmal
    std::int32_t enm(const char* name) const;     // other enumerations
    bool boolean(const char* name) const;
    template <class T>
    T object(std::string_view name) const {
        static const json_binding::Path args{nullptr, "args"};
        T v{};
        json_binding::read(json_binding::NlohmannValue{args_.at(name)}, v, json_binding::Path{&args, name});
        return v;
    }
    nlohmann::ordered_json& out() { return out_; }

private:
    const nlohmann::json& args_;
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
