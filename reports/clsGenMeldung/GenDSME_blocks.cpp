// The DEUEV report's own blocks DBME, DBEU, DBUV, DBKS, DBSO and DBKV.
#include "core/decimal.h"
#include "core/int16.h"
#include "core/joined.h"
#include "core/list_loop.h"
#include "core/text_fields.h"
#include "core/writer.h"
#include "reports/clsGenMeldung/DSME_layout.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"

namespace tamrel {

using namespace layouts::meldung;

void clsGenMeldung::GenDBME(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBME", [&](int& line) {
        // The reason test is a substring test on purpose, as the record
        // rules have it ("1", "0,1" and "" are found too).
        const bool zero_marker = m.Meldekennzeichen.empty() && !m.Storno &&
                                 std::string_view("10,11,12,13").find(m.Meldegrund) == std::string_view::npos;
        const Joined groups{m.Beitragsgruppe1, m.Beitragsgruppe2, m.Beitragsgruppe3, m.Beitragsgruppe4};
        Writer w(out, line);
        w.put(DBME::Kennung).put(DBME::Storno, m.Storno);
        w.put(DBME::Meldekennzeichen, zero_marker ? "0" : std::string_view(m.Meldekennzeichen));
        w.put(DBME::Beginn, m.Beginn).put(DBME::Ende, m.Ende).put(DBME::Reserve1);
        w.put(DBME::Statuskennzeichen, m.Statuskennzeichen).put(DBME::Entgelt, m.Entgelt);
        w.put(DBME::Beitragsgruppen, groups);
        if (!m.SchluesselNeu1.empty())
            w.put(DBME::Taetigkeitsschluessel, Joined{m.SchluesselNeu1, m.SchluesselNeu3, m.SchluesselNeu2});
        else
            w.put(DBME::SchluesselAlt1, m.SchluesselAlt1)
                .put(DBME::SchluesselAlt2bis5,
                     Joined{m.SchluesselAlt2, m.SchluesselAlt3, m.SchluesselAlt4, m.SchluesselAlt5});
        w.put(DBME::Kennzeichen, m.Vorgang.Arbeitgeber.Kennzeichen).put(DBME::Sonderkennzeichen, m.Sonderkennzeichen);
        w.put(DBME::Reserve2).put(DBME::Reserve3);
        w.check(kDBME);
    });
}

void clsGenMeldung::GenDBEU(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBEU", [&](int& line) {
        Writer w(out, line);
        w.put(DBEU::Kennung).put(DBEU::EuAngabe2, m.Vorgang.EuAngabe2).put(DBEU::EuAngabe1, m.Vorgang.EuAngabe1);
        w.check(kDBEU);
    });
}

void clsGenMeldung::AppendDBUV(std::string& out, const Meldung& m, bool& produced) {
    routine("clsGenMeldung.GenDBUV", [&](int& line) {
        produced = false;
        std::int16_t count = 0;
        std::int16_t required = kDBUV.length;
        Writer w(out, line, produced);
        // The count is written once the entries are known.
        w.put(DBUV::Kennung).text(DBUV::Anzahl, "0").put(DBUV::Reserve);
        list_loop(line, 7, m.UvErster, m.UvLetzter, [&](std::int16_t i) {
            if (m.UvEntfaellt(i)) return;
            w.entry();
            w.put(DBUVEntry::UvAngabe1, m.UvAngabe1(i)).put(DBUVEntry::UvAngabe2, m.UvAngabe2(i));
            w.put(DBUVEntry::UvAngabe3, m.UvAngabe3(i)).put(DBUVEntry::UvAngabe4, m.UvAngabe4(i));
            w.put(DBUVEntry::UvAngabe5, m.UvAngabe5(i)).put(DBUVEntry::UvAngabe6, m.UvAngabe6(i));
            w.put(DBUVEntry::Reserve);
            count = add16(count, 1);
            required = add16(required, kDBUVEntry.length);
        });
        w.patch(DBUV::Anzahl, mlGen::StrToN(mlGen::Decimal(count), DBUV::Anzahl.len, produced)[0]);
        w.check(required, kDBUV.id);
    });
}

void clsGenMeldung::GenDBKS(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBKS", [&](int& line) {
        Writer w(out, line);
        if (m.Meldungsart == 1) {
            const auto a = m.KsZeileA.view(), b = m.KsZeileB.view(), c = m.KsZeileC.view(), d = m.KsZeileD.view();
            const std::int16_t first = m.KsErster, last = m.KsLetzter;
            using namespace DBKSList;
            w.put(Kennung).put(Art).put(KsKennzeichen, m.KsKennzeichen);
            list_loop(line, 3, first, last, [&](std::int16_t i) {
                w.entry();
                w.put(Zeile::A, a(i)).put(Zeile::B, b(i)).put(Zeile::C, c(i));
            });
            w.after(kZeilenABC);
            w.put(KsDatum, m.KsDatum).put(KsSchluessel, m.KsSchluessel);
            list_loop(line, 1, first, last, [&](std::int16_t i) {
                w.entry();
                w.put(Zeile::D, d(i));
            });
            w.after(kZeilenD);
            w.put(Reserve);
            w.check(kDBKSList);
        } else if (m.Meldungsart == 2) {
            using namespace DBKSItems;
            w.put(Kennung).put(Art).put(KsAngabe1, m.KsAngabe1).put(KsAngabe2, m.KsAngabe2);
            w.put(KsAngabe3, m.KsAngabe3).put(KsAngabe4, m.KsAngabe4).put(KsMerkmal, m.KsMerkmal).put(Reserve);
            w.check(kDBKSItems);
        } else {
            raise(kErrDbksKind, "clsGenMeldung.GenDBKS", "Falsches Verfahren bei Erzeugung DBKS");
        }
    });
}

void clsGenMeldung::GenDBSO(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBSO", [&](int& line) {
        Writer w(out, line);
        w.put(DBSO::Kennung).put(DBSO::Storno, m.Storno).put(DBSO::Beginn, m.Beginn);
        // Checked under the name "BDSO", not "DBSO": it is the name the
        // component's length error has always reported for this block.
        w.check(kDBSO, "BDSO");
    });
}

void clsGenMeldung::GenDBKV(std::string& out, const Meldung& m) {
    routine("clsGenMeldung.GenDBKV", [&](int& line) {
        Writer w(out, line);
        using namespace DBKV;
        w.put(Kennung).put(Storno, m.Storno).put(Reserve1).put(KvGrund, m.KvGrund).put(Beginn, m.Beginn);
        w.put(Ende, m.Ende).put(Reserve2).put(KvBetrag4, m.KvBetrag4).put(Reserve3);
        w.put(Beitragsgruppe1, m.Beitragsgruppe1).put(Beitragsgruppe2, m.Beitragsgruppe2);
        w.put(Beitragsgruppe3, m.Beitragsgruppe3).put(Beitragsgruppe4, m.Beitragsgruppe4);
        w.put(Kennzeichen, m.Vorgang.Arbeitgeber.Kennzeichen).put(KvBetrag1, m.KvBetrag1).put(KvBetrag2, m.KvBetrag2);
        w.put(KvBetrag3, m.KvBetrag3).put(Reserve4);
        w.check(kDBKV);
    });
}

}  // namespace tamrel
