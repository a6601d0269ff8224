// The records DSAB, DSEU and DSNE (common head, then each tail as its
// layout table) and GenData, which appends the announced blocks in order.
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "core/date_fields.h"
#include "core/flag_reader.h"
#include "core/int16.h"
#include "core/writer.h"

namespace tamrel {
namespace {

void head(Writer& w, std::string_view name, const ArbeitsBesch& a, const DatensatzData& dd, const Date& date) {
    const Vorgang& v = a.Vorgang;
    w.an(name, 4).n("03", 2).an("ALG", 5).an(dd.strBNRAb, 15).stamp(a.ErstellDatum, 1, date, 14);
    w.n(dd.strMicroseconds, 6).n("0", 1).n("0", 1).an(v.Versicherungsnummer, 12).an(v.Arbeitgeber.Betriebsnummer, 15);
    w.an(v.Aktenzeichen, 20).an(dd.strBNRSt, 15).an(dd.strVersion, 10).n(a.DatensatzNr, 10).blank(12).blank(8);
    w.n(a.Feld151, 8).an("J", 1).an("J", 1).an("J", 1);
}

// A group's blocks for index 1 to its count (16-bit counter, count read once).
template <class Item, class Build>
void each(std::string& out, const std::vector<Item>& items, std::int16_t count, Build build) {
    for (std::int16_t i = 1; i <= count; i = add16(i, 1)) build(out, bea::item(items, i));
}

}  // namespace

void clsGenArbeitsBesch::GenDSAB(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd, const Date& date) {
    routine("clsGenArbeitsBesch.GenDSAB", [&](int& line) {
        Writer w(out, line);
        head(w, "DSAB", a, dd, date);
        dbab_.clear();
        w.flag(bea::GenDBAB(dbab_, a));
        w.n(a.AnzahlDBSE, 2).zeros(2).an("J", 1).n(a.AnzahlDBSB, 2).n(a.AnzahlDBAZ, 2).n(a.AnzahlDBEN, 2);
        w.n(a.AnzahlDBFZ, 2);
        second_.clear();
        w.flag(bea::GenDBHA(second_, a)).an("J", 1);
        w.check(177, "DSAB");
    });
}

void clsGenArbeitsBesch::GenDSEU(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd, const Date& date) {
    routine("clsGenArbeitsBesch.GenDSEU", [&](int& line) {
        Writer w(out, line);
        head(w, "DSEU", a, dd, date);
        dbab_.clear();
        w.flag(bea::GenDBAB(dbab_, a));
        w.n(a.AnzahlDBSE, 2).zeros(2).an("J", 1).n(a.AnzahlDBSB, 2).n(a.AnzahlDBEZ, 2).n(a.AnzahlDBEE, 2);
        w.n(a.AnzahlDBFZ, 2).an("J", 1);
        w.check(176, "DSEU");
    });
}

void clsGenArbeitsBesch::GenDSNE(std::string& out, const ArbeitsBesch& a, const DatensatzData& dd, const Date& date) {
    routine("clsGenArbeitsBesch.GenDSNE", [&](int& line) {
        Writer w(out, line);
        head(w, "DSNE", a, dd, date);
        dbab_.clear();
        w.flag(bea::GenDBAB(dbab_, a));
        w.an("J", 1).zeros(2).an("J", 1).an("J", 1);
        second_.clear();
        w.flag(bea::GenDBHN(second_, a));
        w.check(168, "DSNE");
    });
}

std::string clsGenArbeitsBesch::GenData(const ArbeitsBesch& a, DatensatzData& dd, const Date& datDate) {
    return call("clsGenArbeitsBesch.GetData", [&](int& line) {
        line = 1;
        const Date date = mlGen::GetDate(datDate);
        std::string out;
        out.reserve(2048);
        line = 2;
        switch (a.Verfahren) {
            case 15:
                GenDSAB(out, a, dd, date);
                break;
            case 16:
                GenDSEU(out, a, dd, date);
                break;
            case 17:
                GenDSNE(out, a, dd, date);
                break;
            default:
                raise(kObjectErrorBase, "clsGenArbeitsBesch.GetData",
                      "Verfahren ist f\xC3\xBCr Abeitsbescheinigung nicht zul\xC3\xA4ssig.");
        }
        // The announcements are read back out of the finished record.
        const std::size_t record_end = out.size();
        const std::string_view record(out.data(), record_end);
        bool j[169 + 9] = {};
        FlagReader flags(record);
        for (std::size_t pos : {159, 160, 161, 162, 163, 166, 167, 168, 176, 177}) j[pos] = flags.j(pos);
        const std::int16_t verfahren = a.Verfahren;
        line = 3;
        if (j[159]) bea::GenDBNA(out, a);
        if (j[160]) bea::GenDBAN(out, a);
        if (j[161]) bea::GenDBAG(out, a);
        if (j[162]) out += dbab_;
        if (verfahren == 15 || verfahren == 16)
            each(out, a.DBSE, a.AnzahlDBSE, bea::GenDBSE);
        else if (verfahren == 17 && j[163])
            bea::GenDBNE(out, a);
        if (verfahren == 17 ? j[166] : j[167]) bea::GenDBSA(out, a);
        if (verfahren != 17) each(out, a.DBSB, a.AnzahlDBSB, bea::GenDBSB);
        if (verfahren == 15) {
            each(out, a.DBAZ, a.AnzahlDBAZ, bea::GenDBAZ);
            each(out, a.DBEN, a.AnzahlDBEN, bea::GenDBEN);
            each(out, a.DBFZ, a.AnzahlDBFZ, bea::GenDBFZ);
            if (j[176]) out += second_;
            if (j[177]) bea::GenDBKE(out, a);
        }
        if (verfahren == 16) {
            each(out, a.DBEZ, a.AnzahlDBEZ, bea::GenDBEZ);
            each(out, a.DBEE, a.AnzahlDBEE, bea::GenDBEE);
            each(out, a.DBFZ, a.AnzahlDBFZ, bea::GenDBFZ);
            if (j[176]) bea::GenDBKU(out, a);
        }
        if (verfahren == 17) {
            if (j[167]) bea::GenDBNB(out, a);
            if (j[168]) out += second_;
        }
        return out;
    });
}

}  // namespace tamrel
