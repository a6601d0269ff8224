// The BW02 and BW03 records' fields of their own form, read back.
#include "readback/record_forms.h"
#include "reports/clsGenBeitrNachw/BW02_layout.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"

namespace tamrel::readback {

using namespace layouts::beitrnachw;

template <>
void read_own_forms<BeitrNachw>(BeitrNachw& b, std::span<const ReadField> left, std::span<const checks::Part> parts,
                                RecordFrame& frame) {
    read_converted_bnrst(left, frame);
    // The kind of statement: BW03 for the BNV procedure, the long BW02 for kind 1.
    const RecordLayout* form = parts.front().layout;
    b.Nachweisart = form->id == kBW03.id ? bnBNV : form == &kBW02Extended ? 1 : 0;
    const Statement& f = BW02::Fields;
    for (const ReadField& r : left) {
        const std::string_view name = r.field->name;
        const std::string_view v = r.value;
        if (name == f.Merkmal1.name) {
            b.Merkmal1 = v == "1";
        } else if (name == f.Merkmal2.name) {
            b.Merkmal2 = v == "1";
        } else if (name == f.SKennzeichen.name) {
            b.SKennzeichen = v == "S";
        } else if (name == f.Betrag18.name) {
            // Always written with "-" for its sign: the amount without it.
            b.Betrag18 = v.starts_with('-') ? v.substr(1) : v;
            if (b.Betrag18 == "0") b.Betrag18.clear();
        } else if (name == f.StrasseHausnummer.name) {
            // Street and house number joined by a blank: split at the last.
            const std::size_t blank = v.rfind(' ');
            b.Arbeitgeber.Strasse = v.substr(0, blank);
            b.Arbeitgeber.Hausnummer = blank == std::string_view::npos ? std::string_view() : v.substr(blank + 1);
        }
    }
}

}  // namespace tamrel::readback
