#include <gtest/gtest.h>

#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "test_support.h"

using namespace tamrel;
using namespace tamrel::testing;

namespace {

const Date kDate{2024, 3, 1, 10, 11, 12};

BeitrNachw statement(std::int32_t kind) {
    BeitrNachw b;
    b.Laufnummer = 5;
    b.Nachweisart = kind;
    b.Zeitraum1 = "20240101";
    b.Zeitraum2 = "20240131";
    b.Merkmal1 = true;
    b.Betrag01 = "100";
    b.Betrag07 = "7,5";
    b.Betrag18 = "0";
    b.Betrag23 = "23";
    b.Betrag27 = "-1,5";
    b.Arbeitgeber = {"11111111", "ANG", "Firma", "", "", "Weg", "3", "", "AT", "1010", "Wien", "", "", "K", "", ""};
    b.Empfaenger.Betriebsnummer = "22222222";
    return b;
}

std::string amount(const std::string& digits, char sign = '+') { return sign + n(digits, 11); }

TEST(BeitrNachw, RecordOfEachKind) {
    struct Case {
        std::int32_t kind;
        const char* id;
        const char* bnrst;
        const char* kennzeichen;
        std::string eighth, sonder, tail;
    };
    const std::string z = amount("");
    const Case cases[] = {
        {0, "BW02BWNAC", "", "K", amount("750"), z, ""},
        {1, "BW02BWNAC", "", "K", z, amount("2300"), z + z + z + z + amount("750") + z + amount("2300") + z},
        {4, "BW03BWBNV", "10700000", " ", amount("750"), z, ""},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        clsGenBeitrNachw gen(host.host);
        std::string amounts = amount("10000") + z + z + z + z + z + z + c.eighth + z + z + z + z + z + z + z + z +
                              c.sonder + z + amount("", '-') + z + z + z + z + z + z + z;
        std::string expected = std::string(c.id) + an("33333333", 15) + an("22222222", 15) + "11" + "20240301101112" +
                               "000042" + "00" + an("V", 10) + n("5", 10) + blanks(20) + "10" + "0" +
                               an("11111111", 15) + "20240101" + "20240131" + amounts + an("Firma", 30) + blanks(30) +
                               an("Weg 3", 30) + "AT " + an("1010", 10) + an("Wien", 25) + an(c.bnrst, 15) +
                               blanks(35) + " " + "000000000000" + c.kennzeichen + "0000" + "E" + amount("150", '-') +
                               an("ANG", 20) + c.tail;
        EXPECT_EQ(gen.GenData(statement(c.kind), "33333333", "10700000", "V", "42", kDate), expected) << c.kind;
    }
}

TEST(BeitrNachw, SonderbetragFallbackOnlyWithoutReceiverMatch) {
    RecordingHost host;
    host.host.tests.EmpfBknTest2 = [](std::string_view bnr) { return bnr == "22222222"; };
    clsGenBeitrNachw gen(host.host);
    std::string out = gen.GenData(statement(1), "1", "", "", "", kDate);
    EXPECT_EQ(out.substr(137 + 16 * 12, 12), amount(""));
    EXPECT_EQ(clsGenBeitrNachw::ChangeDate("20240131"), "31012024");
}

TEST(BeitrNachw, DmIsRejectedAfterPosition645) {
    RecordingHost host;
    clsGenBeitrNachw gen(host.host);
    BeitrNachw b = statement(0);
    b.Waehrung = "DM";
    EXPECT_NO_THROW(gen.GenData(b, "1", "", "", "", kDate));
    b.Waehrung = "D";
    Error e = expect_error([&] { gen.GenData(b, "1", "", "", "", kDate); });
    EXPECT_EQ(e.number(), -2147213200);
    EXPECT_EQ(e.source(), "clsGenBeitrNachw.GenData");
    EXPECT_EQ(e.description(), "Die Angabe von DM ist nicht mehr zul\xC3\xA4ssig.");
    EXPECT_EQ(host.lines,
              std::vector<std::string>{
                  "Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 60): clsGenBeitrNachw.GenData(<objBeitrNachw>, 1, , "
                  ", , 2024-03-01 10:11:12) -> Die Angabe von DM ist nicht mehr zul\xC3\xA4ssig."});
}

BeitrErh collection() {
    BeitrErh b;
    b.Laufnummer = 9;
    b.Ersatzaktenzeichen = "ERSATZ";
    b.ArtKennzeichen = true;
    b.Zeitraum1 = "202401";
    b.Zeitraum2 = "202312";
    b.Betrag1 = "12";
    b.Betrag2 = "-3,5";
    b.Merkmal1 = 1;
    b.Merkmal2 = 3;
    b.Vorgang.Aktenzeichen = "AZ";
    b.Vorgang.Familienname = "Meier";
    b.Vorgang.Vorname = "Eva";
    b.Vorgang.Geschlecht = "W";
    b.Vorgang.Geburtsdatum = "19900101";
    b.Vorgang.Arbeitgeber.Name1 = "Firma";
    b.Vorgang.Arbeitgeber.PLZ = "1234567";
    b.Vorgang.Arbeitgeber.Betriebsnummer = "11111111";
    b.Empfaenger.Betriebsnummer = "22222222";
    return b;
}

TEST(BeitrErh, RecordWithDbmiAndOptionalDbhb) {
    RecordingHost host;
    clsGenBeitrErh gen(host.host);
    DatensatzData dd{"33333333", "44444444", "V", "7", "P", "M", ""};
    BeitrErh b = collection();
    std::string dsbe =
        "DSBE"
        "02"
        "01"
        "00"
        "BVBEI" +
        an("33333333", 15) + an("22222222", 15) + "20240301101112" + "000007" +
        "00"
        "N" +
        an("P", 7) + an("M", 8) + an("V", 10) + n("9", 10) + blanks(12) + n("", 20) + an("Firma", 30) + blanks(60) +
        blanks(33 + 9) + "34567" + blanks(34) + an("V", 10) + n("9", 10) + an("11111111", 15) + an("44444444", 15) +
        an("22222222", 15) + an("ERSATZ", 17) + "202312" + "202401" + "K" + "+12" + "-00000350" + "1" + "+000000000" +
        "+00000000" + "2" + "+00000000";
    std::string dbmi = "DBMI" + an("AZ", 20) + an("Meier", 30) + an("Eva", 30) + blanks(60) + "W" + "19900101";
    EXPECT_EQ(gen.GenData(b, dd, kDate), dsbe + "JN  " + dbmi);

    b.Betrag6 = "1.234,5";
    b.Merkmal2 = 7;
    b.Vorgang.Bezugskennung = "BZK";
    std::string out = gen.GenData(b, dd, kDate);
    EXPECT_EQ(out.size(), 613u);
    EXPECT_EQ(out.substr(371, 17), an("BZK", 17));
    EXPECT_EQ(out.substr(433, 1), "0");
    EXPECT_EQ(out.substr(443, 2), "JJ");
    EXPECT_EQ(out.substr(600),
              "DBHB"
              "+00123450");
}

}  // namespace
