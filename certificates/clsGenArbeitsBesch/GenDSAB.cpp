// The records DSAB, DSEU and DSNE (common head, then each tail as its
// layout table) and GenData, which appends the announced blocks in order.
#include "certificates/clsGenArbeitsBesch/DSAB_layout.h"
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "core/date_fields.h"
#include "core/int16.h"
#include "core/writer.h"

namespace tamrel {
namespace {

using enum ArbeitsBeschBlock;
namespace L = layouts::bea;

// Positions 1-161, the same in the three records; DBNA, DBAN and DBAG always follow.
template <const L::CertificateHead& h>
[[gnu::always_inline]] inline void head(Writer& w, ArbeitsBeschPlan& plan, const ArbeitsBesch& a,
                                        const DatensatzData& dd, const Date& date) {
    const Vorgang& v = a.Vorgang;
    w.put(h.Kennung).put(h.Version).put(h.Verfahren).put(h.strBNRAb, dd.strBNRAb);
    w.stamp(h.Erstellt, a.ErstellDatum, 1, date).put(h.strMicroseconds, dd.strMicroseconds);
    w.put(h.Fehlerkennzeichen).put(h.Fehleranzahl).put(h.Versicherungsnummer, v.Versicherungsnummer);
    w.put(h.Betriebsnummer, v.Arbeitgeber.Betriebsnummer).put(h.Aktenzeichen, v.Aktenzeichen);
    w.put(h.strBNRSt, dd.strBNRSt).put(h.strVersion, dd.strVersion).put(h.DatensatzNr, a.DatensatzNr);
    w.put(h.Reserve1).put(h.Reserve2).put(h.Feld151, a.Feld151);
    w.announce(h.MitDBNA, plan, DBNA, true).announce(h.MitDBAN, plan, DBAN, true);
    w.announce(h.MitDBAG, plan, DBAG, true).announce(h.MitDBAB, plan, DBAB, bea::GenDBAB(plan.dbab, a));
}

// A group's blocks for index 1 to its count (16-bit counter, count read once).
template <class Item, class Build>
void each(std::string& out, const std::vector<Item>& items, std::int16_t count, Build build) {
    for (std::int16_t i = 1; i <= count; i = add16(i, 1)) build(out, bea::item(items, i));
}

}  // namespace

ArbeitsBeschPlan clsGenArbeitsBesch::GenDSAB(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd,
                                             const Date& date) {
    return routine("clsGenArbeitsBesch.GenDSAB", [&](int& line) {
        ArbeitsBeschPlan plan;
        Writer w(out, line);
        using namespace L::DSAB;
        head<Head>(w, plan, a, dd, date);
        w.put(AnzahlDBSE, a.AnzahlDBSE).put(Reserve).announce(MitDBSA, plan, DBSA, true);
        w.put(AnzahlDBSB, a.AnzahlDBSB).put(AnzahlDBAZ, a.AnzahlDBAZ);
        w.put(AnzahlDBEN, a.AnzahlDBEN).put(AnzahlDBFZ, a.AnzahlDBFZ);
        w.announce(MitDBHA, plan, DBHA, bea::GenDBHA(plan.dbha, a)).announce(MitDBKE, plan, DBKE, true);
        w.check(L::kDSAB);
        return plan;
    });
}

ArbeitsBeschPlan clsGenArbeitsBesch::GenDSEU(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd,
                                             const Date& date) {
    return routine("clsGenArbeitsBesch.GenDSEU", [&](int& line) {
        ArbeitsBeschPlan plan;
        Writer w(out, line);
        using namespace L::DSEU;
        head<Head>(w, plan, a, dd, date);
        w.put(AnzahlDBSE, a.AnzahlDBSE).put(Reserve).announce(MitDBSA, plan, DBSA, true);
        w.put(AnzahlDBSB, a.AnzahlDBSB).put(AnzahlDBEZ, a.AnzahlDBEZ);
        w.put(AnzahlDBEE, a.AnzahlDBEE).put(AnzahlDBFZ, a.AnzahlDBFZ).announce(MitDBKU, plan, DBKU, true);
        w.check(L::kDSEU);
        return plan;
    });
}

ArbeitsBeschPlan clsGenArbeitsBesch::GenDSNE(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd,
                                             const Date& date) {
    return routine("clsGenArbeitsBesch.GenDSNE", [&](int& line) {
        ArbeitsBeschPlan plan;
        Writer w(out, line);
        using namespace L::DSNE;
        head<Head>(w, plan, a, dd, date);
        w.announce(MitDBNE, plan, DBNE, true).put(Reserve).announce(MitDBSA, plan, DBSA, true);
        w.announce(MitDBNB, plan, DBNB, true).announce(MitDBHN, plan, DBHN, bea::GenDBHN(plan.dbhn, a));
        w.check(L::kDSNE);
        return plan;
    });
}

std::string clsGenArbeitsBesch::GenData(const ArbeitsBesch& a, DatensatzData& dd, const Date& datDate) const {
    return call("clsGenArbeitsBesch.GetData", [&](int& line) {
        const std::int16_t verfahren = a.Verfahren;
        return record_then_blocks(
            line, datDate, kManyBlocksRoom,
            [&](std::string& out, const Date& date) {
                switch (verfahren) {
                    case 15:
                        return GenDSAB(out, a, dd, date);
                    case 16:
                        return GenDSEU(out, a, dd, date);
                    case 17:
                        return GenDSNE(out, a, dd, date);
                    default:
                        raise(kObjectErrorBase, "clsGenArbeitsBesch.GetData",
                              "Verfahren ist f\xC3\xBCr Abeitsbescheinigung nicht zul\xC3\xA4ssig.");
                }
            },
            [&](std::string& out, const ArbeitsBeschPlan& plan) {
                if (plan.has(DBNA)) bea::GenDBNA(out, a);
                if (plan.has(DBAN)) bea::GenDBAN(out, a);
                if (plan.has(DBAG)) bea::GenDBAG(out, a);
                if (plan.has(DBAB)) out += plan.dbab;
                if (verfahren != 17) each(out, a.DBSE, a.AnzahlDBSE, bea::GenDBSE);
                if (plan.has(DBNE)) bea::GenDBNE(out, a);
                if (plan.has(DBSA)) bea::GenDBSA(out, a);
                if (verfahren != 17) each(out, a.DBSB, a.AnzahlDBSB, bea::GenDBSB);
                if (verfahren == 15) {
                    each(out, a.DBAZ, a.AnzahlDBAZ, bea::GenDBAZ);
                    each(out, a.DBEN, a.AnzahlDBEN, bea::GenDBEN);
                    each(out, a.DBFZ, a.AnzahlDBFZ, bea::GenDBFZ);
                }
                if (verfahren == 16) {
                    each(out, a.DBEZ, a.AnzahlDBEZ, bea::GenDBEZ);
                    each(out, a.DBEE, a.AnzahlDBEE, bea::GenDBEE);
                    each(out, a.DBFZ, a.AnzahlDBFZ, bea::GenDBFZ);
                }
                if (plan.has(DBHA)) out += plan.dbha;
                if (plan.has(DBKE)) bea::GenDBKE(out, a);
                if (plan.has(DBKU)) bea::GenDBKU(out, a);
                if (plan.has(DBNB)) bea::GenDBNB(out, a);
                if (plan.has(DBHN)) out += plan.dbhn;
            });
    });
}

}  // namespace tamrel
