// A C++ program using tamrel's generator classes directly: the DEUEV
// registration of one employee, framed by VOSZ, DSKO and NCSZ.
#include <iostream>

#include "reports/clsGenMeldung/clsGenMeldung.h"

int main() {
    tamrel::Host host;
    host.now = [] { return tamrel::Date{2024, 3, 1, 10, 11, 12}; };  // a fixed clock: the same file every run
    const tamrel::clsGenMeldung gen(host);

    tamrel::Meldung m;
    m.Laufnummer = 1;
    m.Meldegrund = "10";
    m.Meldungsart = 1;
    m.Personengruppe = "101";
    m.Beitragsgruppe1 = m.Beitragsgruppe2 = m.Beitragsgruppe3 = m.Beitragsgruppe4 = "1";
    m.Beginn = "20240301";
    m.KsErster = 1;  // the activity key's twelve lines of block DBKS, empty here
    m.KsLetzter = 12;
    m.Vorgang.Versicherungsnummer = "65170839J003";
    m.Vorgang.Familienname = "Müller";
    m.Vorgang.Vorname = "Jürgen";
    m.Vorgang.Arbeitgeber.Betriebsnummer = "98765432";
    m.Empfaenger.Betriebsnummer = "12345671";

    tamrel::DatensatzData dd;
    dd.strBNRAb = "98765432";
    dd.strVersion = "TAMREL";
    tamrel::DSKOData dsko;
    dsko.strBNRAb = "98765432";
    dsko.strBNREm = "12345671";
    dsko.strName1 = "Muster Lohnbüro GmbH";
    std::string datum;
    try {
        std::cout << gen.GenVOSZ("98765432", "12345671", "1", "Muster Lohnbüro GmbH", tamrel::vmNormal, datum) << '\n'
                  << gen.GenDSKO(dsko) << '\n'
                  << gen.GenData(m, dd, tamrel::vmNormal) << '\n'
                  << gen.GenNCSZ("98765432", "12345671", "1", "1", tamrel::vmNormal) << '\n';
    } catch (const tamrel::Error& e) {
        std::cerr << e.number() << " " << e.source() << ": " << e.description() << '\n';
        return 1;
    }
}
