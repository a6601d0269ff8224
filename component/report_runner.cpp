#include "component/report_runner.h"

#include <functional>

#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "component/bindings/Asyl.h"
#include "component/bindings/BeitrErh.h"
#include "component/bindings/BeitrNachw.h"
#include "component/bindings/Meldung.h"
#include "component/bindings/certificates.h"
#include "component/bindings/payments.h"
#include "component/bindings/queries.h"
#include "component/json_scan.h"
#include "component/json_simd.h"
#include "component/text_properties.h"
#include "protocol/clsProtoEntry.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "reports/clsGenErst/clsGenErst.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "reports/clsGenZahl/clsGenZahl.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel {
namespace {

using json_binding::Path;

const Path kArgs{nullptr, "args"};

template <class Gen, class Obj>
class Runner : public ReportRunner {
public:
    using Data = std::function<std::string(Gen&, const Obj&, const RunnerSettings&)>;
    using Proto = std::string (clsProtoEntry::*)(const Obj&, bool, std::string_view) const;

    Runner(const RunnerSettings& s, const char* objParam, Data data, Proto proto)
        : settings_(s), path_{&kArgs, objParam}, gen_(*s.host), proto_entry_(*s.host), data_(std::move(data)),
          proto_(proto) {}

    // The scanner first; a report it cannot vouch for (an error as a rule)
    // is read again through simdjson's DOM, which gives the result or the
    // error. Text with escapes (JSON written with every non-ASCII character
    // escaped, say) goes to the DOM straight away, without the cost of a
    // scan given up.
    void read_text(std::string_view text) override {
        if (text.find('\\') == std::string_view::npos && simdjson::validate_utf8(text.data(), text.size())) {
            try {
                read_scanned(text);
                return;
            } catch (const json_binding::ScanMiss&) {
            } catch (const json_binding::RequestError&) {
            }
        }
        read_text_reference(text);
    }
    void read_text_reference(std::string_view text) override {
        simdjson::dom::element doc;
        if (auto error = parser_.parse(text.data(), text.size()).get(doc))
            throw json_binding::RequestError(std::string("not valid JSON: ") + simdjson::error_message(error));
        read_value(json_binding::SimdValue{doc});
    }
    void read(const nlohmann::json& report) override { read_value(json_binding::NlohmannValue{report}); }
    std::string data() override { return data_(gen_, obj_, settings_); }
    std::string protocol(bool error, std::string_view text) override {
        return proto_ ? (proto_entry_.*proto_)(obj_, error, text) : std::string();
    }
    void clear() override {
        static const Obj empty{};
        json_binding::reset(obj_, empty);
    }
    Text find_text(const std::function<bool(std::string_view)>& test) const override {
        Text found;
        json_binding::each_text(obj_, std::string(), [&](const std::string& name, std::string_view value) {
            if (!test(value)) return false;
            found = {name, std::string(value)};
            return true;
        });
        return found;
    }

private:
    // Text of valid UTF-8 without escapes.
    void read_scanned(std::string_view text) {
        padded_.assign(text);
        padded_.append(json_binding::kScanPadding, '\0');
        const char* at = padded_.data();
        const json_binding::ScanValue root{&at};
        read_value(root);
        if (root.peek() != '\0' || at != padded_.data() + text.size()) throw json_binding::ScanMiss{};
    }

    template <class V>
    void read_value(const V& v) {
        clear();
        json_binding::read(v, obj_, path_);
    }

    RunnerSettings settings_;
    Path path_;
    std::string padded_;
    simdjson::dom::parser parser_;
    Gen gen_;
    clsProtoEntry proto_entry_;
    Obj obj_;
    Data data_;
    Proto proto_;
};

// GenData(obj, udtDatensatzData, datDate): the common parameter list.
template <class Gen, class Obj>
std::string plain(Gen& g, const Obj& o, const RunnerSettings& s) {
    DatensatzData dd = s.datensatz;
    return g.GenData(o, dd, s.date);
}

template <class Gen, class Obj>
std::unique_ptr<ReportRunner> runner(const RunnerSettings& s, const char* obj,
                                     typename Runner<Gen, Obj>::Proto proto,
                                     typename Runner<Gen, Obj>::Data data = plain<Gen, Obj>) {
    return std::make_unique<Runner<Gen, Obj>>(s, obj, std::move(data), proto);
}

}  // namespace

std::unique_ptr<ReportRunner> make_runner(std::string_view cls, const RunnerSettings& s) {
    if (cls == "clsGenMeldung")
        return runner<clsGenMeldung, Meldung>(s, "objMeldung", &clsProtoEntry::CreateProtoMeld,
                                              [](clsGenMeldung& g, const Meldung& m, const RunnerSettings& rs) {
                                                  DatensatzData dd = rs.datensatz;
                                                  return g.GenData(m, dd, rs.verfahren, rs.date);
                                              });
    if (cls == "clsGenBeitrNachw")
        return runner<clsGenBeitrNachw, BeitrNachw>(
            s, "objBeitrNachw", &clsProtoEntry::CreateProtoBeitr,
            [](clsGenBeitrNachw& g, const BeitrNachw& b, const RunnerSettings& rs) {
                const DatensatzData& dd = rs.datensatz;
                return g.GenData(b, dd.strBNRAb, dd.strBNRSt, dd.strVersion, dd.strMicroseconds, rs.date);
            });
    if (cls == "clsGenBeitrErh") return runner<clsGenBeitrErh, BeitrErh>(s, "objBeitrErh", &clsProtoEntry::CreateProtoBeitrErh);
    if (cls == "clsGenErst") return runner<clsGenErst, Erst>(s, "objErst", &clsProtoEntry::CreateProtoErst);
    if (cls == "clsGenZahl") return runner<clsGenZahl, Zahl>(s, "objZahl", &clsProtoEntry::CreateProtoZahl);
    if (cls == "clsGenBetrieb") return runner<clsGenBetrieb, Betrieb>(s, "objBetrieb", &clsProtoEntry::CreateProtoBetrieb);
    if (cls == "clsGenArbeitsBesch")
        return runner<clsGenArbeitsBesch, ArbeitsBesch>(s, "objArbeitsBesch", &clsProtoEntry::CreateProtoArbeitsBesch);
    if (cls == "clsGenEntgelt") return runner<clsGenEntgelt, Entgelt>(s, "objEntgelt", &clsProtoEntry::CreateProtoEntgelt);
    if (cls == "clsGenAbfrVers")
        return runner<clsGenAbfrVers, AbfrVers>(s, "objAbfrVers", &clsProtoEntry::CreateProtoAbfrVers);
    if (cls == "clsGenAbfrStammdatenUV")
        return runner<clsGenAbfrStammdatenUV, AbfrStammdatenUV>(s, "objAbfrStammdatenUV",
                                                                &clsProtoEntry::CreateProtoAbfrStammdatenUV);
    if (cls == "clsGenLohnnachweis")
        return runner<clsGenLohnnachweis, Lohnnachweis>(s, "objLohnnachweis", &clsProtoEntry::CreateProtoLohnnachweis);
    if (cls == "clsGenAsyl") return runner<clsGenAsyl, Asyl>(s, "objAsyl", nullptr);
    return nullptr;
}

}  // namespace tamrel
