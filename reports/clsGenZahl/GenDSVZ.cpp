// The DSVZ record and its blocks DBZK, DBNA, DBGA and DBAN.
#include "core/date_fields.h"
#include "core/host.h"
#include "core/shared_blocks.h"
#include "core/writer.h"
#include "reports/clsGenZahl/DSVZ_layout.h"
#include "reports/clsGenZahl/clsGenZahl.h"

namespace tamrel {

using namespace layouts::zahl;

std::string clsGenZahl::GenData(const Zahl& z, DatensatzData& dd, const Date& datDate) const {
    return call(
        with_args("clsGenZahl.GenData(", ObjArg{"objZahl"}, ObjArg{"udtDatensatzData"}, datDate), [&](int& line) {
            return record_then_blocks(
                line, datDate, kDSVZ.length + kDBZK.length + kDBNAZahl.length + kDBGA.length + layouts::kDBAN.length,
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
            using namespace DSVZ;
            w.put(Head.Kennung).put(Head.Verfahren).put(Head.strBNRAb, dd.strBNRAb);
            w.put(Head.EmpfaengerBetriebsnummer, z.Empfaenger.Betriebsnummer).put(Head.Version);
            w.stamp(Head.Erstellt, z.ErstelltAm, 1, date).put(Head.strMicroseconds, dd.strMicroseconds);
            w.put(Head.Fehlerkennzeichen).put(Head.Fehleranzahl).put(Kennung14, v.Kennung14);
            w.put(ArbeitgeberBetriebsnummer, v.Arbeitgeber.Betriebsnummer).put(Aktenzeichen, v.Aktenzeichen);
            w.put(EmpfaengerBetriebsnummer, z.Empfaenger.Betriebsnummer);
            w.put(strVersion1, dd.strVersion).put(ZahlId1, z.ZahlId).put(strBNRSt, dd.strBNRSt).put(Reserve1);
            w.put(Fest1).put(strProdID, dd.strProdID);
            w.put(strModID, dd.strModID).put(strVersion2, dd.strVersion).put(ZahlId2, z.ZahlId).put(Reserve2);
            w.put(Reserve3);
            w.announce(MitDBZK, plan, DBZK, true).announce(MitDBNAZahl, plan, DBNA, true);
            bool dbga = false, dban = false;
            plan.dbga = GenDBGA(z, dbga);
            w.announce(MitDBGA, plan, DBGA, dbga).put(Fest2);
            plan.dban = GenDBAN(z, dban);
            w.announce(MitDBAN, plan, DBAN, dban).put(Fest3);
            if (z.Pseudonym)
                w.put(VersicherungsnummerNullen);
            else
                w.put(Versicherungsnummer, v.Versicherungsnummer);
            w.put(Reserve4);
            w.check(kDSVZ);
            return plan;
        });
}

void clsGenZahl::GenDBZK(std::string& out, const Zahl& z) {
    routine("clsGenZahl.GenDBZK", [&](int& line) {
        std::string today;
        if (z.Pseudonym) append_yyyymmdd(today, now());
        Writer w(out, line);
        using namespace DBZK;
        w.put(Kennung).put(ZKKennzeichen, z.ZKKennzeichen);
        w.put(ZKArt, z.Pseudonym ? std::string_view("2") : std::string_view(z.ZKArt));
        if (z.Pseudonym)
            w.put(ZKAngabeJN, "N");
        else
            w.jn(ZKAngabeJN, z.ZKAngabeJN);
        w.put(ZKBeginn, z.ZKBeginn).put(ZKEnde, z.ZKEnde);
        w.put(ZKDatum, z.Pseudonym ? std::string_view(today) : std::string_view(z.ZKDatum));
        w.put(ZKBetrag1, z.ZKBetrag1).put(ZKDatum2, z.ZKDatum2).put(ZKDatum3, z.ZKDatum3).put(ZKDatum4, z.ZKDatum4);
        w.put(ZKBetrag2, z.ZKBetrag2).put(ZKBetrag3, z.ZKBetrag3).put(ZKBetrag4, z.ZKBetrag4);
        w.check(kDBZK);
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
        w.put(DBGA::Kennung).put(DBGA::Geburtsdatum, z.Vorgang.Geburtsdatum);
        w.put(DBGA::Geschlecht, z.Vorgang.Geschlecht);
        w.check(kDBGA);
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
