// The call protocol's methods of each procedure, made from its descriptor:
// the frame methods in the parameter lists of its frame form, GenData and
// the protocol method.
#pragma once
#include <nlohmann/json.hpp>

#include "call/call_registry.h"
#include "call/procedure.h"

namespace tamrel {

void add_methods(Registry& r, const ProcedureDescriptor& p);

// The frame arguments of a transfer file as the frame methods read them:
// strBNRAb, strBNREm, strFileNr, strFirma, strDatum, enmVerfahren (as the
// procedure reads it), datDate and udtDSKOData. Throws
// json_binding::RequestError naming the argument.
FrameValues read_frame_values(Invocation& inv, const ProcedureDescriptor& p);

}  // namespace tamrel
