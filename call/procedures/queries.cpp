// Establishment master data, the insurance-number query and the
// accident-insurance procedures.
#include "call/describe.h"
#include "call/procedures/families.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV_properties.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/AbfrVers_properties.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/Betrieb_properties.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis_properties.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"

namespace tamrel::families {

std::span<const ProcedureDescriptor> queries() {
    using E = clsProtoEntry;
    static constexpr ProcedureDescriptor list[] = {
        describe<clsGenBetrieb, Betrieb, FrameForm::Common, DataForm::Common, &E::CreateProtoBetrieb>(
            "clsGenBetrieb", "objBetrieb", "CreateProtoBetrieb"),
        describe<clsGenAbfrVers, AbfrVers, FrameForm::Common, DataForm::Common, &E::CreateProtoAbfrVers>(
            "clsGenAbfrVers", "objAbfrVers", "CreateProtoAbfrVers"),
        describe<clsGenAbfrStammdatenUV, AbfrStammdatenUV, FrameForm::Common, DataForm::Common,
                 &E::CreateProtoAbfrStammdatenUV>("clsGenAbfrStammdatenUV", "objAbfrStammdatenUV",
                                                  "CreateProtoAbfrStammdatenUV"),
        describe<clsGenLohnnachweis, Lohnnachweis, FrameForm::Common, DataForm::Common, &E::CreateProtoLohnnachweis>(
            "clsGenLohnnachweis", "objLohnnachweis", "CreateProtoLohnnachweis"),
    };
    return list;
}

}  // namespace tamrel::families
