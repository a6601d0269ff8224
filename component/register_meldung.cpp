#include "component/bindings/Meldung.h"
#include "component/call_registry.h"
#include "protocol/clsProtoEntry.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"

namespace tamrel {

void register_meldung(Registry& r) {
    ClassTable& t = r["clsGenMeldung"];
    t["GenData"] = {{"objMeldung", "udtDatensatzData", "enmVerfahren"}, {"datDate"}, [](Invocation& inv) {
                        auto m = inv.object<Meldung>("objMeldung");
                        auto dd = inv.object<DatensatzData>("udtDatensatzData");
                        auto verf = inv.verf("enmVerfahren");
                        auto date = inv.date("datDate");
                        return clsGenMeldung(inv.host()).GenData(m, dd, verf, date);
                    }};
    r["clsProtoEntry"]["CreateProtoMeld"] = {{"objMeldung", "blnError"}, {"strErrText"}, [](Invocation& inv) {
        auto m = inv.object<Meldung>("objMeldung");
        bool err = inv.boolean("blnError");
        auto text = inv.opt_str("strErrText");
        return clsProtoEntry(inv.host()).CreateProtoMeld(m, err, text);
    }};
}

}  // namespace tamrel

