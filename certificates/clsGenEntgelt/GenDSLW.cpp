// The DSLW record, left to right as its layout table; each block is built
// where its flag is written, and those that hold data (flag "J") go into the
// plan that GenData appends.
#include "certificates/clsGenEntgelt/DSLW_layout.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "core/version_number.h"
#include "core/writer.h"

namespace tamrel {

namespace eel {
bool GenDBNA(std::string& out, const Entgelt& e);
bool GenDBAN(std::string& out, const Entgelt& e);
bool GenDBAL(std::string& out, const Entgelt& e);
bool GenDBAE(std::string& out, const Entgelt& e);
bool GenDBZA(std::string& out, const Entgelt& e);
bool GenDBEE(std::string& out, const Entgelt& e);
bool GenDBAW(std::string& out, const Entgelt& e);
bool GenDBFR(std::string& out, const Entgelt& e);
bool GenDBUN(std::string& out, const Entgelt& e);
bool GenDBMU(std::string& out, const Entgelt& e);
bool GenDBVO(std::string& out, const Entgelt& e);
bool GenDBHE(std::string& out, const Entgelt& e);
bool GenDBBE(std::string& out, const Entgelt& e);
bool GenDBLT(std::string& out, const Entgelt& e);
bool GenDBSF(std::string& out, const Entgelt& e);
bool GenDBTK(std::string& out, const Entgelt& e);
bool GenDBAP(std::string& out, const Entgelt& e);
bool GenDBID(std::string& out, const Entgelt& e);
}  // namespace eel

namespace {
using Builder = bool (*)(std::string&, const Entgelt&);
// In the order of their flags at positions 202-219.
constexpr Builder kBuilders[clsGenEntgelt::kBlocks] = {
    eel::GenDBNA, eel::GenDBAN, eel::GenDBAL, eel::GenDBAE, eel::GenDBZA, eel::GenDBEE,
    eel::GenDBAW, eel::GenDBFR, eel::GenDBUN, eel::GenDBMU, eel::GenDBVO, eel::GenDBHE,
    eel::GenDBBE, eel::GenDBLT, eel::GenDBSF, eel::GenDBTK, eel::GenDBAP, eel::GenDBID,
};
}  // namespace

EntgeltPlan clsGenEntgelt::GenDSLW(std::string& out, const Entgelt& e, const DatensatzData& dd, const Date& date) {
    return routine("clsGenEntgelt.GenDSLW", [&](int& line) {
        EntgeltPlan plan;
        plan.blocks.reserve(kManyBlocksRoom);
        const Vorgang& v = e.Vorgang;
        const VersionNumber dsid(dd.strVersion, e.DatensatzNr);
        Writer w(out, line);
        using namespace layouts::eel::DSLW;
        w.put(Head.Kennung).put(Head.Verfahren).put(Head.strBNRAb, dd.strBNRAb);
        w.put(Head.EmpfaengerBetriebsnummer, e.Empfaenger.Betriebsnummer).put(Head.Version);
        w.stamp(Head.Erstellt, e.ErstellDatum, 1, date).put(Head.strMicroseconds, dd.strMicroseconds);
        w.put(Head.Fehlerkennzeichen).put(Head.Fehleranzahl);
        w.put(Versicherungsnummer, v.Versicherungsnummer).put(Geburtsdatum, v.Geburtsdatum);
        w.put(Betriebsnummer, v.Arbeitgeber.Betriebsnummer).put(RecordID, dsid);
        w.put(strProdID, dd.strProdID).put(strModID, dd.strModID).put(Reserve1).put(Reserve2);
        w.put(BBNRKK, e.BBNRKK.empty() ? e.Empfaenger.Betriebsnummer : e.BBNRKK).put(strBNRSt, dd.strBNRSt);
        w.put(RUECKMELDUNGEEL, e.RUECKMELDUNGEEL).put(ABGABEGRUND, e.ABGABEGRUND).put(KENNZSTORNO, e.KENNZSTORNO);
        static_assert(kBlockFlags.size() == std::size(kBuilders));
        for (std::size_t k = 0; k < kBlockFlags.size(); ++k) {
            const std::size_t mark = plan.blocks.size();
            const bool held = kBuilders[k](plan.blocks, e);
            if (!held) plan.blocks.resize(mark);
            w.put(kBlockFlags[k], held);
        }
        w.check(layouts::eel::kDSLW);
        return plan;
    });
}

std::string clsGenEntgelt::GenData(const Entgelt& e, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenEntgelt.GenData(", ObjArg{"objEntgelt"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    return record_then_blocks(
                        line, datDate, kManyBlocksRoom,
                        [&](std::string& out, const Date& date) { return GenDSLW(out, e, dd, date); },
                        [&](std::string& out, const EntgeltPlan& plan) { out += plan.blocks; });
                });
}

}  // namespace tamrel
