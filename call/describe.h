// Builds a procedure's descriptor from its class, data object, forms and
// protocol method: the typed frame calls, GenData and the protocol method as
// the call protocol invokes them, and the report runner.
#pragma once
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include "call/call_registry.h"
#include "call/layout_rule_binding.h"
#include "call/procedure.h"
#include "call/typed_runner.h"
#include "checks/rules.h"
#include "core/objects_properties.h"
#include "json/field_table.h"
#include "json/property_list.h"
#include "json/text_properties.h"
#include "protocol/clsProtoEntry.h"
#include "xml/clsGenAsyl/markup_check.h"

namespace tamrel {

// GenData's arguments besides the data object, read in the order of its
// parameter list.
RunnerSettings read_data_args(Invocation& inv, DataForm form);

// Findings as the call protocol answers them: one object each, with rule,
// severity, field, value and the German and English messages.
nlohmann::ordered_json finding_json(const checks::Finding& x);
nlohmann::ordered_json findings_json(const checks::Findings& f);

namespace describing {

template <class Gen, FrameForm F>
struct FrameCalls {
    static std::string vosz(const Host& h, FrameValues& v) {
        const Gen g(h);
        if constexpr (F == FrameForm::BeitrErh)
            return g.GenVOSZ(v.strBNRAb, v.strBNREm, v.strFileNr, v.strFirma, v.strDatum, v.datDate);
        else if constexpr (F == FrameForm::BeitrNachw)
            return g.GenVOSZ(v.strBNRAb, v.strBNREm, v.strFileNr, v.enmVerfahren, v.strFirma, v.strDatum, v.datDate);
        else
            return g.GenVOSZ(v.strBNRAb, v.strBNREm, v.strFileNr, v.strFirma, v.enmVerfahren, v.strDatum, v.datDate);
    }
    static std::string dsko(const Host& h, FrameValues& v) {
        if constexpr (F == FrameForm::BeitrNachw)
            return Gen(h).GenDSKO(v.udtDSKOData, v.enmVerfahren, v.datDate);
        else
            return Gen(h).GenDSKO(v.udtDSKOData, v.datDate);
    }
    static std::string ncsz(const Host& h, const FrameValues& v, std::string_view strCount) {
        if constexpr (F == FrameForm::Meldung || F == FrameForm::BeitrNachw)
            return Gen(h).GenNCSZ(v.strBNRAb, v.strBNREm, v.strFileNr, strCount, v.enmVerfahren, v.datDate);
        else
            return Gen(h).GenNCSZ(v.strBNRAb, v.strBNREm, v.strFileNr, strCount, v.datDate);
    }
};

template <class Gen, class Obj, DataForm D>
std::string gen_data(const ProcedureDescriptor& p, Invocation& inv) {
    const Obj& obj = inv.object<Obj>(p.objParam);
    RunnerSettings s = read_data_args(inv, D);
    Gen gen(inv.host());
    return call_gen_data<D>(gen, obj, s, s.datensatz);
}

template <class Obj, auto Proto>
std::string create_proto(const ProcedureDescriptor& p, Invocation& inv) {
    const Obj& obj = inv.object<Obj>(p.objParam);
    const bool error = inv.boolean("blnError");
    const std::string text = inv.opt_str("strErrText");
    return (clsProtoEntry(inv.host()).*Proto)(obj, error, text);
}

// An XML report's texts go into its document as they are: each one that
// holds a markup character is a finding (the file writer refuses it).
template <class Obj>
void check_markup(const Obj& obj, checks::Findings& f) {
    json_binding::each_text(obj, std::string(), [&](const std::string& name, std::string_view value) {
        if (xml::holds_markup(value)) f.add(checks::kMarkup, name, value);
        return false;
    });
}

// The findings go to out.findings; the result is empty.
template <class Obj>
std::string check(const ProcedureDescriptor& p, Invocation& inv) {
    const Obj& obj = inv.object<Obj>(p.objParam);
    checks::Findings f;
    checks::check_report(obj, f);
    checks::check_by_layout(bind_layout_rules(p.records, obj), f);
    if (p.xml()) check_markup(obj, f);
    inv.out()["findings"] = findings_json(f);
    return {};
}

// The reasons of a class's block table.
template <class Gen>
std::vector<std::string> reasons() {
    std::vector<std::string> out;
    constexpr std::string_view table = Gen::kBlockTable;
    for (std::size_t at = 0; at + Gen::kBlockTableEntry <= table.size(); at += Gen::kBlockTableEntry)
        out.emplace_back(table.substr(at, 2));
    return out;
}

template <class Gen, class Obj, DataForm D, auto Proto>
std::unique_ptr<ReportRunner> runner(const ProcedureDescriptor& p, const RunnerSettings& s) {
    return std::make_unique<Runner<Gen, Obj, D, Proto>>(s, p.objParam);
}

}  // namespace describing

// The descriptor of generator class `Gen` with data object `Obj`; `Proto` is
// its clsProtoEntry method (named `protoMethod`), or nullptr.
template <class Gen, class Obj, FrameForm F, DataForm D, auto Proto>
constexpr ProcedureDescriptor describe(std::string_view cls, std::string_view objParam, std::string_view protoMethod) {
    using Frames = describing::FrameCalls<Gen, F>;
    ProcedureDescriptor d{cls, objParam, protoMethod, F, D, Gen::kRecords};
    d.GenVOSZ = &Frames::vosz;
    if constexpr (F != FrameForm::Xml) d.GenDSKO = &Frames::dsko;
    d.GenNCSZ = &Frames::ncsz;
    d.GenData = &describing::gen_data<Gen, Obj, D>;
    if constexpr (!std::is_same_v<decltype(Proto), std::nullptr_t>)
        d.CreateProto = &describing::create_proto<Obj, Proto>;
    d.Check = &describing::check<Obj>;
    d.Properties = &property_rows<Obj>;
    d.runner = &describing::runner<Gen, Obj, D, Proto>;
    if constexpr (requires { Gen::kReasonProperty; }) {
        d.reasonProperty = Gen::kReasonProperty;
        d.reasons = &describing::reasons<Gen>;
    }
    return d;
}

}  // namespace tamrel
