#include "component/bindings/Meldung.h"
#include "component/call_registry.h"
#include "protocol/clsProtoEntry.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"

namespace tamrel {

void register_meldung(Registry& r) {
    ClassTable& t = r["clsGenMeldung"];
    t["GenVOSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strFirma", "enmVerfahren"}, {"strDatum", "datDate"},
                    [](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto firma = inv.str("strFirma");
                        auto verf = inv.verf("enmVerfahren");
                        auto datum = inv.opt_str("strDatum");
                        auto date = inv.date("datDate");
                        auto result = clsGenMeldung(inv.host()).GenVOSZ(a, e, f, firma, verf, datum, date);
                        inv.out()["strDatum"] = datum;
                        return result;
                    }};
    t["GenDSKO"] = {{"udtDSKOData"}, {"datDate"}, [](Invocation& inv) {
                        auto dsko = inv.object<DSKOData>("udtDSKOData");
                        auto date = inv.date("datDate");
                        return clsGenMeldung(inv.host()).GenDSKO(dsko, date);
                    }};
    t["GenData"] = {{"objMeldung", "udtDatensatzData", "enmVerfahren"}, {"datDate"}, [](Invocation& inv) {
                        auto m = inv.object<Meldung>("objMeldung");
                        auto dd = inv.object<DatensatzData>("udtDatensatzData");
                        auto verf = inv.verf("enmVerfahren");
                        auto date = inv.date("datDate");
                        return clsGenMeldung(inv.host()).GenData(m, dd, verf, date);
                    }};
    t["GenNCSZ"] = {{"strBNRAb", "strBNREm", "strFileNr", "strCount", "enmVerfahren"}, {"datDate"},
                    [](Invocation& inv) {
                        auto a = inv.str("strBNRAb"), e = inv.str("strBNREm"), f = inv.str("strFileNr");
                        auto count = inv.str("strCount");
                        auto verf = inv.verf("enmVerfahren");
                        auto date = inv.date("datDate");
                        return clsGenMeldung(inv.host()).GenNCSZ(a, e, f, count, verf, date);
                    }};
    r["clsProtoEntry"]["CreateProtoMeld"] = {{"objMeldung", "blnError"}, {"strErrText"}, [](Invocation& inv) {
        auto m = inv.object<Meldung>("objMeldung");
        bool err = inv.boolean("blnError");
        auto text = inv.opt_str("strErrText");
        return clsProtoEntry(inv.host()).CreateProtoMeld(m, err, text);
    }};
}

}  // namespace tamrel

