// The checks of the earnings certificate (record DSLW and its blocks): the
// person, the employer, the receiver and the employee's health insurer, the
// reason, and every block's dates and amounts (unsigned, of their fields'
// places).
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "checks/checks.h"
#include "checks/person.h"
#include "checks/rules.h"

namespace tamrel::checks {

void check_report(const Entgelt& e, Findings& f) {
    const FieldChecks c(f);
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
        const auto& x = e.DBAE;
        const FieldChecks k = c.within("DBAE");
        k.date("DATUMAEBIS", x.DATUMAEBIS);
        k.date("EAZBEGINN1", x.EAZBEGINN1);
        k.date("EAZENDE1", x.EAZENDE1);
        k.date("EAZBEGINN2", x.EAZBEGINN2);
        k.date("EAZENDE2", x.EAZENDE2);
        k.date("EAZBEGINN3", x.EAZBEGINN3);
        k.date("EAZENDE3", x.EAZENDE3);
        k.decimal_amount("WAEHREELBRUTTO", x.WAEHREELBRUTTO, 6, 2, false);
        k.decimal_amount("BRUTTO1", x.BRUTTO1, 6, 2, false);
        k.decimal_amount("NETTO1", x.NETTO1, 6, 2, false);
        k.decimal_amount("UMGEWAE", x.UMGEWAE, 6, 2, false);
        k.decimal_amount("BRUTTOAE", x.BRUTTOAE, 6, 2, false);
        k.decimal_amount("NETTOAE", x.NETTOAE, 6, 2, false);
        k.decimal_amount("BRUTTO2", x.BRUTTO2, 6, 2, false);
        k.decimal_amount("NETTO2", x.NETTO2, 6, 2, false);
        k.decimal_amount("BRUTTO3", x.BRUTTO3, 6, 2, false);
        k.decimal_amount("NETTO3", x.NETTO3, 6, 2, false);
        k.decimal_amount("EZKV", x.EZKV, 6, 2, false);
        k.decimal_amount("EZRV", x.EZRV, 6, 2, false);
        k.decimal_amount("EZALV", x.EZALV, 6, 2, false);
    }
    {
        const auto& x = e.DBAL;
        const FieldChecks k = c.within("DBAL");
        k.date("DATUMAB", x.DATUMAB);
        k.date("DATUMEZGBIS", x.DATUMEZGBIS);
        k.date("ENDEBVAM", x.ENDEBVAM);
        k.date("ENDEBVZUM", x.ENDEBVZUM);
        k.date("KUGBEGINN", x.KUGBEGINN);
        k.date("KUGENDE", x.KUGENDE);
        k.date("LAGBEGINN1", x.LAGBEGINN1);
        k.date("LAGENDE1", x.LAGENDE1);
        k.date("LAGBEGINN2", x.LAGBEGINN2);
        k.date("LAGENDE2", x.LAGENDE2);
    }
    {
        const auto& x = e.DBBE;
        const FieldChecks k = c.within("DBBE");
        k.date("ZAHLBEGINN", x.ZAHLBEGINN);
        k.decimal_amount("BEITRPFLBRUTTO", x.BEITRPFLBRUTTO, 6, 2, false);
        k.decimal_amount("BEITRPFLNETTO", x.BEITRPFLNETTO, 6, 2, false);
    }
    {
        const auto& x = e.DBEE;
        const FieldChecks k = c.within("DBEE");
        k.date("EELABAG", x.EELABAG);
        k.date("EELABSV", x.EELABSV);
        k.date("EELENDE", x.EELENDE);
    }
    {
        const auto& x = e.DBFR;
        const FieldChecks k = c.within("DBFR");
        k.date("ENDEBVZUM", x.ENDEBVZUM);
        k.date("FREISTVOM", x.FREISTVOM);
        k.date("FREISTBIS", x.FREISTBIS);
        k.date("BEZFREISTVOM", x.BEZFREISTVOM);
        k.date("BEZFREISTBIS", x.BEZFREISTBIS);
        k.decimal_amount("FREISTBRUTTO", x.FREISTBRUTTO, 6, 2, false);
        k.decimal_amount("FREISTNETTO", x.FREISTNETTO, 6, 2, false);
    }
    {
        const auto& x = e.DBHE;
        const FieldChecks k = c.within("DBHE");
        k.date("ZAHLBEGINN", x.ZAHLBEGINN);
        k.decimal_amount("EELBRUTTO", x.EELBRUTTO, 6, 2, false);
        k.decimal_amount("EELNETTO", x.EELNETTO, 6, 2, false);
    }
    {
        const auto& x = e.DBLT;
        const FieldChecks k = c.within("DBLT");
        k.date("BVSEIT", x.BVSEIT);
        k.date("BVBIS", x.BVBIS);
        k.decimal_amount("VWL", x.VWL, 4, 2, false);
        k.decimal_amount("BRUTTOSB", x.BRUTTOSB, 6, 2, false);
        k.decimal_amount("NETTOSB", x.NETTOSB, 6, 2, false);
    }
    {
        const auto& x = e.DBMU;
        const FieldChecks k = c.within("DBMU");
        k.date("SCHUTZFRBEGINN", x.SCHUTZFRBEGINN);
        k.date("BVBEGINN", x.BVBEGINN);
        k.date("LETZTTAG", x.LETZTTAG);
        k.date("ENDEBVAM", x.ENDEBVAM);
        k.date("ENDEBVZUM", x.ENDEBVZUM);
        k.date("DATUMAEBIS", x.DATUMAEBIS);
        k.date("BEGINN1", x.BEGINN1);
        k.date("ENDE1", x.ENDE1);
        k.date("BEGINN2", x.BEGINN2);
        k.date("ENDE2", x.ENDE2);
        k.date("BEGINN3", x.BEGINN3);
        k.date("ENDE3", x.ENDE3);
        k.decimal_amount("WAEHREELNETTO", x.WAEHREELNETTO, 6, 2, false);
        k.decimal_amount("BEZAZ1", x.BEZAZ1, 3, 2, false);
        k.decimal_amount("MASTD1", x.MASTD1, 3, 2, false);
        k.decimal_amount("AZUNENTSTD1", x.AZUNENTSTD1, 3, 2, false);
        k.decimal_amount("AZENTSCHSTD1", x.AZENTSCHSTD1, 3, 2, false);
        k.decimal_amount("NETTO1", x.NETTO1, 6, 2, false);
        k.decimal_amount("BEZAZ2", x.BEZAZ2, 3, 2, false);
        k.decimal_amount("MASTD2", x.MASTD2, 3, 2, false);
        k.decimal_amount("AZUNENTSTD2", x.AZUNENTSTD2, 3, 2, false);
        k.decimal_amount("AZENTSCHSTD2", x.AZENTSCHSTD2, 3, 2, false);
        k.decimal_amount("NETTO2", x.NETTO2, 6, 2, false);
        k.decimal_amount("BEZAZ3", x.BEZAZ3, 3, 2, false);
        k.decimal_amount("MASTD3", x.MASTD3, 3, 2, false);
        k.decimal_amount("AZUNENTSTD3", x.AZUNENTSTD3, 3, 2, false);
        k.decimal_amount("AZENTSCHSTD3", x.AZENTSCHSTD3, 3, 2, false);
        k.decimal_amount("NETTO3", x.NETTO3, 6, 2, false);
        k.decimal_amount("AZWOECH", x.AZWOECH, 2, 2, false);
    }
    {
        const auto& x = e.DBSF;
        const FieldChecks k = c.within("DBSF");
        k.date("AUBORD", x.AUBORD);
        k.date("AUINLAND", x.AUINLAND);
        k.date("VERLAENGVON", x.VERLAENGVON);
        k.date("VERLAENGBIS", x.VERLAENGBIS);
        k.decimal_amount("DHEU", x.DHEU, 6, 2, false);
        k.decimal_amount("HEUNETTO", x.HEUNETTO, 6, 2, false);
    }
    {
        const auto& x = e.DBTK;
        const FieldChecks k = c.within("DBTK");
        k.decimal_amount("BRUTTOSOLL", x.BRUTTOSOLL, 6, 2, false);
        k.decimal_amount("NETTOSOLL", x.NETTOSOLL, 6, 2, false);
        k.decimal_amount("TRANSFERKUG", x.TRANSFERKUG, 6, 2, false);
        k.decimal_amount("BRUTTOIST", x.BRUTTOIST, 6, 2, false);
        k.decimal_amount("NETTOIST", x.NETTOIST, 6, 2, false);
        k.decimal_amount("AUFSTOCKUNGSBETRAG", x.AUFSTOCKUNGSBETRAG, 6, 2, false);
    }
    {
        const auto& x = e.DBUN;
        const FieldChecks k = c.within("DBUN");
        k.date("VTAG", x.VTAG);
        k.decimal_amount("ZUSCHL1", x.ZUSCHL1, 6, 2, false);
        k.decimal_amount("ZUSCHL2", x.ZUSCHL2, 6, 2, false);
        k.decimal_amount("ZUSCHL3", x.ZUSCHL3, 6, 2, false);
        k.decimal_amount("FREISTZUSCHL", x.FREISTZUSCHL, 6, 2, false);
        k.decimal_amount("EZUV", x.EZUV, 6, 2, false);
    }
    {
        const auto& x = e.DBVO;
        const FieldChecks k = c.within("DBVO");
        k.date("AUABAG", x.AUABAG);
        k.date("AUABSV", x.AUABSV);
    }
    {
        const auto& x = e.DBZA;
        const FieldChecks k = c.within("DBZA");
        k.date("AZBEGINN2", x.AZBEGINN2);
        k.date("AZENDE2", x.AZENDE2);
        k.date("AZBEGINN3", x.AZBEGINN3);
        k.date("AZENDE3", x.AZENDE3);
        k.decimal_amount("ANZAHLSTD", x.ANZAHLSTD, 3, 2, false);
        k.decimal_amount("REGAZ", x.REGAZ, 2, 2, false);
        k.decimal_amount("MAZR1", x.MAZR1, 3, 2, false);
        k.decimal_amount("MAZR2", x.MAZR2, 3, 2, false);
        k.decimal_amount("MAZR3", x.MAZR3, 3, 2, false);
    }
}

}  // namespace tamrel::checks
