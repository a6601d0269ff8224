#include <gtest/gtest.h>

#include "core/frames.h"
#include "core/shared_blocks.h"
#include "core/xml_encoders.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "test_support.h"

using namespace tamrel;
using namespace tamrel::testing;

namespace {

TEST(Frames, VOSZHandsBackTheComputedDate) {
    RecordingHost host;
    std::string datum;
    std::string vosz =
        mlGen::GenVOSZ("AGDEU", "12345678", "87654321", "1", "Firma Zwanzig Zeichen", datum, Date{}, "01");
    EXPECT_EQ(vosz,
              "VOSZ"
              "AGDEU" +
                  an("12345678", 15) + an("87654321", 15) + "20240305" + "000001" + an("Firma Zwanzig Zeichen", 50) +
                  "01");
    EXPECT_EQ(datum, "20240305");

    std::string given = "20231231";
    vosz = mlGen::GenVOSZ("AGDEU", "1", "2", "1", "", given, Date{2024, 1, 1}, "01");
    EXPECT_EQ(vosz.substr(39, 8), "20231231");
    EXPECT_EQ(given, "20231231");
}

TEST(Frames, NCSZAlwaysComputesItsDate) {
    RecordingHost host;
    EXPECT_EQ(mlGen::GenNCSZ("BWNAC", "1", "2", "1", "123", Date{2024, 3, 1, 10, 0, 0}, "01"),
              "NCSZ"
              "BWNAC" +
                  an("1", 15) + an("2", 15) + "20240301" + "000001" + "00000123" + "01");
    EXPECT_EQ(mlGen::GenNCSZ("BWNAC", "1", "2", "1", "0", Date{}, "01").substr(39, 8), "20240305");
}

TEST(Frames, DSKOWithEmptyDataIsStillComplete) {
    RecordingHost host;
    DSKOData empty;
    EXPECT_EQ(mlGen::GenDSKO(empty, "ALG", Date{2024, 3, 1, 10, 11, 12}),
              "DSKO"
              "ALG  " +
                  blanks(30) + "04" + "20240301101112" + "000000" + "00" + blanks(15 + 7 + 8 + 90) +
                  blanks(10 + 34 + 33 + 9) + blanks(1 + 30 + 20 + 20 + 70) + blanks(5));
    DSKOData d{"11111111", "22222222", "42",  "PROD1", "MOD1", "Name1", "Name2", "Name3", "Strasse",
               "7a",       "12345",    "Ort", "W",     "Anna", "0301",  "0302",  "a@b.de"};
    EXPECT_EQ(mlGen::GenDSKO(d, "DEUEV", Date{2024, 3, 1, 10, 11, 12}),
              "DSKO"
              "DEUEV" +
                  an("11111111", 15) + an("22222222", 15) + "04" + "20240301101112" + "000042" + "00" +
                  an("11111111", 15) + an("PROD1", 7) + an("MOD1", 8) + an("Name1", 30) + an("Name2", 30) +
                  an("Name3", 30) + an("12345", 10) + an("Ort", 34) + an("Strasse", 33) + an("7a", 9) + "W" +
                  an("Anna", 30) + an("0301", 20) + an("0302", 20) + an("a@b.de", 70) + blanks(5));
}

TEST(Frames, ProcedureCodesOfEveryClassAndTheShortCodeFailure) {
    RecordingHost host;
    const Date d{2024, 3, 1};
    clsGenMeldung meldung(host.host);
    std::string datum;
    const std::pair<std::int32_t, const char*> codes[] = {{0, "AGDEU"}, {1, "AGTRV"}, {2, "AGBVD"}};
    for (auto [verf, code] : codes) {
        datum.clear();
        EXPECT_EQ(meldung.GenVOSZ("1", "2", "1", "F", verf, datum, d).substr(4, 5), code);
        EXPECT_EQ(meldung.GenNCSZ("1", "2", "1", "3", verf, d).substr(4, 5), code);
    }
    datum.clear();
    Error e = expect_error([&] { meldung.GenVOSZ("1", "2", "1", "F", 3, datum, d); });
    EXPECT_EQ(e.description(), "L\xC3\xA4nge VOSZ ist nicht korrekt.");
    EXPECT_EQ(host.lines.back(),
              "Fehler -2147213203 in TamrelFile26 1.0.0 (Zeile 1): clsGenMeldung.GenVOSZ(1, 2, 1, F, 3, 20240301, "
              "2024-03-01) -> L\xC3\xA4nge VOSZ ist nicht korrekt.");
    EXPECT_EQ(host.lines.size(), 3u);
}

TEST(SharedBlocks, NameAddressAndBirth) {
    RecordingHost host;
    Vorgang v;
    v.Familienname = "M\xC3\xBCller";
    v.Vorname = "Hans";
    v.Titel = "Dr.";
    v.Land = "D";
    v.Geburtsdatum = "1980101";
    v.Geschlecht = "M";
    EXPECT_EQ(mlGen::GenDBNA(v, true),
              "DBNA" + an("M\xC3\xBCller", 31) + an("Hans", 30) + blanks(40) + an("Dr.", 20) + "A");
    bool filled = false;
    EXPECT_EQ(mlGen::GenDBAN(v, filled), "DBAN" + blanks(129));
    EXPECT_FALSE(filled);
    v.Land = "A";
    EXPECT_EQ(mlGen::GenDBAN(v, filled),
              "DBAN"
              "A  " +
                  blanks(126));
    EXPECT_TRUE(filled);
    EXPECT_EQ(appended([&](std::string& out) { mlGen::AppendDBGB(out, v); }),
              "DBGB" + blanks(70) + "01980101" + "M" + blanks(34));
}

TEST(XmlEncoders, NilTrimAndDates) {
    bool flag = true;
    EXPECT_EQ(mlGen::StrToAnXML("naab", " \r\n ", flag), "<naab xsi:nil=\"true\"/>");
    EXPECT_TRUE(flag);
    EXPECT_EQ(mlGen::StrToNXML("plz", " 0123 ", flag), "<plz>0123</plz>");
    EXPECT_FALSE(flag);
    EXPECT_EQ(mlGen::StrToAnXML("x", "a&b", flag), "<x>a&b</x>");
    EXPECT_EQ(mlGen::StrToDateXML("ed", "20240131", flag), "<ed>2024-01-31</ed>");
    EXPECT_EQ(mlGen::StrToDateXML("ed", "2024013", flag), "<ed>2024013</ed>");
    EXPECT_EQ(mlGen::StrToDateXML("ed", "20240131235959123456", flag), "<ed>2024-01-31T23:59:59.123456</ed>");
}

}  // namespace
