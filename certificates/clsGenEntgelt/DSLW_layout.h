// The layouts of the DSLW record and its blocks, as GenDSLW.cpp and
// GenDSLW_blocks.cpp build them; DBNA and DBAN are the shared blocks.
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::eel {
using layout::amount;
using layout::flag;
using layout::lit;

namespace DBAL {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBAL");
inline constexpr FieldLayout DATUMAB{"DBAL.DATUMAB", 5, 8, FieldKind::Date};
inline constexpr FieldLayout AEERSTTAG{"DBAL.AEERSTTAG", 13, 1, FieldKind::Code};
inline constexpr FieldLayout DATUMEZGBIS{"DBAL.DATUMEZGBIS", 14, 8, FieldKind::Date};
inline constexpr FieldLayout ENDEBVAM{"DBAL.ENDEBVAM", 22, 8, FieldKind::Date};
inline constexpr FieldLayout ENDEBVZUM{"DBAL.ENDEBVZUM", 30, 8, FieldKind::Date};
inline constexpr FieldLayout GRUNDBEEND{"DBAL.GRUNDBEEND", 38, 2, FieldKind::N};
inline constexpr FieldLayout PFLZUSCHLAG{"DBAL.PFLZUSCHLAG", 40, 1, FieldKind::Code};
inline constexpr FieldLayout ARBZEITMOD{"DBAL.ARBZEITMOD", 41, 1, FieldKind::Code};
inline constexpr FieldLayout MMKUG{"DBAL.MMKUG", 42, 1, FieldKind::N};
inline constexpr FieldLayout KUGBEGINN{"DBAL.KUGBEGINN", 43, 8, FieldKind::Date};
inline constexpr FieldLayout KUGENDE{"DBAL.KUGENDE", 51, 8, FieldKind::Date};
inline constexpr FieldLayout LAGBEGINN1{"DBAL.LAGBEGINN1", 59, 8, FieldKind::Date};
inline constexpr FieldLayout LAGENDE1{"DBAL.LAGENDE1", 67, 8, FieldKind::Date};
inline constexpr FieldLayout LAGBEGINN2{"DBAL.LAGBEGINN2", 75, 8, FieldKind::Date};
inline constexpr FieldLayout LAGENDE2{"DBAL.LAGENDE2", 83, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {Kennung,    DATUMAB,     AEERSTTAG,  DATUMEZGBIS, ENDEBVAM,  ENDEBVZUM,
                                          GRUNDBEEND, PFLZUSCHLAG, ARBZEITMOD, MMKUG,       KUGBEGINN, KUGENDE,
                                          LAGBEGINN1, LAGENDE1,    LAGBEGINN2, LAGENDE2};
}  // namespace DBAL
inline constexpr RecordLayout kDBAL{"DBAL", 90, DBAL::kFields};

namespace DBAE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBAE");
inline constexpr FieldLayout WAEHREELBRUTTO = amount("DBAE.WAEHREELBRUTTO", 5, 8, 2);
inline constexpr FieldLayout DATUMAEBIS{"DBAE.DATUMAEBIS", 13, 8, FieldKind::Date};
inline constexpr FieldLayout EAZBEGINN1{"DBAE.EAZBEGINN1", 21, 8, FieldKind::Date};
inline constexpr FieldLayout EAZENDE1{"DBAE.EAZENDE1", 29, 8, FieldKind::Date};
inline constexpr FieldLayout BRUTTO1 = amount("DBAE.BRUTTO1", 37, 8, 2);
inline constexpr FieldLayout NETTO1 = amount("DBAE.NETTO1", 45, 8, 2);
inline constexpr FieldLayout UMGEWAE = amount("DBAE.UMGEWAE", 53, 8, 2);
inline constexpr FieldLayout ENTGART{"DBAE.ENTGART", 61, 1, FieldKind::N};
inline constexpr FieldLayout BRUTTOAE = amount("DBAE.BRUTTOAE", 62, 8, 2);
inline constexpr FieldLayout NETTOAE = amount("DBAE.NETTOAE", 70, 8, 2);
inline constexpr FieldLayout EAZBEGINN2{"DBAE.EAZBEGINN2", 78, 8, FieldKind::Date};
inline constexpr FieldLayout EAZENDE2{"DBAE.EAZENDE2", 86, 8, FieldKind::Date};
inline constexpr FieldLayout BRUTTO2 = amount("DBAE.BRUTTO2", 94, 8, 2);
inline constexpr FieldLayout NETTO2 = amount("DBAE.NETTO2", 102, 8, 2);
inline constexpr FieldLayout EAZBEGINN3{"DBAE.EAZBEGINN3", 110, 8, FieldKind::Date};
inline constexpr FieldLayout EAZENDE3{"DBAE.EAZENDE3", 118, 8, FieldKind::Date};
inline constexpr FieldLayout BRUTTO3 = amount("DBAE.BRUTTO3", 126, 8, 2);
inline constexpr FieldLayout NETTO3 = amount("DBAE.NETTO3", 134, 8, 2);
inline constexpr FieldLayout EZKV = amount("DBAE.EZKV", 142, 8, 2);
inline constexpr FieldLayout EZRV = amount("DBAE.EZRV", 150, 8, 2);
inline constexpr FieldLayout EZALV = amount("DBAE.EZALV", 158, 8, 2);
inline constexpr FieldLayout kFields[] = {Kennung,  WAEHREELBRUTTO, DATUMAEBIS, EAZBEGINN1, EAZENDE1, BRUTTO1,
                                          NETTO1,   UMGEWAE,        ENTGART,    BRUTTOAE,   NETTOAE,  EAZBEGINN2,
                                          EAZENDE2, BRUTTO2,        NETTO2,     EAZBEGINN3, EAZENDE3, BRUTTO3,
                                          NETTO3,   EZKV,           EZRV,       EZALV};
}  // namespace DBAE
inline constexpr RecordLayout kDBAE{"DBAE", 165, DBAE::kFields};

namespace DBZA {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBZA");
inline constexpr FieldLayout ANZAHLSTD = amount("DBZA.ANZAHLSTD", 5, 5, 2);
inline constexpr FieldLayout REGAZ = amount("DBZA.REGAZ", 10, 4, 2);
inline constexpr FieldLayout MAZR1 = amount("DBZA.MAZR1", 14, 5, 2);
inline constexpr FieldLayout AZBEGINN2{"DBZA.AZBEGINN2", 19, 8, FieldKind::Date};
inline constexpr FieldLayout AZENDE2{"DBZA.AZENDE2", 27, 8, FieldKind::Date};
inline constexpr FieldLayout MAZR2 = amount("DBZA.MAZR2", 35, 5, 2);
inline constexpr FieldLayout AZBEGINN3{"DBZA.AZBEGINN3", 40, 8, FieldKind::Date};
inline constexpr FieldLayout AZENDE3{"DBZA.AZENDE3", 48, 8, FieldKind::Date};
inline constexpr FieldLayout MAZR3 = amount("DBZA.MAZR3", 56, 5, 2);
inline constexpr FieldLayout kFields[] = {Kennung, ANZAHLSTD, REGAZ,     MAZR1,   AZBEGINN2,
                                          AZENDE2, MAZR2,     AZBEGINN3, AZENDE3, MAZR3};
}  // namespace DBZA
inline constexpr RecordLayout kDBZA{"DBZA", 60, DBZA::kFields};

namespace DBEE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBEE");
inline constexpr FieldLayout EELABAG{"DBEE.EELABAG", 5, 8, FieldKind::Date};
inline constexpr FieldLayout EELABSV{"DBEE.EELABSV", 13, 8, FieldKind::Date};
inline constexpr FieldLayout EELENDE{"DBEE.EELENDE", 21, 8, FieldKind::Date};
inline constexpr FieldLayout EELENDEGRUND{"DBEE.EELENDEGRUND", 29, 2, FieldKind::N};
inline constexpr FieldLayout kFields[] = {Kennung, EELABAG, EELABSV, EELENDE, EELENDEGRUND};
}  // namespace DBEE
inline constexpr RecordLayout kDBEE{"DBEE", 30, DBEE::kFields};

