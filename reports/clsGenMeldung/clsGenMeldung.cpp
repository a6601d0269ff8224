#include "reports/clsGenMeldung/clsGenMeldung.h"

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
                                   const Date& datDate) const {
    return call(
        with_args("clsGenMeldung.GenData(", ObjArg{"objMeldung"}, ObjArg{"udtDatensatzData"}, enmVerfahren, datDate),
        [&](int& line) {
            using enum MeldungBlock;
            std::string out;
            out.reserve(2048);  // the record and every block it may announce
            line = 1;
            const MeldungPlan plan = GenDSME(out, m, dd, enmVerfahren, datDate);
            line = 3;  // the blocks (statement 2, taking the record's flags, cannot fail)
            if (plan.has(DBME)) GenDBME(out, m);
            if (plan.has(DBNA)) mlGen::AppendDBNA(out, m.Vorgang, m.MitNamensdaten);
            if (plan.has(DBGB)) mlGen::AppendDBGB(out, m.Vorgang);
            if (plan.has(DBAN)) {
                bool filled = false;
                mlGen::AppendDBAN(out, m.Vorgang, filled);
            }
            if (plan.has(DBEU)) GenDBEU(out, m);
            if (plan.has(DBUV)) out += plan.dbuv;
            if (plan.has(DBKS)) GenDBKS(out, m);
            if (plan.has(DBSO)) GenDBSO(out, m);
            if (plan.has(DBKV)) GenDBKV(out, m);
            return out;
        });
}

bool clsGenMeldung::IsGeringBkn(const Meldung& m) const {
    return routine("clsGenMeldung.IsGeringBkn(<objMeldung>)", [&](int& line) {
        line = 1;
        return MarginalGroup(m.Personengruppe);
    });
}

}  // namespace tamrel
