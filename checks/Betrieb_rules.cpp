// The checks of the establishment master data (record DSBD and its block
// DBKA): the establishment and the receiver, the key figure, the texts
// against their fields.
#include "checks/checks.h"
#include "checks/person.h"
#include "queries/clsGenBetrieb/Betrieb.h"
#include "queries/clsGenBetrieb/DSBD_layout.h"

namespace tamrel::checks {

void check_report(const Betrieb& b, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("ErstellDatum", b.ErstellDatum);
    check_employer(c, b.Arbeitgeber);
    check_receiver(c, b.Empfaenger);
    c.required("Kennziffer", b.Kennziffer);
    c.digits("Kennziffer", b.Kennziffer, layouts::betrieb::DSBD::Kennziffer.len);
    const FieldChecks a = c.within("Arbeitgeber");
    a.texts({{"Name1", b.Arbeitgeber.Name1, layouts::betrieb::DSBD::Name1},
             {"Name2", b.Arbeitgeber.Name2, layouts::betrieb::DSBD::Name2},
             {"Name3", b.Arbeitgeber.Name3, layouts::betrieb::DSBD::Name3},
             {"PLZ", b.Arbeitgeber.PLZ, layouts::betrieb::DSBD::PLZ},
             {"Ort", b.Arbeitgeber.Ort, layouts::betrieb::DSBD::Ort},
             {"Strasse", b.Arbeitgeber.Strasse, layouts::betrieb::DSBD::Strasse},
             {"Hausnummer", b.Arbeitgeber.Hausnummer, layouts::betrieb::DSBD::Hausnummer},
             {"AdressTeil1", b.Arbeitgeber.AdressTeil1, layouts::betrieb::DSBD::AdressTeil1},
             {"AdressTeil2", b.Arbeitgeber.AdressTeil2, layouts::betrieb::DSBD::AdressTeil2}});
    c.texts({{"AnsprechpartnerName", b.AnsprechpartnerName, layouts::betrieb::DSBD::AnsprechpartnerName},
             {"AnsprechpartnerTelefon", b.AnsprechpartnerTelefon, layouts::betrieb::DSBD::AnsprechpartnerTelefon},
             {"AnsprechpartnerFax", b.AnsprechpartnerFax, layouts::betrieb::DSBD::AnsprechpartnerFax},
             {"AnsprechpartnerEMail", b.AnsprechpartnerEMail, layouts::betrieb::DSBD::AnsprechpartnerEMail},
             {"DbkaName1", b.DbkaName1, layouts::betrieb::DBKA::DbkaName1},
             {"DbkaName2", b.DbkaName2, layouts::betrieb::DBKA::DbkaName2},
             {"DbkaName3", b.DbkaName3, layouts::betrieb::DBKA::DbkaName3},
             {"DbkaPLZ", b.DbkaPLZ, layouts::betrieb::DBKA::DbkaPLZ},
             {"DbkaOrt", b.DbkaOrt, layouts::betrieb::DBKA::DbkaOrt},
             {"DbkaStrasse", b.DbkaStrasse, layouts::betrieb::DBKA::DbkaStrasse}});
    c.key("AnsprechpartnerGeschlecht", b.AnsprechpartnerGeschlecht,
          layouts::betrieb::DSBD::AnsprechpartnerGeschlecht.len);
}

}  // namespace tamrel::checks
