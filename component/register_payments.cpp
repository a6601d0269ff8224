// Reimbursement and pay-agency report.
#include "component/bindings/payments.h"
#include "component/register_procedure.h"
#include "reports/clsGenErst/clsGenErst.h"
#include "reports/clsGenZahl/clsGenZahl.h"

namespace tamrel {

void register_payments(Registry& r) {
    add_procedure<clsGenErst, Erst>(r, "clsGenErst", "objErst", "CreateProtoErst", &clsProtoEntry::CreateProtoErst);
    add_procedure<clsGenZahl, Zahl>(r, "clsGenZahl", "objZahl", "CreateProtoZahl", &clsProtoEntry::CreateProtoZahl);
}

}  // namespace tamrel