namespace DBAW {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBAW");
inline constexpr FieldLayout TAGE1{"DBAW.TAGE1", 5, 2, FieldKind::N};
inline constexpr FieldLayout TAGE2{"DBAW.TAGE2", 7, 2, FieldKind::N};
inline constexpr FieldLayout TAGE3{"DBAW.TAGE3", 9, 2, FieldKind::N};
inline constexpr FieldLayout kFields[] = {Kennung, TAGE1, TAGE2, TAGE3};
}  // namespace DBAW
inline constexpr RecordLayout kDBAW{"DBAW", 10, DBAW::kFields};

namespace DBFR {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBFR");
inline constexpr FieldLayout ENDEBVZUM{"DBFR.ENDEBVZUM", 5, 8, FieldKind::Date};
inline constexpr FieldLayout FREISTVOM{"DBFR.FREISTVOM", 13, 8, FieldKind::Date};
inline constexpr FieldLayout FREISTBIS{"DBFR.FREISTBIS", 21, 8, FieldKind::Date};
inline constexpr FieldLayout VAEERSTTAG{"DBFR.VAEERSTTAG", 29, 1, FieldKind::Code};
inline constexpr FieldLayout TAGE{"DBFR.TAGE", 30, 2, FieldKind::N};
inline constexpr FieldLayout KEINEFREIST{"DBFR.KEINEFREIST", 32, 1, FieldKind::N};
inline constexpr FieldLayout BEGRZFREIST{"DBFR.BEGRZFREIST", 33, 2, FieldKind::N};
inline constexpr FieldLayout BEZFREISTVOM{"DBFR.BEZFREISTVOM", 35, 8, FieldKind::Date};
inline constexpr FieldLayout BEZFREISTBIS{"DBFR.BEZFREISTBIS", 43, 8, FieldKind::Date};
inline constexpr FieldLayout BEZFREISTJAHR{"DBFR.BEZFREISTJAHR", 51, 2, FieldKind::N};
inline constexpr FieldLayout FREISTBRUTTO = amount("DBFR.FREISTBRUTTO", 53, 8, 2);
inline constexpr FieldLayout FREISTNETTO = amount("DBFR.FREISTNETTO", 61, 8, 2);
inline constexpr FieldLayout FREISTEZ{"DBFR.FREISTEZ", 69, 1, FieldKind::Code};
inline constexpr FieldLayout kFields[] = {Kennung,       ENDEBVZUM,    FREISTVOM,   FREISTBIS,    VAEERSTTAG,
                                          TAGE,          KEINEFREIST,  BEGRZFREIST, BEZFREISTVOM, BEZFREISTBIS,
                                          BEZFREISTJAHR, FREISTBRUTTO, FREISTNETTO, FREISTEZ};
}  // namespace DBFR
inline constexpr RecordLayout kDBFR{"DBFR", 69, DBFR::kFields};

