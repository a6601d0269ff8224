// The DSME record's fields of its own form, read back.
#include "core/text.h"
#include "core/version_number.h"
#include "readback/record_forms.h"
#include "reports/clsGenMeldung/DSME_layout.h"
#include "reports/clsGenMeldung/Meldung.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"

namespace tamrel::readback {

using namespace layouts::meldung;

namespace {

// Whether group 2 makes a registration "0G" (a test for a piece of "246", as the builder's).
bool marginal(std::string_view group2) {
    return !group2.empty() && std::string_view("246").find(group2) != std::string_view::npos;
}

// The four groups, written joined: one character each, unless the mark
// "0G" or "0C" of a registration says otherwise of group 2. Then group 2 is
// the first piece of "246" in the text ("0G"), or empty ("0C"), and the
// groups around it take the rest.
void read_groups(Meldung& m, std::string_view joined, const ReadField* mark) {
    std::string* groups[] = {&m.Beitragsgruppe1, &m.Beitragsgruppe2, &m.Beitragsgruppe3, &m.Beitragsgruppe4};
    for (std::size_t i = 0; i < 4; ++i) groups[i]->assign(text::mid(joined, i + 1, 1));
    if (m.Meldungsart != 1 || !mark || marginal(m.Beitragsgruppe2) == (mark->value == "0G")) return;
    for (std::string* g : groups) g->clear();
    if (mark->value == "0C") {
        m.Beitragsgruppe1 = joined;
        return;
    }
    for (const std::string_view piece : {"2", "4", "6"}) {
        const std::size_t at = joined.find(piece);
        if (at == std::string_view::npos) continue;
        m.Beitragsgruppe1 = joined.substr(0, at);
        m.Beitragsgruppe2 = piece;
        m.Beitragsgruppe3 = joined.substr(at + 1);
        return;
    }
    m.Beitragsgruppe1 = joined;  // no piece of "246": not written by this procedure
}

}  // namespace

template <>
void read_own_forms<Meldung>(Meldung& m, std::span<const ReadField> left, std::span<const checks::Part> parts,
                             RecordFrame& frame) {
    read_converted_bnrst(left, frame);
    bool dbks_items = false, dbks = false;
    for (const checks::Part& p : parts) {
        dbks_items |= p.layout == &kDBKSItems;
        dbks |= p.layout == &kDBKSItems || p.layout == &kDBKSList;
    }
    // The kind of report: "0G"/"0C" only for a registration; the file
    // reference of kind 8 is its Bezugskennung, of any other kind the
    // version and running number; the DBKS of a deregistration. Where the
    // reason's table announces a DBKS and none follows, the kind was none
    // of 1, 2 and 8 (read as 0, which writes the same).
    const ReadField* mark = find(left, DSME::Kennzeichen0G0C.name);
    const ReadField* bezug = find(left, DSME::Bezug.name);
    const VersionNumber own_reference(frame.datensatz.strVersion, m.Laufnummer);
    std::string_view expected = own_reference;
    expected = expected.substr(0, expected.find_last_not_of(' ') + 1);
    const std::string_view table = clsGenMeldung::kBlockTable;
    const std::size_t reason = table.find(m.Meldegrund);
    const bool dbks_announced =
        reason != std::string_view::npos && table.substr(reason + m.Meldegrund.size()).substr(6, 1) == "J";
    if (mark && (mark->value == "0G" || mark->value == "0C")) {
        m.Meldungsart = 1;
    } else if (bezug && bezug->value != expected) {
        m.Meldungsart = 8;
        m.Vorgang.Bezugskennung = bezug->value;
    } else if (dbks_items || !dbks_announced || dbks) {
        m.Meldungsart = 2;
    } else {
        m.Meldungsart = 0;
    }
    // The DBNA of a report with names is marked "A".
    const ReadField* marker = find(left, layouts::DBNA::Marker.name);
    m.MitNamensdaten = marker && marker->value == "A";
    for (const ReadField& r : left) {
        const std::string_view v = r.value;
        if (r.field->name == DBME::Beitragsgruppen.name) {
            read_groups(m, v.empty() ? std::string_view("0000") : v, mark);
        } else if (r.field->name == DBME::Taetigkeitsschluessel.name && !v.empty()) {
            // The key's three pieces are joined without padding: cut where
            // the new form's pieces end (the old form reads the same).
            m.SchluesselNeu1 = text::left(v, 5);
            m.SchluesselNeu3 = text::mid(v, 6, 2);
            m.SchluesselNeu2 = text::mid(v, 8, v.size());
        }
    }
    // A registration marked "0G" without DBME: a group of marginal employment.
    if (m.Meldungsart == 1 && mark->value == "0G" && m.Beitragsgruppe2.empty()) m.Beitragsgruppe2 = "6";
    if (!m.KsZeileA.empty()) m.KsLetzter = m.KsZeileA.largest();
    if (!m.UvAngabe1.empty()) m.UvLetzter = m.UvAngabe1.largest();
}

}  // namespace tamrel::readback
