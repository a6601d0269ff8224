// The DEUEV report's own blocks DBME, DBEU, DBUV, DBKS, DBSO and DBKV.
#include "core/decimal.h"
#include "core/int16.h"
#include "core/joined.h"
#include "core/list_loop.h"
#include "core/text_fields.h"
#include "core/writer.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"

namespace tamrel {

void clsGenMeldung::GenDBME(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBME", [&](int& line) {
        // The reason test is a substring test on purpose, as the record
        // rules have it ("1", "0,1" and "" are found too).
        const bool zero_marker = m.Meldekennzeichen.empty() && !m.Storno &&
                                 std::string_view("10,11,12,13").find(m.Meldegrund) == std::string_view::npos;
        const Joined groups{m.Beitragsgruppe1, m.Beitragsgruppe2, m.Beitragsgruppe3, m.Beitragsgruppe4};
        Writer w(out, line);
        w.lit("DBME").flag(m.Storno).an(zero_marker ? "0" : m.Meldekennzeichen, 1);
        w.n(m.Beginn, 8).n(m.Ende, 8).zeros(2).an(m.Statuskennzeichen, 1).n(m.Entgelt, 6).n(groups, 4);
        if (!m.SchluesselNeu1.empty())
            w.an(Joined{m.SchluesselNeu1, m.SchluesselNeu3, m.SchluesselNeu2}, 9);
        else
            w.an(m.SchluesselAlt1, 5)
                .an(Joined{m.SchluesselAlt2, m.SchluesselAlt3, m.SchluesselAlt4, m.SchluesselAlt5}, 4);
        w.an(m.Vorgang.Arbeitgeber.Kennzeichen, 1).flag(m.Sonderkennzeichen).zeros(1).blank(100);
        w.check(147, "DBME");
    });
}

void clsGenMeldung::GenDBEU(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBEU", [&](int& line) {
        Writer w(out, line);
        w.lit("DBEU").n(m.Vorgang.EuAngabe2, 3).an(m.Vorgang.EuAngabe1, 20);
        w.check(27, "DBEU");
    });
}

void clsGenMeldung::AppendDBUV(std::string& out, const Meldung& m, bool& produced) {
    routine("clsGenMeldung.GenDBUV", [&](int& line) {
        produced = false;
        std::int16_t count = 0;
        std::int16_t required = 20;
        Writer w(out, line, produced);
        w.lit("DBUV").lit("0").blank(15);  // the count is written once the entries are known
        list_loop(line, 7, m.UvErster, m.UvLetzter, [&](std::int16_t i) {
            if (m.UvEntfaellt(i)) return;
            w.an(m.UvAngabe1(i), 3).an(m.UvAngabe2(i), 15).an(m.UvAngabe3(i), 20).an(m.UvAngabe4(i), 15);
            w.an(m.UvAngabe5(i), 8).n(m.UvAngabe6(i), 6).blank(4);
            count = add16(count, 1);
            required = add16(required, 71);
        });
        w.patch(4, mlGen::StrToN(mlGen::Decimal(count), 1, produced)[0]);
        w.check(required, "DBUV");
    });
}

void clsGenMeldung::GenDBKS(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBKS", [&](int& line) {
        Writer w(out, line);
        if (m.Meldungsart == 1) {
            const auto a = m.KsZeileA.view(), b = m.KsZeileB.view(), c = m.KsZeileC.view(), d = m.KsZeileD.view();
            const std::int16_t first = m.KsErster, last = m.KsLetzter;
            w.lit("DBKS").lit("K").an(m.KsKennzeichen, 1);
            list_loop(line, 3, first, last, [&](std::int16_t i) { w.an(a(i), 2).an(b(i), 9).an(c(i), 1); });
            w.an(m.KsDatum, 8).an(m.KsSchluessel, 2);
            list_loop(line, 1, first, last, [&](std::int16_t i) { w.an(d(i), 2); });
            w.blank(36);
        } else if (m.Meldungsart == 2) {
            w.lit("DBKS").lit("S").an(m.KsAngabe1, 2).an(m.KsAngabe2, 2).an(m.KsAngabe3, 2).an(m.KsAngabe4, 2);
            w.flag(m.KsMerkmal).blank(206);
        } else {
            raise(kErrDbksKind, "clsGenMeldung.GenDBKS", "Falsches Verfahren bei Erzeugung DBKS");
        }
        w.check(220, "DBKS");
    });
}

void clsGenMeldung::GenDBSO(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBSO", [&](int& line) {
        Writer w(out, line);
        w.lit("DBSO").flag(m.Storno).n(m.Beginn, 8);
        // Checked under the name "BDSO", not "DBSO": it is the name the
        // component's length error has always reported for this block.
        w.check(13, "BDSO");
    });
}

void clsGenMeldung::GenDBKV(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBKV", [&](int& line) {
        Writer w(out, line);
        w.lit("DBKV").flag(m.Storno).zeros(2).n(m.KvGrund, 2).n(m.Beginn, 8).n(m.Ende, 8).zeros(8);
        w.pb(m.KvBetrag4, 6, 2).blank(27);
        w.n(m.Beitragsgruppe1, 1).n(m.Beitragsgruppe2, 1).n(m.Beitragsgruppe3, 1).n(m.Beitragsgruppe4, 1);
        w.an(m.Vorgang.Arbeitgeber.Kennzeichen, 1).pb(m.KvBetrag1, 6, 2).pb(m.KvBetrag2, 6, 2).pb(m.KvBetrag3, 6, 2);
        w.blank(53);
        w.check(150, "DBKV");
    });
}

}  // namespace tamrel