namespace DBUN {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBUN");
inline constexpr FieldLayout UNFALLAZ{"DBUN.UNFALLAZ", 5, 20, FieldKind::An};
inline constexpr FieldLayout VTAG{"DBUN.VTAG", 25, 8, FieldKind::Date};
inline constexpr FieldLayout IKUV{"DBUN.IKUV", 33, 15, FieldKind::An};
inline constexpr FieldLayout ZUSCHL1 = amount("DBUN.ZUSCHL1", 48, 8, 2);
inline constexpr FieldLayout ZUSCHL2 = amount("DBUN.ZUSCHL2", 56, 8, 2);
inline constexpr FieldLayout ZUSCHL3 = amount("DBUN.ZUSCHL3", 64, 8, 2);
inline constexpr FieldLayout FREISTZUSCHL = amount("DBUN.FREISTZUSCHL", 72, 8, 2);
inline constexpr FieldLayout EZUV = amount("DBUN.EZUV", 80, 8, 2);
inline constexpr FieldLayout kFields[] = {Kennung, UNFALLAZ, VTAG, IKUV, ZUSCHL1, ZUSCHL2, ZUSCHL3, FREISTZUSCHL, EZUV};
}  // namespace DBUN
inline constexpr RecordLayout kDBUN{"DBUN", 87, DBUN::kFields};

