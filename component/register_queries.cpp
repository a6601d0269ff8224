// Establishment master data, insurance-number query and the accident-insurance procedures.
#include "component/bindings/queries.h"
#include "component/call_registry.h"
#include "protocol/clsProtoEntry.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"

namespace tamrel {
namespace {

// GenData(obj…, udtDatensatzData, datDate) and CreateProto…(obj…, blnError, strErrText)
// of one group A procedure.
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

}  // namespace

void register_queries(Registry& r) {
    add_procedure<clsGenBetrieb, Betrieb>(r, "clsGenBetrieb", "objBetrieb", "CreateProtoBetrieb",
                                          &clsProtoEntry::CreateProtoBetrieb);
    add_procedure<clsGenAbfrVers, AbfrVers>(r, "clsGenAbfrVers", "objAbfrVers", "CreateProtoAbfrVers",
                                            &clsProtoEntry::CreateProtoAbfrVers);
    add_procedure<clsGenAbfrStammdatenUV, AbfrStammdatenUV>(r, "clsGenAbfrStammdatenUV", "objAbfrStammdatenUV",
                                                            "CreateProtoAbfrStammdatenUV",
                                                            &clsProtoEntry::CreateProtoAbfrStammdatenUV);
    add_procedure<clsGenLohnnachweis, Lohnnachweis>(r, "clsGenLohnnachweis", "objLohnnachweis",
                                                    "CreateProtoLohnnachweis", &clsProtoEntry::CreateProtoLohnnachweis);
}

}  // namespace tamrel
