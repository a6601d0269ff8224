// The contribution statement and the contribution collection.
#include "component/bindings/BeitrErh.h"
#include "component/bindings/BeitrNachw.h"
#include "component/call_registry.h"
#include "protocol/clsProtoEntry.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"

namespace tamrel {

void register_beitrag(Registry& r) {
    r["clsGenBeitrNachw"]["GenData"] = {
        {"objBeitrNachw", "strBNRAb", "strBNRSt", "strVersion", "strMicroseconds"},
        {"datDate"},
        [](Invocation& inv) {
            auto b = inv.object<BeitrNachw>("objBeitrNachw");
            auto a = inv.str("strBNRAb"), st = inv.str("strBNRSt"), v = inv.str("strVersion");
            auto micro = inv.str("strMicroseconds");
            auto date = inv.date("datDate");
            return clsGenBeitrNachw(inv.host()).GenData(b, a, st, v, micro, date);
        }};
    r["clsGenBeitrErh"]["GenData"] = {{"objBeitrErh", "udtDatensatzData"}, {"datDate"}, [](Invocation& inv) {
                                          auto b = inv.object<BeitrErh>("objBeitrErh");
                                          auto dd = inv.object<DatensatzData>("udtDatensatzData");
                                          auto date = inv.date("datDate");
                                          return clsGenBeitrErh(inv.host()).GenData(b, dd, date);
                                      }};
    auto& proto = r["clsProtoEntry"];
    proto["CreateProtoBeitr"] = {{"objBeitrNachw", "blnError"}, {"strErrText"}, [](Invocation& inv) {
                                     auto b = inv.object<BeitrNachw>("objBeitrNachw");
                                     bool err = inv.boolean("blnError");
                                     auto text = inv.opt_str("strErrText");
                                     return clsProtoEntry(inv.host()).CreateProtoBeitr(b, err, text);
                                 }};
    proto["CreateProtoBeitrErh"] = {{"objBeitrErh", "blnError"}, {"strErrText"}, [](Invocation& inv) {
                                        auto b = inv.object<BeitrErh>("objBeitrErh");
                                        bool err = inv.boolean("blnError");
                                        auto text = inv.opt_str("strErrText");
                                        return clsProtoEntry(inv.host()).CreateProtoBeitrErh(b, err, text);
                                    }};
}

}  // namespace tamrel
