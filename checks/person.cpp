#include "checks/person.h"

#include "certificates/clsGenArbeitsBesch/DSAB_layout.h"
#include "checks/rules.h"
#include "core/shared_block_layouts.h"
#include "reports/clsGenBeitrErh/DSBE_layout.h"
#include "reports/clsGenErst/DSER_layout.h"
#include "reports/clsGenMeldung/DSME_layout.h"
#include "reports/clsGenZahl/DSVZ_layout.h"

namespace tamrel::checks {

// The file reference is checked once, by the width it has in every record
// that holds it.
static_assert(layouts::meldung::DSME::Aktenzeichen.len == layouts::zahl::DSVZ::Aktenzeichen.len &&
              layouts::meldung::DSME::Aktenzeichen.len == layouts::erst::DSER::Aktenzeichen.len &&
              layouts::meldung::DSME::Aktenzeichen.len == layouts::beitrerh::DBMI::Aktenzeichen.len &&
              layouts::meldung::DSME::Aktenzeichen.len == layouts::bea::DSAB::Head.Aktenzeichen.len);

void check_person(const FieldChecks& v, const Vorgang& p) {
    v.versicherungsnummer("Versicherungsnummer", p.Versicherungsnummer);
    v.date("Geburtsdatum", p.Geburtsdatum);
    v.one_of("Geschlecht", p.Geschlecht, {"M", "W", "D", "X"}, kGender);
    // Names and address as the blocks DBNA, DBGB and DBAN hold them.
    v.texts({{"Familienname", p.Familienname, layouts::DBNA::Familienname},
             {"Vorname", p.Vorname, layouts::DBNA::Vorname},
             {"Vorsatzwort", p.Vorsatzwort, layouts::DBNA::Vorsatzwort},
             {"Namenszusatz", p.Namenszusatz, layouts::DBNA::Namenszusatz},
             {"Titel", p.Titel, layouts::DBNA::Titel},
             {"Geburtsname", p.Geburtsname, layouts::DBGB::Geburtsname},
             {"GeburtsVorsatzwort", p.GeburtsVorsatzwort, layouts::DBGB::GeburtsVorsatzwort},
             {"GeburtsNamenszusatz", p.GeburtsNamenszusatz, layouts::DBGB::GeburtsNamenszusatz},
             {"Geburtsort", p.Geburtsort, layouts::DBGB::Geburtsort},
             {"PLZ", p.PLZ, layouts::DBAN::PLZ},
             {"Ort", p.Ort, layouts::DBAN::Ort},
             {"Strasse", p.Strasse, layouts::DBAN::Strasse},
             {"Hausnummer", p.Hausnummer, layouts::DBAN::Hausnummer},
             {"Adresszusatz", p.Adresszusatz, layouts::DBAN::Adresszusatz},
             {"Aktenzeichen", p.Aktenzeichen, layouts::meldung::DSME::Aktenzeichen}});
}

void check_employer(const FieldChecks& within, const Arbeitgeber& a) {
    within.within("Arbeitgeber").establishment("Betriebsnummer", a.Betriebsnummer);
}

void check_receiver(const FieldChecks& report, const Empfaenger& e) {
    report.within("Empfaenger").establishment("Betriebsnummer", e.Betriebsnummer);
}

}  // namespace tamrel::checks
