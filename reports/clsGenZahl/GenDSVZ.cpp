// The DSVZ record and its blocks DBZK, DBNA, DBGA and DBAN.
#include "core/date_fields.h"
#include "core/host.h"
#include "core/shared_blocks.h"
#include "core/writer.h"
#include "reports/clsGenZahl/clsGenZahl.h"

namespace tamrel {

std::string clsGenZahl::GenData(const Zahl& z, DatensatzData& dd, const Date& datDate) const {
    return call(with_args("clsGenZahl.GenData(", ObjArg{"objZahl"}, ObjArg{"udtDatensatzData"}, datDate),
                [&](int& line) {
                    return record_then_blocks(
                        line, datDate, 237 + 91 + 125 + 13 + 133,
                        [&](std::string& out, const Date& date) { return GenDSVZ(out, z, dd, date); },
                        [&](std::string& out, const ZahlPlan& plan) {
                            using enum ZahlBlock;
                            if (plan.has(DBZK)) GenDBZK(out, z);
                            if (plan.has(DBNA)) GenDBNA(out, z);
                            if (plan.has(DBGA)) out += plan.dbga;
                            if (plan.has(DBAN)) out += plan.dban;
                        });
                });
}

ZahlPlan clsGenZahl::GenDSVZ(std::string& out, const Zahl& z, const DatensatzData& dd, const Date& date) {
    return routine(
        with_args("clsGenZahl.GenDSVZ(", ObjArg{"objZahl"}, ObjArg{"udtDatensatzData"}, date), [&](int& line) {
            using enum ZahlBlock;
            const Vorgang& v = z.Vorgang;
            ZahlPlan plan;
            Writer w(out, line);
            w.lit("DSVZ").lit("ZAHLS").an(dd.strBNRAb, 15).an(z.Empfaenger.Betriebsnummer, 15).lit("02");
            w.stamp(z.ErstelltAm, 1, date, 14).n(dd.strMicroseconds, 6).lit("0").lit("0").an(v.Kennung14, 14);
            w.an(v.Arbeitgeber.Betriebsnummer, 15).an(v.Aktenzeichen, 20).an(z.Empfaenger.Betriebsnummer, 15);
            w.an(dd.strVersion, 10).n(z.ZahlId, 10).an(dd.strBNRSt, 15).blank(3).lit("01").an(dd.strProdID, 7);
            w.an(dd.strModID, 8).an(dd.strVersion, 10).n(z.ZahlId, 10).blank(12).blank(3);
            w.announce(plan, DBZK, true).announce(plan, DBNA, true);
            bool dbga = false, dban = false;
            plan.dbga = GenDBGA(z, dbga);
            w.announce(plan, DBGA, dbga).lit("N");
            plan.dban = GenDBAN(z, dban);
            w.announce(plan, DBAN, dban).lit("N");
            if (z.Pseudonym)
                w.zeros(12);
            else
                w.an(v.Versicherungsnummer, 12);
            w.blank(2);
            w.check(237, "DSVZ");
            return plan;
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
