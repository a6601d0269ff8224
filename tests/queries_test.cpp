#include <gtest/gtest.h>

#include "protocol/clsProtoEntry.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"
#include "test_support.h"

using namespace tamrel;
using namespace tamrel::testing;

namespace {

const Date kDate{2024, 3, 1, 10, 11, 12};
const DatensatzData kDD{"33333333", "12345678", "ABC", "7", "PROD", "MOD", "datei.xml"};

Arbeitgeber employer() {
    Arbeitgeber ag;
    ag.Betriebsnummer = "11111111";
    ag.Name1 = "Firma";
    ag.PLZ = "10115";
    ag.Ort = "Berlin";
    ag.Strasse = "Weg";
    ag.Hausnummer = "1";
    return ag;
}

TEST(Betrieb, DsbdWithAndWithoutSecondAddress) {
    RecordingHost host;
    clsGenBetrieb gen(host.host);
    Betrieb b;
    b.DatensatzNr = 42;
    b.Kennziffer = "7";
    b.ErstellDatum = "20240229";
    b.Arbeitgeber = employer();
    b.Empfaenger.Betriebsnummer = "22222222";
    DatensatzData dd = kDD;
    std::string dsbd =
        "DSBD"
        "BTRAG" +
        an("33333333", 15) + an("22222222", 15) + "01" + "20240229101112" + "000007" + "00" + an("11111111", 15) +
        blanks(11) + an("12345678", 15) + "07" + blanks(5) + an("Firma", 30) + blanks(60) + an("10115", 10) +
        an("Berlin", 34) + an("Weg", 33) + an("1", 9) + blanks(20) + "A" + blanks(15) + blanks(141) + blanks(20) +
        an("ABC", 10) + "0000000042" + an("22222222", 15) + blanks(15);
    EXPECT_EQ(gen.GenData(b, dd, kDate), dsbd +
                                             "N"
                                             "N" +
                                             blanks(5));

    b.DbkaOrt = "Hamburg";
    b.KennzeichenR = true;
    std::string out = gen.GenData(b, dd, kDate);
    EXPECT_EQ(out.size(), 749u);
    EXPECT_EQ(out.substr(307, 1), "R");
    EXPECT_EQ(out.substr(534, 1), "J");
    EXPECT_EQ(out.substr(541), "DBKA" + blanks(100) + an("Hamburg", 34) + blanks(33 + 9 + 20 + 8));
}

TEST(AbfrVers, QueryWithPersonBlocks) {
    RecordingHost host;
    clsGenAbfrVers gen(host.host);
    AbfrVers a;
    a.Vorgang.Aktenzeichen = "AZ";
    a.Vorgang.Familienname = "Meier";
    a.Vorgang.Arbeitgeber.Betriebsnummer = "11111111";
    DatensatzData dd = kDD;
    std::string out = gen.GenData(a, dd, kDate);
    EXPECT_EQ(out,
              "DSVV"
              "DEUEV" +
                  an("33333333", 15) + an("66667777", 15) + "01" + "20240301101112" + "000007" + "00" + blanks(12) +
                  "0" + " " + an("11111111", 15) + an("AZ", 20) + an("ABC", 10) + "0000000000" + blanks(14) + "5" +
                  blanks(24) + "JJJ" + blanks(26) + "DBNA" + an("Meier", 120) + " " + "DBGB" + blanks(70) + "00000000" +
                  blanks(35) + "DBAN" + blanks(129));
}

AbfrStammdatenUV master_query() {
    AbfrStammdatenUV a;
    a.DatensatzNr = 3;
    a.Kennz248 = true;
    a.Feld216 = "F216";
    a.Feld417 = "12";
    a.Arbeitgeber.Betriebsnummer = "11111111";
    return a;
}

TEST(AbfrStammdatenUV, DbapOnlyWithContactData) {
    RecordingHost host;
    clsGenAbfrStammdatenUV gen(host.host);
    AbfrStammdatenUV a = master_query();
    DatensatzData dd = kDD;
    std::string dsas =
        "DSAS"
        "UVSDD" +
        an("33333333", 15) + an("95783331", 15) +
        "01"
        "00"
        "00" +
        "20240301101112" + "000007" + "N00" + blanks(100) + an("PROD", 7) + an("MOD", 8) + an("ABC", 10) + n("3", 10) +
        blanks(12) + an("F216", 32) + "J" + blanks(32) + "5" + blanks(100) + blanks(35) + "00012" +
        "000"
        "0000" +
        an("11111111", 15) + blanks(15);
    EXPECT_EQ(gen.GenData(a, dd, kDate), dsas +
                                             "N"
                                             "UV10");

    a.ApEmail = "a@b.de";
    EXPECT_EQ(gen.GenData(a, dd, kDate), dsas +
                                             "J"
                                             "UV10" +
                                             "DBAP" + blanks(71) + an("a@b.de", 70) + blanks(176));
}

Lohnnachweis wage_statement(std::int16_t count) {
    Lohnnachweis l;
    l.DatensatzNr = 9;
    l.AnzahlPositionen = count;
    l.Positionen = {{"P1", "X", "12", "34", "5"}, {"P2", "", "", "", ""}};
    return l;
}

TEST(Lohnnachweis, PositionsCountsAndOverflow) {
    RecordingHost host;
    clsGenLohnnachweis gen(host.host);
    DatensatzData dd = kDD;
    std::string fixed =
        "DSLN"
        "UVELN" +
        an("33333333", 15) + an("95783331", 15) +
        "01"
        "00"
        "00" +
        "20240301101112" + "000007" + n("", 20) + "N00" + blanks(100) + an("PROD", 7) + an("MOD", 8) + an("ABC", 10) +
        n("9", 10) + blanks(12) + blanks(32) + "N" + blanks(32) + "5" + blanks(100) + blanks(35) +
        "00000"
        "000"
        "0000" +
        blanks(30) + "N" + blanks(7) + "000000";
    EXPECT_EQ(gen.GenData(wage_statement(0), dd, kDate), fixed + "00");
    std::string three = gen.GenData(wage_statement(3), dd, kDate);
    EXPECT_EQ(three, fixed + "03" + an("P1", 15) + an("X", 8) + n("12", 15) + n("34", 15) + "000005" + an("P2", 23) +
                         n("", 36) + blanks(23) + n("", 36));
    Lohnnachweis with_contact = wage_statement(3);
    with_contact.ApName = "Kontakt";
    EXPECT_EQ(gen.GenData(with_contact, dd, kDate).size(), 992u);
    EXPECT_EQ(gen.GenData(wage_statement(547), dd, kDate).size(), 494u + 59u * 547u);

    Error e = expect_error([&] { gen.GenData(wage_statement(548), dd, kDate); });
    EXPECT_EQ(e.number(), 6);
    EXPECT_EQ(e.source(), "TamrelFile26");
    EXPECT_EQ(e.description(),
              "\xC3\x9C"
              "berlauf");
    EXPECT_EQ(host.lines.size(), 2u);
    EXPECT_NE(host.lines[0].find("clsGenLohnnachweis.GenDSLN -> \xC3\x9C"
                                 "berlauf"),
              std::string::npos);

    e = expect_error([&] { gen.GenData(wage_statement(-1), dd, kDate); });
    EXPECT_EQ(e.description(), "L\xC3\xA4nge DSLN ist nicht korrekt.");
}

TEST(QueryProtocols, FieldCountsAndOrder) {
    RecordingHost host;
    clsProtoEntry proto(host.host);
    AbfrVers a;
    a.Vorgang.EuAngabe1 = "E1";
    a.Vorgang.EuAngabe2 = "E2";
    a.Vorgang.Hausnummer = "99";
    std::string line = proto.CreateProtoAbfrVers(a, false, "");
    EXPECT_EQ(std::count(line.begin(), line.end(), ';'), 30);
    EXPECT_TRUE(line.ends_with(";\"E2\";\"E1\";0;\"\""));
    EXPECT_EQ(line.find("99"), std::string::npos);

    std::string text(300, 'x');
    text.replace(0, 2, "\r\n");
    line = proto.CreateProtoAbfrStammdatenUV(master_query(), true, text);
    EXPECT_TRUE(line.starts_with(";\"J\";\"F216\";\"\";\"\";\"11111111\""));
    EXPECT_TRUE(line.ends_with(";\"12\";1;\";" + std::string(254, 'x') + "\""));

    line = proto.CreateProtoLohnnachweis(wage_statement(2), false);
    EXPECT_TRUE(line.ends_with(";2;\"P1\";\"X\";\"12\";\"34\";\"5\";\"P2\";\"\";\"\";\"\";\"\";0;\"\""));
    EXPECT_EQ(std::count(line.begin(), line.end(), ';'), 37);
}

}  // namespace
