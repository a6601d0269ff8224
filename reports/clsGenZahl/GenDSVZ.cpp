// The DSVZ record and its blocks DBZK, DBNA, DBGA and DBAN.
#include "core/date_fields.h"
#include "core/flag_reader.h"
#include "core/host.h"
#include "core/shared_blocks.h"
#include "core/writer.h"
#include "reports/clsGenZahl/clsGenZahl.h"

namespace tamrel {

std::string clsGenZahl::GenData(const Zahl& z, DatensatzData& dd, const Date& datDate) {
    return call(with_args("clsGenZahl.GenData(", ObjArg{"objZahl"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    line = 1;
                    const Date date = mlGen::GetDate(datDate);
                    std::string out;
                    out.reserve(237 + 91 + 125 + 13 + 133);
                    line = 2;
                    GenDSVZ(out, z, dd, date);
                    FlagReader flags(out);
                    const bool dbzk = flags.j(218), dbna = flags.j(219), dbga = flags.j(220), dban = flags.j(222);
                    line = 3;
                    if (dbzk) GenDBZK(out, z);
                    if (dbna) GenDBNA(out, z);
                    if (dbga) out += dbga_;
                    if (dban) out += dban_;
                    return out;
                });
}

void clsGenZahl::GenDSVZ(std::string& out, const Zahl& z, const DatensatzData& dd, const Date& date) {
    routine(with_args("clsGenZahl.GenDSVZ(", ObjArg{"objZahl"}, ObjArg{"udtDatensatzData"}, date), [&](int& line) {
        const Vorgang& v = z.Vorgang;
        Writer w(out, line);
        w.lit("DSVZ").lit("ZAHLS").an(dd.strBNRAb, 15).an(z.Empfaenger.Betriebsnummer, 15).lit("02");
        w.stamp(z.ErstelltAm, 1, date, 14).n(dd.strMicroseconds, 6).lit("0").lit("0").an(v.Kennung14, 14);
        w.an(v.Arbeitgeber.Betriebsnummer, 15).an(v.Aktenzeichen, 20).an(z.Empfaenger.Betriebsnummer, 15);
        w.an(dd.strVersion, 10).n(z.ZahlId, 10).an(dd.strBNRSt, 15).blank(3).lit("01").an(dd.strProdID, 7);
        w.an(dd.strModID, 8).an(dd.strVersion, 10).n(z.ZahlId, 10).blank(12).blank(3).lit("J").lit("J");
        bool dbga = false, dban = false;
        dbga_ = GenDBGA(z, dbga);
        w.flag(dbga).lit("N");
        dban_ = GenDBAN(z, dban);
        w.flag(dban).lit("N");
        if (z.Pseudonym)
            w.zeros(12);
        else
            w.an(v.Versicherungsnummer, 12);
        w.blank(2);
        w.check(237, "DSVZ");
    });
}

void clsGenZahl::GenDBZK(std::string& out, const Zahl& z) {
    routine("clsGenZahl.GenDBZK", [&](int& line) {
        std::string today;
        if (z.Pseudonym) append_yyyymmdd(today, now());
        Writer w(out, line);
        w.lit("DBZK").flag(z.ZKKennzeichen).n(z.Pseudonym ? std::string_view("2") : std::string_view(z.ZKArt), 1);
        if (z.Pseudonym)
            w.an("N", 1);
        else
            w.jn(z.ZKAngabeJN);
        w.n(z.ZKBeginn, 8).n(z.ZKEnde, 8).n(z.Pseudonym ? std::string_view(today) : std::string_view(z.ZKDatum), 8);
        w.pb(z.ZKBetrag1, 6, 2).n(z.ZKDatum2, 8).n(z.ZKDatum3, 8).n(z.ZKDatum4, 8).pb(z.ZKBetrag2, 10, 2);
        w.pb(z.ZKBetrag3, 6, 2).pb(z.ZKBetrag4, 6, 2);
        w.check(91, "DBZK");
    });
}

void clsGenZahl::GenDBNA(std::string& out, const Zahl& z) {
    routine("clsGenZahl.GenDBNA", [&](int& line) {
        line = 1;
        if (!z.Pseudonym) {
            mlGen::AppendDBNA(out, z.Vorgang, false);
            return;
        }
        // The block carries the pseudonyms; the caller's object keeps its names.
        mlGen::NameView names(z.Vorgang);
        names.familienname = "Pseudoname";
        names.vorname = "Pseudovorname";
        line = 2;
        mlGen::AppendNameBlock(out, names, " ", "mlGen.GenDBNA");
    });
}

std::string clsGenZahl::GenDBGA(const Zahl& z, bool& hasData) {
    return routine("clsGenZahl.GenDBGA", [&](int& line) {
        std::string out;
        Writer w(out, line, hasData);
        w.lit("DBGA").n(z.Vorgang.Geburtsdatum, 8).an(z.Vorgang.Geschlecht, 1);
        w.check(13, "DBGA");
        return out;
    });
}

std::string clsGenZahl::GenDBAN(const Zahl& z, bool& hasData) {
    return routine(with_args("clsGenZahl.GenDBAN(", ObjArg{"objZahl"}, hasData), [&](int& line) {
        line = 1;
        return mlGen::GenDBAN(z.Vorgang, hasData);
    });
}

}  // namespace tamrel
