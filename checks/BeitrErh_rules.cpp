// The checks of the contribution collection (record DSBE): its months, its
// signed amounts, the person, the employer with its five-digit postal code,
// and the receiver.
#include "checks/checks.h"
#include "checks/person.h"
#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "reports/clsGenBeitrErh/DSBE_layout.h"

namespace tamrel::checks {

void check_report(const BeitrErh& b, Findings& f) {
    const FieldChecks c(f);
    c.creation_date("Zeitpunkt", b.Zeitpunkt);
    c.required("Zeitraum1", b.Zeitraum1);
    c.required("Zeitraum2", b.Zeitraum2);
    c.month("Zeitraum1", b.Zeitraum1);
    c.month("Zeitraum2", b.Zeitraum2);
    c.amount("Betrag1", b.Betrag1, layouts::beitrerh::DSBE::Betrag1);
    c.amount("Betrag2", b.Betrag2, layouts::beitrerh::DSBE::Betrag2);
    c.amount("Betrag3", b.Betrag3, layouts::beitrerh::DSBE::Betrag3);
    c.amount("Betrag4", b.Betrag4, layouts::beitrerh::DSBE::Betrag4);
    c.amount("Betrag5", b.Betrag5, layouts::beitrerh::DSBE::Betrag5);
    c.amount("Betrag6", b.Betrag6, layouts::beitrerh::DBHB::Betrag6);
    const FieldChecks v = c.within("Vorgang");
    check_person(v, b.Vorgang);
    check_employer(v, b.Vorgang.Arbeitgeber);
    v.within("Arbeitgeber").digits("PLZ", b.Vorgang.Arbeitgeber.PLZ, layouts::beitrerh::DSBE::PLZ.len);
    check_receiver(c, b.Empfaenger);
}

}  // namespace tamrel::checks
