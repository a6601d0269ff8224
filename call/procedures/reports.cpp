// The DEUEV report, the contribution statement and collection, the
// reimbursement and the pay-agency report.
#include "call/describe.h"
#include "call/procedures/families.h"
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

namespace tamrel::families {

std::span<const ProcedureDescriptor> reports() {
    using E = clsProtoEntry;
    static constexpr ProcedureDescriptor list[] = {
        describe<clsGenBeitrNachw, BeitrNachw, FrameForm::BeitrNachw, DataForm::BeitrNachw, &E::CreateProtoBeitr>(
            "clsGenBeitrNachw", "objBeitrNachw", "CreateProtoBeitr"),
        describe<clsGenBeitrErh, BeitrErh, FrameForm::BeitrErh, DataForm::Common, &E::CreateProtoBeitrErh>(
            "clsGenBeitrErh", "objBeitrErh", "CreateProtoBeitrErh"),
        describe<clsGenMeldung, Meldung, FrameForm::Meldung, DataForm::WithVerfahren, &E::CreateProtoMeld>(
            "clsGenMeldung", "objMeldung", "CreateProtoMeld"),
        describe<clsGenErst, Erst, FrameForm::Common, DataForm::Common, &E::CreateProtoErst>("clsGenErst", "objErst",
                                                                                             "CreateProtoErst"),
        describe<clsGenZahl, Zahl, FrameForm::Common, DataForm::Common, &E::CreateProtoZahl>("clsGenZahl", "objZahl",
                                                                                             "CreateProtoZahl"),
    };
    return list;
}

}  // namespace tamrel::families
