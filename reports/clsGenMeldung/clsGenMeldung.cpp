#include "reports/clsGenMeldung/clsGenMeldung.h"

#include "core/flag_reader.h"
#include "core/frames.h"
#include "core/shared_blocks.h"
#include "core/writer.h"

namespace tamrel {
namespace {

std::string_view frame_code(std::int32_t enmVerfahren) {
    switch (enmVerfahren) {
        case vmNormal:
            return "AGDEU";
        case vmSofort:
            return "AGTRV";
        case vmBV:
            return "AGBVD";
        default:
            return "";
    }
}

}  // namespace

std::string clsGenMeldung::GenVOSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                   std::string_view strFirma, std::int32_t enmVerfahren, std::string& strDatum,
                                   const Date& datDate) const {
    return call(
        with_args("clsGenMeldung.GenVOSZ(", strBNRAb, strBNREm, strFileNr, strFirma, enmVerfahren, strDatum, datDate),
        [&](int& line) {
            line = 1;
            return mlGen::GenVOSZ(frame_code(enmVerfahren), strBNRAb, strBNREm, strFileNr, strFirma, strDatum, datDate,
                                  "01");
        });
}

std::string clsGenMeldung::GenDSKO(DSKOData& udtDSKOData, const Date& datDate) const {
    return call(with_args("clsGenMeldung.GenDSKO(", ObjArg{"udtDSKOData"}, datDate), [&](int& line) {
        line = 1;
        return mlGen::GenDSKO(udtDSKOData, "DEUEV", datDate);
    });
}

std::string clsGenMeldung::GenNCSZ(std::string_view strBNRAb, std::string_view strBNREm, std::string_view strFileNr,
                                   std::string_view strCount, std::int32_t enmVerfahren, const Date& datDate) const {
    return call(with_args("clsGenMeldung.GenNCSZ(", strBNRAb, strBNREm, strFileNr, strCount, enmVerfahren, datDate),
                [&](int& line) {
                    line = 1;
                    return mlGen::GenNCSZ(frame_code(enmVerfahren), strBNRAb, strBNREm, strFileNr, strCount, datDate,
                                          "01");
                });
}

std::string clsGenMeldung::GenData(const Meldung& m, DatensatzData& dd, std::int32_t enmVerfahren,
                                   const Date& datDate) {
    return call(
        with_args("clsGenMeldung.GenData(", ObjArg{"objMeldung"}, ObjArg{"udtDatensatzData"}, enmVerfahren, datDate),
        [&](int& line) {
            std::string out;
            out.reserve(2048);  // the record and every block it may announce
            line = 1;
            GenDSME(out, m, dd, enmVerfahren, datDate);
            // The flags are read back out of the finished record before any
            // block is appended: DBME, DBNA, DBGB, DBAN, DBEU, DBUV, DBKS, DBSO, DBKV.
            static constexpr std::size_t kFlagPositions[] = {171, 172, 173, 174, 175, 176, 177, 184, 189};
            line = 2;
            bool wanted[9];
            FlagReader flags(out, 559);
            for (std::size_t k = 0; k < 9; ++k) wanted[k] = flags.j(kFlagPositions[k]);
            line = 3;
            if (wanted[0]) GenDBME(out, m);
            if (wanted[1]) mlGen::AppendDBNA(out, m.Vorgang, m.MitNamensdaten);
            if (wanted[2]) mlGen::AppendDBGB(out, m.Vorgang);
            if (wanted[3]) {
                bool filled = false;
                mlGen::AppendDBAN(out, m.Vorgang, filled);
            }
            if (wanted[4]) GenDBEU(out, m);
            if (wanted[5]) out += dbuv_;
            if (wanted[6]) GenDBKS(out, m);
            if (wanted[7]) GenDBSO(out, m);
            if (wanted[8]) GenDBKV(out, m);
            return out;
        });
}

bool clsGenMeldung::IsGeringBkn(const Meldung& m) const {
    return routine("clsGenMeldung.IsGeringBkn(<objMeldung>)", [&](int& line) {
        line = 1;
        const std::string_view group = m.Personengruppe;
        return group == "109" || group == "110" || group == "190";
    });
}

}  // namespace tamrel
