// The creatable classes of the server, each its default interface over the
// record library's class of the same name.
#include "com/classes.h"

#include "certificates/clsGenArbeitsBesch/ArbeitsBesch_properties.h"
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/Entgelt_properties.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "com/com_object.h"
#include "com/method_args.h"
#include "com/server_host.h"
#include "protocol/clsProtoEntry.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV_properties.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/AbfrVers_properties.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/Betrieb_properties.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis_properties.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"
#include "reports/clsGenBeitrErh/BeitrErh_properties.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/BeitrNachw_properties.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "reports/clsGenErst/Erst_properties.h"
#include "reports/clsGenErst/clsGenErst.h"
#include "reports/clsGenMeldung/Meldung_properties.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "reports/clsGenZahl/Zahl_properties.h"
#include "reports/clsGenZahl/clsGenZahl.h"
#include "xml/clsGenAsyl/Asyl_properties.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel::com {
namespace {

// The classes whose four methods take the common parameter lists.
template <class Itf, class Gen, class Obj>
class Common : public Dual<Itf> {
public:
    explicit Common(const char* objName) : name_(objName) {}
    HRESULT STDMETHODCALLTYPE GenVOSZ(BSTR a, BSTR e, BSTR f, BSTR firma, ::VerfMerkmal enm, VARIANT* datum,
                                      VARIANT date, BSTR* result) override {
        return returning(result, [&] { return vosz(gen_, a, e, f, firma, enm, datum, date); });
    }
    HRESULT STDMETHODCALLTYPE GenDSKO(::DSKOData* udt, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return dsko(gen_, udt, date); });
    }
    HRESULT STDMETHODCALLTYPE GenData(IDispatch* obj, ::DatensatzData* udt, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return data<Obj>(gen_, obj, name_, udt, date); });
    }
    HRESULT STDMETHODCALLTYPE GenNCSZ(BSTR a, BSTR e, BSTR f, BSTR count, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return ncsz(gen_, a, e, f, count, date); });
    }

private:
    Gen gen_{server_host()};
    const char* name_;
};

class Meldung_ : public Dual<_clsGenMeldung> {
public:
    HRESULT STDMETHODCALLTYPE GenVOSZ(BSTR a, BSTR e, BSTR f, BSTR firma, ::VerfMerkmal enm, VARIANT* datum,
                                      VARIANT date, BSTR* result) override {
        return returning(result, [&] { return vosz(gen_, a, e, f, firma, enm, datum, date); });
    }
    HRESULT STDMETHODCALLTYPE GenDSKO(::DSKOData* udt, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return dsko(gen_, udt, date); });
    }
    HRESULT STDMETHODCALLTYPE GenData(IDispatch* obj, ::DatensatzData* udt, ::VerfMerkmal enm, VARIANT date,
                                      BSTR* result) override {
        return returning(result, [&] { return data<Meldung>(gen_, obj, "objMeldung", udt, date, std::int32_t{enm}); });
    }
    HRESULT STDMETHODCALLTYPE GenNCSZ(BSTR a, BSTR e, BSTR f, BSTR count, ::VerfMerkmal enm, VARIANT date,
                                      BSTR* result) override {
        return returning(result,
                         [&] { return gen_.GenNCSZ(utf8(a), utf8(e), utf8(f), utf8(count), enm, date_arg(date)); });
    }

private:
    clsGenMeldung gen_{server_host()};
};

class BeitrErh_ : public Dual<_clsGenBeitrErh> {
public:
    HRESULT STDMETHODCALLTYPE GenVOSZ(BSTR a, BSTR e, BSTR f, BSTR firma, VARIANT* datum, VARIANT date,
                                      BSTR* result) override {
        return returning(result, [&] {
            std::string d = text_arg(datum);
            std::string r = gen_.GenVOSZ(utf8(a), utf8(e), utf8(f), utf8(firma), d, date_arg(date));
            set_text_arg(datum, d);
            return r;
        });
    }
    HRESULT STDMETHODCALLTYPE GenDSKO(::DSKOData* udt, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return dsko(gen_, udt, date); });
    }
    HRESULT STDMETHODCALLTYPE GenData(IDispatch* obj, ::DatensatzData* udt, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return data<BeitrErh>(gen_, obj, "objBeitrErh", udt, date); });
    }
    HRESULT STDMETHODCALLTYPE GenNCSZ(BSTR a, BSTR e, BSTR f, BSTR count, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return ncsz(gen_, a, e, f, count, date); });
    }

