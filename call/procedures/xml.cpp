// The XML report: no communication record, no protocol line.
#include "call/describe.h"
#include "call/procedures/families.h"
#include "xml/clsGenAsyl/Asyl_properties.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

namespace tamrel::families {

std::span<const ProcedureDescriptor> xml() {
    static constexpr ProcedureDescriptor list[] = {
        describe<clsGenAsyl, Asyl, FrameForm::Xml, DataForm::Common, nullptr>("clsGenAsyl", "objAsyl", ""),
    };
    return list;
}

}  // namespace tamrel::families
