// The checks of the contribution collection (record DSBE): its months, its
// signed amounts, the person, the employer with its five-digit postal code,
// and the receiver.
#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "checks/checks.h"
#include "checks/person.h"

namespace tamrel::checks {

void check_report(const BeitrErh& b, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("Zeitpunkt", b.Zeitpunkt);
    c.required("Zeitraum1", b.Zeitraum1);
    c.required("Zeitraum2", b.Zeitraum2);
    c.month("Zeitraum1", b.Zeitraum1);
    c.month("Zeitraum2", b.Zeitraum2);
    c.decimal_amount("Betrag1", b.Betrag1, 2, 0, true);
    c.decimal_amount("Betrag2", b.Betrag2, 6, 2, true);
    c.decimal_amount("Betrag3", b.Betrag3, 7, 2, true);
    c.decimal_amount("Betrag4", b.Betrag4, 6, 2, true);
    c.decimal_amount("Betrag5", b.Betrag5, 6, 2, true);
    c.decimal_amount("Betrag6", b.Betrag6, 6, 2, true);
    const FieldChecks v = c.within("Vorgang");
    check_person(v, b.Vorgang);
    check_employer(v, b.Vorgang.Arbeitgeber);
    v.within("Arbeitgeber").digits("PLZ", b.Vorgang.Arbeitgeber.PLZ, 5);
    check_receiver(c, b.Empfaenger);
}

}  // namespace tamrel::checks
