// Protocol lines of the master data, the insurance-number query and the two
// accident-insurance procedures.
#include "core/decimal.h"
#include "core/int16.h"
#include "protocol/clsProtoEntry.h"
#include "protocol/proto_fields.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/AbfrVers.h"
#include "queries/clsGenBetrieb/Betrieb.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis.h"

namespace tamrel {

std::string clsProtoEntry::CreateProtoBetrieb(const Betrieb& b, bool blnError, std::string_view strErrText) const {
    return call(with_args("clsProtoEntry.CreateProtoBetrieb(", ObjArg{"objBetrieb"}, blnError, strErrText),
                [&](int& line) {
                    line = 1;
                    const Arbeitgeber& ag = b.Arbeitgeber;
                    proto::Line l;
                    l.q(ag.Betriebsnummer).q(b.Empfaenger.Betriebsnummer).q(b.Kennziffer).q(b.Kennung15);
                    l.q(b.KennzeichenR ? "R" : "A").q(ag.Name1).q(ag.Name2).q(ag.Name3).q(ag.PLZ).q(ag.Ort);
                    l.q(ag.Strasse).q(ag.Hausnummer).q(b.AnsprechpartnerName).q(b.AnsprechpartnerTelefon);
                    l.q(b.AnsprechpartnerEMail).q(b.DbkaName1).q(b.DbkaPLZ).q(b.DbkaOrt).q(b.DbkaStrasse);
                    l.raw(mlGen::Decimal(b.DatensatzNr));
                    return l.finish(blnError, strErrText);
                });
}

std::string clsProtoEntry::CreateProtoAbfrVers(const AbfrVers& a, bool blnError, std::string_view strErrText) const {
    return call(
        with_args("clsProtoEntry.CreateProtoAbfrVers(", ObjArg{"objAbfrVers"}, blnError, strErrText), [&](int& line) {
            line = 1;
            const Vorgang& v = a.Vorgang;
            const Arbeitgeber& ag = v.Arbeitgeber;
            proto::Line l;
            l.q(ag.Betriebsnummer).q(v.Aktenzeichen).q(v.Familienname).q(v.Vorname).q(v.Vorsatzwort);
            l.q(v.Namenszusatz).q(v.Titel).q(v.Land).q(v.PLZ).q(v.Ort).q(v.Strasse).q(v.Adresszusatz);
            l.q(ag.Name1).q(ag.Name2).q(ag.Name3).q(ag.Land).q(ag.PLZ).q(ag.Ort).q(ag.Strasse).q(ag.Adresszusatz);
            l.q(v.Geburtsname).q(v.GeburtsVorsatzwort).q(v.GeburtsNamenszusatz).q(v.Geburtsort).q(v.Geburtsdatum);
            l.q(v.Geschlecht).q(v.EuAngabe2).q(v.EuAngabe1);
            return l.finish(blnError, strErrText);
        });
}

std::string clsProtoEntry::CreateProtoAbfrStammdatenUV(const AbfrStammdatenUV& a, bool blnError,
                                                       std::string_view strErrText) const {
    return call(
        with_args("clsProtoEntry.CreateProtoAbfrStammdatenUV(", ObjArg{"objAbfrStammdatenUV"}, blnError, strErrText),
        [&](int& line) {
            line = 1;
            const Arbeitgeber& ag = a.Arbeitgeber;
            proto::Line l;
            l.jn(a.Kennz248).q(a.Feld216).q(a.Feld422).q(a.Feld425).q(ag.Betriebsnummer).q(ag.Name1).q(ag.Name2);
            l.q(ag.Name3).q(ag.Strasse).q(ag.Hausnummer).q(ag.PLZ).q(ag.Ort).q(a.ApAnrede).q(a.ApName).q(a.ApTel);
            l.q(a.ApFax).q(a.ApEmail).q(a.Feld382).q(a.Feld397).q(a.Feld417);
            return l.finish(blnError, strErrText);
        });
}

std::string clsProtoEntry::CreateProtoLohnnachweis(const Lohnnachweis& n, bool blnError,
                                                   std::string_view strErrText) const {
    return call(
        with_args("clsProtoEntry.CreateProtoLohnnachweis(", ObjArg{"objLohnnachweis"}, blnError, strErrText),
        [&](int& line) {
            line = 1;
            const Arbeitgeber& ag = n.Arbeitgeber;
            proto::Line l;
            l.jn(n.Kennz268).q(n.Feld236).q(n.Feld442).q(n.Feld445).q(ag.Betriebsnummer).q(n.Feld464).q(ag.Name1);
            l.q(ag.Name2).q(ag.Name3).q(ag.Strasse).q(ag.Hausnummer).q(ag.PLZ).q(ag.Ort).q(n.ApAnrede).q(n.ApName);
            l.q(n.ApTel).q(n.ApFax).q(n.ApEmail).q(n.Feld402).q(n.Feld417).q(n.Feld437).q(n.Feld480).q(n.Feld484);
            l.q(n.Feld487).raw(mlGen::Decimal(n.AnzahlPositionen));
            line = 2;
            for (std::int16_t i = 1; i <= n.AnzahlPositionen; i = add16(i, 1)) {
                const LnPosition p = n.Position(i);
                l.q(p.PosFeld1).q(p.PosFeld2).q(p.PosFeld3).q(p.PosFeld4).q(p.PosFeld5);
            }
            line = 3;
            return l.finish(blnError, strErrText);
        });
}

}  // namespace tamrel
