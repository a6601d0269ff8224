// The DSVV record, left to right as its layout table; the person's blocks follow.
#include "core/shared_blocks.h"
#include "core/writer.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"

namespace tamrel {

std::string clsGenAbfrVers::GenData(const AbfrVers& a, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenAbfrVers.GenData(", ObjArg{"objAbfrVers"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    return record_then_blocks(
                        line, datDate, 575, [&](std::string& out, const Date& date) { GenDSVV(out, a, dd, date); },
                        [&](std::string& out) {
                            mlGen::AppendDBNA(out, a.Vorgang, false);
                            mlGen::AppendDBGB(out, a.Vorgang);
                            bool filled = false;  // the three blocks are always sent
                            mlGen::AppendDBAN(out, a.Vorgang, filled);
                        });
                });
}

void clsGenAbfrVers::GenDSVV(std::string& out, const AbfrVers& a, const DatensatzData& dd, const Date& date) {
    routine("clsGenAbfrVers.GenDSVV", [&](int& line) {
        Writer w(out, line);
        w.lit("DSVV").lit("DEUEV").an(dd.strBNRAb, 15).an("66667777", 15).lit("01");
        w.stamp(a.Datum, 1, date, 14).n(dd.strMicroseconds, 6).lit("0").zeros(1).blank(12).zeros(1).blank(1);
        w.an(a.Vorgang.Arbeitgeber.Betriebsnummer, 15).an(a.Vorgang.Aktenzeichen, 20).an(dd.strVersion, 10);
        w.n(a.Kennzahl, 10).blank(12).blank(2).an("5", 1).blank(24).lit("J").lit("J").lit("J").blank(26);
        w.check(200, "DSVV");
    });
}

}  // namespace tamrel
