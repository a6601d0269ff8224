// The DSER record, left to right as its layout table.
#include "core/date_fields.h"
#include "core/establishment_number.h"
#include "core/version_number.h"
#include "core/writer.h"
#include "reports/clsGenErst/clsGenErst.h"

namespace tamrel {
namespace {

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
                        line, datDate, 455 + 202 + 180 + 191 + 174 + 125 + 321,
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
        w.lit("DSER").lit("AAGER").an(dd.strBNRAb, 15).an(e.Empfaenger.Betriebsnummer, 15).lit("05");
        w.stamp(e.ErstelltAm, 1, date, 14).n(dd.strMicroseconds, 6).lit("0").lit("0");
        w.an(v.Versicherungsnummer, 12).n(v.Geburtsdatum, 8).an(v.Arbeitgeber.Betriebsnummer, 15);
        w.an(v.Aktenzeichen, 20).blank(20).an(e.Empfaenger.Betriebsnummer, 15).blank(20);
        w.an(mlGen::ConvertBNRSt(dd.strBNRSt), 15).n(reason_code(e), 2).n(e.ErstDatum, 8);
        w.n(settlement_code(e.Abrechnungskennzeichen), 1).an(v.Geschlecht, 1).lit("2").an(dd.strProdID, 7);
        w.an(dd.strModID, 8).an(reference, 32).blank(100);
        w.announce(plan, DBAU, e.Erstattungsgrund == 11).announce(plan, DBBT, e.Leistungsart == 2);
        w.announce(plan, DBZU, e.Leistungsart == 1).announce(plan, DBBV, true).announce(plan, DBNA, true);
        w.announce(plan, DBAA, !e.DBAAEntfaellt).blank(1).blank(100);
        w.check(455, "DSER");
        return plan;
    });
}

}  // namespace tamrel
