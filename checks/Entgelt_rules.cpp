// The checks of the earnings certificate (record DSLW and its blocks): the
// person, the employer, the receiver and the employee's health insurer, the
// reason, and every block's dates and amounts (unsigned, of their fields'
// places).
#include <string>

#include "certificates/clsGenEntgelt/DSLW_layout.h"
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "checks/checks.h"
#include "checks/person.h"
#include "checks/rules.h"
#include "core/shared_block_layouts.h"

namespace tamrel::checks {

namespace L = layouts::eel;

void check_report(const Entgelt& e, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstellDatum", e.ErstellDatum);
    const FieldChecks v = c.within("Vorgang");
    check_person(v, e.Vorgang);
    v.required("Geburtsdatum", e.Vorgang.Geburtsdatum);
    check_employer(v, e.Vorgang.Arbeitgeber);
    check_receiver(c, e.Empfaenger);
    c.betriebsnummer("BBNRKK", e.BBNRKK);
    c.required("ABGABEGRUND", e.ABGABEGRUND);
    c.digits("ABGABEGRUND", e.ABGABEGRUND, L::DSLW::ABGABEGRUND.len);
    c.one_of("RUECKMELDUNGEEL", e.RUECKMELDUNGEEL, {"J", "N"}, kFlag);
    {
        const FieldChecks k = c.within("DBAE");
        k.dates(e.DBAE, {{"DATUMAEBIS", &eel::DBAE::DATUMAEBIS},
                         {"EAZBEGINN1", &eel::DBAE::EAZBEGINN1},
                         {"EAZENDE1", &eel::DBAE::EAZENDE1},
                         {"EAZBEGINN2", &eel::DBAE::EAZBEGINN2},
                         {"EAZENDE2", &eel::DBAE::EAZENDE2},
                         {"EAZBEGINN3", &eel::DBAE::EAZBEGINN3},
                         {"EAZENDE3", &eel::DBAE::EAZENDE3}});
        k.numbers(e.DBAE, {{"ENTGART", &eel::DBAE::ENTGART, L::DBAE::ENTGART}});
        k.amounts(e.DBAE, {{"WAEHREELBRUTTO", &eel::DBAE::WAEHREELBRUTTO, L::DBAE::WAEHREELBRUTTO},
                           {"BRUTTO1", &eel::DBAE::BRUTTO1, L::DBAE::BRUTTO1},
                           {"NETTO1", &eel::DBAE::NETTO1, L::DBAE::NETTO1},
                           {"UMGEWAE", &eel::DBAE::UMGEWAE, L::DBAE::UMGEWAE},
                           {"BRUTTOAE", &eel::DBAE::BRUTTOAE, L::DBAE::BRUTTOAE},
                           {"NETTOAE", &eel::DBAE::NETTOAE, L::DBAE::NETTOAE},
                           {"BRUTTO2", &eel::DBAE::BRUTTO2, L::DBAE::BRUTTO2},
                           {"NETTO2", &eel::DBAE::NETTO2, L::DBAE::NETTO2},
                           {"BRUTTO3", &eel::DBAE::BRUTTO3, L::DBAE::BRUTTO3},
                           {"NETTO3", &eel::DBAE::NETTO3, L::DBAE::NETTO3},
                           {"EZKV", &eel::DBAE::EZKV, L::DBAE::EZKV},
                           {"EZRV", &eel::DBAE::EZRV, L::DBAE::EZRV},
                           {"EZALV", &eel::DBAE::EZALV, L::DBAE::EZALV}});
    }
    {
        const FieldChecks k = c.within("DBAL");
        k.dates(e.DBAL, {{"DATUMAB", &eel::DBAL::DATUMAB},
                         {"DATUMEZGBIS", &eel::DBAL::DATUMEZGBIS},
                         {"ENDEBVAM", &eel::DBAL::ENDEBVAM},
                         {"ENDEBVZUM", &eel::DBAL::ENDEBVZUM},
                         {"KUGBEGINN", &eel::DBAL::KUGBEGINN},
                         {"KUGENDE", &eel::DBAL::KUGENDE},
                         {"LAGBEGINN1", &eel::DBAL::LAGBEGINN1},
                         {"LAGENDE1", &eel::DBAL::LAGENDE1},
                         {"LAGBEGINN2", &eel::DBAL::LAGBEGINN2},
                         {"LAGENDE2", &eel::DBAL::LAGENDE2}});
        k.numbers(e.DBAL, {{"GRUNDBEEND", &eel::DBAL::GRUNDBEEND, L::DBAL::GRUNDBEEND},
                           {"MMKUG", &eel::DBAL::MMKUG, L::DBAL::MMKUG}});
    }
    {
        const FieldChecks k = c.within("DBAW");
        k.numbers(e.DBAW, {{"TAGE1", &eel::DBAW::TAGE1, L::DBAW::TAGE1},
                           {"TAGE2", &eel::DBAW::TAGE2, L::DBAW::TAGE2},
                           {"TAGE3", &eel::DBAW::TAGE3, L::DBAW::TAGE3}});
    }
    {
        const FieldChecks k = c.within("DBBE");
        k.dates(e.DBBE, {{"ZAHLBEGINN", &eel::DBBE::ZAHLBEGINN}});
        k.amounts(e.DBBE, {{"BEITRPFLBRUTTO", &eel::DBBE::BEITRPFLBRUTTO, L::DBBE::BEITRPFLBRUTTO},
                           {"BEITRPFLNETTO", &eel::DBBE::BEITRPFLNETTO, L::DBBE::BEITRPFLNETTO}});
    }
    {
        const FieldChecks k = c.within("DBEE");
        k.dates(e.DBEE,
                {{"EELABAG", &eel::DBEE::EELABAG}, {"EELABSV", &eel::DBEE::EELABSV}, {"EELENDE", &eel::DBEE::EELENDE}});
        k.numbers(e.DBEE, {{"EELENDEGRUND", &eel::DBEE::EELENDEGRUND, L::DBEE::EELENDEGRUND}});
    }
    {
        const FieldChecks k = c.within("DBFR");
        k.dates(e.DBFR, {{"ENDEBVZUM", &eel::DBFR::ENDEBVZUM},
                         {"FREISTVOM", &eel::DBFR::FREISTVOM},
                         {"FREISTBIS", &eel::DBFR::FREISTBIS},
                         {"BEZFREISTVOM", &eel::DBFR::BEZFREISTVOM},
                         {"BEZFREISTBIS", &eel::DBFR::BEZFREISTBIS}});
        k.numbers(e.DBFR, {{"TAGE", &eel::DBFR::TAGE, L::DBFR::TAGE},
                           {"KEINEFREIST", &eel::DBFR::KEINEFREIST, L::DBFR::KEINEFREIST},
                           {"BEGRZFREIST", &eel::DBFR::BEGRZFREIST, L::DBFR::BEGRZFREIST},
                           {"BEZFREISTJAHR", &eel::DBFR::BEZFREISTJAHR, L::DBFR::BEZFREISTJAHR}});
        k.amounts(e.DBFR, {{"FREISTBRUTTO", &eel::DBFR::FREISTBRUTTO, L::DBFR::FREISTBRUTTO},
                           {"FREISTNETTO", &eel::DBFR::FREISTNETTO, L::DBFR::FREISTNETTO}});
    }
    {
        const FieldChecks k = c.within("DBHE");
        k.dates(e.DBHE, {{"ZAHLBEGINN", &eel::DBHE::ZAHLBEGINN}});
        k.amounts(e.DBHE, {{"EELBRUTTO", &eel::DBHE::EELBRUTTO, L::DBHE::EELBRUTTO},
                           {"EELNETTO", &eel::DBHE::EELNETTO, L::DBHE::EELNETTO}});
    }
    {
        const FieldChecks k = c.within("DBLT");
        k.dates(e.DBLT, {{"BVSEIT", &eel::DBLT::BVSEIT}, {"BVBIS", &eel::DBLT::BVBIS}});
        k.amounts(e.DBLT, {{"VWL", &eel::DBLT::VWL, L::DBLT::VWL},
                           {"BRUTTOSB", &eel::DBLT::BRUTTOSB, L::DBLT::BRUTTOSB},
                           {"NETTOSB", &eel::DBLT::NETTOSB, L::DBLT::NETTOSB}});
    }
    {
        const FieldChecks k = c.within("DBMU");
        k.dates(e.DBMU, {{"SCHUTZFRBEGINN", &eel::DBMU::SCHUTZFRBEGINN},
                         {"BVBEGINN", &eel::DBMU::BVBEGINN},
                         {"LETZTTAG", &eel::DBMU::LETZTTAG},
                         {"ENDEBVAM", &eel::DBMU::ENDEBVAM},
                         {"ENDEBVZUM", &eel::DBMU::ENDEBVZUM},
                         {"DATUMAEBIS", &eel::DBMU::DATUMAEBIS},
                         {"BEGINN1", &eel::DBMU::BEGINN1},
                         {"ENDE1", &eel::DBMU::ENDE1},
                         {"BEGINN2", &eel::DBMU::BEGINN2},
                         {"ENDE2", &eel::DBMU::ENDE2},
                         {"BEGINN3", &eel::DBMU::BEGINN3},
                         {"ENDE3", &eel::DBMU::ENDE3}});
        k.numbers(e.DBMU, {{"BVGEKUEND", &eel::DBMU::BVGEKUEND, L::DBMU::BVGEKUEND},
                           {"FEHLZEIT", &eel::DBMU::FEHLZEIT, L::DBMU::FEHLZEIT},
                           {"ENTGART", &eel::DBMU::ENTGART, L::DBMU::ENTGART},
                           {"AZUNENTTAGE1", &eel::DBMU::AZUNENTTAGE1, L::DBMU::AZUNENTTAGE1},
                           {"AZENTSCHTAGE1", &eel::DBMU::AZENTSCHTAGE1, L::DBMU::AZENTSCHTAGE1},
                           {"AZUNENTTAGE2", &eel::DBMU::AZUNENTTAGE2, L::DBMU::AZUNENTTAGE2},
                           {"AZENTSCHTAGE2", &eel::DBMU::AZENTSCHTAGE2, L::DBMU::AZENTSCHTAGE2},
                           {"AZUNENTTAGE3", &eel::DBMU::AZUNENTTAGE3, L::DBMU::AZUNENTTAGE3},
                           {"AZENTSCHTAGE3", &eel::DBMU::AZENTSCHTAGE3, L::DBMU::AZENTSCHTAGE3}});
        k.amounts(e.DBMU, {{"WAEHREELNETTO", &eel::DBMU::WAEHREELNETTO, L::DBMU::WAEHREELNETTO},
                           {"BEZAZ1", &eel::DBMU::BEZAZ1, L::DBMU::BEZAZ1},
                           {"MASTD1", &eel::DBMU::MASTD1, L::DBMU::MASTD1},
                           {"AZUNENTSTD1", &eel::DBMU::AZUNENTSTD1, L::DBMU::AZUNENTSTD1},
                           {"AZENTSCHSTD1", &eel::DBMU::AZENTSCHSTD1, L::DBMU::AZENTSCHSTD1},
                           {"NETTO1", &eel::DBMU::NETTO1, L::DBMU::NETTO1},
                           {"BEZAZ2", &eel::DBMU::BEZAZ2, L::DBMU::BEZAZ2},
                           {"MASTD2", &eel::DBMU::MASTD2, L::DBMU::MASTD2},
                           {"AZUNENTSTD2", &eel::DBMU::AZUNENTSTD2, L::DBMU::AZUNENTSTD2},
                           {"AZENTSCHSTD2", &eel::DBMU::AZENTSCHSTD2, L::DBMU::AZENTSCHSTD2},
                           {"NETTO2", &eel::DBMU::NETTO2, L::DBMU::NETTO2},
                           {"BEZAZ3", &eel::DBMU::BEZAZ3, L::DBMU::BEZAZ3},
                           {"MASTD3", &eel::DBMU::MASTD3, L::DBMU::MASTD3},
                           {"AZUNENTSTD3", &eel::DBMU::AZUNENTSTD3, L::DBMU::AZUNENTSTD3},
                           {"AZENTSCHSTD3", &eel::DBMU::AZENTSCHSTD3, L::DBMU::AZENTSCHSTD3},
                           {"NETTO3", &eel::DBMU::NETTO3, L::DBMU::NETTO3},
                           {"AZWOECH", &eel::DBMU::AZWOECH, L::DBMU::AZWOECH}});
    }
    {
        const FieldChecks k = c.within("DBSF");
        k.dates(e.DBSF, {{"AUBORD", &eel::DBSF::AUBORD},
                         {"AUINLAND", &eel::DBSF::AUINLAND},
                         {"VERLAENGVON", &eel::DBSF::VERLAENGVON},
                         {"VERLAENGBIS", &eel::DBSF::VERLAENGBIS}});
        k.numbers(e.DBSF, {{"UANSPRUCH", &eel::DBSF::UANSPRUCH, L::DBSF::UANSPRUCH},
                           {"KZDHEU", &eel::DBSF::KZDHEU, L::DBSF::KZDHEU}});
        k.amounts(e.DBSF,
                  {{"DHEU", &eel::DBSF::DHEU, L::DBSF::DHEU}, {"HEUNETTO", &eel::DBSF::HEUNETTO, L::DBSF::HEUNETTO}});
    }
    {
        const FieldChecks k = c.within("DBTK");
        k.amounts(e.DBTK, {{"BRUTTOSOLL", &eel::DBTK::BRUTTOSOLL, L::DBTK::BRUTTOSOLL},
                           {"NETTOSOLL", &eel::DBTK::NETTOSOLL, L::DBTK::NETTOSOLL},
                           {"TRANSFERKUG", &eel::DBTK::TRANSFERKUG, L::DBTK::TRANSFERKUG},
                           {"BRUTTOIST", &eel::DBTK::BRUTTOIST, L::DBTK::BRUTTOIST},
                           {"NETTOIST", &eel::DBTK::NETTOIST, L::DBTK::NETTOIST},
                           {"AUFSTOCKUNGSBETRAG", &eel::DBTK::AUFSTOCKUNGSBETRAG, L::DBTK::AUFSTOCKUNGSBETRAG}});
    }
    {
        const FieldChecks k = c.within("DBUN");
        k.dates(e.DBUN, {{"VTAG", &eel::DBUN::VTAG}});
        k.amounts(e.DBUN, {{"ZUSCHL1", &eel::DBUN::ZUSCHL1, L::DBUN::ZUSCHL1},
                           {"ZUSCHL2", &eel::DBUN::ZUSCHL2, L::DBUN::ZUSCHL2},
                           {"ZUSCHL3", &eel::DBUN::ZUSCHL3, L::DBUN::ZUSCHL3},
                           {"FREISTZUSCHL", &eel::DBUN::FREISTZUSCHL, L::DBUN::FREISTZUSCHL},
                           {"EZUV", &eel::DBUN::EZUV, L::DBUN::EZUV}});
    }
    {
        const FieldChecks k = c.within("DBVO");
        k.dates(e.DBVO, {{"AUABAG", &eel::DBVO::AUABAG}, {"AUABSV", &eel::DBVO::AUABSV}});
        k.numbers(e.DBVO, {{"GRUNDAV", &eel::DBVO::GRUNDAV, L::DBVO::GRUNDAV},
                           {"KZAKAU", &eel::DBVO::KZAKAU, L::DBVO::KZAKAU}});
        // Its count of earlier incapacities has two digits.
        if (e.DBVO.Vorerkrankungen.size() > 99)
            k.add(kListCount, "Vorerkrankungen", std::to_string(e.DBVO.Vorerkrankungen.size()));
        for (std::size_t i = 0; i < e.DBVO.Vorerkrankungen.size(); ++i) {
            const FieldChecks v = k.within("Vorerkrankungen", i + 1);
            const eel::Vorerkrankung& item = e.DBVO.Vorerkrankungen[i];
            v.dates(item, {{"BEGINNAU", &eel::Vorerkrankung::BEGINNAU},
                           {"ENDEAU", &eel::Vorerkrankung::ENDEAU},
                           {"TEILNACHWEISAUBEGINN", &eel::Vorerkrankung::TEILNACHWEISAUBEGINN},
                           {"TEILNACHWEISAUENDE", &eel::Vorerkrankung::TEILNACHWEISAUENDE},
                           {"TEILANRAUBEGINN", &eel::Vorerkrankung::TEILANRAUBEGINN},
                           {"TEILANRAUENDE", &eel::Vorerkrankung::TEILANRAUENDE}});
            v.numbers(item, {{"KZNACHWEIS", &eel::Vorerkrankung::KZNACHWEIS, L::DBVOEntry::KZNACHWEIS},
                             {"KZAU", &eel::Vorerkrankung::KZAU, L::DBVOEntry::KZAU}});
        }
    }
    {
        const FieldChecks k = c.within("DBZA");
        k.dates(e.DBZA, {{"AZBEGINN2", &eel::DBZA::AZBEGINN2},
                         {"AZENDE2", &eel::DBZA::AZENDE2},
                         {"AZBEGINN3", &eel::DBZA::AZBEGINN3},
                         {"AZENDE3", &eel::DBZA::AZENDE3}});
        k.amounts(e.DBZA, {{"ANZAHLSTD", &eel::DBZA::ANZAHLSTD, L::DBZA::ANZAHLSTD},
                           {"REGAZ", &eel::DBZA::REGAZ, L::DBZA::REGAZ},
                           {"MAZR1", &eel::DBZA::MAZR1, L::DBZA::MAZR1},
                           {"MAZR2", &eel::DBZA::MAZR2, L::DBZA::MAZR2},
                           {"MAZR3", &eel::DBZA::MAZR3, L::DBZA::MAZR3}});
    }
}

}  // namespace tamrel::checks
