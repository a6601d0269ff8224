// The DSVV record, left to right as its layout table; the person's blocks follow.
#include "core/shared_blocks.h"
#include "core/writer.h"
#include "queries/clsGenAbfrVers/DSVV_layout.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"

namespace tamrel {

using namespace layouts::abfrvers;

std::string clsGenAbfrVers::GenData(const AbfrVers& a, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenAbfrVers.GenData(", ObjArg{"objAbfrVers"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    return record_then_blocks(
                        line, datDate,
                        kDSVV.length + layouts::kDBNA.length + layouts::kDBGB.length + layouts::kDBAN.length,
                        [&](std::string& out, const Date& date) { GenDSVV(out, a, dd, date); },
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
        using namespace DSVV;
        w.put(Kennung).put(Verfahren).put(strBNRAb, dd.strBNRAb).put(BBNREmpfaenger).put(Version);
        w.stamp(Erstellt, a.Datum, 1, date).put(strMicroseconds, dd.strMicroseconds).put(Fehlerkennzeichen);
        w.put(Fehleranzahl).put(AngefragteVersicherungsnummer).put(Reserve1).put(Reserve2);
        w.put(Betriebsnummer, a.Vorgang.Arbeitgeber.Betriebsnummer).put(Aktenzeichen, a.Vorgang.Aktenzeichen);
        w.put(strVersion, dd.strVersion);
        w.put(Kennzahl, a.Kennzahl).put(Reserve3).put(Reserve4).put(Fest).put(Reserve5);
        w.put(MitDBNA).put(MitDBGB).put(MitDBAN).put(Reserve6);
        w.check(kDSVV);
    });
}

}  // namespace tamrel
