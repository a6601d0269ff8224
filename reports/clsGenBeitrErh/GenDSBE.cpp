// The DSBE record and its blocks DBMI and DBHB, each as its layout table.
#include "core/date_fields.h"
#include "core/establishment_number.h"
#include "core/writer.h"
#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"

namespace tamrel {
namespace {

// The blocks a DSBE record may announce, in the order they follow it.
enum class BeitrErhBlock { DBMI, DBHB };
using BeitrErhPlan = BlockPlan<BeitrErhBlock>;

// Merkmal2 1..6 is written as "0".."5"; anything else as an empty numeric field.
std::string_view merkmal2_code(std::int32_t v) {
    static constexpr std::string_view codes[] = {"0", "1", "2", "3", "4", "5"};
    return v >= 1 && v <= 6 ? codes[v - 1] : std::string_view{};
}

BeitrErhPlan GENDSBE(std::string& out, const BeitrErh& b, const DatensatzData& dd, const Date& date) {
    return routine("clsGenBeitrErh.GENDSBE", [&](int& line) {
        const Vorgang& v = b.Vorgang;
        const Arbeitgeber& ag = v.Arbeitgeber;
        BeitrErhPlan plan;
        Writer w(out, line);
        w.lit("DSBE")
            .lit("02")
            .lit("01")
            .lit("00")
            .lit("BVBEI")
            .an(dd.strBNRAb, 15)
            .an(b.Empfaenger.Betriebsnummer, 15);
        w.stamp(b.Zeitpunkt, 1, date, 14).n(dd.strMicroseconds, 6).lit("0").lit("0").lit("N");
        w.an(dd.strProdID, 7).an(dd.strModID, 8).an(dd.strVersion, 10).n(b.Laufnummer, 10).blank(12).zeros(20);
        w.an(ag.Name1, 30).an(ag.Name2, 30).an(ag.Name3, 30).an(ag.Strasse, 33).an(ag.Hausnummer, 9).n(ag.PLZ, 5);
        w.an(ag.Ort, 34).an(dd.strVersion, 10).n(b.Laufnummer, 10).an(ag.Betriebsnummer, 15);
        w.an(mlGen::ConvertBNRSt(dd.strBNRSt), 15).an(b.Empfaenger.Betriebsnummer, 15);
        w.an(!v.Bezugskennung.empty() ? v.Bezugskennung : b.Ersatzaktenzeichen, 17);
        w.n(b.Zeitraum2, 6).n(b.Zeitraum1, 6).lit(b.ArtKennzeichen ? "K" : "G");
        w.bg(b.Betrag1, 2, 0).bg(b.Betrag2, 6, 2).n(b.Merkmal1 == 1 ? "1" : "0", 1).bg(b.Betrag3, 7, 2);
        w.bg(b.Betrag4, 6, 2).n(merkmal2_code(b.Merkmal2), 1).bg(b.Betrag5, 6, 2);
        w.announce(plan, BeitrErhBlock::DBMI, true).announce(plan, BeitrErhBlock::DBHB, !b.Betrag6.empty()).blank(2);
        w.check(447, "DSBE");
        return plan;
    });
}

void GenDBMI(std::string& out, const BeitrErh& b) {
    routine("clsGenBeitrErh.GenDBMI", [&](int& line) {
        const Vorgang& v = b.Vorgang;
        Writer w(out, line);
        w.lit("DBMI").an(v.Aktenzeichen, 20).an(v.Familienname, 30).an(v.Vorname, 30).an(v.Vorsatzwort, 20);
        w.an(v.Namenszusatz, 20).an(v.Titel, 20).an(v.Geschlecht, 1).n(v.Geburtsdatum, 8);
        w.check(153, "DBMI");
    });
}

void GenDBHB(std::string& out, const BeitrErh& b) {
    routine("clsGenBeitrErh.GenDBHB", [&](int& line) {
        Writer w(out, line);
        w.lit("DBHB").bg(b.Betrag6, 6, 2);
        w.check(13, "DBHB");
    });
}

}  // namespace

std::string clsGenBeitrErh::GenData(const BeitrErh& b, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenBeitrErh.GenData(", ObjArg{"objBeitrErh"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    std::string out;
                    out.reserve(613);
                    line = 1;
                    const BeitrErhPlan plan = GENDSBE(out, b, dd, mlGen::GetDate(datDate));
                    line = 2;
                    if (plan.has(BeitrErhBlock::DBMI)) GenDBMI(out, b);
                    line = 3;
                    if (plan.has(BeitrErhBlock::DBHB)) GenDBHB(out, b);
                    return out;
                });
}

}  // namespace tamrel
