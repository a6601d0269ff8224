// The descriptors of each family of procedures, one folder of classes each.
#pragma once
#include <span>

#include "call/procedure.h"

namespace tamrel::families {

std::span<const ProcedureDescriptor> reports();
std::span<const ProcedureDescriptor> queries();
std::span<const ProcedureDescriptor> certificates();
std::span<const ProcedureDescriptor> xml();

}  // namespace tamrel::families
