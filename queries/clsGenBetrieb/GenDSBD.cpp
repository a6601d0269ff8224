// The DSBD record and its second-address block DBKA, each as its layout table.
#include "core/establishment_number.h"
#include "core/writer.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"

namespace tamrel {

std::string clsGenBetrieb::GenData(const Betrieb& b, DatensatzData& dd, const Date& datDate) const {
    return call(
        with_args("clsGenBetrieb.GenData(", ObjArg{"objBetrieb"}, ObjArg{"udtDatensatzData"}, datDate), [&](int& line) {
            return record_then_blocks(
                line, datDate, 749, [&](std::string& out, const Date& date) { return GenDSBD(out, b, dd, date); },
                [&](std::string& out, const BetriebPlan& plan) {
                    if (plan.has(BetriebBlock::DBKA)) out += plan.dbka;
                });
        });
}

BetriebPlan clsGenBetrieb::GenDSBD(std::string& out, const Betrieb& b, const DatensatzData& dd, const Date& date) {
    return routine(
        with_args("clsGenBetrieb.GenDSBD(", ObjArg{"objBetrieb"}, ObjArg{"udtDatensatzData"}, date), [&](int& line) {
            const Arbeitgeber& ag = b.Arbeitgeber;
            BetriebPlan plan;
            Writer w(out, line);
            w.lit("DSBD").lit("BTRAG").an(dd.strBNRAb, 15).an(b.Empfaenger.Betriebsnummer, 15).lit("01");
            w.stamp(b.ErstellDatum, 1, date, 14).n(dd.strMicroseconds, 6).lit("0").lit("0");
            w.an(ag.Betriebsnummer, 15).blank(11).an(mlGen::ConvertBNRSt(dd.strBNRSt), 15).n(b.Kennziffer, 2);
            w.blank(5).an(ag.Name1, 30).an(ag.Name2, 30).an(ag.Name3, 30).an(ag.PLZ, 10).an(ag.Ort, 34);
            w.an(ag.Strasse, 33).an(ag.Hausnummer, 9).an(ag.AdressTeil1, 10).an(ag.AdressTeil2, 10);
            w.an(b.KennzeichenR ? "R" : "A", 1).an(b.Kennung15, 15).an(b.AnsprechpartnerGeschlecht, 1);
            w.an(b.AnsprechpartnerName, 30).an(b.AnsprechpartnerTelefon, 20).an(b.AnsprechpartnerFax, 20);
            w.an(b.AnsprechpartnerEMail, 70).blank(20).an(dd.strVersion, 10).n(b.DatensatzNr, 10);
            w.an(b.Empfaenger.Betriebsnummer, 15).blank(15);
            bool dbka = false;
            plan.dbka = GenDBKA(b, dbka);
            w.announce(plan, BetriebBlock::DBKA, dbka).an("N", 1).blank(5);
            w.check(541, "DSBD");
            return plan;
        });
}

std::string clsGenBetrieb::GenDBKA(const Betrieb& b, bool& filled) {
    return routine("clsGenBetrieb.GenDBKA", [&](int& line) {
        std::string out;
        out.reserve(208);
        Writer w(out, line, filled);
        w.lit("DBKA").an(b.DbkaName1, 30).an(b.DbkaName2, 30).an(b.DbkaName3, 30).an(b.DbkaPLZ, 10).an(b.DbkaOrt, 34);
        w.an(b.DbkaStrasse, 33).blank(9).an(b.DbkaAdressTeil1, 10).an(b.DbkaAdressTeil2, 10).blank(8);
        w.check(208, "DBKA");
        return out;
    });
}

}  // namespace tamrel