namespace DBMU {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBMU");
inline constexpr FieldLayout SCHUTZFRBEGINN{"DBMU.SCHUTZFRBEGINN", 5, 8, FieldKind::Date};
inline constexpr FieldLayout BVBEGINN{"DBMU.BVBEGINN", 13, 8, FieldKind::Date};
inline constexpr FieldLayout LETZTTAG{"DBMU.LETZTTAG", 21, 8, FieldKind::Date};
inline constexpr FieldLayout ENDEBVAM{"DBMU.ENDEBVAM", 29, 8, FieldKind::Date};
inline constexpr FieldLayout ENDEBVZUM{"DBMU.ENDEBVZUM", 37, 8, FieldKind::Date};
inline constexpr FieldLayout BVGEKUEND{"DBMU.BVGEKUEND", 45, 2, FieldKind::N};
inline constexpr FieldLayout WAEHREELNETTO = amount("DBMU.WAEHREELNETTO", 47, 8, 2);
inline constexpr FieldLayout DATUMAEBIS{"DBMU.DATUMAEBIS", 55, 8, FieldKind::Date};
inline constexpr FieldLayout FEHLZEIT{"DBMU.FEHLZEIT", 63, 2, FieldKind::N};
inline constexpr FieldLayout AEUEBER{"DBMU.AEUEBER", 65, 1, FieldKind::Code};
inline constexpr FieldLayout ENTGART{"DBMU.ENTGART", 66, 1, FieldKind::N};
inline constexpr FieldLayout BEGINN1{"DBMU.BEGINN1", 67, 8, FieldKind::Date};
inline constexpr FieldLayout ENDE1{"DBMU.ENDE1", 75, 8, FieldKind::Date};
inline constexpr FieldLayout BEZAZ1 = amount("DBMU.BEZAZ1", 83, 5, 2);
inline constexpr FieldLayout MASTD1 = amount("DBMU.MASTD1", 88, 5, 2);
inline constexpr FieldLayout AZUNENTSTD1 = amount("DBMU.AZUNENTSTD1", 93, 5, 2);
inline constexpr FieldLayout AZUNENTTAGE1{"DBMU.AZUNENTTAGE1", 98, 2, FieldKind::N};
inline constexpr FieldLayout AZENTSCHSTD1 = amount("DBMU.AZENTSCHSTD1", 100, 5, 2);
inline constexpr FieldLayout AZENTSCHTAGE1{"DBMU.AZENTSCHTAGE1", 105, 2, FieldKind::N};
inline constexpr FieldLayout NETTO1 = amount("DBMU.NETTO1", 107, 8, 2);
inline constexpr FieldLayout BEGINN2{"DBMU.BEGINN2", 115, 8, FieldKind::Date};
inline constexpr FieldLayout ENDE2{"DBMU.ENDE2", 123, 8, FieldKind::Date};
inline constexpr FieldLayout BEZAZ2 = amount("DBMU.BEZAZ2", 131, 5, 2);
inline constexpr FieldLayout MASTD2 = amount("DBMU.MASTD2", 136, 5, 2);
inline constexpr FieldLayout AZUNENTSTD2 = amount("DBMU.AZUNENTSTD2", 141, 5, 2);
inline constexpr FieldLayout AZUNENTTAGE2{"DBMU.AZUNENTTAGE2", 146, 2, FieldKind::N};
inline constexpr FieldLayout AZENTSCHSTD2 = amount("DBMU.AZENTSCHSTD2", 148, 5, 2);
inline constexpr FieldLayout AZENTSCHTAGE2{"DBMU.AZENTSCHTAGE2", 153, 2, FieldKind::N};
inline constexpr FieldLayout NETTO2 = amount("DBMU.NETTO2", 155, 8, 2);
inline constexpr FieldLayout BEGINN3{"DBMU.BEGINN3", 163, 8, FieldKind::Date};
inline constexpr FieldLayout ENDE3{"DBMU.ENDE3", 171, 8, FieldKind::Date};
inline constexpr FieldLayout BEZAZ3 = amount("DBMU.BEZAZ3", 179, 5, 2);
inline constexpr FieldLayout MASTD3 = amount("DBMU.MASTD3", 184, 5, 2);
inline constexpr FieldLayout AZUNENTSTD3 = amount("DBMU.AZUNENTSTD3", 189, 5, 2);
inline constexpr FieldLayout AZUNENTTAGE3{"DBMU.AZUNENTTAGE3", 194, 2, FieldKind::N};
inline constexpr FieldLayout AZENTSCHSTD3 = amount("DBMU.AZENTSCHSTD3", 196, 5, 2);
inline constexpr FieldLayout AZENTSCHTAGE3{"DBMU.AZENTSCHTAGE3", 201, 2, FieldKind::N};
inline constexpr FieldLayout NETTO3 = amount("DBMU.NETTO3", 203, 8, 2);
inline constexpr FieldLayout AZWOECH = amount("DBMU.AZWOECH", 211, 4, 2);
inline constexpr FieldLayout kFields[] = {
    Kennung,     SCHUTZFRBEGINN, BVBEGINN,     LETZTTAG,      ENDEBVAM,      ENDEBVZUM,     BVGEKUEND, WAEHREELNETTO,
    DATUMAEBIS,  FEHLZEIT,       AEUEBER,      ENTGART,       BEGINN1,       ENDE1,         BEZAZ1,    MASTD1,
    AZUNENTSTD1, AZUNENTTAGE1,   AZENTSCHSTD1, AZENTSCHTAGE1, NETTO1,        BEGINN2,       ENDE2,     BEZAZ2,
    MASTD2,      AZUNENTSTD2,    AZUNENTTAGE2, AZENTSCHSTD2,  AZENTSCHTAGE2, NETTO2,        BEGINN3,   ENDE3,
    BEZAZ3,      MASTD3,         AZUNENTSTD3,  AZUNENTTAGE3,  AZENTSCHSTD3,  AZENTSCHTAGE3, NETTO3,    AZWOECH};
}  // namespace DBMU
inline constexpr RecordLayout kDBMU{"DBMU", 214, DBMU::kFields};

