#include "core/contact_block.h"

#include "core/routine.h"
#include "core/writer.h"

namespace tamrel {

void AppendContactBlock(std::string& out, std::string_view id, ContactView ap, const Arbeitgeber& ag, bool& hasData,
                        std::string_view context) {
    routine(context, [&](int& line) {
        hasData = false;
        Writer w(out, line, hasData);
        w.lit(id).an(ap.anrede, 1).an(ap.name, 30).an(ap.tel, 20).an(ap.fax, 20).an(ap.email, 70);
        w.an(ag.Name1, 30).an(ag.Name2, 30).an(ag.Name3, 30).an(ag.PLZ, 10).an(ag.Ort, 34).an(ag.Strasse, 33);
        w.an(ag.Hausnummer, 9);
        w.check(321, id);
    });
}

}  // namespace tamrel
