// The DSBE record's fields of its own form, read back.
#include "readback/record_forms.h"
#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "reports/clsGenBeitrErh/DSBE_layout.h"

namespace tamrel::readback {

using namespace layouts::beitrerh;

template <>
void read_own_forms<BeitrErh>(BeitrErh& b, std::span<const ReadField> left, std::span<const checks::Part>,
                              RecordFrame& frame) {
    read_converted_bnrst(left, frame);
    for (const ReadField& r : left) {
        const std::string_view v = r.value;
        if (r.field->name == DSBE::ArtKennzeichen.name) {
            b.ArtKennzeichen = v == "K";
        } else if (r.field->name == DSBE::Merkmal1.name) {
            b.Merkmal1 = v == "1" ? 1 : 0;
        } else if (r.field->name == DSBE::Merkmal2.name) {
            // "0".."5" stand for 1..6, an empty field for anything else.
            b.Merkmal2 = from_zero_code(v, '5');
        }
    }
}

}  // namespace tamrel::readback
