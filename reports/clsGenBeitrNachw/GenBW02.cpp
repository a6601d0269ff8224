// The contribution statement record (BW02, or BW03 for the BNV procedure),
// left to right as its layout table.
#include "core/amounts.h"
#include "core/date_fields.h"
#include "core/establishment_number.h"
#include "core/writer.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"

namespace tamrel {
namespace {

// Betrag18 is always written with "-" in place of its sign.
std::string negated(std::string_view amount) {
    bool filled = false;
    std::string out;
    mlGen::AppendBG(out, amount, 9, 2, filled);
    out[0] = '-';
    return out;
}

}  // namespace

std::string clsGenBeitrNachw::GenData(const BeitrNachw& b, std::string_view strBNRAb, std::string_view strBNRSt,
                                      std::string_view strVersion, std::string_view strMicroseconds,
                                      const Date& datDate) const {
    return call(
        with_args("clsGenBeitrNachw.GenData(", ObjArg{"objBeitrNachw"}, strBNRAb, strBNRSt, strVersion, strMicroseconds,
                  datDate),
        [&](int& line) {
            const Date date = mlGen::GetDate(datDate);
            const bool bnv = b.Nachweisart == bnBNV;
            const bool extended = b.Nachweisart == 1;
            std::string_view sonder = b.Sonderbetrag;
            if (extended && !IsEmpfBkn(b.Empfaenger.Betriebsnummer) && sonder.empty()) sonder = b.Betrag23;
            const Arbeitgeber& ag = b.Arbeitgeber;

            std::string out;
            out.reserve(774);
            Writer w(out, line);
            w.lit(bnv ? "BW03" : "BW02")
                .lit(bnv ? "BWBNV" : "BWNAC")
                .an(strBNRAb, 15)
                .an(b.Empfaenger.Betriebsnummer, 15);
            w.lit("11").stamp(b.Zeitpunkt, 1, date, 14).n(strMicroseconds, 6).lit("0").lit("0");
            w.an(strVersion, 10).n(b.Laufnummer, 10).blank(20).lit(b.Merkmal1 ? "1" : "0").lit(b.Merkmal2 ? "1" : "0");
            w.zeros(1).an(ag.Betriebsnummer, 15).n(b.Zeitraum1, 8).n(b.Zeitraum2, 8);
            for (std::string_view amount :
                 {std::string_view(b.Betrag01), std::string_view(b.Betrag02), std::string_view(b.Betrag03),
                  std::string_view(b.Betrag11), std::string_view(b.Betrag06), std::string_view(b.Betrag04),
                  std::string_view(b.Betrag09), extended ? std::string_view{} : std::string_view(b.Betrag07),
                  std::string_view(b.Betrag14), std::string_view(b.Betrag10), std::string_view(b.Betrag12),
                  std::string_view(b.Betrag13), std::string_view(b.Betrag05), std::string_view(b.Betrag08),
                  std::string_view{}, std::string_view(b.Betrag15), sonder, std::string_view(b.Betrag17)})
                w.bg(amount, 9, 2);
            w.lit(negated(b.Betrag18));
            for (std::string_view amount :
                 {std::string_view(b.Betrag16), std::string_view(b.Betrag25), std::string_view(b.Betrag26),
                  std::string_view(b.Betrag19), std::string_view{}, std::string_view{}, std::string_view{}})
                w.bg(amount, 9, 2);
            w.an(ag.Name1, 30).an(ag.Name2, 30).an(ag.Strasse + " " + ag.Hausnummer, 30).an(ag.Land, 3);
            w.an(ag.PLZ, 10).an(ag.Ort, 25).an(bnv ? std::string(strBNRSt) : mlGen::ConvertBNRSt(strBNRSt), 15);
            w.blank(15).blank(20).an(b.SKennzeichen ? "S" : "", 1).zeros(4).zeros(4).zeros(4);
            w.an(bnv ? std::string_view{} : std::string_view(ag.Kennzeichen), 1).lit("0").lit("000");
            if (b.Waehrung == "D")
                raise(kErrAmount, "clsGenBeitrNachw.GenData", "Die Angabe von DM ist nicht mehr zul\xC3\xA4ssig.");
            w.lit("E").bg(b.Betrag27, 9, 2).an(ag.Arbeitgeberangabe, 20);
            if (extended) {
                w.bg(b.Betrag20, 9, 2).bg(b.Betrag21, 9, 2).bg(b.Betrag22, 9, 2).bg({}, 9, 2).bg(b.Betrag07, 9, 2);
                w.bg({}, 9, 2).bg(b.Betrag23, 9, 2).bg(b.Betrag24, 9, 2);
            }
            w.check(extended ? 774 : 678, "Datensatz");
            return out;
        });
}

}  // namespace tamrel
