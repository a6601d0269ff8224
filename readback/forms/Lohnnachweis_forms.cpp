// The DSLN record's positions, read back.
#include "queries/clsGenLohnnachweis/DSLN_layout.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis_properties.h"
#include "readback/record_forms.h"

namespace tamrel::readback {

template <>
void read_own_forms<Lohnnachweis>(Lohnnachweis& l, std::span<const ReadField> left, std::span<const checks::Part>,
                                  RecordFrame&) {
    read_entries(l.Positionen, left, layouts::uv::kDSLNPosition);
}

}  // namespace tamrel::readback
