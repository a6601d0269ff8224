// The XML report's data method (its frames are registered with the others).
#include "component/bindings/Asyl.h"
#include "component/call_registry.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel {

void register_asyl(Registry& r) {
    r["clsGenAsyl"]["GenData"] = {{"objAsyl", "udtDatensatzData"}, {"datDate"}, [](Invocation& inv) {
                                      auto a = inv.object<Asyl>("objAsyl");
                                      auto dd = inv.object<DatensatzData>("udtDatensatzData");
                                      auto date = inv.date("datDate");
                                      return clsGenAsyl(inv.host()).GenData(a, dd, date);
                                  }};
}

}  // namespace tamrel
