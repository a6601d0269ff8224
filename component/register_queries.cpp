// Establishment master data, insurance-number query and the accident-insurance procedures.
#include "component/bindings/queries.h"
#include "component/register_procedure.h"
#include "protocol/clsProtoEntry.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"

namespace tamrel {
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
