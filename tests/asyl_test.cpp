#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "test_support.h"
#include "xml/clsGenAsyl/Asyl.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

using namespace tamrel;
using namespace tamrel::testing;

namespace {

const Date kDate{2024, 3, 1, 10, 11, 12};

std::string nils(std::initializer_list<const char*> names) {
    std::string s;
    for (const char* n : names) s += std::string("<") + n + " xsi:nil=\"true\"/>";
    return s;
}

const std::string kPersonNils =
    nils({"fmna", "vona",   "vosa",   "nazu", "titel", "plz",  "ort",  "str",          "nr",   "adrzu", "tel", "email",
          "gbna", "gbvosa", "gbnazu", "gbdt", "ge",    "gbot", "gbld", "aktenzeichen", "kvnr", "vsnr",  "sasc"});

TEST(Asyl, FramesCarryKotkvAndHandBackTheDate) {
    RecordingHost host;
    clsGenAsyl gen(host.host);
    std::string datum;
    EXPECT_EQ(gen.GenVOSZ("1", "2", "7", "", 0, datum, Date{}),
              "<vosz><vfmm>KOTKV</vfmm><bbnrab>1</bbnrab><bbnrep>2</bbnrep><ed>2024-03-05</ed><dtnr>7</dtnr>"
              "<naab xsi:nil=\"true\"/><vernr>01</vernr></vosz>");
    EXPECT_EQ(datum, "20240305");
    EXPECT_EQ(gen.GenNCSZ("1", "2", "7", "", kDate),
              "<ncsz><vfmm>KOTKV</vfmm><bbnrab>1</bbnrab><bbnrep>2</bbnrep><ed>2024-03-01</ed><dtnr>7</dtnr>"
              "<zlsz xsi:nil=\"true\"/><vernr>01</vernr></ncsz>");
}

TEST(Asyl, EmptyReportStillHasEveryBlock) {
    RecordingHost host;
    clsGenAsyl gen(host.host);
    Asyl a;
    DatensatzData dd{"", "", "V1", "", "", "", "bild.png"};
    EXPECT_EQ(gen.GenData(a, dd, kDate), "<daten><skek><vfmm>DS264</vfmm>" + nils({"bbnrab", "bbnrep"}) +
                                             "<vernr>01</vernr><ed>2024-03-01T10:11:12.000000</ed>" +
                                             nils({"bbnrvu", "ikko", "gd", "rg"}) +
                                             "<ds-id>V1        0000000000</ds-id></skek><bmgd>" + kPersonNils +
                                             "</bmgd>" + nils({"bang", "bzrm", "bbtr"}) + "<bapk>" +
                                             nils({"anr-ap", "name-ap", "tel-ap", "fax-ap", "email-ap"}) + "</bapk>" +
                                             nils({"bzgk", "bimg"}) + "</daten>");
}

TEST(Asyl, NilRulesOfTheOptionalBlocks) {
    RecordingHost host;
    clsGenAsyl gen(host.host);
    DatensatzData dd;
    struct Case {
        void (*fill)(Asyl&);
        const char* present;
    };
    const Case cases[] = {
        {[](Asyl& a) { a.AngArt = "1"; }, "<bang><angart>1</angart>"},
        {[](Asyl& a) { a.ZrEnde = "20240131"; }, "<bzrm><zrbg xsi:nil=\"true\"/><zren>2024-01-31</zren></bzrm>"},
        {[](Asyl& a) { a.Btr.Ge = "M"; }, "<bbtr><fmna xsi:nil=\"true\"/>"},
        {[](Asyl& a) { a.Zgk.Ort = "Ulm"; }, "<ort>Ulm</ort><str xsi:nil=\"true\"/>"},
        {[](Asyl& a) { a.Bilddatei = " AB\r\n"; },
         "<bimg><dateina xsi:nil=\"true\"/><bilddatei>AB</bilddatei><prueflbilddatei>5</prueflbilddatei></bimg>"},
    };
    for (const auto& c : cases) {
        Asyl a;
        c.fill(a);
        EXPECT_NE(gen.GenData(a, dd, kDate).find(c.present), std::string::npos) << c.present;
    }
    Asyl a;
    a.Mgd.Fmna = "X";
    dd.strDateiname = "only-a-name.png";
    std::string out = gen.GenData(a, dd, kDate);
    EXPECT_NE(out.find("<bmgd><fmna>X</fmna>"), std::string::npos);
    EXPECT_NE(out.find("<bimg xsi:nil=\"true\"/>"), std::string::npos);
}

TEST(Asyl, GeneratedDocumentIsWellFormed) {
    namespace fs = std::filesystem;
    fs::path out = fs::temp_directory_path() / ("tamrel-asyl-" + std::to_string(::getpid()) + ".xml");
    std::string cmd = std::string(TAMREL_EXE) + " generate " + TAMREL_SOURCE_DIR +
                      "/examples/xml-asyl-report.json -o " + out.string() + " 2>/dev/null";
    ASSERT_EQ(std::system(cmd.c_str()), 0);
    xmlDocPtr doc = xmlReadFile(out.string().c_str(), nullptr, XML_PARSE_NONET);
    ASSERT_NE(doc, nullptr);
    EXPECT_STREQ(reinterpret_cast<const char*>(xmlDocGetRootElement(doc)->name), "kotkv");
    xmlFreeDoc(doc);
    fs::remove(out);

    std::ofstream bad(out.string() + ".json");
    bad << R"({"class":"clsGenAsyl","strBNRAb":"1","strBNREm":"2","strFileNr":"1","strFirma":"A & B",)"
        << R"("reports":[]})";
    bad.close();
    cmd = std::string(TAMREL_EXE) + " generate " + out.string() + ".json -o " + out.string() + " 2>/dev/null";
    EXPECT_NE(std::system(cmd.c_str()), 0);
    EXPECT_FALSE(fs::exists(out));
    fs::remove(out.string() + ".json");
}

}  // namespace
