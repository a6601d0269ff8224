// The DSVZ record's fields of their own form, read back.
#include "readback/record_forms.h"
#include "reports/clsGenZahl/DSVZ_layout.h"
#include "reports/clsGenZahl/Zahl.h"

namespace tamrel::readback {

using namespace layouts::zahl;

template <>
void read_own_forms<Zahl>(Zahl& z, std::span<const ReadField> left, std::span<const checks::Part>, RecordFrame& frame) {
    const ReadField* jn = find(left, DBZK::ZKAngabeJN.name);
    z.ZKAngabeJN = jn ? jn_value(jn->value) : 0;
    // A pseudonymised report: the pseudonyms in DBNA, zeros for the
    // insurance number, kind "2", "N" and the day it was written. Read so
    // only where all of them stand; the object's own names are not in the file.
    const Vorgang& v = z.Vorgang;
    const bool pseudonymised = v.Familienname == "Pseudoname" && v.Vorname == "Pseudovorname" &&
                               v.Versicherungsnummer == "000000000000" && z.ZKArt == "2" && z.ZKAngabeJN == 2 &&
                               !frame.created.empty() && z.ZKDatum == std::string_view(frame.created).substr(0, 8);
    if (!pseudonymised) return;
    z.Pseudonym = true;
    z.Vorgang.Familienname.clear();
    z.Vorgang.Vorname.clear();
    z.Vorgang.Versicherungsnummer.clear();
    z.ZKArt.clear();
    z.ZKAngabeJN = 0;
    z.ZKDatum.clear();
}

}  // namespace tamrel::readback
