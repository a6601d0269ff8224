// The DSAS record, left to right as its layout table.
#include "core/contact_block.h"
#include "core/writer.h"
#include "queries/clsGenAbfrStammdatenUV/DSAS_layout.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"

namespace tamrel {

using namespace layouts::uv;

std::string clsGenAbfrStammdatenUV::GenData(const AbfrStammdatenUV& a, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenAbfrStammdatenUV.GenData(", ObjArg{"objAbfrStammdatenUV"}, ObjArg{"udtDatensatzData"},
                          datDate),
                [&](int& line) {
                    return record_then_blocks(
                        line, datDate, kDSAS.length + kDBAP.length,
                        [&](std::string& out, const Date& date) { return GenDSAS(out, a, dd, date); },
                        AppendPlannedBlocks);
                });
}

ContactPlan clsGenAbfrStammdatenUV::GenDSAS(std::string& out, const AbfrStammdatenUV& a, const DatensatzData& dd,
                                            const Date& date) {
    return routine("clsGenAbfrStammdatenUV.GenDSAS", [&](int& line) {
        ContactPlan plan;
        Writer w(out, line);
        using namespace DSAS;
        w.put(Head.Kennung)
            .put(Head.Verfahren)
            .put(Head.strBNRAb, dd.strBNRAb)
            .put(Head.Empfaenger)
            .put(Head.Version)
            .put(Head.Reserve1)
            .put(Head.Reserve2);
        w.stamp(Head.Erstellt, a.ErstellDatum, 1, date)
            .put(Head.strMicroseconds, dd.strMicroseconds)
            .put(Fest1)
            .put(Fehlerkennzeichen)
            .put(Fehleranzahl)
            .put(Reserve1);
        w.put(strProdID, dd.strProdID)
            .put(strModID, dd.strModID)
            .put(strVersion, dd.strVersion)
            .put(DatensatzNr, a.DatensatzNr)
            .put(Reserve2);
        w.put(Feld216, a.Feld216)
            .put(Kennz248, a.Kennz248)
            .put(Reserve3)
            .put(Fest2)
            .put(Reserve4)
            .put(Feld382, a.Feld382)
            .put(Feld397, a.Feld397);
        w.put(Feld417, a.Feld417)
            .put(Feld422, a.Feld422)
            .put(Feld425, a.Feld425)
            .put(Betriebsnummer, a.Arbeitgeber.Betriebsnummer)
            .put(Feld444, a.Feld444);
        const bool dbap = BuildDBAP(plan, a, a.Arbeitgeber, "clsGenAbfrStammdatenUV.GenDBAP");
        w.announce(MitDBAP, plan, ContactBlock::DBAP, dbap).put(Fest3);
        w.check(kDSAS);
        return plan;
    });
}

}  // namespace tamrel
