// Every creatable class with its frame methods, and the methods whose
// procedure a build may not provide yet: those fail with a clear error
// rather than ever producing a wrong record. Each procedure's registration
// replaces its entries.
#include "component/bindings/common.h"
#include "component/call_registry.h"
#include "component/frame_specs.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel {
namespace {

class SpecFrames : public FrameGenerator {
public:
    SpecFrames(const FrameSpec& spec, Host host) : FrameGenerator(spec, std::move(host)) {}
};

std::string pending(const Host& host, const std::string& context) {
    HostScope scope(host);
    return routine(context, [&](int& line) -> std::string {
        line = 1;
        raise_not_available(context.substr(0, context.find('(')));
    });
}

void add_group_a(Registry& r, const std::string& cls, const FrameSpec& spec, const std::string& objName) {
    ClassTable& t = r[cls];
    t["GenVOSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strFirma", "enmVerfahren"}, {"strDatum", "datDate"},
                    [spec](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto firma = inv.str("strFirma");
                        auto verf = inv.verf("enmVerfahren");
                        auto datum = inv.opt_str("strDatum");
                        auto date = inv.date("datDate");
                        auto result = SpecFrames(spec, inv.host()).GenVOSZ(a, e, f, firma, verf, datum, date);
                        inv.out()["strDatum"] = datum;
                        return result;
                    }};
    t["GenDSKO"] = {{"udtDSKOData"}, {"datDate"}, [spec](Invocation& inv) {
                        auto dsko = inv.object<DSKOData>("udtDSKOData");
                        auto date = inv.date("datDate");
                        return SpecFrames(spec, inv.host()).GenDSKO(dsko, date);
                    }};
    t["GenData"] = pending_data(cls, objName);
    t["GenNCSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strCount"}, {"datDate"}, [spec](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto count = inv.str("strCount");
                        auto date = inv.date("datDate");
                        return SpecFrames(spec, inv.host()).GenNCSZ(a, e, f, count, date);
                    }};
}

void add_beitr_erh(Registry& r) {
    ClassTable& t = r["clsGenBeitrErh"];
    t["GenVOSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strFirma"}, {"strDatum", "datDate"}, [](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto firma = inv.str("strFirma");
                        auto datum = inv.opt_str("strDatum");
                        auto date = inv.date("datDate");
                        auto result = clsGenBeitrErh(inv.host()).GenVOSZ(a, e, f, firma, datum, date);
                        inv.out()["strDatum"] = datum;
                        return result;
                    }};
    t["GenDSKO"] = {{"udtDSKOData"}, {"datDate"}, [](Invocation& inv) {
                        auto dsko = inv.object<DSKOData>("udtDSKOData");
                        auto date = inv.date("datDate");
                        return clsGenBeitrErh(inv.host()).GenDSKO(dsko, date);
                    }};
    t["GenData"] = pending_data("clsGenBeitrErh", "objBeitrErh");
    t["GenNCSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strCount"}, {"datDate"}, [](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto count = inv.str("strCount");
                        auto date = inv.date("datDate");
                        return clsGenBeitrErh(inv.host()).GenNCSZ(a, e, f, count, date);
                    }};
}

void add_beitr_nachw(Registry& r) {
    ClassTable& t = r["clsGenBeitrNachw"];
    t["GenVOSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "enmVerfahren", "strFirma"},
                    {"strDatum", "datDate"},
                    [](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto verf = inv.enm("enmVerfahren");
                        auto firma = inv.str("strFirma");
                        auto datum = inv.opt_str("strDatum");
                        auto date = inv.date("datDate");
                        auto result = clsGenBeitrNachw(inv.host()).GenVOSZ(a, e, f, verf, firma, datum, date);
                        inv.out()["strDatum"] = datum;
                        return result;
                    }};
    t["GenDSKO"] = {{"udtDSKOData", "enmVerfahren"}, {"datDate"}, [](Invocation& inv) {
                        auto dsko = inv.object<DSKOData>("udtDSKOData");
                        auto verf = inv.enm("enmVerfahren");
                        auto date = inv.date("datDate");
                        return clsGenBeitrNachw(inv.host()).GenDSKO(dsko, verf, date);
                    }};
    t["GenData"] = {{"objBeitrNachw", "strBNRAb", "strBNRSt", "strVersion", "strMicroseconds"},
                    {"datDate"},
                    [](Invocation& inv) {
                        inv.str("strBNRAb"), inv.str("strBNRSt"), inv.str("strVersion"), inv.str("strMicroseconds");
                        auto date = inv.date("datDate");
                        return pending(inv.host(), call_text("clsGenBeitrNachw.GenData(", ObjArg{"objBeitrNachw"},
                                                             inv.str("strBNRAb"), inv.str("strBNRSt"),
                                                             inv.str("strVersion"), inv.str("strMicroseconds"), date));
                    }};
    t["GenNCSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strCount", "enmVerfahren"},
                    {"datDate"},
                    [](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto count = inv.str("strCount");
                        auto verf = inv.enm("enmVerfahren");
                        auto date = inv.date("datDate");
                        return clsGenBeitrNachw(inv.host()).GenNCSZ(a, e, f, count, verf, date);
                    }};
}

