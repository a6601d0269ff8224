// Protocol lines of the reimbursement and the pay-agency report.
#include "core/decimal.h"
#include "protocol/clsProtoEntry.h"
#include "protocol/proto_fields.h"
#include "reports/clsGenErst/Erst.h"
#include "reports/clsGenZahl/Zahl.h"

namespace tamrel {

std::string clsProtoEntry::CreateProtoErst(const Erst& e, bool blnError, std::string_view strErrText) const {
    return call(with_args("clsProtoEntry.CreateProtoErst(", ObjArg{"objErst"}, blnError, strErrText), [&](int& line) {
        line = 1;
        const Vorgang& v = e.Vorgang;
        proto::Line l;
        l.raw(mlGen::Decimal(e.ErstattungsId)).q(v.Versicherungsnummer).q(v.Aktenzeichen);
        l.q(v.Familienname).q(v.Vorname).raw(v.Geburtsdatum).q(v.Arbeitgeber.Betriebsnummer);
        l.q(e.Empfaenger.Betriebsnummer).raw(mlGen::Decimal(e.Erstattungsgrund));
        l.raw(mlGen::Decimal(e.Leistungsart)).raw(e.ErstDatum).raw(e.ZeitraumBeginn).raw(e.ZeitraumEnde);
        l.amount(e.Betrag1).amount(e.Betrag2).amount(e.Betrag3).amount(e.Betrag4).amount(e.Betrag5);
        l.amount(e.Betrag6).q(e.IBAN);
        return l.finish(blnError, strErrText);
    });
}

std::string clsProtoEntry::CreateProtoZahl(const Zahl& z, bool blnError, std::string_view strErrText) const {
    return call(with_args("clsProtoEntry.CreateProtoZahl(", ObjArg{"objZahl"}, blnError, strErrText), [&](int& line) {
        line = 1;
        const Vorgang& v = z.Vorgang;
        proto::Line l;
        l.first(z.ZKKennzeichen ? "J" : "N").q(v.Kennung14).q(v.Arbeitgeber.Betriebsnummer).q(v.Aktenzeichen);
        l.q(z.Empfaenger.Betriebsnummer).q("").q(z.ZKArt).jn(z.ZKAngabeJN).raw(z.ZKBeginn).raw(z.ZKEnde);
        l.raw(z.ZKDatum).amount(z.ZKBetrag1).raw(z.ZKDatum2).raw(z.ZKDatum3).raw(z.ZKDatum4).amount(z.ZKBetrag2);
        l.amount(z.ZKBetrag3).amount(z.ZKBetrag4).q(v.Familienname).q(v.Vorname).q(v.Vorsatzwort);
        l.q(v.Namenszusatz).q(v.Titel).raw(v.Geburtsdatum).q(v.Geschlecht).q(v.Land).q(v.PLZ).q(v.Ort);
        l.q(v.Strasse).q(v.Hausnummer).q("").q(v.Versicherungsnummer);
        return l.finish(blnError, strErrText);
    });
}

}  // namespace tamrel
