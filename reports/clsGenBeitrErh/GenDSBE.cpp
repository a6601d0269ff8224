// The DSBE record and its blocks DBMI and DBHB, each as its layout table.
#include "core/date_fields.h"
#include "core/establishment_number.h"
#include "core/writer.h"
#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "reports/clsGenBeitrErh/DSBE_layout.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"

namespace tamrel {
namespace {

using namespace layouts::beitrerh;

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
        using namespace DSBE;
        w.put(Kennung).put(Fest1).put(Fest2).put(Fest3).put(Verfahren).put(strBNRAb, dd.strBNRAb);
        w.put(EmpfaengerBetriebsnummer1, b.Empfaenger.Betriebsnummer);
        w.stamp(Erstellt, b.Zeitpunkt, 1, date).put(strMicroseconds, dd.strMicroseconds);
        w.put(Fehlerkennzeichen).put(Fehleranzahl).put(Fest4);
        w.put(strProdID, dd.strProdID).put(strModID, dd.strModID).put(strVersion1, dd.strVersion);
        w.put(Laufnummer1, b.Laufnummer).put(Reserve1).put(Reserve2);
        w.put(Name1, ag.Name1).put(Name2, ag.Name2).put(Name3, ag.Name3).put(Strasse, ag.Strasse);
        w.put(Hausnummer, ag.Hausnummer).put(PLZ, ag.PLZ);
        w.put(Ort, ag.Ort).put(strVersion2, dd.strVersion).put(Laufnummer2, b.Laufnummer);
        w.put(ArbeitgeberBetriebsnummer, ag.Betriebsnummer);
        w.put(ConvertBNRSt, mlGen::ConvertBNRSt(dd.strBNRSt))
            .put(EmpfaengerBetriebsnummer2, b.Empfaenger.Betriebsnummer);
        w.put(Bezugskennung, !v.Bezugskennung.empty() ? v.Bezugskennung : b.Ersatzaktenzeichen);
        w.put(Zeitraum2, b.Zeitraum2).put(Zeitraum1, b.Zeitraum1).text(ArtKennzeichen, b.ArtKennzeichen ? "K" : "G");
        w.put(Betrag1, b.Betrag1).put(Betrag2, b.Betrag2).put(Merkmal1, b.Merkmal1 == 1 ? "1" : "0");
        w.put(Betrag3, b.Betrag3);
        w.put(Betrag4, b.Betrag4).put(Merkmal2, merkmal2_code(b.Merkmal2)).put(Betrag5, b.Betrag5);
        w.announce(MitDBMI, plan, BeitrErhBlock::DBMI, true);
        w.announce(MitDBHB, plan, BeitrErhBlock::DBHB, !b.Betrag6.empty()).put(Reserve3);
        w.check(kDSBE);
        return plan;
    });
}

void GenDBMI(std::string& out, const BeitrErh& b) {
    routine("clsGenBeitrErh.GenDBMI", [&](int& line) {
        const Vorgang& v = b.Vorgang;
        Writer w(out, line);
        using namespace DBMI;
        w.put(Kennung).put(Aktenzeichen, v.Aktenzeichen).put(Familienname, v.Familienname).put(Vorname, v.Vorname);
        w.put(Vorsatzwort, v.Vorsatzwort).put(Namenszusatz, v.Namenszusatz).put(Titel, v.Titel);
        w.put(Geschlecht, v.Geschlecht).put(Geburtsdatum, v.Geburtsdatum);
        w.check(kDBMI);
    });
}

void GenDBHB(std::string& out, const BeitrErh& b) {
    routine("clsGenBeitrErh.GenDBHB", [&](int& line) {
        Writer w(out, line);
        w.put(DBHB::Kennung).put(DBHB::Betrag6, b.Betrag6);
        w.check(kDBHB);
    });
}

}  // namespace

std::string clsGenBeitrErh::GenData(const BeitrErh& b, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenBeitrErh.GenData(", ObjArg{"objBeitrErh"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    std::string out;
                    out.reserve(kDSBE.length + kDBMI.length + kDBHB.length);
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
