// The DSLN record: the fixed part as its layout table, then one 59-character
// group per position.
#include "core/contact_block.h"
#include "core/int16.h"
#include "core/list_loop.h"
#include "core/writer.h"
#include "queries/clsGenLohnnachweis/DSLN_layout.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"

namespace tamrel {

using namespace layouts::uv;

std::string clsGenLohnnachweis::GenData(const Lohnnachweis& l, DatensatzData& dd, const Date& datDate) const {
    const std::size_t positions = l.AnzahlPositionen > 0 ? static_cast<std::size_t>(l.AnzahlPositionen) : 0;
    return call(
        with_args("clsGenLohnnachweis.GenData(", ObjArg{"objLohnnachweis"}, ObjArg{"udtDatensatzData"}, datDate),
        [&](int& line) {
            return record_then_blocks(
                line, datDate, kDSLN.length + kDBAP.length + kDSLNPosition.length * positions,
                [&](std::string& out, const Date& date) { return GenDSLN(out, l, dd, date); }, AppendPlannedBlocks);
        });
}

ContactPlan clsGenLohnnachweis::GenDSLN(std::string& out, const Lohnnachweis& l, const DatensatzData& dd,
                                        const Date& date) {
    return routine("clsGenLohnnachweis.GenDSLN", [&](int& line) {
        ContactPlan plan;
        Writer w(out, line);
        using namespace DSLN;
        w.put(Head.Kennung)
            .put(Head.Verfahren)
            .put(Head.strBNRAb, dd.strBNRAb)
            .put(Head.Empfaenger)
            .put(Head.Version)
            .put(Head.Reserve1)
            .put(Head.Reserve2);
        w.stamp(Head.Erstellt, l.ErstellDatum, 1, date)
            .put(Head.strMicroseconds, dd.strMicroseconds)
            .put(Reserve1)
            .put(Fest1)
            .put(Fehlerkennzeichen)
            .put(Fehleranzahl);
        w.put(Reserve2)
            .put(strProdID, dd.strProdID)
            .put(strModID, dd.strModID)
            .put(strVersion, dd.strVersion)
            .put(DatensatzNr, l.DatensatzNr)
            .put(Reserve3);
        w.put(Feld236, l.Feld236)
            .put(Kennz268, l.Kennz268)
            .put(Reserve4)
            .put(Fest2)
            .put(Reserve5)
            .put(Feld402, l.Feld402)
            .put(Feld417, l.Feld417);
        w.put(Feld437, l.Feld437)
            .put(Feld442, l.Feld442)
            .put(Feld445, l.Feld445)
            .put(Betriebsnummer, l.Arbeitgeber.Betriebsnummer)
            .put(Feld464, l.Feld464);
        const bool dbap = BuildDBAP(plan, l, l.Arbeitgeber, "clsGenLohnnachweis.GenDBAP");
        w.announce(MitDBAP, plan, ContactBlock::DBAP, dbap)
            .put(Feld480, l.Feld480)
            .put(Feld484, l.Feld484)
            .put(Feld487, l.Feld487)
            .put(AnzahlPositionen, l.AnzahlPositionen);
        list_loop(line, 5, 1, l.AnzahlPositionen, [&](std::int16_t i) {
            const LnPosition p = l.Position(i);
            w.entry();
            using namespace DSLNPosition;
            w.put(PosFeld1, p.PosFeld1)
                .put(PosFeld2, p.PosFeld2)
                .put(PosFeld3, p.PosFeld3)
                .put(PosFeld4, p.PosFeld4)
                .put(PosFeld5, p.PosFeld5);
        });
        w.check([&] { return add16(kDSLN.length, mul16(kDSLNPosition.length, l.AnzahlPositionen)); }, kDSLN.id);
        return plan;
    });
}

}  // namespace tamrel
