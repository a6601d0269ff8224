// What the procedures' rule sets share: the person of a report (insurance
// number, birth date, gender, names and address against their fields), and
// the establishment numbers of the employer and the receiver.
#pragma once
#include "checks/field_checks.h"
#include "core/objects.h"

namespace tamrel::checks {

// The `Vorgang` at `v` (whose paths begin "Vorgang.").
void check_person(const FieldChecks& v, const Vorgang& p);

// A required establishment number of the employer ("…Arbeitgeber.Betriebsnummer")
// and of the receiver ("Empfaenger.Betriebsnummer").
void check_employer(const FieldChecks& within, const Arbeitgeber& a);
void check_receiver(const FieldChecks& report, const Empfaenger& e);

}  // namespace tamrel::checks
