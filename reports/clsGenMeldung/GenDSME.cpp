// The DSME record, left to right as its layout table.
#include "core/date_fields.h"
#include "core/establishment_number.h"
#include "core/host.h"
#include "core/writer.h"
#include "reports/clsGenMeldung/DSME_layout.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"

namespace tamrel {
namespace {

using namespace layouts::meldung;

// The ten flag characters at positions 171-180: the table's seven flags for
// the reason, then "NNN", each later rule overriding an earlier one. The
// characters are the decision (an unknown reason can leave other table
// characters there): the plan takes its first seven blocks from their "J"s.
// DBUV is built here, as whether it holds data decides its flag.
std::string flag_text(const clsGenMeldung& gen, const Meldung& m, std::int32_t enmVerfahren, MeldungPlan& plan) {
    constexpr std::string_view table = clsGenMeldung::kBlockTable;
    const std::string_view reason = m.Meldegrund;  // compared as a view: no call for a two-character test
    // Meant as written: the reason is looked for anywhere in the table, as
    // the record rules do (a one-character reason can match inside another
    // entry); the checks refuse such reasons before the builder runs.
    std::size_t p = table.find(reason);
    if (p == std::string_view::npos)
        raise(kErrReason, "clsGenMeldung.GenDSME",
              "Datenbausteine konnten zum Meldegrund " + m.Meldegrund + " nicht ermittelt werden");
    std::string f(table.substr(p + m.Meldegrund.size(), 7));
    f += "NNN";
    auto set = [&f](std::size_t flag, char c) {
        if (flag <= f.size()) f[flag - 1] = c;
    };
    if (m.Meldungsart == 1 && gen.IsGeringBkn(m)) set(7, 'N');
    if (m.Meldungsart == 2) set(3, 'N');
    if (m.Meldungsart != 1 && m.Meldungsart != 2) {
        set(3, 'N');
        set(7, 'N');
    }
    if (m.MitNamensdaten) set(2, 'J');
    if (m.Meldungsart == 8) {
        const TextTest& test = current_host().tests.NameTest;
        bool named = test ? test(m.Vorgang.Bezugskennung) : false;
        if (m.Vorgang.Bezugskennung.empty() || named) set(2, 'J');
    }
    if (!m.Vorgang.Geburtsdatum.empty()) set(3, 'J');
    if (reason == "58" || enmVerfahren == vmSofort) {
        if (m.Vorgang.Versicherungsnummer.empty()) set(4, 'J');
    } else if (reason != "92") {
        if (!m.Vorgang.PLZ.empty() || !m.Vorgang.Ort.empty()) set(4, 'J');
    }
    if (m.Meldungsart != 8) {
        // A substring test, as the record rules have it ("1" and "0,1" match
        // too): deliberate, not a list lookup to be "fixed".
        constexpr std::string_view eu_reasons = "10,11,12,13,20,40,58";
        if (!m.Vorgang.EuAngabe1.empty() && eu_reasons.find(m.Meldegrund) != std::string_view::npos &&
            m.Vorgang.Versicherungsnummer.empty() && !m.Vorgang.EuAngabe2.empty())
            set(5, 'J');
    } else {
        set(5, 'N');
    }
    bool produced = false;
    // Without entries the block holds nothing (its count is "0"): no need to build it.
    if (m.UvErster <= m.UvLetzter) clsGenMeldung::AppendDBUV(plan.dbuv, m, produced);
    set(6, produced ? 'J' : 'N');
    for (std::size_t k = 0; k < 7; ++k) plan.set(static_cast<MeldungBlock>(k), k < f.size() && f[k] == 'J');
    return f;
}

}  // namespace

MeldungPlan clsGenMeldung::GenDSME(std::string& out, const Meldung& m, const DatensatzData& dd,
                                   std::int32_t enmVerfahren, const Date& datDate) const {
    return routine(
        with_args("clsGenMeldung.GenDSME(", ObjArg{"objMeldung"}, ObjArg{"udtDatensatzData"}, enmVerfahren, datDate),
        [&](int& line) {
            const Date date = mlGen::GetDate(datDate);
            // Deliberately a substring test, as the record rules have it: "24"
            // or "46" count as well as "2", "4" or "6".
            const bool minijob = m.Beitragsgruppe2.size() > 0 &&
                                 std::string_view("246").find(m.Beitragsgruppe2) != std::string_view::npos;
            MeldungPlan plan;
            Writer w(out, line);
            w.put(DSME::Kennung).put(DSME::Verfahren).put(DSME::strBNRAb, dd.strBNRAb);
            w.put(DSME::EmpfaengerBetriebsnummer1, m.Empfaenger.Betriebsnummer).put(DSME::Version);
            w.stamp(DSME::Erstellt, m.Zeitpunkt, 1, date).put(DSME::strMicroseconds, dd.strMicroseconds);
            w.put(DSME::Fehlerkennzeichen).put(DSME::Fehleranzahl);
            w.put(DSME::Versicherungsnummer, m.Vorgang.Versicherungsnummer);
            w.put(DSME::Kennzeichen0G0C, m.Meldungsart == 1 ? (minijob ? "0G" : "0C") : "");
            w.put(DSME::ArbeitgeberBetriebsnummer, m.Vorgang.Arbeitgeber.Betriebsnummer);
            w.put(DSME::Aktenzeichen, m.Vorgang.Aktenzeichen);
            w.put(DSME::EmpfaengerBetriebsnummer2, m.Empfaenger.Betriebsnummer);
            if (m.Meldungsart != 8)
                w.put(DSME::BezugVersion, dd.strVersion).put(DSME::BezugLaufnummer, m.Laufnummer).put(DSME::BezugRest);
            else
                w.put(DSME::Bezug, !m.Vorgang.Bezugskennung.empty() ? m.Vorgang.Bezugskennung : m.Ersatzaktenzeichen);
            w.put(DSME::ConvertBNRSt, mlGen::ConvertBNRSt(dd.strBNRSt)).put(DSME::Personengruppe, m.Personengruppe);
            w.put(DSME::Meldegrund, m.Meldegrund).put(DSME::Laenderschluessel, m.Vorgang.Laenderschluessel);
            w.put(DSME::Datenbausteine, flag_text(*this, m, enmVerfahren, plan));
            w.put(DSME::Reserve1).put(DSME::Fest1).put(DSME::Reserve2);
            w.announce(DSME::MitDBSO, plan, MeldungBlock::DBSO, enmVerfahren == vmSofort);
            w.put(DSME::Zusatzmerkmal, m.Zusatzmerkmal).put(DSME::Reserve3);
            w.announce(DSME::MitDBKV, plan, MeldungBlock::DBKV, std::string_view(m.Meldegrund) == "58")
                .put(DSME::Reserve4)
                .put(DSME::Reserve5)
                .put(DSME::Fest2)
                .put(DSME::strProdID, dd.strProdID)
                .put(DSME::strModID, dd.strModID);
            w.put(DSME::strVersion, dd.strVersion).put(DSME::Laufnummer, m.Laufnummer).put(DSME::Reserve6);
            w.put(DSME::Reserve7).put(DSME::Fest3).put(DSME::Reserve8);
            w.check(kDSME);
            return plan;
        });
}

}  // namespace tamrel