// One previous incapacity of DBVO's list.
namespace DBVOEntry {
inline constexpr FieldLayout BEGINNAU{"BEGINNAU(i)", 1, 8, FieldKind::Date};
inline constexpr FieldLayout ENDEAU{"ENDEAU(i)", 9, 8, FieldKind::Date};
inline constexpr FieldLayout KZNACHWEIS{"KZNACHWEIS(i)", 17, 1, FieldKind::N};
inline constexpr FieldLayout TEILNACHWEISAUBEGINN{"TEILNACHWEISAUBEGINN(i)", 18, 8, FieldKind::Date};
inline constexpr FieldLayout TEILNACHWEISAUENDE{"TEILNACHWEISAUENDE(i)", 26, 8, FieldKind::Date};
inline constexpr FieldLayout KZAU{"KZAU(i)", 34, 1, FieldKind::N};
inline constexpr FieldLayout TEILANRAUBEGINN{"TEILANRAUBEGINN(i)", 35, 8, FieldKind::Date};
inline constexpr FieldLayout TEILANRAUENDE{"TEILANRAUENDE(i)", 43, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {BEGINNAU,           ENDEAU, KZNACHWEIS,      TEILNACHWEISAUBEGINN,
                                          TEILNACHWEISAUENDE, KZAU,   TEILANRAUBEGINN, TEILANRAUENDE};
}  // namespace DBVOEntry
inline constexpr RecordLayout kDBVOEntry{"DBVO entry", 50, DBVOEntry::kFields};
namespace DBVO {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBVO");
inline constexpr FieldLayout GRUNDAV{"DBVO.GRUNDAV", 5, 1, FieldKind::N};
inline constexpr FieldLayout AUABAG{"DBVO.AUABAG", 6, 8, FieldKind::Date};
inline constexpr FieldLayout AUABSV{"DBVO.AUABSV", 14, 8, FieldKind::Date};
inline constexpr FieldLayout KZAKAU{"DBVO.KZAKAU", 22, 1, FieldKind::N};
inline constexpr FieldLayout AnzahlVorerkrankungen{"number of previous incapacities", 23, 2, FieldKind::N};
inline constexpr FieldLayout kFields[] = {Kennung, GRUNDAV, AUABAG, AUABSV, KZAKAU, AnzahlVorerkrankungen};
}  // namespace DBVO
inline constexpr RecordLayout kDBVO{"DBVO", 24, DBVO::kFields, &kDBVOEntry, 23, 2};

namespace DBHE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBHE");
inline constexpr FieldLayout ZAHLBEGINN{"DBHE.ZAHLBEGINN", 5, 8, FieldKind::Date};
inline constexpr FieldLayout EELBRUTTO = amount("DBHE.EELBRUTTO", 13, 8, 2);
inline constexpr FieldLayout EELNETTO = amount("DBHE.EELNETTO", 21, 8, 2);
inline constexpr FieldLayout kFields[] = {Kennung, ZAHLBEGINN, EELBRUTTO, EELNETTO};
}  // namespace DBHE
inline constexpr RecordLayout kDBHE{"DBHE", 28, DBHE::kFields};

