#include <gtest/gtest.h>

#include "protocol/clsProtoEntry.h"
#include "reports/clsGenErst/clsGenErst.h"
#include "reports/clsGenZahl/clsGenZahl.h"
#include "test_support.h"

using namespace tamrel;
using namespace tamrel::testing;

namespace {

const Date kDate{2024, 3, 1, 10, 11, 12};

Erst application() {
    Erst e;
    e.ErstattungsId = 77;
    e.Abrechnungskennzeichen = 3;
    e.ErstDatum = "20240201";
    e.ErstelltAm = "20240301";
    e.ZeitraumBeginn = "20240101";
    e.ZeitraumEnde = "20240131";
    e.Ausgleichsart = 2;
    e.Entgelt2 = "1234,56";
    e.Wert3 = "1,5";
    e.Betrag1 = "100";
    e.Vorgang.Versicherungsnummer = "12010180M123";
    e.Vorgang.Geburtsdatum = "19800101";
    e.Vorgang.Geschlecht = "M";
    e.Vorgang.Familienname = "Meier";
    e.Vorgang.Arbeitgeber.Betriebsnummer = "11111111";
    e.Vorgang.Arbeitgeber.Kontonummer = "123";
    e.Vorgang.Arbeitgeber.Bankleitzahl = "100";
    e.Empfaenger.Betriebsnummer = "22222222";
    return e;
}

TEST(Erst, DserReasonCascadeAndIndependentFlags) {
    struct Case {
        std::int32_t grund, art;
        bool entfaellt;
        const char* reason;
        const char* flags;
        std::vector<std::string> blocks;
    };
    const Case cases[] = {
        {11, 0, false, "01", "JNNJJJ", {"DBAU", "DBBV", "DBNA", "DBAA"}},
        {11, 2, true, "01", "JJNJJN", {"DBAU", "DBBT", "DBBV", "DBNA"}},
        {0, 2, false, "02", "NJNJJJ", {"DBBT", "DBBV", "DBNA", "DBAA"}},
        {0, 1, false, "03", "NNJJJJ", {"DBZU", "DBBV", "DBNA", "DBAA"}},
        {0, 0, true, "00", "NNNJJN", {"DBBV", "DBNA"}},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        clsGenErst gen(host.host);
        Erst e = application();
        e.Erstattungsgrund = c.grund;
        e.Leistungsart = c.art;
        e.DBAAEntfaellt = c.entfaellt;
        DatensatzData dd{"33333333", "", "V", "123", "P", "M", ""};
        std::string out = gen.GenData(e, dd, kDate);
        std::string dser =
            "DSER"
            "AAGER" +
            an("33333333", 15) + an("22222222", 15) + "05" + "20240301101112" + "000123" + "00" +
            an("12010180M123", 12) + "19800101" + an("11111111", 15) + blanks(40) + an("22222222", 15) + blanks(35) +
            c.reason + "20240201" + "2" + "M" + "2" + an("P", 7) + an("M", 8) + an("V         0000000077", 32) +
            blanks(100) + c.flags + blanks(101);
        EXPECT_EQ(out.substr(0, 455), dser) << c.reason;
        std::vector<std::string> ids;
        for (std::size_t pos = 455; pos < out.size();) {
            ids.push_back(out.substr(pos, 4));
            pos += ids.back() == "DBAU"   ? 202
                   : ids.back() == "DBBT" ? 180
                   : ids.back() == "DBZU" ? 191
                   : ids.back() == "DBBV" ? 174
                   : ids.back() == "DBNA" ? 125
                                          : 321;
        }
        EXPECT_EQ(ids, c.blocks) << c.reason;
    }
}

TEST(Erst, BlocksCompared) {
    RecordingHost host;
    Erst e = application();
    e.DBAAEntfaellt = true;
    e.AngabeJN2 = 1;
    e.MerkmalB = 1;
    std::string out;
    clsGenErst::GenDBAU(out, e);
    EXPECT_EQ(out,
              "DBAU"
              "1"
              "20240101"
              "20240131"
              "1"
              "000123456"
              "2"
              "J"
              "00150"
              "3"
              "0000"
              "0000"
              "000010000" +
                  n("", 9) + n("", 5) + n("", 9) +
                  "1"
                  " " +
                  blanks(4) + n("", 8) + n("", 18) + blanks(91));
    out.clear();
    clsGenErst::GenDBBT(out, e);
    EXPECT_EQ(out,
              "DBBT"
              "1"
              "20240101"
              "20240131"
              "1" +
                  blanks(8) + "000010000" + n("", 9) + "10000" + n("", 9) + "0" + n("", 8 + 18) + blanks(91));
    out.clear();
    e.Satz3 = "2,5";
    e.Zusatzdatum = "20240115";
    clsGenErst::GenDBAU(out, e);
    EXPECT_EQ(out.substr(81, 12),
              "0250"
              "20240115");

    const std::pair<Date, std::string> clocks[] = {
        {Date{2013, 12, 31, 23, 59, 59},
         "0000000123"
         "00000100"},
        {Date{2014, 1, 1}, an("123", 10) + an("100", 8)},
    };
    for (const auto& [clock, fields] : clocks) {
        host.clock = clock;
        out.clear();
        e.Bankkennzeichen = 1;
        clsGenErst::GenDBBV(out, e);
        EXPECT_EQ(out,
                  "DBBV"
                  "2"
                  "0000"
                  "00" +
                      fields + blanks(145));
    }
    Error err = expect_error([&] {
        e.Betrag2 = "-3";
        out.clear();
        clsGenErst::GenDBBT(out, e);
    });
    EXPECT_EQ(err.description(), "Der Betrag darf nicht negativ sein.");
}

Zahl pay_report(bool pseudonym) {
    Zahl z;
    z.ZahlId = 5;
    z.Pseudonym = pseudonym;
    z.ZKArt = "1";
    z.ZKKennzeichen = true;
    z.ZKAngabeJN = 1;
    z.ZKBeginn = "20240101";
    z.ZKDatum = "20240115";
    z.ZKBetrag2 = "1.000,5";
    z.ErstelltAm = "20240301";
    z.Vorgang.Kennung14 = "K14";
    z.Vorgang.Versicherungsnummer = "12010180M123";
    z.Vorgang.Familienname = "Meier";
    z.Vorgang.Vorname = "Eva";
    z.Vorgang.PLZ = "10115";
    z.Empfaenger.Betriebsnummer = "22222222";
    return z;
}

TEST(Zahl, PlainAndPseudonymisedReports) {
    RecordingHost host;
    host.clock = Date{2024, 5, 6, 7, 8, 9};
    clsGenZahl gen(host.host);
    DatensatzData dd{"33333333", "10700000", "V", "1", "P", "M", ""};
    struct Case {
        bool pseudonym;
        std::string insurance, zk, name;
    };
    const Case cases[] = {
        {false, an("12010180M123", 12),
         "1"
         "J"
         "20240101"
         "00000000"
         "20240115",
         an("Meier", 30) + an("Eva", 30)},
        {true, n("", 12),
         "2"
         "N"
         "20240101"
         "00000000"
         "20240506",
         an("Pseudoname", 30) + an("Pseudovorname", 30)},
    };
    for (const auto& c : cases) {
        Zahl z = pay_report(c.pseudonym);
        std::string out = gen.GenData(z, dd, kDate);
        std::string dsvz =
            "DSVZ"
            "ZAHLS" +
            an("33333333", 15) + an("22222222", 15) + "02" + "20240301101112" + "000001" + "00" + an("K14", 14) +
            blanks(35) + an("22222222", 15) + an("V", 10) + n("5", 10) + an("10700000", 15) + blanks(3) + "01" +
            an("P", 7) + an("M", 8) + an("V", 10) + n("5", 10) + blanks(15) + "JJNNJN" + c.insurance + blanks(2);
        std::string dbzk =
            "DBZK"
            "J" +
            c.zk + n("", 8 + 24) + "000000100050" + n("", 16);
        std::string dbna = "DBNA" + c.name + blanks(61);
        std::string dban = "DBAN" + blanks(3) + an("10115", 10) + blanks(116);
        EXPECT_EQ(out, dsvz + dbzk + dbna + dban) << c.pseudonym;
        EXPECT_EQ(z.Vorgang.Familienname, "Meier");
    }
    // A second call rebuilds its pending blocks: nothing of the first leaks.
    Zahl empty = pay_report(false);
    empty.Vorgang.PLZ.clear();
    EXPECT_EQ(gen.GenData(empty, dd, kDate).size(), 237u + 91u + 125u);
}

TEST(Zahl, ProtocolLineKeepsTheRealNames) {
    RecordingHost host;
    Zahl z = pay_report(true);
    z.Vorgang.Strasse = "Weg";
    z.Vorgang.Land = "D";
    EXPECT_EQ(clsProtoEntry(host.host).CreateProtoZahl(z, true, "Fehler \"A\"\r\nB"),
              "\"J\";\"K14\";\"\";\"\";\"22222222\";\"\";\"1\";\"J\";20240101;;20240115;\"\";;;;\"1,000,5\";\"\";\"\";"
              "\"Meier\";\"Eva\";\"\";\"\";\"\";;\"\";\"D\";\"10115\";\"\";\"Weg\";\"\";\"\";\"12010180M123\";1;"
              "\"Fehler ;A;;B\"");
}

}  // namespace
