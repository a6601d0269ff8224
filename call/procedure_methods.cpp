#include "call/procedure_methods.h"

#include "call/describe.h"

namespace tamrel {
namespace {

std::int32_t read_verfahren(Invocation& inv, const ProcedureDescriptor& p) {
    return p.integer_verfahren() ? inv.enm("enmVerfahren") : inv.verf("enmVerfahren");
}

// Whether enmVerfahren is a parameter of GenVOSZ, GenDSKO and GenNCSZ.
bool vosz_takes_verfahren(FrameForm f) { return f != FrameForm::BeitrErh; }
bool dsko_takes_verfahren(FrameForm f) { return f == FrameForm::BeitrNachw; }
bool ncsz_takes_verfahren(FrameForm f) { return f == FrameForm::Meldung || f == FrameForm::BeitrNachw; }

// strBNRAb, strBNREm, strFileNr and `text`, enmVerfahren at `verf_at` where
// the method takes it.
std::vector<std::string> frame_params(const char* text, bool verf, std::size_t verf_at) {
    std::vector<std::string> names{"strBNRAb", "strBNREm", "strFileNr", text};
    if (verf) names.insert(names.begin() + static_cast<std::ptrdiff_t>(verf_at), "enmVerfahren");
    return names;
}

void read_frame_texts(Invocation& inv, FrameValues& v) {
    v.strBNRAb = inv.str("strBNRAb");
    v.strBNREm = inv.str("strBNREm");
    v.strFileNr = inv.str("strFileNr");
}

// GenVOSZ hands the date it used back in strDatum.
Method vosz(const ProcedureDescriptor& p) {
    const bool verf = vosz_takes_verfahren(p.frames);
    return {frame_params("strFirma", verf, p.frames == FrameForm::BeitrNachw ? 3 : 4),
            {"strDatum", "datDate"},
            [&p, verf](Invocation& inv) {
                FrameValues v;
                read_frame_texts(inv, v);
                v.strFirma = inv.str("strFirma");
                if (verf) v.enmVerfahren = read_verfahren(inv, p);
                v.strDatum = inv.opt_str("strDatum");
                v.datDate = inv.date("datDate");
                std::string result = p.GenVOSZ(inv.host(), v);
                inv.out()["strDatum"] = v.strDatum;
                return result;
            }};
}

Method dsko(const ProcedureDescriptor& p) {
    const bool verf = dsko_takes_verfahren(p.frames);
    std::vector<std::string> params{"udtDSKOData"};
    if (verf) params.emplace_back("enmVerfahren");
    return {params, {"datDate"}, [&p, verf](Invocation& inv) {
                FrameValues v;
                inv.read_into("udtDSKOData", v.udtDSKOData);
                if (verf) v.enmVerfahren = read_verfahren(inv, p);
                v.datDate = inv.date("datDate");
                return p.GenDSKO(inv.host(), v);
            }};
}

Method ncsz(const ProcedureDescriptor& p) {
    const bool verf = ncsz_takes_verfahren(p.frames);
    return {frame_params("strCount", verf, 4), {"datDate"}, [&p, verf](Invocation& inv) {
                FrameValues v;
                read_frame_texts(inv, v);
                const std::string count = inv.str("strCount");
                if (verf) v.enmVerfahren = read_verfahren(inv, p);
                v.datDate = inv.date("datDate");
                return p.GenNCSZ(inv.host(), v, count);
            }};
}

std::vector<std::string> data_params(const ProcedureDescriptor& p) {
    const std::string obj(p.objParam);
    switch (p.data) {
        case DataForm::BeitrNachw:
            return {obj, "strBNRAb", "strBNRSt", "strVersion", "strMicroseconds"};
        case DataForm::WithVerfahren:
            return {obj, "udtDatensatzData", "enmVerfahren"};
        case DataForm::Common:
            break;
    }
    return {obj, "udtDatensatzData"};
}

}  // namespace

nlohmann::ordered_json finding_json(const checks::Finding& x) {
    return {
        {"rule", x.rule->id},        {"severity", x.rule->severity == checks::Severity::Error ? "error" : "warning"},
        {"field", x.field},          {"value", x.value},
        {"message", x.rule->german}, {"message_en", x.rule->english}};
}

nlohmann::ordered_json findings_json(const checks::Findings& f) {
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const checks::Finding& x : f.list()) list.push_back(finding_json(x));
    return list;
}

RunnerSettings read_data_args(Invocation& inv, DataForm form) {
    RunnerSettings s{&inv.host(), {}, 0, {}};
    if (form == DataForm::BeitrNachw) {
        s.datensatz.strBNRAb = inv.str("strBNRAb");
        s.datensatz.strBNRSt = inv.str("strBNRSt");
        s.datensatz.strVersion = inv.str("strVersion");
        s.datensatz.strMicroseconds = inv.str("strMicroseconds");
    } else {
        inv.read_into("udtDatensatzData", s.datensatz);
    }
    if (form == DataForm::WithVerfahren) s.verfahren = inv.verf("enmVerfahren");
    s.date = inv.date("datDate");
    return s;
}

FrameValues read_frame_values(Invocation& inv, const ProcedureDescriptor& p) {
    FrameValues v;
    read_frame_texts(inv, v);
    v.strFirma = inv.str("strFirma");
    v.strDatum = inv.opt_str("strDatum");
    v.enmVerfahren = read_verfahren(inv, p);
    v.datDate = inv.date("datDate");
    inv.read_into("udtDSKOData", v.udtDSKOData);
    return v;
}

void add_methods(Registry& r, const ProcedureDescriptor& p) {
    ClassTable& t = r[std::string(p.cls)];
    t["GenVOSZ"] = vosz(p);
    if (p.GenDSKO) t["GenDSKO"] = dsko(p);
    t["GenNCSZ"] = ncsz(p);
    t["GenData"] = {data_params(p), {"datDate"}, [&p](Invocation& inv) { return p.GenData(p, inv); }};
    t["Check"] = {{std::string(p.objParam)}, {}, [&p](Invocation& inv) { return p.Check(p, inv); }};
    if (p.CreateProto)
        r["clsProtoEntry"][std::string(p.protoMethod)] = {{std::string(p.objParam), "blnError"},
                                                          {"strErrText"},
                                                          [&p](Invocation& inv) { return p.CreateProto(p, inv); }};
}

}  // namespace tamrel
