// Employment and earnings certificates.
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "component/bindings/certificates.h"
#include "component/register_procedure.h"

namespace tamrel {

void register_certificates(Registry& r) {
    add_procedure<clsGenArbeitsBesch, ArbeitsBesch>(r, "clsGenArbeitsBesch", "objArbeitsBesch",
                                                    "CreateProtoArbeitsBesch", &clsProtoEntry::CreateProtoArbeitsBesch);
    add_procedure<clsGenEntgelt, Entgelt>(r, "clsGenEntgelt", "objEntgelt", "CreateProtoEntgelt",
                                          &clsProtoEntry::CreateProtoEntgelt);
}

}  // namespace tamrel
