// The DSBD record and its second-address block DBKA, each as its layout table.
#include "core/establishment_number.h"
#include "core/writer.h"
#include "queries/clsGenBetrieb/DSBD_layout.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"

namespace tamrel {

using namespace layouts::betrieb;

std::string clsGenBetrieb::GenData(const Betrieb& b, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenBetrieb.GenData(", ObjArg{"objBetrieb"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    return record_then_blocks(
                        line, datDate, kDSBD.length + kDBKA.length,
                        [&](std::string& out, const Date& date) { return GenDSBD(out, b, dd, date); },
                        [&](std::string& out, const BetriebPlan& plan) {
                            if (plan.has(BetriebBlock::DBKA)) out += plan.dbka;
                        });
                });
}

BetriebPlan clsGenBetrieb::GenDSBD(std::string& out, const Betrieb& b, const DatensatzData& dd, const Date& date) {
    return routine(with_args("clsGenBetrieb.GenDSBD(", ObjArg{"objBetrieb"}, ObjArg{"udtDatensatzData"}, date),
                   [&](int& line) {
                       const Arbeitgeber& ag = b.Arbeitgeber;
                       BetriebPlan plan;
                       Writer w(out, line);
                       using namespace DSBD;
                       w.put(Head.Kennung)
                           .put(Head.Verfahren)
                           .put(Head.strBNRAb, dd.strBNRAb)
                           .put(Head.EmpfaengerBetriebsnummer, b.Empfaenger.Betriebsnummer)
                           .put(Head.Version);
                       w.stamp(Head.Erstellt, b.ErstellDatum, 1, date)
                           .put(Head.strMicroseconds, dd.strMicroseconds)
                           .put(Head.Fehlerkennzeichen)
                           .put(Head.Fehleranzahl);
                       w.put(ArbeitgeberBetriebsnummer, ag.Betriebsnummer)
                           .put(Reserve1)
                           .put(ConvertBNRSt, mlGen::ConvertBNRSt(dd.strBNRSt))
                           .put(Kennziffer, b.Kennziffer);
                       w.put(Reserve2)
                           .put(Name1, ag.Name1)
                           .put(Name2, ag.Name2)
                           .put(Name3, ag.Name3)
                           .put(PLZ, ag.PLZ)
                           .put(Ort, ag.Ort);
                       w.put(Strasse, ag.Strasse)
                           .put(Hausnummer, ag.Hausnummer)
                           .put(AdressTeil1, ag.AdressTeil1)
                           .put(AdressTeil2, ag.AdressTeil2);
                       w.put(KennzeichenR, b.KennzeichenR ? "R" : "A")
                           .put(Kennung15, b.Kennung15)
                           .put(AnsprechpartnerGeschlecht, b.AnsprechpartnerGeschlecht);
                       w.put(AnsprechpartnerName, b.AnsprechpartnerName)
                           .put(AnsprechpartnerTelefon, b.AnsprechpartnerTelefon)
                           .put(AnsprechpartnerFax, b.AnsprechpartnerFax);
                       w.put(AnsprechpartnerEMail, b.AnsprechpartnerEMail)
                           .put(Reserve3)
                           .put(strVersion, dd.strVersion)
                           .put(DatensatzNr, b.DatensatzNr);
                       w.put(EmpfaengerBetriebsnummer, b.Empfaenger.Betriebsnummer).put(Reserve4);
                       bool dbka = false;
                       plan.dbka = GenDBKA(b, dbka);
                       w.announce(MitDBKA, plan, BetriebBlock::DBKA, dbka).put(Fest).put(Reserve5);
                       w.check(kDSBD);
                       return plan;
                   });
}

std::string clsGenBetrieb::GenDBKA(const Betrieb& b, bool& filled) {
    return routine("clsGenBetrieb.GenDBKA", [&](int& line) {
        std::string out;
        out.reserve(kDBKA.length);
        Writer w(out, line, filled);
        using namespace DBKA;
        w.put(Kennung)
            .put(DbkaName1, b.DbkaName1)
            .put(DbkaName2, b.DbkaName2)
            .put(DbkaName3, b.DbkaName3)
            .put(DbkaPLZ, b.DbkaPLZ)
            .put(DbkaOrt, b.DbkaOrt);
        w.put(DbkaStrasse, b.DbkaStrasse)
            .put(Reserve1)
            .put(DbkaAdressTeil1, b.DbkaAdressTeil1)
            .put(DbkaAdressTeil2, b.DbkaAdressTeil2)
            .put(Reserve2);
        w.check(kDBKA);
        return out;
    });
}

}  // namespace tamrel