private:
    clsGenBeitrErh gen_{server_host()};
};

class BeitrNachw_ : public Dual<_clsGenBeitrNachw> {
public:
    HRESULT STDMETHODCALLTYPE GenVOSZ(BSTR a, BSTR e, BSTR f, LONG enm, BSTR firma, VARIANT* datum, VARIANT date,
                                      BSTR* result) override {
        return returning(result, [&] {
            std::string d = text_arg(datum);
            std::string r = gen_.GenVOSZ(utf8(a), utf8(e), utf8(f), enm, utf8(firma), d, date_arg(date));
            set_text_arg(datum, d);
            return r;
        });
    }
    HRESULT STDMETHODCALLTYPE GenDSKO(::DSKOData* udt, LONG enm, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return dsko(gen_, udt, date, enm); });
    }
    HRESULT STDMETHODCALLTYPE GenData(IDispatch* obj, BSTR ab, BSTR st, BSTR version, BSTR micro, VARIANT date,
                                      BSTR* result) override {
        return returning(result, [&] {
            return with_data_object<BeitrNachw>(obj, "objBeitrNachw", [&](const BeitrNachw& o) {
                return gen_.GenData(o, utf8(ab), utf8(st), utf8(version), utf8(micro), date_arg(date));
            });
        });
    }
    HRESULT STDMETHODCALLTYPE GenNCSZ(BSTR a, BSTR e, BSTR f, BSTR count, LONG enm, VARIANT date,
                                      BSTR* result) override {
        return returning(result,
                         [&] { return gen_.GenNCSZ(utf8(a), utf8(e), utf8(f), utf8(count), enm, date_arg(date)); });
    }

private:
    Host host_ = host_with_kept_tests();
    clsGenBeitrNachw gen_{host_};
};

class Asyl_ : public Dual<_clsGenAsyl> {
public:
    HRESULT STDMETHODCALLTYPE GenVOSZ(BSTR a, BSTR e, BSTR f, BSTR firma, ::VerfMerkmal enm, VARIANT* datum,
                                      VARIANT date, BSTR* result) override {
        return returning(result, [&] { return vosz(gen_, a, e, f, firma, enm, datum, date); });
    }
    HRESULT STDMETHODCALLTYPE GenData(IDispatch* obj, ::DatensatzData* udt, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return data<Asyl>(gen_, obj, "objAsyl", udt, date); });
    }
    HRESULT STDMETHODCALLTYPE GenNCSZ(BSTR a, BSTR e, BSTR f, BSTR count, VARIANT date, BSTR* result) override {
        return returning(result, [&] { return ncsz(gen_, a, e, f, count, date); });
    }

private:
    clsGenAsyl gen_{server_host()};
};

class ProtoEntry_ : public Dual<_clsProtoEntry> {
    // One protocol line: the data object read, then the library's method.
    template <class Obj, class Method>
    HRESULT line(IDispatch* obj, const char* name, VARIANT_BOOL error, BSTR text, BSTR* result, Method method) {
        return returning(result, [&] {
            return with_data_object<Obj>(
                obj, name, [&](const Obj& o) { return (proto_.*method)(o, error != VARIANT_FALSE, utf8(text)); });
        });
    }

public:
#define TAMREL_PROTO(Method, Obj, name)                                                                      \
    HRESULT STDMETHODCALLTYPE Method(IDispatch* obj, VARIANT_BOOL error, BSTR text, BSTR* result) override { \
        return line<Obj>(obj, name, error, text, result, &clsProtoEntry::Method);                            \
    }
    TAMREL_PROTO(CreateProtoBeitr, BeitrNachw, "objBeitrNachw")
    TAMREL_PROTO(CreateProtoMeld, Meldung, "objMeldung")
    TAMREL_PROTO(CreateProtoBeitrErh, BeitrErh, "objBeitrErh")
    TAMREL_PROTO(CreateProtoErst, Erst, "objErst")
    TAMREL_PROTO(CreateProtoZahl, Zahl, "objZahl")
    TAMREL_PROTO(CreateProtoBetrieb, Betrieb, "objBetrieb")
    TAMREL_PROTO(CreateProtoEntgelt, Entgelt, "objEntgelt")
    TAMREL_PROTO(CreateProtoArbeitsBesch, ArbeitsBesch, "objArbeitsBesch")
    TAMREL_PROTO(CreateProtoAbfrVers, AbfrVers, "objAbfrVers")
    TAMREL_PROTO(CreateProtoAbfrStammdatenUV, AbfrStammdatenUV, "objAbfrStammdatenUV")
    TAMREL_PROTO(CreateProtoLohnnachweis, Lohnnachweis, "objLohnnachweis")
#undef TAMREL_PROTO

private:
    clsProtoEntry proto_{server_host()};
};

