// The employment and earnings certificates.
#include "call/describe.h"
#include "call/procedures/families.h"
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch_properties.h"
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/Entgelt_properties.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"

namespace tamrel::families {

std::span<const ProcedureDescriptor> certificates() {
    using E = clsProtoEntry;
    static constexpr ProcedureDescriptor list[] = {
        describe<clsGenArbeitsBesch, ArbeitsBesch, FrameForm::Common, DataForm::Common, &E::CreateProtoArbeitsBesch>(
            "clsGenArbeitsBesch", "objArbeitsBesch", "CreateProtoArbeitsBesch"),
        describe<clsGenEntgelt, Entgelt, FrameForm::Common, DataForm::Common, &E::CreateProtoEntgelt>(
            "clsGenEntgelt", "objEntgelt", "CreateProtoEntgelt"),
    };
    return list;
}

}  // namespace tamrel::families
