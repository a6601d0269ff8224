// The DSBD record's fields of its own form, read back.
#include "queries/clsGenBetrieb/Betrieb.h"
#include "queries/clsGenBetrieb/DSBD_layout.h"
#include "readback/record_forms.h"

namespace tamrel::readback {

template <>
void read_own_forms<Betrieb>(Betrieb& b, std::span<const ReadField> left, std::span<const checks::Part>,
                             RecordFrame& frame) {
    read_converted_bnrst(left, frame);
    // "R" for true, "A" for false.
    if (const ReadField* r = find(left, layouts::betrieb::DSBD::KennzeichenR.name)) b.KennzeichenR = r->value == "R";
}

}  // namespace tamrel::readback
