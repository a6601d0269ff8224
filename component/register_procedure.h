// Registration of a group A procedure: GenData(obj…, udtDatensatzData,
// datDate) and its protocol method CreateProto…(obj…, blnError, strErrText).
#pragma once
#include <string>
#include <string_view>

#include "component/call_registry.h"
#include "protocol/clsProtoEntry.h"

namespace tamrel {

template <class Gen, class Obj>
void add_procedure(Registry& r, const char* cls, const char* obj, const char* protoMethod,
                   std::string (clsProtoEntry::*proto)(const Obj&, bool, std::string_view) const) {
    r[cls]["GenData"] = {{obj, "udtDatensatzData"}, {"datDate"}, [obj](Invocation& inv) {
                             auto o = inv.object<Obj>(obj);
                             auto dd = inv.object<DatensatzData>("udtDatensatzData");
                             auto date = inv.date("datDate");
                             Gen gen(inv.host());
                             return gen.GenData(o, dd, date);
                         }};
    r["clsProtoEntry"][protoMethod] = {{obj, "blnError"}, {"strErrText"}, [obj, proto](Invocation& inv) {
                                           auto o = inv.object<Obj>(obj);
                                           bool err = inv.boolean("blnError");
                                           auto text = inv.opt_str("strErrText");
                                           return (clsProtoEntry(inv.host()).*proto)(o, err, text);
                                       }};
}

}  // namespace tamrel
