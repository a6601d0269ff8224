// The reimbursement blocks DBAU, DBBT, DBZU, DBBV, DBNA and DBAA.
#include "core/contact_block.h"
#include "core/host.h"
#include "core/shared_blocks.h"
#include "core/writer.h"
#include "reports/clsGenErst/clsGenErst.h"

namespace tamrel {
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
void head(Writer& w, std::string_view id, const Erst& e) {
    w.lit(id).n(digit(e.DBAAEntfaellt), 1).n(e.ZeitraumBeginn, 8).n(e.ZeitraumEnde, 8);
    w.n(digit(e.Ausgleichsart == 2), 1);
}

std::string_view bt_code(std::int32_t v) { return v == 2 ? "1" : v == 3 ? "2" : v == 4 ? "3" : "0"; }

}  // namespace

void clsGenErst::GenDBAU(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBAU", [&](int& line) {
        const Cascade pay = first_non_empty({&e.Entgelt1, &e.Entgelt2, &e.Entgelt3, &e.Entgelt4});
        const Cascade value = first_non_empty({&e.Wert1, &e.Wert2, &e.Wert3});
        Writer w(out, line);
        head(w, "DBAU", e);
        w.pb(pay.amount, 7, 2).n(pay.code, 1).jn(e.AngabeJN2).pb(value.amount, 3, 2).n(value.code, 1);
        w.pb(e.Satz1, 2, 2).pb(e.Satz2, 2, 2).pb(e.Betrag1, 7, 2).pb(e.Betrag2, 7, 2).pb(e.Betrag3, 3, 2);
        w.pb(e.Betrag6, 7, 2).n(e.MerkmalA == 1 ? "2" : e.MerkmalB == 1 ? "1" : "0", 1).jn(e.AngabeJN1);
        if (!e.Satz3.empty())
            w.pb(e.Satz3, 2, 2);
        else
            w.blank(4);
        w.n(e.Zusatzdatum, 8).pb(e.Betrag4, 7, 2).pb(e.Betrag5, 7, 2).blank(91);
        w.check(202, "DBAU");
    });
}

void clsGenErst::GenDBBT(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBBT", [&](int& line) {
        Writer w(out, line);
        head(w, "DBBT", e);
        if (!e.Zusatzdatum.empty())
            w.n(e.Zusatzdatum, 8);
        else
            w.blank(8);
        w.pb(e.Betrag1, 7, 2).pb(e.Betrag2, 7, 2).lit("10000").pb(e.Betrag6, 7, 2).n(bt_code(e.BTKennzeichen), 1);
        w.n(e.Abschlussdatum, 8).pb(e.Betrag4, 7, 2).pb(e.Betrag5, 7, 2).blank(91);
        w.check(180, "DBBT");
    });
}

void clsGenErst::GenDBZU(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBZU", [&](int& line) {
        Writer w(out, line);
        head(w, "DBZU", e);
        w.n(e.ZuschussBeginn, 8).n(e.ZuschussEnde, 8).pb(e.Entgelt4, 7, 2).pb(e.ZuschussBetrag1, 7, 2);
        w.pb(e.ZuschussBetrag2, 7, 2).pb(e.ZuschussBetrag3, 7, 2).pb(e.ZuschussBetrag4, 7, 2);
        w.n(e.Abschlussdatum, 8).blank(100);
        w.check(191, "DBZU");
    });
}

void clsGenErst::GenDBBV(std::string& out, const Erst& e) {
    routine("clsGenErst.GenDBBV", [&](int& line) {
        // Account number and bank code: numeric before 1 January 2014, text from then on.
        const bool text_fields = now() >= Date{2014, 1, 1};
        const Arbeitgeber& ag = e.Vorgang.Arbeitgeber;
        Writer w(out, line);
        w.lit("DBBV").n(e.Bankkennzeichen == 1 ? "2" : e.Bankkennzeichen == 2 ? "1" : "0", 1);
        w.n(e.BVZahl4, 4).n(e.BVZahl2, 2);
        if (text_fields)
            w.an(ag.Kontonummer, 10).an(ag.Bankleitzahl, 8);
        else
            w.n(ag.Kontonummer, 10).n(ag.Bankleitzahl, 8);
        w.an(e.IBAN, 34).an(e.BIC, 11).an(e.Kontoinhaber1, 50).an(e.Kontoinhaber2, 50);
        w.check(174, "DBBV");
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