void add_asyl(Registry& r) {
    ClassTable& t = r["clsGenAsyl"];
    t["GenVOSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strFirma", "enmVerfahren"}, {"strDatum", "datDate"},
                    [](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto firma = inv.str("strFirma");
                        auto verf = inv.verf("enmVerfahren");
                        auto datum = inv.opt_str("strDatum");
                        auto date = inv.date("datDate");
                        auto result = clsGenAsyl(inv.host()).GenVOSZ(a, e, f, firma, verf, datum, date);
                        inv.out()["strDatum"] = datum;
                        return result;
                    }};
    t["GenData"] = pending_data("clsGenAsyl", "objAsyl");
    t["GenNCSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strCount"}, {"datDate"}, [](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto count = inv.str("strCount");
                        auto date = inv.date("datDate");
                        return clsGenAsyl(inv.host()).GenNCSZ(a, e, f, count, date);
                    }};
}

void add_proto_entry(Registry& r) {
    struct P {
        const char* method;
        const char* obj;
        const char* context;
    };
    static constexpr P methods[] = {
        {"CreateProtoBeitr", "objBeitrNachw", "clsProtocol.CreateProtoBeitr"},
        {"CreateProtoMeld", "objMeldung", "clsProtocol.CreateProtoMeld"},
        {"CreateProtoBeitrErh", "objBeitrErh", "clsProtoEntry.CreateProtoBeitrErh("},
        {"CreateProtoErst", "objErst", "clsProtoEntry.CreateProtoErst("},
        {"CreateProtoZahl", "objZahl", "clsProtoEntry.CreateProtoZahl("},
        {"CreateProtoBetrieb", "objBetrieb", "clsProtoEntry.CreateProtoBetrieb("},
        {"CreateProtoEntgelt", "objEntgelt", "clsProtoEntry.CreateProtoEntgelt("},
        {"CreateProtoArbeitsBesch", "objArbeitsBesch", "clsProtoEntry.CreateProtoArbeitsBesch("},
        {"CreateProtoAbfrVers", "objAbfrVers", "clsProtoEntry.CreateProtoAbfrVers("},
        {"CreateProtoAbfrStammdatenUV", "objAbfrStammdatenUV", "clsProtoEntry.CreateProtoAbfrStammdatenUV("},
        {"CreateProtoLohnnachweis", "objLohnnachweis", "clsProtoEntry.CreateProtoLohnnachweis("},
    };
    ClassTable& t = r["clsProtoEntry"];
    for (const P& p : methods) {
        t[p.method] = {{p.obj, "blnError"}, {"strErrText"}, [p](Invocation& inv) {
                           bool err = inv.boolean("blnError");
                           auto text = inv.opt_str("strErrText");
                           std::string ctx = p.context;
                           if (ctx.back() == '(') ctx = call_text(ctx, ObjArg{p.obj}, err, text);
                           return pending(inv.host(), ctx);
                       }};
    }
}

}  // namespace

Method pending_data(const std::string& cls, const std::string& objName) {
    return {{objName, "udtDatensatzData"}, {"datDate"}, [cls, objName](Invocation& inv) {
                inv.object<DatensatzData>("udtDatensatzData");
                auto date = inv.date("datDate");
                return pending(inv.host(), call_text(cls + ".GenData(", ObjArg{objName.c_str()},
                                                     ObjArg{"udtDatensatzData"}, date));
            }};
}

void register_frames_and_pending(Registry& r) {
    add_beitr_nachw(r);
    add_beitr_erh(r);
    add_group_a(r, "clsGenErst", frames::kErst, "objErst");
    add_group_a(r, "clsGenZahl", frames::kZahl, "objZahl");
    add_group_a(r, "clsGenBetrieb", frames::kBetrieb, "objBetrieb");
    add_proto_entry(r);
    add_group_a(r, "clsGenArbeitsBesch", frames::kArbeitsBesch, "objArbeitsBesch");
    add_group_a(r, "clsGenEntgelt", frames::kEntgelt, "objEntgelt");
    add_group_a(r, "clsGenAbfrVers", frames::kAbfrVers, "objAbfrVers");
    add_asyl(r);
    add_group_a(r, "clsGenAbfrStammdatenUV", frames::kAbfrStammdatenUV, "objAbfrStammdatenUV");
    add_group_a(r, "clsGenLohnnachweis", frames::kLohnnachweis, "objLohnnachweis");
}

}  // namespace tamrel
