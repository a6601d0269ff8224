#include "checks/person.h"

#include "checks/rules.h"

namespace tamrel::checks {

void check_person(const FieldChecks& v, const Vorgang& p) {
    v.versicherungsnummer("Versicherungsnummer", p.Versicherungsnummer);
    v.date("Geburtsdatum", p.Geburtsdatum);
    v.one_of("Geschlecht", p.Geschlecht, {"M", "W", "D", "X"}, kGender);
    // Names and address as the blocks DBNA, DBGB and DBAN hold them.
    v.texts({{"Familienname", p.Familienname, 30},
             {"Vorname", p.Vorname, 30},
             {"Vorsatzwort", p.Vorsatzwort, 20},
             {"Namenszusatz", p.Namenszusatz, 20},
             {"Titel", p.Titel, 20},
             {"Geburtsname", p.Geburtsname, 30},
             {"GeburtsVorsatzwort", p.GeburtsVorsatzwort, 20},
             {"GeburtsNamenszusatz", p.GeburtsNamenszusatz, 20},
             {"Geburtsort", p.Geburtsort, 34},
             {"PLZ", p.PLZ, 10},
             {"Ort", p.Ort, 34},
             {"Strasse", p.Strasse, 33},
             {"Hausnummer", p.Hausnummer, 9},
             {"Adresszusatz", p.Adresszusatz, 40},
             {"Aktenzeichen", p.Aktenzeichen, 20}});
}

void check_employer(const FieldChecks& within, const Arbeitgeber& a) {
    within.within("Arbeitgeber").establishment("Betriebsnummer", a.Betriebsnummer);
}

void check_receiver(const FieldChecks& report, const Empfaenger& e) {
    report.within("Empfaenger").establishment("Betriebsnummer", e.Betriebsnummer);
}

}  // namespace tamrel::checks
