// The checks of the establishment master data (record DSBD and its block
// DBKA): the establishment and the receiver, the key figure, the texts
// against their fields.
#include "queries/clsGenBetrieb/Betrieb.h"
#include "checks/checks.h"
#include "checks/person.h"

namespace tamrel::checks {

void check_report(const Betrieb& b, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstellDatum", b.ErstellDatum);
    check_employer(c, b.Arbeitgeber);
    check_receiver(c, b.Empfaenger);
    c.required("Kennziffer", b.Kennziffer);
    c.digits("Kennziffer", b.Kennziffer, 2);
    const FieldChecks a = c.within("Arbeitgeber");
    a.texts({{"Name1", b.Arbeitgeber.Name1, 30},
             {"Name2", b.Arbeitgeber.Name2, 30},
             {"Name3", b.Arbeitgeber.Name3, 30},
             {"PLZ", b.Arbeitgeber.PLZ, 10},
             {"Ort", b.Arbeitgeber.Ort, 34},
             {"Strasse", b.Arbeitgeber.Strasse, 33},
             {"Hausnummer", b.Arbeitgeber.Hausnummer, 9},
             {"AdressTeil1", b.Arbeitgeber.AdressTeil1, 10},
             {"AdressTeil2", b.Arbeitgeber.AdressTeil2, 10}});
    c.texts({{"AnsprechpartnerName", b.AnsprechpartnerName, 30},
             {"AnsprechpartnerTelefon", b.AnsprechpartnerTelefon, 20},
             {"AnsprechpartnerFax", b.AnsprechpartnerFax, 20},
             {"AnsprechpartnerEMail", b.AnsprechpartnerEMail, 70},
             {"DbkaName1", b.DbkaName1, 30},
             {"DbkaName2", b.DbkaName2, 30},
             {"DbkaName3", b.DbkaName3, 30},
             {"DbkaPLZ", b.DbkaPLZ, 10},
             {"DbkaOrt", b.DbkaOrt, 34},
             {"DbkaStrasse", b.DbkaStrasse, 33}});
    c.key("AnsprechpartnerGeschlecht", b.AnsprechpartnerGeschlecht, 1);
}

}  // namespace tamrel::checks
