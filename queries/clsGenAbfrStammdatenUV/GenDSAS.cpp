// The DSAS record, left to right as its layout table.
#include "core/contact_block.h"
#include "core/writer.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"

namespace tamrel {

std::string clsGenAbfrStammdatenUV::GenData(const AbfrStammdatenUV& a, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenAbfrStammdatenUV.GenData(", ObjArg{"objAbfrStammdatenUV"}, ObjArg{"udtDatensatzData"},
                          datDate),
                [&](int& line) {
                    return record_then_blocks(
                        line, datDate, 784,
                        [&](std::string& out, const Date& date) { return GenDSAS(out, a, dd, date); },
                        AppendPlannedBlocks);
                });
}

ContactPlan clsGenAbfrStammdatenUV::GenDSAS(std::string& out, const AbfrStammdatenUV& a, const DatensatzData& dd,
                                            const Date& date) {
    return routine("clsGenAbfrStammdatenUV.GenDSAS", [&](int& line) {
        ContactPlan plan;
        Writer w(out, line);
        w.an("DSAS", 4).an("UVSDD", 5).an(dd.strBNRAb, 15).an("95783331", 15).n("01", 2).zeros(2).zeros(2);
        w.stamp(a.ErstellDatum, 1, date, 14).n(dd.strMicroseconds, 6).an("N", 1).n("0", 1).n("0", 1).blank(100);
        w.an(dd.strProdID, 7).an(dd.strModID, 8).an(dd.strVersion, 10).n(a.DatensatzNr, 10).blank(12);
        w.an(a.Feld216, 32).flag(a.Kennz248).blank(32).n("5", 1).blank(100).an(a.Feld382, 15).an(a.Feld397, 20);
        w.n(a.Feld417, 5).n(a.Feld422, 3).n(a.Feld425, 4).an(a.Arbeitgeber.Betriebsnummer, 15).an(a.Feld444, 15);
        const bool dbap = BuildDBAP(plan, a, a.Arbeitgeber, "clsGenAbfrStammdatenUV.GenDBAP");
        w.announce(plan, ContactBlock::DBAP, dbap).an("UV10", 4);
        w.check(463, "DSAS");
        return plan;
    });
}

}  // namespace tamrel
