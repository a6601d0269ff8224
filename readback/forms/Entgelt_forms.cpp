// The DSLW record's fields of their own form, read back.
#include "certificates/clsGenEntgelt/DSLW_layout.h"
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "certificates/clsGenEntgelt/Entgelt_properties.h"
#include "readback/record_forms.h"

namespace tamrel::readback {

using namespace layouts::eel;

template <>
void read_own_forms<Entgelt>(Entgelt& e, std::span<const ReadField> left, std::span<const checks::Part>,
                             RecordFrame& frame) {
    // The record ID: the version and the record's number.
    if (const ReadField* id = find(left, DSLW::RecordID.name)) e.DatensatzNr = read_version_number(id->value, frame);
    // DBVO's list: each entry one previous incapacity.
    read_entries(e.DBVO.Vorerkrankungen, left, kDBVOEntry);
}

}  // namespace tamrel::readback
