// The checks of the insurance-number query (record DSVV with DBNA, DBGB and
// DBAN): the person is found by name and birth data, so these must be
// given; the employer.
#include "checks/checks.h"
#include "checks/person.h"
#include "queries/clsGenAbfrVers/AbfrVers.h"

namespace tamrel::checks {

void check_report(const AbfrVers& a, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("Datum", a.Datum);
    const FieldChecks v = c.within("Vorgang");
    check_person(v, a.Vorgang);
    for (const auto& [name, value] : {std::pair{"Familienname", &a.Vorgang.Familienname},
                                      {"Vorname", &a.Vorgang.Vorname},
                                      {"Geburtsdatum", &a.Vorgang.Geburtsdatum},
                                      {"Geschlecht", &a.Vorgang.Geschlecht},
                                      {"Geburtsort", &a.Vorgang.Geburtsort}})
        v.required(name, *value);
    check_employer(v, a.Vorgang.Arbeitgeber);
}

}  // namespace tamrel::checks
