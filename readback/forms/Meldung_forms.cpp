// The DSME record's fields of its own form, read back.
#include "readback/record_forms.h"
#include "reports/clsGenMeldung/DSME_layout.h"
#include "reports/clsGenMeldung/Meldung.h"

namespace tamrel::readback {

using namespace layouts::meldung;

template <>
void read_own_forms<Meldung>(Meldung& m, std::span<const ReadField> left, std::span<const checks::Part> parts,
                             RecordFrame& frame) {
    read_converted_bnrst(left, frame);
    bool dbks_items = false;
    for (const checks::Part& p : parts) dbks_items |= p.layout == &kDBKSItems;
    // The kind of report: "0G"/"0C" only for a registration; the DBKS of a
    // deregistration; the file reference of kind 8 is its Bezugskennung.
    const ReadField* mark = find(left, DSME::Kennzeichen0G0C.name);
    const ReadField* bezug = find(left, DSME::Bezug.name);
    std::string expected_bezug = frame.datensatz.strVersion.substr(0, DSME::BezugVersion.len);
    expected_bezug.resize(DSME::BezugVersion.len, ' ');
    const std::string laufnummer = std::to_string(m.Laufnummer);
    expected_bezug += std::string(DSME::BezugLaufnummer.len - std::min<std::size_t>(laufnummer.size(), 10), '0') +
                      laufnummer.substr(0, 10);
    if (mark && (mark->value == "0G" || mark->value == "0C")) {
        m.Meldungsart = 1;
    } else if (dbks_items) {
        m.Meldungsart = 2;
    } else if (bezug && bezug->value != std::string_view(expected_bezug).substr(0, bezug->value.size())) {
        m.Meldungsart = 8;
        m.Vorgang.Bezugskennung = bezug->value;
    } else {
        m.Meldungsart = 2;
    }
    // The DBNA of a report with names is marked "A".
    const ReadField* marker = find(left, layouts::DBNA::Marker.name);
    m.MitNamensdaten = marker && marker->value == "A";
    for (const ReadField& r : left) {
        const std::string& v = r.value;
        if (r.field->name == DBME::Beitragsgruppen.name) {
            // Four one-character groups, joined into four digits.
            std::string* groups[] = {&m.Beitragsgruppe1, &m.Beitragsgruppe2, &m.Beitragsgruppe3, &m.Beitragsgruppe4};
            const std::string digits = v.empty() ? std::string(4, '0') : v;
            for (std::size_t i = 0; i < 4; ++i) groups[i]->assign(digits.substr(i, 1));
        } else if (r.field->name == DBME::Taetigkeitsschluessel.name && !v.empty()) {
            // The key's three pieces are joined without padding: cut where
            // the new form's pieces end (the old form reads the same).
            m.SchluesselNeu1 = v.substr(0, 5);
            m.SchluesselNeu3 = v.size() > 5 ? v.substr(5, 2) : std::string();
            m.SchluesselNeu2 = v.size() > 7 ? v.substr(7) : std::string();
        }
    }
    if (!m.KsZeileA.empty()) m.KsLetzter = m.KsZeileA.largest();
    if (!m.UvAngabe1.empty()) m.UvLetzter = m.UvAngabe1.largest();
}

}  // namespace tamrel::readback
