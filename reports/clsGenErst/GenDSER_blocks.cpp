// The reimbursement blocks DBAU, DBBT, DBZU, DBBV, DBNA and DBAA.
#include "core/contact_block.h"
#include "core/host.h"
#include "core/shared_blocks.h"
#include "core/writer.h"
#include "reports/clsGenErst/DSER_layout.h"
#include "reports/clsGenErst/clsGenErst.h"

namespace tamrel {

using namespace layouts::erst;

namespace {

std::string_view digit(bool v) { return v ? "1" : "0"; }

// The first non-empty amount and its ordinal ("0" and an empty amount when none).
struct Cascade {
    std::string_view amount;
    std::string_view code;
};
Cascade first_non_empty(std::initializer_list<const std::string*> amounts) {
    static constexpr std::string_view codes[] = {"1", "2", "3", "4"};
    std::size_t i = 0;
    for (const std::string* a : amounts) {
        if (!a->empty()) return {*a, codes[i]};
        ++i;
    }
    return {{}, {}};
}

// The common start of DBAU, DBBT and DBZU.
template <const ClaimHead& h>
[[gnu::always_inline]] inline void head(Writer& w, const Erst& e) {
    w.put(h.Kennung).put(h.DBAAEntfaellt, digit(e.DBAAEntfaellt)).put(h.ZeitraumBeginn, e.ZeitraumBeginn);
    w.put(h.ZeitraumEnde, e.ZeitraumEnde).put(h.Ausgleichsart2, digit(e.Ausgleichsart == 2));
}

std::string_view bt_code(std::int32_t v) { return v == 2 ? "1" : v == 3 ? "2" : v == 4 ? "3" : "0"; }

}  // namespace

void clsGenErst::GenDBAU(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBAU", [&](int& line) {
        const Cascade pay = first_non_empty({&e.Entgelt1, &e.Entgelt2, &e.Entgelt3, &e.Entgelt4});
        const Cascade value = first_non_empty({&e.Wert1, &e.Wert2, &e.Wert3});
        Writer w(out, line);
        using namespace DBAU;
        head<Head>(w, e);
        w.put(FirstOfEntgelt14, pay.amount).put(WhichEntgelt, pay.code).jn(AngabeJN2, e.AngabeJN2);
        w.put(FirstOfWert13, value.amount).put(WhichWert, value.code);
        w.put(Satz1, e.Satz1).put(Satz2, e.Satz2).put(Betrag1, e.Betrag1).put(Betrag2, e.Betrag2);
        w.put(Betrag3, e.Betrag3).put(Betrag6, e.Betrag6);
        w.put(MerkmalAOrMerkmalB, e.MerkmalA == 1 ? "2" : e.MerkmalB == 1 ? "1" : "0").jn(AngabeJN1, e.AngabeJN1);
        if (!e.Satz3.empty())
            w.put(Satz3Betrag, e.Satz3);
        else
            w.put(Satz3);
        w.put(Zusatzdatum, e.Zusatzdatum).put(Betrag4, e.Betrag4).put(Betrag5, e.Betrag5).put(Reserve);
        w.check(kDBAU);
    });
}

void clsGenErst::GenDBBT(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBBT", [&](int& line) {
        Writer w(out, line);
        using namespace DBBT;
        head<Head>(w, e);
        if (!e.Zusatzdatum.empty())
            w.put(ZusatzdatumDatum, e.Zusatzdatum);
        else
            w.put(Zusatzdatum);
        w.put(Betrag1, e.Betrag1).put(Betrag2, e.Betrag2).put(Fest).put(Betrag6, e.Betrag6);
        w.put(BTKennzeichen, bt_code(e.BTKennzeichen));
        w.put(Abschlussdatum, e.Abschlussdatum).put(Betrag4, e.Betrag4).put(Betrag5, e.Betrag5).put(Reserve);
        w.check(kDBBT);
    });
}

void clsGenErst::GenDBZU(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBZU", [&](int& line) {
        Writer w(out, line);
        using namespace DBZU;
        head<Head>(w, e);
        w.put(ZuschussBeginn, e.ZuschussBeginn).put(ZuschussEnde, e.ZuschussEnde).put(Entgelt4, e.Entgelt4);
        w.put(ZuschussBetrag1, e.ZuschussBetrag1).put(ZuschussBetrag2, e.ZuschussBetrag2);
        w.put(ZuschussBetrag3, e.ZuschussBetrag3).put(ZuschussBetrag4, e.ZuschussBetrag4);
        w.put(Abschlussdatum, e.Abschlussdatum).put(Reserve);
        w.check(kDBZU);
    });
}

void clsGenErst::GenDBBV(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBBV", [&](int& line) {
        // Account number and bank code: numeric before 1 January 2014, text from then on.
        const bool text_fields = now() >= Date{2014, 1, 1};
        const Arbeitgeber& ag = e.Vorgang.Arbeitgeber;
        Writer w(out, line);
        using namespace DBBV;
        w.put(Kennung).put(Bankkennzeichen, e.Bankkennzeichen == 1 ? "2" : e.Bankkennzeichen == 2 ? "1" : "0");
        w.put(BVZahl4, e.BVZahl4).put(BVZahl2, e.BVZahl2);
        if (text_fields)
            w.put(Kontonummer, ag.Kontonummer).put(Bankleitzahl, ag.Bankleitzahl);
        else
            w.put(KontonummerNumerisch, ag.Kontonummer).put(BankleitzahlNumerisch, ag.Bankleitzahl);
        w.put(IBAN, e.IBAN).put(BIC, e.BIC).put(Kontoinhaber1, e.Kontoinhaber1).put(Kontoinhaber2, e.Kontoinhaber2);
        w.check(kDBBV);
    });
}

void clsGenErst::GenDBNA(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBNA", [&](int& line) {
        line = 1;
        mlGen::AppendDBNA(out, e.Vorgang, false);
    });
}

void clsGenErst::GenDBAA(std::string& out, const Erst& e) {
    bool hasData = false;
    AppendContactBlock(out, "DBAA", {e.AnGeschl, e.AnName, e.AnTel, e.AnFax, e.AnEMail}, e.Vorgang.Arbeitgeber, hasData,
                       "clsGenErst.GenDBAA");
}

}  // namespace tamrel
