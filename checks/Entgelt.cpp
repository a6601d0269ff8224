// The checks of the earnings certificate (record DSLW and its blocks): the
// person, the employer, the receiver and the employee's health insurer, the
// reason, and every block's dates and amounts (unsigned, of their fields'
// places).
#include <string>

#include "certificates/clsGenEntgelt/Entgelt.h"
#include "checks/checks.h"
#include "checks/person.h"
#include "checks/rules.h"

namespace tamrel::checks {

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
    c.digits("ABGABEGRUND", e.ABGABEGRUND, 2);
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
        k.numbers(e.DBAE, {{"ENTGART", &eel::DBAE::ENTGART, 1}});
        k.amounts(e.DBAE, {{"WAEHREELBRUTTO", &eel::DBAE::WAEHREELBRUTTO, 6, 2},
                           {"BRUTTO1", &eel::DBAE::BRUTTO1, 6, 2},
                           {"NETTO1", &eel::DBAE::NETTO1, 6, 2},
                           {"UMGEWAE", &eel::DBAE::UMGEWAE, 6, 2},
                           {"BRUTTOAE", &eel::DBAE::BRUTTOAE, 6, 2},
                           {"NETTOAE", &eel::DBAE::NETTOAE, 6, 2},
                           {"BRUTTO2", &eel::DBAE::BRUTTO2, 6, 2},
                           {"NETTO2", &eel::DBAE::NETTO2, 6, 2},
                           {"BRUTTO3", &eel::DBAE::BRUTTO3, 6, 2},
                           {"NETTO3", &eel::DBAE::NETTO3, 6, 2},
                           {"EZKV", &eel::DBAE::EZKV, 6, 2},
                           {"EZRV", &eel::DBAE::EZRV, 6, 2},
                           {"EZALV", &eel::DBAE::EZALV, 6, 2}});
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
        k.numbers(e.DBAL, {{"GRUNDBEEND", &eel::DBAL::GRUNDBEEND, 2}, {"MMKUG", &eel::DBAL::MMKUG, 1}});
    }
    {
        const FieldChecks k = c.within("DBAW");
        k.numbers(e.DBAW,
                  {{"TAGE1", &eel::DBAW::TAGE1, 2}, {"TAGE2", &eel::DBAW::TAGE2, 2}, {"TAGE3", &eel::DBAW::TAGE3, 2}});
    }
    {
        const FieldChecks k = c.within("DBBE");
        k.dates(e.DBBE, {{"ZAHLBEGINN", &eel::DBBE::ZAHLBEGINN}});
        k.amounts(e.DBBE, {{"BEITRPFLBRUTTO", &eel::DBBE::BEITRPFLBRUTTO, 6, 2},
                           {"BEITRPFLNETTO", &eel::DBBE::BEITRPFLNETTO, 6, 2}});
    }
    {
        const FieldChecks k = c.within("DBEE");
        k.dates(e.DBEE,
                {{"EELABAG", &eel::DBEE::EELABAG}, {"EELABSV", &eel::DBEE::EELABSV}, {"EELENDE", &eel::DBEE::EELENDE}});
        k.numbers(e.DBEE, {{"EELENDEGRUND", &eel::DBEE::EELENDEGRUND, 2}});
    }
    {
        const FieldChecks k = c.within("DBFR");
        k.dates(e.DBFR, {{"ENDEBVZUM", &eel::DBFR::ENDEBVZUM},
                         {"FREISTVOM", &eel::DBFR::FREISTVOM},
                         {"FREISTBIS", &eel::DBFR::FREISTBIS},
                         {"BEZFREISTVOM", &eel::DBFR::BEZFREISTVOM},
                         {"BEZFREISTBIS", &eel::DBFR::BEZFREISTBIS}});
        k.numbers(e.DBFR, {{"TAGE", &eel::DBFR::TAGE, 2},
                           {"KEINEFREIST", &eel::DBFR::KEINEFREIST, 1},
                           {"BEGRZFREIST", &eel::DBFR::BEGRZFREIST, 2},
                           {"BEZFREISTJAHR", &eel::DBFR::BEZFREISTJAHR, 2}});
        k.amounts(e.DBFR,
                  {{"FREISTBRUTTO", &eel::DBFR::FREISTBRUTTO, 6, 2}, {"FREISTNETTO", &eel::DBFR::FREISTNETTO, 6, 2}});
    }
    {
        const FieldChecks k = c.within("DBHE");
        k.dates(e.DBHE, {{"ZAHLBEGINN", &eel::DBHE::ZAHLBEGINN}});
        k.amounts(e.DBHE, {{"EELBRUTTO", &eel::DBHE::EELBRUTTO, 6, 2}, {"EELNETTO", &eel::DBHE::EELNETTO, 6, 2}});
    }
    {
        const FieldChecks k = c.within("DBLT");
        k.dates(e.DBLT, {{"BVSEIT", &eel::DBLT::BVSEIT}, {"BVBIS", &eel::DBLT::BVBIS}});
        k.amounts(e.DBLT, {{"VWL", &eel::DBLT::VWL, 4, 2},
                           {"BRUTTOSB", &eel::DBLT::BRUTTOSB, 6, 2},
                           {"NETTOSB", &eel::DBLT::NETTOSB, 6, 2}});
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
        k.numbers(e.DBMU, {{"BVGEKUEND", &eel::DBMU::BVGEKUEND, 2},
                           {"FEHLZEIT", &eel::DBMU::FEHLZEIT, 2},
                           {"ENTGART", &eel::DBMU::ENTGART, 1},
                           {"AZUNENTTAGE1", &eel::DBMU::AZUNENTTAGE1, 2},
                           {"AZENTSCHTAGE1", &eel::DBMU::AZENTSCHTAGE1, 2},
                           {"AZUNENTTAGE2", &eel::DBMU::AZUNENTTAGE2, 2},
                           {"AZENTSCHTAGE2", &eel::DBMU::AZENTSCHTAGE2, 2},
                           {"AZUNENTTAGE3", &eel::DBMU::AZUNENTTAGE3, 2},
                           {"AZENTSCHTAGE3", &eel::DBMU::AZENTSCHTAGE3, 2}});
        k.amounts(e.DBMU, {{"WAEHREELNETTO", &eel::DBMU::WAEHREELNETTO, 6, 2},
                           {"BEZAZ1", &eel::DBMU::BEZAZ1, 3, 2},
                           {"MASTD1", &eel::DBMU::MASTD1, 3, 2},
                           {"AZUNENTSTD1", &eel::DBMU::AZUNENTSTD1, 3, 2},
                           {"AZENTSCHSTD1", &eel::DBMU::AZENTSCHSTD1, 3, 2},
                           {"NETTO1", &eel::DBMU::NETTO1, 6, 2},
                           {"BEZAZ2", &eel::DBMU::BEZAZ2, 3, 2},
                           {"MASTD2", &eel::DBMU::MASTD2, 3, 2},
                           {"AZUNENTSTD2", &eel::DBMU::AZUNENTSTD2, 3, 2},
                           {"AZENTSCHSTD2", &eel::DBMU::AZENTSCHSTD2, 3, 2},
                           {"NETTO2", &eel::DBMU::NETTO2, 6, 2},
                           {"BEZAZ3", &eel::DBMU::BEZAZ3, 3, 2},
                           {"MASTD3", &eel::DBMU::MASTD3, 3, 2},
                           {"AZUNENTSTD3", &eel::DBMU::AZUNENTSTD3, 3, 2},
                           {"AZENTSCHSTD3", &eel::DBMU::AZENTSCHSTD3, 3, 2},
                           {"NETTO3", &eel::DBMU::NETTO3, 6, 2},
                           {"AZWOECH", &eel::DBMU::AZWOECH, 2, 2}});
    }
    {
        const FieldChecks k = c.within("DBSF");
        k.dates(e.DBSF, {{"AUBORD", &eel::DBSF::AUBORD},
                         {"AUINLAND", &eel::DBSF::AUINLAND},
                         {"VERLAENGVON", &eel::DBSF::VERLAENGVON},
                         {"VERLAENGBIS", &eel::DBSF::VERLAENGBIS}});
        k.numbers(e.DBSF, {{"UANSPRUCH", &eel::DBSF::UANSPRUCH, 2}, {"KZDHEU", &eel::DBSF::KZDHEU, 4}});
        k.amounts(e.DBSF, {{"DHEU", &eel::DBSF::DHEU, 6, 2}, {"HEUNETTO", &eel::DBSF::HEUNETTO, 6, 2}});
    }
    {
        const FieldChecks k = c.within("DBTK");
        k.amounts(e.DBTK, {{"BRUTTOSOLL", &eel::DBTK::BRUTTOSOLL, 6, 2},
                           {"NETTOSOLL", &eel::DBTK::NETTOSOLL, 6, 2},
                           {"TRANSFERKUG", &eel::DBTK::TRANSFERKUG, 6, 2},
                           {"BRUTTOIST", &eel::DBTK::BRUTTOIST, 6, 2},
                           {"NETTOIST", &eel::DBTK::NETTOIST, 6, 2},
                           {"AUFSTOCKUNGSBETRAG", &eel::DBTK::AUFSTOCKUNGSBETRAG, 6, 2}});
    }
    {
        const FieldChecks k = c.within("DBUN");
        k.dates(e.DBUN, {{"VTAG", &eel::DBUN::VTAG}});
        k.amounts(e.DBUN, {{"ZUSCHL1", &eel::DBUN::ZUSCHL1, 6, 2},
                           {"ZUSCHL2", &eel::DBUN::ZUSCHL2, 6, 2},
                           {"ZUSCHL3", &eel::DBUN::ZUSCHL3, 6, 2},
                           {"FREISTZUSCHL", &eel::DBUN::FREISTZUSCHL, 6, 2},
                           {"EZUV", &eel::DBUN::EZUV, 6, 2}});
    }
    {
        const FieldChecks k = c.within("DBVO");
        k.dates(e.DBVO, {{"AUABAG", &eel::DBVO::AUABAG}, {"AUABSV", &eel::DBVO::AUABSV}});
        k.numbers(e.DBVO, {{"GRUNDAV", &eel::DBVO::GRUNDAV, 1}, {"KZAKAU", &eel::DBVO::KZAKAU, 1}});
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
            v.numbers(item,
                      {{"KZNACHWEIS", &eel::Vorerkrankung::KZNACHWEIS, 1}, {"KZAU", &eel::Vorerkrankung::KZAU, 1}});
        }
    }
    {
        const FieldChecks k = c.within("DBZA");
        k.dates(e.DBZA, {{"AZBEGINN2", &eel::DBZA::AZBEGINN2},
                         {"AZENDE2", &eel::DBZA::AZENDE2},
                         {"AZBEGINN3", &eel::DBZA::AZBEGINN3},
                         {"AZENDE3", &eel::DBZA::AZENDE3}});
        k.amounts(e.DBZA, {{"ANZAHLSTD", &eel::DBZA::ANZAHLSTD, 3, 2},
                           {"REGAZ", &eel::DBZA::REGAZ, 2, 2},
                           {"MAZR1", &eel::DBZA::MAZR1, 3, 2},
                           {"MAZR2", &eel::DBZA::MAZR2, 3, 2},
                           {"MAZR3", &eel::DBZA::MAZR3, 3, 2}});
    }
}

}  // namespace tamrel::checks
