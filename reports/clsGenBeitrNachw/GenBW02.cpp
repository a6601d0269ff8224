// The contribution statement record (BW02, or BW03 for the BNV procedure),
// left to right as its layout table.
#include "core/amounts.h"
#include "core/date_fields.h"
#include "core/establishment_number.h"
#include "core/writer.h"
#include "reports/clsGenBeitrNachw/BW02_layout.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"

namespace tamrel {
namespace {

using namespace layouts::beitrnachw;

// Betrag18 is always written with "-" in place of its sign.
std::string negated(const FieldLayout& f, std::string_view amount) {
    bool filled = false;
    std::string out;
    mlGen::AppendBG(out, amount, f.len - 1 - f.decimals, f.decimals, filled);
    out[0] = '-';
    return out;
}

// The fields every statement has, by the declarations of
// BW02 or BW03 (a template, so that each is written with constant fields).
struct StatementArgs {
    std::string_view strBNRAb, strBNRSt, strVersion, strMicroseconds, sonder;
    Date date;
    bool bnv, extended;
};

template <const Statement& f>
[[gnu::always_inline]] inline void write_statement(Writer& w, const BeitrNachw& b, const StatementArgs& a) {
    const Arbeitgeber& ag = b.Arbeitgeber;
    w.put(f.Kennung).put(f.Verfahren).put(f.strBNRAb, a.strBNRAb);
    w.put(f.EmpfaengerBetriebsnummer, b.Empfaenger.Betriebsnummer);
    w.put(f.Version).stamp(f.Erstellt, b.Zeitpunkt, 1, a.date).put(f.strMicroseconds, a.strMicroseconds);
    w.put(f.Fehlerkennzeichen).put(f.Fehleranzahl);
    w.put(f.strVersion, a.strVersion).put(f.Laufnummer, b.Laufnummer).put(f.Reserve1);
    w.text(f.Merkmal1, b.Merkmal1 ? "1" : "0").text(f.Merkmal2, b.Merkmal2 ? "1" : "0");
    w.put(f.Reserve2).put(f.Betriebsnummer, ag.Betriebsnummer).put(f.Zeitraum1, b.Zeitraum1);
    w.put(f.Zeitraum2, b.Zeitraum2);
    w.put(f.Betrag01, b.Betrag01).put(f.Betrag02, b.Betrag02).put(f.Betrag03, b.Betrag03);
    w.put(f.Betrag11, b.Betrag11).put(f.Betrag06, b.Betrag06).put(f.Betrag04, b.Betrag04);
    w.put(f.Betrag09, b.Betrag09).put(f.Betrag07, a.extended ? std::string_view{} : std::string_view(b.Betrag07));
    w.put(f.Betrag14, b.Betrag14).put(f.Betrag10, b.Betrag10).put(f.Betrag12, b.Betrag12);
    w.put(f.Betrag13, b.Betrag13).put(f.Betrag05, b.Betrag05).put(f.Betrag08, b.Betrag08);
    w.put(f.Reserve3).put(f.Betrag15, b.Betrag15).put(f.Sonderbetrag, a.sonder).put(f.Betrag17, b.Betrag17);
    w.text(f.Betrag18, negated(f.Betrag18, b.Betrag18));
    w.put(f.Betrag16, b.Betrag16).put(f.Betrag25, b.Betrag25).put(f.Betrag26, b.Betrag26);
    w.put(f.Betrag19, b.Betrag19).put(f.Reserve4).put(f.Reserve5).put(f.Reserve6);
    w.put(f.Name1, ag.Name1).put(f.Name2, ag.Name2).put(f.StrasseHausnummer, ag.Strasse + " " + ag.Hausnummer);
    w.put(f.Land, ag.Land).put(f.PLZ, ag.PLZ).put(f.Ort, ag.Ort);
    w.put(f.Betriebsstaette, a.bnv ? std::string(a.strBNRSt) : mlGen::ConvertBNRSt(a.strBNRSt));
    w.put(f.Reserve7).put(f.Reserve8).put(f.SKennzeichen, b.SKennzeichen ? "S" : "");
    w.put(f.Reserve9).put(f.Reserve10).put(f.Reserve11);
    w.put(f.Kennzeichen, a.bnv ? std::string_view{} : std::string_view(ag.Kennzeichen)).put(f.Fest1).put(f.Fest2);
    if (b.Waehrung == "D")
        raise(kErrAmount, "clsGenBeitrNachw.GenData", "Die Angabe von DM ist nicht mehr zul\xC3\xA4ssig.");
    w.put(f.Waehrung).put(f.Betrag27, b.Betrag27).put(f.Arbeitgeberangabe, ag.Arbeitgeberangabe);
}

}  // namespace

std::string clsGenBeitrNachw::GenData(const BeitrNachw& b, std::string_view strBNRAb, std::string_view strBNRSt,
                                      std::string_view strVersion, std::string_view strMicroseconds,
                                      const Date& datDate) const {
    return call(with_args("clsGenBeitrNachw.GenData(", ObjArg{"objBeitrNachw"}, strBNRAb, strBNRSt, strVersion,
                          strMicroseconds, datDate),
                [&](int& line) {
                    const Date date = mlGen::GetDate(datDate);
                    const bool bnv = b.Nachweisart == bnBNV;
                    const bool extended = b.Nachweisart == 1;
                    std::string_view sonder = b.Sonderbetrag;
                    if (extended && !IsEmpfBkn(b.Empfaenger.Betriebsnummer) && sonder.empty()) sonder = b.Betrag23;

                    std::string out;
                    out.reserve(kBW02Extended.length);
                    Writer w(out, line);
                    const StatementArgs args{strBNRAb, strBNRSt, strVersion, strMicroseconds,
                                             sonder,   date,     bnv,        extended};
                    if (bnv)
                        write_statement<BW03::Fields>(w, b, args);
                    else
                        write_statement<BW02::Fields>(w, b, args);
                    if (extended) {
                        using namespace BW02;
                        w.put(Betrag20, b.Betrag20).put(Betrag21, b.Betrag21).put(Betrag22, b.Betrag22).put(Reserve12);
                        w.put(Betrag07, b.Betrag07).put(Reserve13).put(Betrag23, b.Betrag23).put(Betrag24, b.Betrag24);
                    }
                    w.check(extended ? kBW02Extended : kBW02Short, "Datensatz");
                    return out;
                });
}

}  // namespace tamrel
