// The frame methods of every creatable class; each procedure's own
// registration adds GenData and its protocol line.
#include "component/bindings/common.h"
#include "component/call_registry.h"
#include "component/frame_codes.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel {
namespace {

class SpecFrames : public FrameGenerator {
public:
    SpecFrames(const FrameSpec& spec, Host host) : FrameGenerator(spec, std::move(host)) {}
};

// The frame methods' common reading: the four frame texts, then the
// class-specific arguments, then the optional strDatum and datDate.
struct FrameArgs {
    std::string a, e, f, text;  // strBNRAb, strBNREm, strFileNr, strFirma or strCount
    std::int32_t verf = 0;
    std::string datum;
    Date date;
};

enum class Verf { None, VerfMerkmal, Integer };

FrameArgs read_frame(Invocation& inv, const char* text, Verf verf) {
    FrameArgs f;
    f.a = inv.str("strBNRAb");
    f.e = inv.str("strBNREm");
    f.f = inv.str("strFileNr");
    f.text = inv.str(text);
    if (verf == Verf::VerfMerkmal) f.verf = inv.verf("enmVerfahren");
    if (verf == Verf::Integer) f.verf = inv.enm("enmVerfahren");
    f.datum = inv.opt_str("strDatum");
    f.date = inv.date("datDate");
    return f;
}

std::vector<std::string> frame_params(std::vector<std::string> names, Verf verf, std::size_t enm_position) {
    if (verf != Verf::None) names.insert(names.begin() + static_cast<std::ptrdiff_t>(enm_position), "enmVerfahren");
    return names;
}

// GenVOSZ: hands the date that was used back in strDatum.
Method vosz(Verf verf, std::size_t enm_position, std::function<std::string(const Host&, FrameArgs&)> gen) {
    return {frame_params({"strBNRAb", "strBNREm", "strFileNr", "strFirma"}, verf, enm_position),
            {"strDatum", "datDate"},
            [verf, gen](Invocation& inv) {
                FrameArgs f = read_frame(inv, "strFirma", verf);
                std::string result = gen(inv.host(), f);
                inv.out()["strDatum"] = f.datum;
                return result;
            }};
}

Method ncsz(Verf verf, std::function<std::string(const Host&, FrameArgs&)> gen) {
    return {frame_params({"strBNRAb", "strBNREm", "strFileNr", "strCount"}, verf, 4), {"datDate"},
            [verf, gen](Invocation& inv) {
                FrameArgs f = read_frame(inv, "strCount", verf);
                return gen(inv.host(), f);
            }};
}

Method dsko(bool with_verf, std::function<std::string(const Host&, DSKOData&, std::int32_t, const Date&)> gen) {
    std::vector<std::string> params{"udtDSKOData"};
    if (with_verf) params.push_back("enmVerfahren");
    return {params, {"datDate"}, [with_verf, gen](Invocation& inv) {
                auto d = inv.object<DSKOData>("udtDSKOData");
                std::int32_t verf = with_verf ? inv.enm("enmVerfahren") : 0;
                auto date = inv.date("datDate");
                return gen(inv.host(), d, verf, date);
            }};
}

void add_group_a(Registry& r, const std::string& cls, const FrameSpec& spec) {
    ClassTable& t = r[cls];
    t["GenVOSZ"] = vosz(Verf::VerfMerkmal, 4, [spec](const Host& h, FrameArgs& f) {
        return SpecFrames(spec, h).GenVOSZ(f.a, f.e, f.f, f.text, f.verf, f.datum, f.date);
    });
    t["GenDSKO"] = dsko(false, [spec](const Host& h, DSKOData& d, std::int32_t, const Date& date) {
        return SpecFrames(spec, h).GenDSKO(d, date);
    });
    t["GenNCSZ"] = ncsz(Verf::None, [spec](const Host& h, FrameArgs& f) {
        return SpecFrames(spec, h).GenNCSZ(f.a, f.e, f.f, f.text, f.date);
    });
}

void add_meldung(Registry& r) {
    ClassTable& t = r["clsGenMeldung"];
    t["GenVOSZ"] = vosz(Verf::VerfMerkmal, 4, [](const Host& h, FrameArgs& f) {
        return clsGenMeldung(h).GenVOSZ(f.a, f.e, f.f, f.text, f.verf, f.datum, f.date);
    });
    t["GenDSKO"] = dsko(false, [](const Host& h, DSKOData& d, std::int32_t, const Date& date) {
        return clsGenMeldung(h).GenDSKO(d, date);
    });
    t["GenNCSZ"] = ncsz(Verf::VerfMerkmal, [](const Host& h, FrameArgs& f) {
        return clsGenMeldung(h).GenNCSZ(f.a, f.e, f.f, f.text, f.verf, f.date);
    });
}

void add_beitr_erh(Registry& r) {
    ClassTable& t = r["clsGenBeitrErh"];
    t["GenVOSZ"] = vosz(Verf::None, 0, [](const Host& h, FrameArgs& f) {
        return clsGenBeitrErh(h).GenVOSZ(f.a, f.e, f.f, f.text, f.datum, f.date);
    });
    t["GenDSKO"] = dsko(false, [](const Host& h, DSKOData& d, std::int32_t, const Date& date) {
        return clsGenBeitrErh(h).GenDSKO(d, date);
    });
    t["GenNCSZ"] = ncsz(Verf::None, [](const Host& h, FrameArgs& f) {
        return clsGenBeitrErh(h).GenNCSZ(f.a, f.e, f.f, f.text, f.date);
    });
}

void add_beitr_nachw(Registry& r) {
    ClassTable& t = r["clsGenBeitrNachw"];
    t["GenVOSZ"] = vosz(Verf::Integer, 3, [](const Host& h, FrameArgs& f) {
        return clsGenBeitrNachw(h).GenVOSZ(f.a, f.e, f.f, f.verf, f.text, f.datum, f.date);
    });
    t["GenDSKO"] = dsko(true, [](const Host& h, DSKOData& d, std::int32_t verf, const Date& date) {
        return clsGenBeitrNachw(h).GenDSKO(d, verf, date);
    });
    t["GenNCSZ"] = ncsz(Verf::Integer, [](const Host& h, FrameArgs& f) {
        return clsGenBeitrNachw(h).GenNCSZ(f.a, f.e, f.f, f.text, f.verf, f.date);
    });
}

void add_asyl(Registry& r) {
    ClassTable& t = r["clsGenAsyl"];
    t["GenVOSZ"] = vosz(Verf::VerfMerkmal, 4, [](const Host& h, FrameArgs& f) {
        return clsGenAsyl(h).GenVOSZ(f.a, f.e, f.f, f.text, f.verf, f.datum, f.date);
    });
    t["GenNCSZ"] = ncsz(Verf::None, [](const Host& h, FrameArgs& f) {
        return clsGenAsyl(h).GenNCSZ(f.a, f.e, f.f, f.text, f.date);
    });
}

}  // namespace

void register_frames(Registry& r) {
    add_beitr_nachw(r);
    add_beitr_erh(r);
    add_meldung(r);
    add_group_a(r, "clsGenErst", frames::kErst);
    add_group_a(r, "clsGenZahl", frames::kZahl);
    add_group_a(r, "clsGenBetrieb", frames::kBetrieb);
    add_group_a(r, "clsGenArbeitsBesch", frames::kArbeitsBesch);
    add_group_a(r, "clsGenEntgelt", frames::kEntgelt);
    add_group_a(r, "clsGenAbfrVers", frames::kAbfrVers);
    add_asyl(r);
    add_group_a(r, "clsGenAbfrStammdatenUV", frames::kAbfrStammdatenUV);
    add_group_a(r, "clsGenLohnnachweis", frames::kLohnnachweis);
}

}  // namespace tamrel
