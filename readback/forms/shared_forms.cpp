#include "readback/record_forms.h"

namespace tamrel::readback {

void read_converted_bnrst(std::span<const ReadField> left, RecordFrame& frame) {
    for (const ReadField& r : left)
        if (r.field->name == "ConvertBNRSt(DatensatzData.strBNRSt)") frame.datensatz.strBNRSt = r.value;
}

}  // namespace tamrel::readback
