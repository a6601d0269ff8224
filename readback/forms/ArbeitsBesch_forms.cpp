// The DSAB, DSEU and DSNE records' fields of their own form, read back.
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "readback/record_forms.h"

namespace tamrel::readback {

template <>
void read_own_forms<ArbeitsBesch>(ArbeitsBesch& a, std::span<const ReadField>, std::span<const checks::Part> parts,
                                  RecordFrame&) {
    // The record identifier is the kind of certificate.
    const std::string_view id = parts.front().layout->id;
    a.Verfahren = id == "DSAB" ? 15 : id == "DSEU" ? 16 : 17;
}

}  // namespace tamrel::readback
