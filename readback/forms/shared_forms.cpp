#include "readback/record_forms.h"

namespace tamrel::readback {

void read_converted_bnrst(std::span<const ReadField> left, RecordFrame& frame) {
    for (const ReadField& r : left)
        if (r.field->name == "ConvertBNRSt(DatensatzData.strBNRSt)") frame.datensatz.strBNRSt = r.value;
}

std::int32_t read_version_number(std::string_view v, RecordFrame& frame) {
    static constexpr FieldLayout version{"", 1, 10, FieldKind::An};
    static constexpr FieldLayout number{"", 11, 10, FieldKind::N};
    frame.datensatz.strVersion = field_value(v.substr(0, version.len), version);
    std::int32_t n = 0;
    convert(field_value(v.size() > version.len ? v.substr(version.len, number.len) : std::string_view(), number), n);
    return n;
}

}  // namespace tamrel::readback
