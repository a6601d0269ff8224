// The simdjson adapter of the JSON binding (see json_binding.h): tamrel
// generate reads a report with simdjson's DOM parser, which validates the
// text (UTF-8 included) and leaves the values readable in any order,
// whenever the scanner of json_scan.h gives up on it; it is the reference
// the scanner is held to.
#pragma once
#include <cstdint>
#include <string_view>

#include <simdjson.h>

namespace tamrel::json_binding {

struct SimdValue {
    simdjson::dom::element e;
    using type = simdjson::dom::element_type;

    bool is_null() const { return e.type() == type::NULL_VALUE; }
    bool is_string() const { return e.type() == type::STRING; }
    std::string_view string() const { return e.get_string().value_unsafe(); }
    bool get_string(std::string_view& out) const { return e.get_string().get(out) == simdjson::SUCCESS; }
    bool is_bool() const { return e.type() == type::BOOL; }
    bool boolean() const { return e.get_bool().value_unsafe(); }
    bool is_integer() const { return e.type() == type::INT64 || e.type() == type::UINT64; }
    bool integer(std::int64_t lo, std::int64_t hi, std::int64_t& out) const {
        if (e.type() == type::UINT64) {
            const std::uint64_t u = e.get_uint64().value_unsafe();
            if (u > static_cast<std::uint64_t>(hi)) return false;
            out = static_cast<std::int64_t>(u);
            return out >= lo;
        }
        out = e.get_int64().value_unsafe();
        return out >= lo && out <= hi;
    }
    bool is_array() const { return e.type() == type::ARRAY; }
    std::size_t size() const {
        const simdjson::dom::array a = e.get_array().value_unsafe();
        return a.size();
    }
    template <class F>
    void each_element(F&& f) const {
        simdjson::dom::array a = e.get_array().value_unsafe();
        for (simdjson::dom::element x : a) f(SimdValue{x});
    }
    bool is_object() const { return e.type() == type::OBJECT; }
    template <class F>
    void each_member(F&& f) const {
        simdjson::dom::object o = e.get_object().value_unsafe();
        for (simdjson::dom::key_value_pair kv : o) f(kv.key, SimdValue{kv.value});
    }
};

}  // namespace tamrel::json_binding