namespace DBBE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBBE");
inline constexpr FieldLayout ZAHLBEGINN{"DBBE.ZAHLBEGINN", 5, 8, FieldKind::Date};
inline constexpr FieldLayout BEITRPFLBRUTTO = amount("DBBE.BEITRPFLBRUTTO", 13, 8, 2);
inline constexpr FieldLayout BEITRPFLNETTO = amount("DBBE.BEITRPFLNETTO", 21, 8, 2);
inline constexpr FieldLayout kFields[] = {Kennung, ZAHLBEGINN, BEITRPFLBRUTTO, BEITRPFLNETTO};
}  // namespace DBBE
inline constexpr RecordLayout kDBBE{"DBBE", 28, DBBE::kFields};

namespace DBLT {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBLT");
inline constexpr FieldLayout BVSEIT{"DBLT.BVSEIT", 5, 8, FieldKind::Date};
inline constexpr FieldLayout BVBIS{"DBLT.BVBIS", 13, 8, FieldKind::Date};
inline constexpr FieldLayout BVALS{"DBLT.BVALS", 21, 30, FieldKind::An};
inline constexpr FieldLayout AUSBVERH{"DBLT.AUSBVERH", 51, 1, FieldKind::Code};
inline constexpr FieldLayout VORER{"DBLT.VORER", 52, 1, FieldKind::Code};
inline constexpr FieldLayout VWL = amount("DBLT.VWL", 53, 6, 2);
inline constexpr FieldLayout BRUTTOSB = amount("DBLT.BRUTTOSB", 59, 8, 2);
inline constexpr FieldLayout NETTOSB = amount("DBLT.NETTOSB", 67, 8, 2);
inline constexpr FieldLayout MMVERZICHTBEITRAGSFREI{"DBLT.MMVERZICHTBEITRAGSFREI", 75, 1, FieldKind::Code};
inline constexpr FieldLayout AEUEBERGANGSBEREICH{"DBLT.AEUEBERGANGSBEREICH", 76, 1, FieldKind::Code};
inline constexpr FieldLayout RECHTSKREIS{"DBLT.RECHTSKREIS", 77, 1, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung,
                                          BVSEIT,
                                          BVBIS,
                                          BVALS,
                                          AUSBVERH,
                                          VORER,
                                          VWL,
                                          BRUTTOSB,
                                          NETTOSB,
                                          MMVERZICHTBEITRAGSFREI,
                                          AEUEBERGANGSBEREICH,
                                          RECHTSKREIS};
}  // namespace DBLT
inline constexpr RecordLayout kDBLT{"DBLT", 77, DBLT::kFields};

