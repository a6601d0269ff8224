// The DSLN record: the fixed part as its layout table, then one 59-character
// group per position.
#include "core/contact_block.h"
#include "core/int16.h"
#include "core/list_loop.h"
#include "core/writer.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"

namespace tamrel {

std::string clsGenLohnnachweis::GenData(const Lohnnachweis& l, DatensatzData& dd, const Date& datDate) const {
    const std::size_t positions = l.AnzahlPositionen > 0 ? static_cast<std::size_t>(l.AnzahlPositionen) : 0;
    return call(
        with_args("clsGenLohnnachweis.GenData(", ObjArg{"objLohnnachweis"}, ObjArg{"udtDatensatzData"}, datDate),
        [&](int& line) {
            return record_then_blocks(
                line, datDate, 494 + 321 + 59 * positions,
                [&](std::string& out, const Date& date) { return GenDSLN(out, l, dd, date); }, AppendPlannedBlocks);
        });
}

ContactPlan clsGenLohnnachweis::GenDSLN(std::string& out, const Lohnnachweis& l, const DatensatzData& dd,
                                        const Date& date) {
    return routine("clsGenLohnnachweis.GenDSLN", [&](int& line) {
        ContactPlan plan;
        Writer w(out, line);
        w.an("DSLN", 4).an("UVELN", 5).an(dd.strBNRAb, 15).an("95783331", 15).n("01", 2).zeros(2).zeros(2);
        w.stamp(l.ErstellDatum, 1, date, 14).n(dd.strMicroseconds, 6).zeros(20).an("N", 1).n("0", 1).n("0", 1);
        w.blank(100).an(dd.strProdID, 7).an(dd.strModID, 8).an(dd.strVersion, 10).n(l.DatensatzNr, 10).blank(12);
        w.an(l.Feld236, 32).flag(l.Kennz268).blank(32).n("5", 1).blank(100).an(l.Feld402, 15).an(l.Feld417, 20);
        w.n(l.Feld437, 5).n(l.Feld442, 3).n(l.Feld445, 4).an(l.Arbeitgeber.Betriebsnummer, 15).an(l.Feld464, 15);
        const bool dbap = BuildDBAP(plan, l, l.Arbeitgeber, "clsGenLohnnachweis.GenDBAP");
        w.announce(plan, ContactBlock::DBAP, dbap)
            .an(l.Feld480, 4)
            .an(l.Feld484, 3)
            .n(l.Feld487, 6)
            .n(l.AnzahlPositionen, 2);
        list_loop(line, 5, 1, l.AnzahlPositionen, [&](std::int16_t i) {
            const LnPosition p = l.Position(i);
            w.an(p.PosFeld1, 15).an(p.PosFeld2, 8).n(p.PosFeld3, 15).n(p.PosFeld4, 15).n(p.PosFeld5, 6);
        });
        w.check([&] { return add16(494, mul16(59, l.AnzahlPositionen)); }, "DSLN");
        return plan;
    });
}

}  // namespace tamrel
