#include <gtest/gtest.h>

#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "test_support.h"

using namespace tamrel;
using namespace tamrel::testing;

namespace {

const Date kDate{2024, 3, 1, 10, 11, 12};

Meldung registration() {
    Meldung m;
    m.Laufnummer = 42;
    m.Meldegrund = "10";
    m.Meldungsart = 1;
    m.Personengruppe = "101";
    m.Beitragsgruppe1 = "1";
    m.Beitragsgruppe2 = "1";
    m.Beitragsgruppe3 = "1";
    m.Beitragsgruppe4 = "1";
    m.Beginn = "20240101";
    m.Entgelt = "1234";
    m.Vorgang.Versicherungsnummer = "12010180M123";
    m.Vorgang.Aktenzeichen = "P-7";
    m.Vorgang.Familienname = "M\xC3\xBCller";
    m.Vorgang.Vorname = "Hans";
    m.Vorgang.PLZ = "10115";
    m.Vorgang.Ort = "Berlin";
    m.Vorgang.Geburtsdatum = "19800101";
    m.Vorgang.Arbeitgeber.Betriebsnummer = "11111111";
    m.Empfaenger.Betriebsnummer = "22222222";
    for (std::int16_t i = 1; i <= 12; ++i) {
        m.KsZeileA.set(i, "A");
        m.KsZeileD.set(i, "D");
    }
    m.KsErster = 1;
    m.KsLetzter = 12;
    return m;
}

DatensatzData datensatz() {
    DatensatzData dd;
    dd.strBNRAb = "33333333";
    dd.strBNRSt = "10700000";
    dd.strVersion = "V1";
    dd.strMicroseconds = "123";
    dd.strProdID = "PROD";
    dd.strModID = "MOD";
    return dd;
}

std::string dsme(const std::string& kind, const std::string& reference, const std::string& group_reason,
                 const std::string& flags, char sofort, char kv) {
    return "DSME"
           "DEUEV" +
           an("33333333", 15) + an("22222222", 15) + "03" + "20240301101112" + "000123" + "0" + "0" +
           an("12010180M123", 12) + kind + an("11111111", 15) + an("P-7", 20) + an("22222222", 15) + an(reference, 20) +
           blanks(15) + group_reason + blanks(3) + flags + " 5 " + sofort + " " + blanks(3) + kv + " " + n("", 20) +
           "01" + an("PROD", 7) + an("MOD", 8) + an("V1        0000000042", 32) + blanks(100) + "N" + blanks(199);
}

TEST(Meldung, RegistrationWithNameBirthAddressAndKsBlocks) {
    RecordingHost host;
    clsGenMeldung gen(host.host);
    Meldung m = registration();
    DatensatzData dd = datensatz();
    std::string out = gen.GenData(m, dd, vmNormal, kDate);

    std::string expected = dsme("0C", "V1        0000000042", "10110", "JJJJNNJNNN", 'N', 'N');
    expected +=
        "DBME"
        "N"
        " "
        "20240101"
        "00000000"
        "00"
        " "
        "001234"
        "1111" +
        blanks(9) +
        " "
        "N"
        "0" +
        blanks(100);
    expected += "DBNA" + an("M\xC3\xBCller", 31) + an("Hans", 30) + blanks(60) + " ";
    expected += "DBGB" + blanks(70) + "19800101" + " " + blanks(34);
    expected +=
        "DBAN"
        "   " +
        an("10115", 10) + an("Berlin", 34) + blanks(33 + 9 + 40);
    std::string ks =
        "DBKS"
        "K"
        " ";
    for (int i = 0; i < 12; ++i) ks += "A " + blanks(10);
    ks += blanks(10);
    for (int i = 0; i < 12; ++i) ks += "D ";
    expected += ks + blanks(36);
    EXPECT_EQ(out, expected);
    EXPECT_TRUE(host.lines.empty());
}

TEST(Meldung, FlagRulesByReasonKindAndProcedure) {
    struct Case {
        const char* reason;
        std::int32_t kind;
        std::int32_t verf;
        bool names;
        const char* birth;
        const char* insurance;
        const char* personengruppe;
        const char* flags;
    };
    const Case cases[] = {
        {"20", 1, vmNormal, false, "", "X", "101", "NJNNNNNNNN"},
        {"20", 1, vmNormal, false, "19800101", "X", "101", "NJJNNNNNNN"},
        {"62", 1, vmNormal, false, "", "X", "101", "NNNNNNNNNN"},
        {"1", 1, vmNormal, false, "", "X", "101", "0JJJJNNNNN"},
        {"", 1, vmNormal, false, "", "X", "101", "10JJJNNNNN"},
        {"10", 1, vmNormal, false, "", "X", "109", "JJJJNNNNNN"},
        {"10", 3, vmNormal, false, "", "X", "101", "JJNJNNNNNN"},
        {"10", 2, vmNormal, false, "19800101", "X", "101", "JJJJNNJNNN"},
        {"30", 1, vmSofort, false, "", "", "101", "JNNJNNJNNN"},
        {"58", 1, vmNormal, true, "", "X", "101", "NJNNNNNNNN"},
        {"92", 1, vmNormal, false, "", "X", "101", "JNNNNNNNNN"},
        // Not reasons, but found in the table: what follows them there is written.
        {"92JN", 1, vmNormal, false, "", "X", "101", "NNNJNNNN  "},
        {"92JNNNNJN", 1, vmNormal, false, "19800101", "X", "101", "NNJ       "},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        clsGenMeldung gen(host.host);
        Meldung m = registration();
        m.Meldegrund = c.reason;
        m.Meldungsart = c.kind;
        m.MitNamensdaten = c.names;
        m.Personengruppe = c.personengruppe;
        m.Vorgang.Geburtsdatum = c.birth;
        m.Vorgang.Versicherungsnummer = c.insurance;
        m.Vorgang.PLZ.clear();
        m.Vorgang.Ort.clear();
        std::string out;
        const MeldungPlan plan = gen.GenDSME(out, m, datensatz(), c.verf, kDate);
        EXPECT_EQ(out.size(), 559u) << c.reason;
        EXPECT_EQ(out.substr(170, 10), c.flags) << "reason '" << c.reason << "' kind " << c.kind;
        // The blocks that follow are exactly those flagged "J".
        for (std::size_t k = 0; k < 7; ++k)
            EXPECT_EQ(plan.has(static_cast<MeldungBlock>(k)), c.flags[k] == 'J') << "reason '" << c.reason << "' " << k;
        EXPECT_EQ(plan.has(MeldungBlock::DBSO), c.verf == vmSofort) << c.reason;
        EXPECT_EQ(plan.has(MeldungBlock::DBKV), std::string_view(c.reason) == "58") << c.reason;
    }
}

TEST(Meldung, KindEightTakesTheReferenceAndAsksTheNameTest) {
    RecordingHost host;
    host.host.tests.NameTest = [](std::string_view t) { return t == "B-1"; };
    clsGenMeldung gen(host.host);
    Meldung m = registration();
    m.Meldegrund = "62";
    m.Meldungsart = 8;
    m.Vorgang.Bezugskennung = "B-1";
    m.Vorgang.EuAngabe1 = "X";
    m.Vorgang.EuAngabe2 = "1";
    std::string out;
    gen.GenDSME(out, m, datensatz(), vmNormal, kDate);
    EXPECT_EQ(out.substr(127, 20), an("B-1", 20));
    EXPECT_EQ(out.substr(75, 2), "  ");
    EXPECT_EQ(out.substr(170, 10), "NJJJNNNNNN");

    m.Vorgang.Bezugskennung.clear();
    m.Ersatzaktenzeichen = "ERSATZ";
    out.clear();
    gen.GenDSME(out, m, datensatz(), vmNormal, kDate);
    EXPECT_EQ(out.substr(127, 20), an("ERSATZ", 20));
    EXPECT_EQ(out[171], 'J');
}

TEST(Meldung, ImmediateReportAppendsDbsoAndReason58Dbkv) {
    RecordingHost host;
    clsGenMeldung gen(host.host);
    Meldung m = registration();
    m.Meldegrund = "58";
    m.Storno = true;
    m.KvGrund = "3";
    m.KvBetrag1 = "1.234,50";
    m.KvBetrag4 = "7";
    m.Vorgang.Versicherungsnummer.clear();
    DatensatzData dd = datensatz();
    std::string out = gen.GenData(m, dd, vmSofort, kDate);
    ASSERT_GE(out.size(), 559u + 13u + 150u);
    EXPECT_EQ(out.substr(170, 10), "NJJJNNNNNN");
    EXPECT_EQ(out[183], 'J');
    EXPECT_EQ(out[188], 'J');
    std::string tail = out.substr(out.size() - 163);
    EXPECT_EQ(tail.substr(0, 13),
              "DBSO"
              "J"
              "20240101");
    EXPECT_EQ(tail.substr(13),
              "DBKV"
              "J"
              "00"
              "03"
              "20240101"
              "00000000"
              "00000000"
              "00000700" +
                  blanks(27) + "1111" +
                  " "
                  "00123450"
                  "00000000"
                  "00000000" +
                  blanks(53));
}

TEST(Meldung, DbuvCountsEntriesAndSkipsTheDroppedOnes) {
    Meldung m;
    m.UvErster = 1;
    m.UvLetzter = 3;
    m.UvAngabe1.set(1, "U1");
    m.UvAngabe6.set(1, "12");
    m.UvEntfaellt.set(2, true);
    m.UvAngabe2.set(3, "B");
    bool produced = false;
    EXPECT_EQ(appended([&](std::string& out) { clsGenMeldung::AppendDBUV(out, m, produced); }),
              "DBUV"
              "2" +
                  blanks(15) + an("U1", 3) + blanks(58) + "000012" + blanks(4) + blanks(3) + an("B", 15) + blanks(43) +
                  "000000" + blanks(4));
    EXPECT_TRUE(produced);

    m.UvEntfaellt.set(1, true);
    m.UvEntfaellt.set(3, true);
    produced = false;
    EXPECT_EQ(appended([&](std::string& out) { clsGenMeldung::AppendDBUV(out, m, produced); }),
              "DBUV"
              "0" +
                  blanks(15));
    EXPECT_FALSE(produced);
}

TEST(Meldung, ErrorsOfTheProcedure) {
    struct Case {
        const char* reason;
        std::int32_t kind;
        std::int16_t ks_last;
        std::int32_t number;
        const char* source;
        const char* description;
        std::size_t lines;
    };
    const Case cases[] = {
        {"99", 1, 12, -2147213202, "clsGenMeldung.GenDSME",
         "Datenbausteine konnten zum Meldegrund 99 nicht ermittelt werden", 2},
        {"10", 1, 11, -2147213203, "mlGen.CheckLength", "L\xC3\xA4nge DBKS ist nicht korrekt.", 3},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        clsGenMeldung gen(host.host);
        Meldung m = registration();
        m.Meldegrund = c.reason;
        m.Meldungsart = c.kind;
        m.KsLetzter = c.ks_last;
        DatensatzData dd = datensatz();
        Error e = expect_error([&] { gen.GenData(m, dd, vmNormal, kDate); });
        EXPECT_EQ(e.number(), c.number);
        EXPECT_EQ(e.source(), c.source);
        EXPECT_EQ(e.description(), c.description);
        ASSERT_EQ(host.lines.size(), c.lines);
        EXPECT_EQ(host.lines.back(), "Fehler " + std::to_string(c.number) + " in TamrelFile26 1.0.0 (Zeile " +
                                         (c.lines == 2 ? "1" : "3") +
                                         "): clsGenMeldung.GenData(<objMeldung>, <udtDatensatzData>, 0, "
                                         "2024-03-01 10:11:12) -> " +
                                         c.description);
    }
    RecordingHost host;
    Meldung m = registration();
    m.Meldungsart = 8;
    std::string out;
    Error e = expect_error([&] { clsGenMeldung::GenDBKS(out, m); });
    EXPECT_EQ(e.number(), -2147213201);
    EXPECT_EQ(e.description(), "Falsches Verfahren bei Erzeugung DBKS");
}

TEST(Meldung, NegativeAmountIsLoggedByEveryRoutineOnItsWay) {
    RecordingHost host;
    clsGenMeldung gen(host.host);
    Meldung m = registration();
    m.Meldegrund = "58";
    m.KvBetrag1 = "-5";
    DatensatzData dd = datensatz();
    Error e = expect_error([&] { gen.GenData(m, dd, vmSofort, kDate); });
    EXPECT_EQ(e.number(), -2147213200);
    EXPECT_EQ(e.source(), "mlGen.StrToPB");
    EXPECT_EQ(e.description(), "Der Betrag darf nicht negativ sein.");
    ASSERT_EQ(host.lines.size(), 3u);
    EXPECT_EQ(
        host.lines.front(),
        "Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 7): mlGen.StrToPB -> Der Betrag darf nicht negativ sein.");
    EXPECT_TRUE(host.lines[1].find("): clsGenMeldung.GenDBKV -> Der Betrag darf nicht negativ sein.") !=
                std::string::npos);
    EXPECT_EQ(host.lines.back(),
              "Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 3): clsGenMeldung.GenData(<objMeldung>, "
              "<udtDatensatzData>, 1, 2024-03-01 10:11:12) -> Der Betrag darf nicht negativ sein.");
}

TEST(Meldung, NameTestErrorReachesTheHostUnchanged) {
    RecordingHost host;
    host.host.tests.NameTest = [](std::string_view) -> bool { throw Error(440, "TamrelObj26.NameTest", "kaputt"); };
    clsGenMeldung gen(host.host);
    Meldung m = registration();
    m.Meldegrund = "62";
    m.Meldungsart = 8;
    DatensatzData dd = datensatz();
    Error e = expect_error([&] { gen.GenData(m, dd, vmNormal, kDate); });
    EXPECT_EQ(e.number(), 440);
    EXPECT_EQ(e.source(), "TamrelObj26.NameTest");
    EXPECT_EQ(host.lines.size(), 2u);
}

}  // namespace
