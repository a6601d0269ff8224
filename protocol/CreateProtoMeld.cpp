// The DEUEV report's protocol line: reason, kind and cancellation, the
// identifying numbers, the person, the period and pay, then marker and text.
#include "core/decimal.h"
#include "protocol/clsProtoEntry.h"
#include "protocol/proto_fields.h"
#include "reports/clsGenMeldung/Meldung.h"

namespace tamrel {

std::string clsProtoEntry::CreateProtoMeld(const Meldung& m, bool blnError, std::string_view strErrText) const {
    return call("clsProtocol.CreateProtoMeld", [&](int& line) {
        line = 1;
        const Vorgang& v = m.Vorgang;
        proto::Line l;
        l.q(m.Meldegrund).raw(mlGen::Decimal(m.Meldungsart)).jn(m.Storno);
        l.q(v.Versicherungsnummer).q(v.Arbeitgeber.Betriebsnummer).q(v.Aktenzeichen).q(m.Empfaenger.Betriebsnummer);
        l.q(v.Familienname).q(v.Vorname).q(v.Vorsatzwort).q(v.Namenszusatz).q(v.Titel);
        l.raw(v.Geburtsdatum).q(v.Geschlecht);
        l.q(m.Personengruppe).q(m.Beitragsgruppe1 + m.Beitragsgruppe2 + m.Beitragsgruppe3 + m.Beitragsgruppe4);
        l.raw(m.Beginn).raw(m.Ende).q(m.Entgelt).raw(mlGen::Decimal(m.Laufnummer));
        return l.finish(blnError, strErrText);
    });
}

}  // namespace tamrel