namespace DBSF {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBSF");
inline constexpr FieldLayout AUBORD{"DBSF.AUBORD", 5, 8, FieldKind::Date};
inline constexpr FieldLayout AUINLAND{"DBSF.AUINLAND", 13, 8, FieldKind::Date};
inline constexpr FieldLayout UANSPRUCH{"DBSF.UANSPRUCH", 21, 2, FieldKind::N};
inline constexpr FieldLayout VERLAENGVON{"DBSF.VERLAENGVON", 23, 8, FieldKind::Date};
inline constexpr FieldLayout VERLAENGBIS{"DBSF.VERLAENGBIS", 31, 8, FieldKind::Date};
inline constexpr FieldLayout KZDHEU{"DBSF.KZDHEU", 39, 4, FieldKind::N};
inline constexpr FieldLayout DHEU = amount("DBSF.DHEU", 43, 8, 2);
inline constexpr FieldLayout HEUNETTO = amount("DBSF.HEUNETTO", 51, 8, 2);
inline constexpr FieldLayout kFields[] = {Kennung,     AUBORD, AUINLAND, UANSPRUCH, VERLAENGVON,
                                          VERLAENGBIS, KZDHEU, DHEU,     HEUNETTO};
}  // namespace DBSF
inline constexpr RecordLayout kDBSF{"DBSF", 58, DBSF::kFields};

namespace DBTK {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBTK");
inline constexpr FieldLayout BRUTTOSOLL = amount("DBTK.BRUTTOSOLL", 5, 8, 2);
inline constexpr FieldLayout NETTOSOLL = amount("DBTK.NETTOSOLL", 13, 8, 2);
inline constexpr FieldLayout TRANSFERKUG = amount("DBTK.TRANSFERKUG", 21, 8, 2);
inline constexpr FieldLayout BRUTTOIST = amount("DBTK.BRUTTOIST", 29, 8, 2);
inline constexpr FieldLayout NETTOIST = amount("DBTK.NETTOIST", 37, 8, 2);
inline constexpr FieldLayout AUFSTOCKUNGSBETRAG = amount("DBTK.AUFSTOCKUNGSBETRAG", 45, 8, 2);
inline constexpr FieldLayout kFields[] = {Kennung,   BRUTTOSOLL, NETTOSOLL,         TRANSFERKUG,
                                          BRUTTOIST, NETTOIST,   AUFSTOCKUNGSBETRAG};
}  // namespace DBTK
inline constexpr RecordLayout kDBTK{"DBTK", 52, DBTK::kFields};

namespace DBAP {
inline constexpr auto kFields =
    contact_block("DBAP", {"ApAnrede", "ApName", "ApTel", "ApFax", "ApEmail", "Vorgang.Arbeitgeber.Name1",
                           "Vorgang.Arbeitgeber.Name2", "Vorgang.Arbeitgeber.Name3", "Vorgang.Arbeitgeber.PLZ",
                           "Vorgang.Arbeitgeber.Ort", "Vorgang.Arbeitgeber.Strasse", "Vorgang.Arbeitgeber.Hausnummer"});
}  // namespace DBAP
inline constexpr RecordLayout kDBAP{"DBAP", Contact::kLength, DBAP::kFields};

namespace DBID {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBID");
inline constexpr FieldLayout AZSV{"AZSV", 5, 20, FieldKind::An};
inline constexpr FieldLayout Aktenzeichen{"Vorgang.Aktenzeichen", 25, 20, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, AZSV, Aktenzeichen};
}  // namespace DBID
inline constexpr RecordLayout kDBID{"DBID", 44, DBID::kFields};

