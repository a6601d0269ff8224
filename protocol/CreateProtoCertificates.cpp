// Protocol lines of the employment and the earnings certificate.
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "core/decimal.h"
#include "protocol/clsProtoEntry.h"
#include "protocol/proto_fields.h"

namespace tamrel {

std::string clsProtoEntry::CreateProtoEntgelt(const Entgelt& e, bool blnError, std::string_view strErrText) const {
    return call(with_args("clsProtoEntry.CreateProtoEntgelt(", ObjArg{"objEntgelt"}, blnError, strErrText),
                [&](int& line) {
                    line = 1;
                    const Vorgang& v = e.Vorgang;
                    proto::Line l;
                    l.raw(mlGen::Decimal(e.DatensatzNr)).q(e.ABGABEGRUND).jn(e.KENNZSTORNO).q(v.Versicherungsnummer);
                    l.q(v.Familienname).q(v.Vorname).raw(v.Geburtsdatum).q(v.Arbeitgeber.Betriebsnummer);
                    l.q(v.Aktenzeichen).q(e.Empfaenger.Betriebsnummer).raw(e.DBAL.DATUMAB).raw(e.DBAL.DATUMEZGBIS);
                    l.amount(e.DBAE.BRUTTO1).amount(e.DBAE.NETTO1);
                    return l.finish(blnError, strErrText);
                });
}

std::string clsProtoEntry::CreateProtoArbeitsBesch(const ArbeitsBesch& a, bool blnError,
                                                   std::string_view strErrText) const {
    return call(
        with_args("clsProtoEntry.CreateProtoArbeitsBesch(", ObjArg{"objArbeitsBesch"}, blnError, strErrText),
        [&](int& line) {
            line = 1;
            const Vorgang& v = a.Vorgang;
            proto::Line l;
            l.raw(mlGen::Decimal(a.Verfahren)).raw(mlGen::Decimal(a.DatensatzNr)).q(v.Versicherungsnummer);
            l.q(v.Familienname).q(v.Vorname).raw(v.Geburtsdatum).q(v.Arbeitgeber.Betriebsnummer).q(v.Aktenzeichen);
            l.raw(a.Feld151).raw(a.Verfahren == 16 ? a.DBKU.BVEND : a.Verfahren == 17 ? a.DBNE.AVEND : a.DBKE.BVEND);
            return l.finish(blnError, strErrText);
        });
}

}  // namespace tamrel
