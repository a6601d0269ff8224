// The records DSAB, DSEU and DSNE (common head, then each tail as its
// layout table) and GenData, which appends the announced blocks in order.
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "core/date_fields.h"
#include "core/int16.h"
#include "core/writer.h"

namespace tamrel {
namespace {

using enum ArbeitsBeschBlock;

// Positions 1-161, the same in the three records; DBNA, DBAN and DBAG always follow.
void head(Writer& w, ArbeitsBeschPlan& plan, std::string_view name, const ArbeitsBesch& a, const DatensatzData& dd,
          const Date& date) {
    const Vorgang& v = a.Vorgang;
    w.an(name, 4).n("03", 2).an("ALG", 5).an(dd.strBNRAb, 15).stamp(a.ErstellDatum, 1, date, 14);
    w.n(dd.strMicroseconds, 6).n("0", 1).n("0", 1).an(v.Versicherungsnummer, 12).an(v.Arbeitgeber.Betriebsnummer, 15);
    w.an(v.Aktenzeichen, 20).an(dd.strBNRSt, 15).an(dd.strVersion, 10).n(a.DatensatzNr, 10).blank(12).blank(8);
    w.n(a.Feld151, 8).announce(plan, DBNA, true).announce(plan, DBAN, true).announce(plan, DBAG, true);
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
        head(w, plan, "DSAB", a, dd, date);
        w.announce(plan, DBAB, bea::GenDBAB(plan.dbab, a));
        w.n(a.AnzahlDBSE, 2).zeros(2).announce(plan, DBSA, true).n(a.AnzahlDBSB, 2).n(a.AnzahlDBAZ, 2);
        w.n(a.AnzahlDBEN, 2).n(a.AnzahlDBFZ, 2);
        w.announce(plan, DBHA, bea::GenDBHA(plan.dbha, a)).announce(plan, DBKE, true);
        w.check(177, "DSAB");
        return plan;
    });
}

ArbeitsBeschPlan clsGenArbeitsBesch::GenDSEU(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd,
                                             const Date& date) {
    return routine("clsGenArbeitsBesch.GenDSEU", [&](int& line) {
        ArbeitsBeschPlan plan;
        Writer w(out, line);
        head(w, plan, "DSEU", a, dd, date);
        w.announce(plan, DBAB, bea::GenDBAB(plan.dbab, a));
        w.n(a.AnzahlDBSE, 2).zeros(2).announce(plan, DBSA, true).n(a.AnzahlDBSB, 2).n(a.AnzahlDBEZ, 2);
        w.n(a.AnzahlDBEE, 2).n(a.AnzahlDBFZ, 2).announce(plan, DBKU, true);
        w.check(176, "DSEU");
        return plan;
    });
}

ArbeitsBeschPlan clsGenArbeitsBesch::GenDSNE(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd,
                                             const Date& date) {
    return routine("clsGenArbeitsBesch.GenDSNE", [&](int& line) {
        ArbeitsBeschPlan plan;
        Writer w(out, line);
        head(w, plan, "DSNE", a, dd, date);
        w.announce(plan, DBAB, bea::GenDBAB(plan.dbab, a));
        w.announce(plan, DBNE, true).zeros(2).announce(plan, DBSA, true).announce(plan, DBNB, true);
        w.announce(plan, DBHN, bea::GenDBHN(plan.dbhn, a));
        w.check(168, "DSNE");
        return plan;
    });
}

std::string clsGenArbeitsBesch::GenData(const ArbeitsBesch& a, DatensatzData& dd, const Date& datDate) const {
    return call("clsGenArbeitsBesch.GetData", [&](int& line) {
        const std::int16_t verfahren = a.Verfahren;
        return record_then_blocks(
            line, datDate, 2048,
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
