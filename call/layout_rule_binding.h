// The layout rules of a class's data records (checks/layout_rules.h) bound to the members
// of one data object: once per report runner, whose object every report is
// read into, or per call for the call protocol's Check.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "checks/layout_rules.h"
#include "json/text_properties.h"

namespace tamrel {

template <class Obj>
std::vector<checks::LayoutRule> bind_layout_rules(std::span<const RecordLayout* const> records, const Obj& obj) {
    std::vector<checks::LayoutRule> rules;
    auto bind = [&](auto& member, const json_binding::TextPlace& at) {
        const FieldLayout* field = checks::ruled_field(records, at.text());
        if (!field) return;
        checks::LayoutRule rule{field};
        using M = std::remove_reference_t<decltype(member)>;
        if constexpr (std::is_same_v<M, std::string>)
            rule.text = &member;
        else if constexpr (std::is_same_v<M, std::int32_t>)
            rule.int32 = &member;
        else
            rule.int16 = &member;
        rules.push_back(rule);
    };
    // The walk hands out members to change; the rules only read them.
    json_binding::each_scalar(const_cast<Obj&>(obj), nullptr, bind);
    return rules;
}

}  // namespace tamrel
