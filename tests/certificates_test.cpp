#include <gtest/gtest.h>

#include <map>

#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "test_support.h"

using namespace tamrel;
using namespace tamrel::testing;

namespace {

const Date kDate{2024, 3, 1, 10, 11, 12};
const DatensatzData kDD{"33333333", "44444444", "V", "7", "P", "M", ""};

ArbeitsBesch certificate(std::int16_t verfahren) {
    ArbeitsBesch a;
    a.DatensatzNr = 12;
    a.Feld151 = "20200101";
    a.ErstellDatum = "20240301";
    a.Verfahren = verfahren;
    a.Vorgang.Versicherungsnummer = "12010180M123";
    a.Vorgang.Aktenzeichen = "AZ";
    a.Vorgang.Familienname = "Meier";
    a.Vorgang.Land = "D";
    a.Vorgang.Arbeitgeber.Betriebsnummer = "11111111";
    return a;
}

std::string head(const char* name, char dbab) {
    return std::string(name) + "03" + "ALG  " + an("33333333", 15) + "20240301101112" + "000007" + "00" +
           an("12010180M123", 12) + an("11111111", 15) + an("AZ", 20) + an("44444444", 15) + an("V", 10) + n("12", 10) +
           blanks(20) + "20200101" + "JJJ" + dbab;
}

// The block identifiers after the record, in order.
std::vector<std::string> block_ids(const std::string& out, std::size_t record) {
    static const std::map<std::string, std::size_t> lengths = {
        {"DBNA", 125}, {"DBAN", 133}, {"DBAG", 533}, {"DBAB", 51},  {"DBSE", 20}, {"DBNE", 100},
        {"DBSA", 29},  {"DBSB", 19},  {"DBAZ", 22},  {"DBEN", 123}, {"DBEZ", 25}, {"DBEE", 71},
        {"DBFZ", 22},  {"DBHA", 7},   {"DBKE", 175}, {"DBKU", 103}, {"DBNB", 28}, {"DBHN", 20}};
    std::vector<std::string> ids;
    for (std::size_t pos = record; pos < out.size();) {
        ids.push_back(out.substr(pos, 4));
        pos += lengths.at(ids.back());
    }
    return ids;
}

TEST(ArbeitsBesch, RecordsAndBlockSequenceOfEachProcedure) {
    struct Case {
        std::int16_t verfahren;
        std::string record;
        std::vector<std::string> blocks;
    };
    const Case cases[] = {
        {15,
         head("DSAB", 'N') + "00"
                             "00"
                             "J"
                             "00"
                             "00"
                             "00"
                             "00"
                             "N"
                             "J",
         {"DBNA", "DBAN", "DBAG", "DBSA", "DBKE"}},
        {16,
         head("DSEU", 'N') + "00"
                             "00"
                             "J"
                             "00"
                             "00"
                             "00"
                             "00"
                             "J",
         {"DBNA", "DBAN", "DBAG", "DBSA", "DBKU"}},
        {17,
         head("DSNE", 'N') + "J"
                             "00"
                             "J"
                             "J"
                             "N",
         {"DBNA", "DBAN", "DBAG", "DBNE", "DBSA", "DBNB"}},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        clsGenArbeitsBesch gen(host.host);
        DatensatzData dd = kDD;
        std::string out = gen.GenData(certificate(c.verfahren), dd, kDate);
        EXPECT_EQ(out.substr(0, c.record.size()), c.record) << c.verfahren;
        EXPECT_EQ(block_ids(out, c.record.size()), c.blocks) << c.verfahren;
        EXPECT_EQ(out.substr(c.record.size(), 125), "DBNA" + an("Meier", 120) + " ");
        EXPECT_EQ(out.substr(c.record.size() + 125, 7), "DBAND  ");
    }
}

TEST(ArbeitsBesch, GroupsAndOptionalBlocks) {
    RecordingHost host;
    clsGenArbeitsBesch gen(host.host);
    DatensatzData dd = kDD;
    ArbeitsBesch a = certificate(15);
    a.DBAB.BORT = "Hamburg";
    a.DBHA.URLTAGE = "12";
    a.DBSE = {{"1", "0,5", "1,5", "20240101"}};
    a.AnzahlDBSE = 1;
    a.DBAZ.resize(2);
    a.DBAZ[0].AZWOECH = "40";
    a.AnzahlDBAZ = 2;
    a.AnzahlDBFZ = 1;  // beyond the items given: an empty item
    a.DBSB = {{"20240101", "1111", "101"}};
    a.AnzahlDBSB = 1;
    std::string out = gen.GenData(a, dd, kDate);
    EXPECT_EQ(out.substr(161, 16),
              "J"
              "01"
              "00"
              "J"
              "01"
              "02"
              "00"
              "01"
              "J"
              "J");
    EXPECT_EQ(block_ids(out, 177), (std::vector<std::string>{"DBNA", "DBAN", "DBAG", "DBAB", "DBSE", "DBSA", "DBSB",
                                                             "DBAZ", "DBAZ", "DBFZ", "DBHA", "DBKE"}));
    const std::size_t dbab = 177 + 125 + 133 + 533;
    EXPECT_EQ(out.substr(dbab, 51), "DBAB" + blanks(13) + an("Hamburg", 34));
    EXPECT_EQ(out.substr(dbab + 51, 20),
              "DBSE"
              "1"
              "0500"
              "015"
              "20240101");
    EXPECT_EQ(out.substr(dbab + 51 + 20 + 29 + 19, 22),
              "DBAZ"
              "4000"
              "0000"
              "00"
              "00000000");
    EXPECT_EQ(out.substr(out.size() - 175 - 7, 7),
              "DBHA"
              "012");

    ArbeitsBesch ne = certificate(17);
    ne.AnzahlDBSE = 3;  // DSNE writes no DBSE or DBSB, whatever the counts
    ne.AnzahlDBSB = 3;
    ne.DBHN.HEIMARBABL = "20240220";
    out = gen.GenData(ne, dd, kDate);
    EXPECT_EQ(block_ids(out, 168), (std::vector<std::string>{"DBNA", "DBAN", "DBAG", "DBNE", "DBSA", "DBNB", "DBHN"}));
    EXPECT_EQ(out.substr(out.size() - 20),
              "DBHN"
              "00000000"
              "20240220");
}

TEST(ArbeitsBesch, UnknownProcedureAndCounterOverflow) {
    RecordingHost host;
    clsGenArbeitsBesch gen(host.host);
    DatensatzData dd = kDD;
    for (std::int16_t verfahren : {0, 18}) {
        host.lines.clear();
        Error e = expect_error([&] { gen.GenData(certificate(verfahren), dd, kDate); });
        EXPECT_EQ(e.number(), static_cast<std::int32_t>(0x80040000u));
        EXPECT_EQ(e.source(), "clsGenArbeitsBesch.GetData");
        EXPECT_EQ(e.description(), "Verfahren ist f\xC3\xBCr Abeitsbescheinigung nicht zul\xC3\xA4ssig.");
        EXPECT_EQ(host.lines, std::vector<std::string>{"Fehler -2147221504 in TamrelFile26 1.0.0 (Zeile 2): "
                                                       "clsGenArbeitsBesch.GetData -> Verfahren ist f\xC3\xBCr "
                                                       "Abeitsbescheinigung nicht zul\xC3\xA4ssig."});
    }
    ArbeitsBesch a = certificate(15);
    a.AnzahlDBFZ = 32767;
    Error e = expect_error([&] { gen.GenData(a, dd, kDate); });
    EXPECT_EQ(e.number(), 6);
    EXPECT_EQ(e.description(),
              "\xC3\x9C"
              "berlauf");
}

TEST(Entgelt, DslwWithAndWithoutOptionalBlocks) {
    RecordingHost host;
    clsGenEntgelt gen(host.host);
    DatensatzData dd = kDD;
    Entgelt e;
    e.DatensatzNr = 3;
    e.ErstellDatum = "20240301";
    e.RUECKMELDUNGEEL = "N";
    e.ABGABEGRUND = "1";
    e.Vorgang.Versicherungsnummer = "12010180M123";
    e.Vorgang.Geburtsdatum = "19800101";
    e.Vorgang.Arbeitgeber.Betriebsnummer = "11111111";
    e.Empfaenger.Betriebsnummer = "22222222";
    const std::string head =
        "DSLW"
        "LEIST" +
        an("33333333", 15) + an("22222222", 15) + "10" + "20240301101112" + "000007" + "00" + an("12010180M123", 12) +
        "19800101" + an("11111111", 15) + an("V         0000000003", 32) + an("P", 7) + an("M", 8) + n("", 20) +
        blanks(2) + an("22222222", 15) + an("44444444", 15) +
        "N"
        "01"
        "N";
    std::string out = gen.GenData(e, dd, kDate);
    EXPECT_EQ(out, head + "JNNNNNNNNNNNNNNNNN" + "DBNA" + blanks(121));

    e.DBAE.BRUTTO1 = "2500";
    e.DBVO.GRUNDAV = "1";
    e.DBVO.Vorerkrankungen = {{"20240101", "20240105", "1", "", "", "1", "", ""}};
    e.AZSV = "SV-1";
    e.BBNRKK = "55555555";
    out = gen.GenData(e, dd, kDate);
    EXPECT_EQ(out.substr(167, 15), an("55555555", 15));
    EXPECT_EQ(out.substr(201, 18), "JNNJNNNNNNJNNNNNNJ");
    EXPECT_EQ(out.size(), 219u + 125u + 165u + 74u + 44u);
    EXPECT_EQ(out.substr(219 + 125 + 165, 74),
              "DBVO"
              "1" +
                  n("", 17) + "01" +
                  "20240101"
                  "20240105"
                  "1" +
                  n("", 16) + "1" + n("", 16));
    EXPECT_EQ(out.substr(out.size() - 44), "DBID" + an("SV-1", 20) + blanks(20));
}

}  // namespace
