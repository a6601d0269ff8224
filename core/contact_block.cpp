#include "core/contact_block.h"

#include "core/common_layouts.h"
#include "core/routine.h"
#include "core/writer.h"

namespace tamrel {

void AppendContactBlock(std::string& out, std::string_view id, ContactView ap, const Arbeitgeber& ag, bool& hasData,
                        std::string_view context) {
    routine(context, [&](int& line) {
        hasData = false;
        Writer w(out, line, hasData);
        using namespace layouts::Contact;
        w.text(Kennung, id).put(Anrede, ap.anrede).put(Name, ap.name).put(Tel, ap.tel).put(Fax, ap.fax);
        w.put(EMail, ap.email).put(Name1, ag.Name1).put(Name2, ag.Name2).put(Name3, ag.Name3).put(PLZ, ag.PLZ);
        w.put(Ort, ag.Ort).put(Strasse, ag.Strasse).put(Hausnummer, ag.Hausnummer);
        w.check(kLength, id);
    });
}

}  // namespace tamrel
