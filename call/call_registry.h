// The table behind the call protocol: for each creatable class, its methods
// with their parameter names (required and optional) and how to invoke them.
#pragma once
#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/host.h"
#include "core/short_bytes.h"
#include "json/json_binding.h"
#include "json/json_simd.h"
#include "json/scan_args.h"

namespace tamrel {

// One call's arguments, read strictly by name and type, from a parsed
// nlohmann document, from simdjson's DOM or by the scanner (the fast paths
// of call_line).
class Invocation {
public:
    Invocation(const nlohmann::json& args, const Host& host) : args_(&args), host_(host) {}
    // The arguments of a request read through simdjson's DOM, by name. Its
    // slots are left unmade until filled: it lives on every call's stack.
    class SimdArgs {
    public:
        static constexpr std::size_t kMax = 8;  // more than any method takes
        SimdArgs() {}
        // False when full.
        bool add(std::string_view name, simdjson::dom::element value) {
            if (count_ == kMax) return false;
            std::construct_at(&slots_[count_++], Slot{name, value});
            return true;
        }
        const simdjson::dom::element* find(std::string_view name) const {
            for (std::size_t i = 0; i < count_; ++i)
                if (bytes::equal(slots_[i].name, name)) return &slots_[i].value;
            return nullptr;
        }
        template <class F>
        bool all_names(F&& f) const {
            return std::all_of(slots_, slots_ + count_, [&](const Slot& s) { return f(s.name); });
        }

    private:
        struct Slot {
            std::string_view name;
            simdjson::dom::element value;
        };
        union {
            Slot slots_[kMax];
        };
        std::size_t count_ = 0;
    };
    Invocation(const SimdArgs& args, const Host& host) : simd_(&args), host_(host) {}
    Invocation(ScanArgs& args, const Host& host) : scan_(&args), host_(host) {}

    const Host& host() const { return host_; }
    std::string str(const char* name) const;      // String parameter
    std::string opt_str(const char* name) const;  // optional String
    Date date(const char* name) const;            // optional Date
    std::int32_t verf(const char* name) const;    // VerfMerkmal
    std::int32_t enm(const char* name) const;     // other enumerations
    bool boolean(const char* name) const;
    // The data object `name`, read into the one this thread keeps for its
    // type: emptied property by property, its texts and lists keep their
    // buffers from call to call. Valid until the thread reads the next one.
    template <class T>
    const T& object(std::string_view name) const {
        thread_local T kept{};
        static const T empty{};
        json_binding::reset(kept, empty);
        read_into(name, kept);
        return kept;
    }
    // The structure `name` read into `into`, which is empty.
    template <class T>
    void read_into(std::string_view name, T& into) const {
        with_value(name,
                   [&](const auto& value, const json_binding::Path& path) { json_binding::read(value, into, path); });
    }
    // What the method hands back through its by-reference parameters; null
    // until the first one is set (most methods have none, and an empty
    // object would cost an allocation on every call).
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
        } else if (scan_) {
            if (!scan_->with(name, [&](const json_binding::ScanValue& v) { f(v, path); }))
                json_binding::fail(path, "missing");  // left to the general path, which words it
        } else if (const simdjson::dom::element* e = simd_->find(name)) {
            f(json_binding::SimdValue{*e}, path);
        } else {
            json_binding::fail(path, "missing");
        }
    }

    // One of the three readers' arguments.
    const nlohmann::json* args_ = nullptr;
    const SimdArgs* simd_ = nullptr;
    ScanArgs* scan_ = nullptr;
    const Host& host_;
    nlohmann::ordered_json out_;
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
