// The DSER record, left to right as its layout table.
#include "core/date_fields.h"
#include "core/establishment_number.h"
#include "core/version_number.h"
#include "core/writer.h"
#include "reports/clsGenErst/DSER_layout.h"
#include "reports/clsGenErst/clsGenErst.h"

namespace tamrel {
namespace {

using namespace layouts::erst;

std::string_view reason_code(const Erst& e) {
    if (e.Erstattungsgrund == 11) return "01";
    if (e.Leistungsart == 2) return "02";
    if (e.Leistungsart == 1) return "03";
    return {};
}

std::string_view settlement_code(std::int32_t v) {
    static constexpr std::string_view codes[] = {"0", "1", "2", "3"};
    return v >= 1 && v <= 4 ? codes[v - 1] : std::string_view{};
}

}  // namespace

std::string clsGenErst::GenData(const Erst& e, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenErst.GenData(", ObjArg{"objErst"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    return record_then_blocks(
                        line, datDate,
                        kDSER.length + kDBAU.length + kDBBT.length + kDBZU.length + kDBBV.length +
                            layouts::kDBNA.length + kDBAA.length,
                        [&](std::string& out, const Date& date) { return GenDSER(out, e, dd, date); },
                        [&](std::string& out, const ErstPlan& plan) {
                            using enum ErstBlock;
                            if (plan.has(DBAU)) GenDBAU(out, e);
                            if (plan.has(DBBT)) GenDBBT(out, e);
                            if (plan.has(DBZU)) GenDBZU(out, e);
                            if (plan.has(DBBV)) GenDBBV(out, e);
                            if (plan.has(DBNA)) GenDBNA(out, e);
                            if (plan.has(DBAA)) GenDBAA(out, e);
                        });
                });
}

ErstPlan clsGenErst::GenDSER(std::string& out, const Erst& e, const DatensatzData& dd, const Date& date) {
    return routine("clsGenErst.GenDSER", [&](int& line) {
        using enum ErstBlock;
        const Vorgang& v = e.Vorgang;
        const VersionNumber reference(dd.strVersion, e.ErstattungsId);
        ErstPlan plan;
        Writer w(out, line);
        using namespace DSER;
        w.put(Head.Kennung).put(Head.Verfahren).put(Head.strBNRAb, dd.strBNRAb);
        w.put(Head.EmpfaengerBetriebsnummer, e.Empfaenger.Betriebsnummer).put(Head.Version);
        w.stamp(Head.Erstellt, e.ErstelltAm, 1, date).put(Head.strMicroseconds, dd.strMicroseconds);
        w.put(Head.Fehlerkennzeichen).put(Head.Fehleranzahl);
        w.put(Versicherungsnummer, v.Versicherungsnummer).put(Geburtsdatum, v.Geburtsdatum);
        w.put(ArbeitgeberBetriebsnummer, v.Arbeitgeber.Betriebsnummer);
        w.put(Aktenzeichen, v.Aktenzeichen).put(Reserve1).put(EmpfaengerBetriebsnummer, e.Empfaenger.Betriebsnummer);
        w.put(Reserve2);
        w.put(ConvertBNRSt, mlGen::ConvertBNRSt(dd.strBNRSt))
            .put(ReasonCode, reason_code(e))
            .put(ErstDatum, e.ErstDatum);
        w.put(Abrechnungskennzeichen, settlement_code(e.Abrechnungskennzeichen)).put(Geschlecht, v.Geschlecht);
        w.put(Fest).put(strProdID, dd.strProdID);
        w.put(strModID, dd.strModID).put(RecordReference, reference).put(Reserve3);
        w.announce(MitDBAU, plan, DBAU, e.Erstattungsgrund == 11).announce(MitDBBT, plan, DBBT, e.Leistungsart == 2);
        w.announce(MitDBZU, plan, DBZU, e.Leistungsart == 1).announce(MitDBBV, plan, DBBV, true);
        w.announce(MitDBNA, plan, DBNA, true);
        w.announce(MitDBAA, plan, DBAA, !e.DBAAEntfaellt).put(Reserve4).put(Reserve5);
        w.check(kDSER);
        return plan;
    });
}

}  // namespace tamrel
