// Protocol lines of the contribution statement and the contribution collection.
#include "core/decimal.h"
#include "protocol/clsProtoEntry.h"
#include "protocol/proto_fields.h"
#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"

namespace tamrel {

std::string clsProtoEntry::CreateProtoBeitr(const BeitrNachw& b, bool blnError, std::string_view strErrText) const {
    return call("clsProtocol.CreateProtoBeitr", [&](int& line) {
        line = 1;
        proto::Line l;
        l.raw(mlGen::Decimal(b.Nachweisart)).q(b.Empfaenger.Betriebsnummer).q(b.Arbeitgeber.Betriebsnummer);
        l.q(b.Arbeitgeber.Name1).raw(b.Zeitraum1).raw(b.Zeitraum2).q(b.Waehrung).raw(mlGen::Decimal(b.Laufnummer));
        for (const std::string* amount :
             {&b.Betrag01, &b.Betrag02,     &b.Betrag03, &b.Betrag04, &b.Betrag05, &b.Betrag06, &b.Betrag07,
              &b.Betrag08, &b.Betrag09,     &b.Betrag10, &b.Betrag11, &b.Betrag12, &b.Betrag13, &b.Betrag14,
              &b.Betrag15, &b.Sonderbetrag, &b.Betrag16, &b.Betrag17, &b.Betrag18, &b.Betrag19, &b.Betrag20,
              &b.Betrag21, &b.Betrag22,     &b.Betrag23, &b.Betrag24, &b.Betrag25, &b.Betrag26, &b.Betrag27})
            l.amount(*amount);
        return l.finish(blnError, strErrText);
    });
}

std::string clsProtoEntry::CreateProtoBeitrErh(const BeitrErh& b, bool blnError, std::string_view strErrText) const {
    return call(with_args("clsProtoEntry.CreateProtoBeitrErh(", ObjArg{"objBeitrErh"}, blnError, strErrText),
                [&](int& line) {
                    line = 1;
                    const Vorgang& v = b.Vorgang;
                    proto::Line l;
                    l.q(v.Versicherungsnummer).q(v.Bezugskennung).q(v.Aktenzeichen).q(v.Familienname).q(v.Vorname);
                    l.raw(v.Geburtsdatum).q(v.Arbeitgeber.Betriebsnummer).q(b.Empfaenger.Betriebsnummer);
                    l.raw(b.Zeitraum1).raw(b.Zeitraum2).q(b.ArtKennzeichen ? "K" : "G");
                    l.amount(b.Betrag1).amount(b.Betrag2).amount(b.Betrag3).amount(b.Betrag4).amount(b.Betrag5).amount(
                        b.Betrag6);
                    l.raw(mlGen::Decimal(b.Laufnummer));
                    return l.finish(blnError, strErrText);
                });
}

}  // namespace tamrel