namespace DSLW {
inline constexpr RecordHead Head{"DSLW", "LEIST", "10", "created (ErstellDatum)"};
inline constexpr FieldLayout Versicherungsnummer{"Vorgang.Versicherungsnummer", 64, 12, FieldKind::Vsnr};
inline constexpr FieldLayout Geburtsdatum{"Vorgang.Geburtsdatum", 76, 8, FieldKind::Date};
inline constexpr FieldLayout Betriebsnummer{"Vorgang.Arbeitgeber.Betriebsnummer", 84, 15, FieldKind::Bnr};
inline constexpr FieldLayout RecordID{"record ID (strVersion, DatensatzNr)", 99, 32, FieldKind::An};
inline constexpr FieldLayout strProdID{"DatensatzData.strProdID", 131, 7, FieldKind::An};
inline constexpr FieldLayout strModID{"DatensatzData.strModID", 138, 8, FieldKind::An};
inline constexpr FieldLayout Reserve1{"reserve", 146, 20, FieldKind::N};
inline constexpr FieldLayout Reserve2{"reserve", 166, 2, FieldKind::An};
inline constexpr FieldLayout BBNRKK{"BBNRKK (or Empfaenger.Betriebsnummer)", 168, 15, FieldKind::Bnr};
inline constexpr FieldLayout strBNRSt{"DatensatzData.strBNRSt", 183, 15, FieldKind::An};
inline constexpr FieldLayout RUECKMELDUNGEEL{"RUECKMELDUNGEEL", 198, 1, FieldKind::An};
inline constexpr FieldLayout ABGABEGRUND{"ABGABEGRUND", 199, 2, FieldKind::N};
inline constexpr FieldLayout KENNZSTORNO{"KENNZSTORNO", 201, 1, FieldKind::Flag};
inline constexpr FieldLayout MitDBNA = flag(kDBNA, 202);
inline constexpr FieldLayout MitDBAN = flag(kDBAN, 203);
inline constexpr FieldLayout MitDBAL = flag(kDBAL, 204);
inline constexpr FieldLayout MitDBAE = flag(kDBAE, 205);
inline constexpr FieldLayout MitDBZA = flag(kDBZA, 206);
inline constexpr FieldLayout MitDBEE = flag(kDBEE, 207);
inline constexpr FieldLayout MitDBAW = flag(kDBAW, 208);
inline constexpr FieldLayout MitDBFR = flag(kDBFR, 209);
inline constexpr FieldLayout MitDBUN = flag(kDBUN, 210);
inline constexpr FieldLayout MitDBMU = flag(kDBMU, 211);
inline constexpr FieldLayout MitDBVO = flag(kDBVO, 212);
inline constexpr FieldLayout MitDBHE = flag(kDBHE, 213);
inline constexpr FieldLayout MitDBBE = flag(kDBBE, 214);
inline constexpr FieldLayout MitDBLT = flag(kDBLT, 215);
inline constexpr FieldLayout MitDBSF = flag(kDBSF, 216);
inline constexpr FieldLayout MitDBTK = flag(kDBTK, 217);
inline constexpr FieldLayout MitDBAP = flag(kDBAP, 218);
inline constexpr FieldLayout MitDBID = flag(kDBID, 219);
inline constexpr std::array kOwn{Versicherungsnummer,
                                 Geburtsdatum,
                                 Betriebsnummer,
                                 RecordID,
                                 strProdID,
                                 strModID,
                                 Reserve1,
                                 Reserve2,
                                 BBNRKK,
                                 strBNRSt,
                                 RUECKMELDUNGEEL,
                                 ABGABEGRUND,
                                 KENNZSTORNO,
                                 MitDBNA,
                                 MitDBAN,
                                 MitDBAL,
                                 MitDBAE,
                                 MitDBZA,
                                 MitDBEE,
                                 MitDBAW,
                                 MitDBFR,
                                 MitDBUN,
                                 MitDBMU,
                                 MitDBVO,
                                 MitDBHE,
                                 MitDBBE,
                                 MitDBLT,
                                 MitDBSF,
                                 MitDBTK,
                                 MitDBAP,
                                 MitDBID};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
// The block flags at positions 202-219, in the order the blocks follow.
inline constexpr std::array kBlockFlags{MitDBNA, MitDBAN, MitDBAL, MitDBAE, MitDBZA, MitDBEE,
                                        MitDBAW, MitDBFR, MitDBUN, MitDBMU, MitDBVO, MitDBHE,
                                        MitDBBE, MitDBLT, MitDBSF, MitDBTK, MitDBAP, MitDBID};
}  // namespace DSLW
inline constexpr RecordLayout kDSLW{"DSLW", 219, DSLW::kFields};

}  // namespace tamrel::layouts::eel