template <class T, class... A>
IUnknown* make(A... a) {
    return static_cast<IDispatch*>(new T(a...));
}

}  // namespace

// In the order of the type library.
const ClassEntry kClasses[] = {
    {"clsGenBeitrNachw", __uuidof(::clsGenBeitrNachw), __uuidof(_clsGenBeitrNachw), [] { return make<BeitrNachw_>(); }},
    {"clsGenBeitrErh", __uuidof(::clsGenBeitrErh), __uuidof(_clsGenBeitrErh), [] { return make<BeitrErh_>(); }},
    {"clsGenDef", __uuidof(::clsGenDef), __uuidof(_clsGenDef), nullptr},
    {"clsGenMeldung", __uuidof(::clsGenMeldung), __uuidof(_clsGenMeldung), [] { return make<Meldung_>(); }},
    {"clsGenErst", __uuidof(::clsGenErst), __uuidof(_clsGenErst),
     [] { return make<Common<_clsGenErst, clsGenErst, Erst>>("objErst"); }},
    {"clsGenZahl", __uuidof(::clsGenZahl), __uuidof(_clsGenZahl),
     [] { return make<Common<_clsGenZahl, clsGenZahl, Zahl>>("objZahl"); }},
    {"clsGenBetrieb", __uuidof(::clsGenBetrieb), __uuidof(_clsGenBetrieb),
     [] { return make<Common<_clsGenBetrieb, clsGenBetrieb, Betrieb>>("objBetrieb"); }},
    {"clsProtoEntry", __uuidof(::clsProtoEntry), __uuidof(_clsProtoEntry), [] { return make<ProtoEntry_>(); }},
    {"clsGenArbeitsBesch", __uuidof(::clsGenArbeitsBesch), __uuidof(_clsGenArbeitsBesch),
     [] { return make<Common<_clsGenArbeitsBesch, clsGenArbeitsBesch, ArbeitsBesch>>("objArbeitsBesch"); }},
    {"clsGenEntgelt", __uuidof(::clsGenEntgelt), __uuidof(_clsGenEntgelt),
     [] { return make<Common<_clsGenEntgelt, clsGenEntgelt, Entgelt>>("objEntgelt"); }},
    {"clsGenAbfrVers", __uuidof(::clsGenAbfrVers), __uuidof(_clsGenAbfrVers),
     [] { return make<Common<_clsGenAbfrVers, clsGenAbfrVers, AbfrVers>>("objAbfrVers"); }},
    {"clsGenAsyl", __uuidof(::clsGenAsyl), __uuidof(_clsGenAsyl), [] { return make<Asyl_>(); }},
    {"clsGenAbfrStammdatenUV", __uuidof(::clsGenAbfrStammdatenUV), __uuidof(_clsGenAbfrStammdatenUV),
     [] {
         return make<Common<_clsGenAbfrStammdatenUV, clsGenAbfrStammdatenUV, AbfrStammdatenUV>>("objAbfrStammdatenUV");
     }},
    {"clsGenLohnnachweis", __uuidof(::clsGenLohnnachweis), __uuidof(_clsGenLohnnachweis),
     [] { return make<Common<_clsGenLohnnachweis, clsGenLohnnachweis, Lohnnachweis>>("objLohnnachweis"); }},
};
const std::size_t kClassCount = sizeof(kClasses) / sizeof(kClasses[0]);

}  // namespace tamrel::com
