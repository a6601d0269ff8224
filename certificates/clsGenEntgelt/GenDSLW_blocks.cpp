// The earnings certificate's blocks, each as its published layout table
// (an = text, n = digits and dates, pb = amounts and decimal numbers).
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "core/contact_block.h"
#include "core/int16.h"
#include "core/list_loop.h"
#include "core/routine.h"
#include "core/shared_blocks.h"
#include "core/writer.h"

namespace tamrel::eel {
bool GenDBNA(std::string& out, const Entgelt& e) {
    mlGen::AppendNameBlock(out, mlGen::NameView(e.Vorgang), e.KENNZAB, "clsGenEntgelt.GenDBNA");
    return true;
}

bool GenDBAN(std::string& out, const Entgelt& e) {
    bool filled = false;
    mlGen::AppendAddressBlock(out, e.Vorgang, true, filled, "clsGenEntgelt.GenDBAN");
    return filled;
}

bool GenDBAL(std::string& out, const Entgelt& e) {
    const auto& b = e.DBAL;
    return write_block(out, "clsGenEntgelt.GenDBAL", 90, "DBAL", [&](Writer& w) {
        w.n(b.DATUMAB, 8).an(b.AEERSTTAG, 1).n(b.DATUMEZGBIS, 8).n(b.ENDEBVAM, 8).n(b.ENDEBVZUM, 8);
        w.n(b.GRUNDBEEND, 2).an(b.PFLZUSCHLAG, 1).an(b.ARBZEITMOD, 1).n(b.MMKUG, 1).n(b.KUGBEGINN, 8);
        w.n(b.KUGENDE, 8).n(b.LAGBEGINN1, 8).n(b.LAGENDE1, 8).n(b.LAGBEGINN2, 8).n(b.LAGENDE2, 8);
    });
}

bool GenDBAE(std::string& out, const Entgelt& e) {
    const auto& b = e.DBAE;
    return write_block(out, "clsGenEntgelt.GenDBAE", 165, "DBAE", [&](Writer& w) {
        w.pb(b.WAEHREELBRUTTO, 6, 2).n(b.DATUMAEBIS, 8).n(b.EAZBEGINN1, 8).n(b.EAZENDE1, 8).pb(b.BRUTTO1, 6, 2);
        w.pb(b.NETTO1, 6, 2).pb(b.UMGEWAE, 6, 2).n(b.ENTGART, 1).pb(b.BRUTTOAE, 6, 2).pb(b.NETTOAE, 6, 2);
        w.n(b.EAZBEGINN2, 8).n(b.EAZENDE2, 8).pb(b.BRUTTO2, 6, 2).pb(b.NETTO2, 6, 2).n(b.EAZBEGINN3, 8);
        w.n(b.EAZENDE3, 8).pb(b.BRUTTO3, 6, 2).pb(b.NETTO3, 6, 2).pb(b.EZKV, 6, 2).pb(b.EZRV, 6, 2);
        w.pb(b.EZALV, 6, 2);
    });
}

bool GenDBZA(std::string& out, const Entgelt& e) {
    const auto& b = e.DBZA;
    return write_block(out, "clsGenEntgelt.GenDBZA", 60, "DBZA", [&](Writer& w) {
        w.pb(b.ANZAHLSTD, 3, 2).pb(b.REGAZ, 2, 2).pb(b.MAZR1, 3, 2).n(b.AZBEGINN2, 8).n(b.AZENDE2, 8);
        w.pb(b.MAZR2, 3, 2).n(b.AZBEGINN3, 8).n(b.AZENDE3, 8).pb(b.MAZR3, 3, 2);
    });
}

bool GenDBEE(std::string& out, const Entgelt& e) {
    const auto& b = e.DBEE;
    return write_block(out, "clsGenEntgelt.GenDBEE", 30, "DBEE",
                       [&](Writer& w) { w.n(b.EELABAG, 8).n(b.EELABSV, 8).n(b.EELENDE, 8).n(b.EELENDEGRUND, 2); });
}

bool GenDBAW(std::string& out, const Entgelt& e) {
    const auto& b = e.DBAW;
    return write_block(out, "clsGenEntgelt.GenDBAW", 10, "DBAW",
                       [&](Writer& w) { w.n(b.TAGE1, 2).n(b.TAGE2, 2).n(b.TAGE3, 2); });
}

bool GenDBFR(std::string& out, const Entgelt& e) {
    const auto& b = e.DBFR;
    return write_block(out, "clsGenEntgelt.GenDBFR", 69, "DBFR", [&](Writer& w) {
        w.n(b.ENDEBVZUM, 8).n(b.FREISTVOM, 8).n(b.FREISTBIS, 8).an(b.VAEERSTTAG, 1).n(b.TAGE, 2);
        w.n(b.KEINEFREIST, 1).n(b.BEGRZFREIST, 2).n(b.BEZFREISTVOM, 8).n(b.BEZFREISTBIS, 8);
        w.n(b.BEZFREISTJAHR, 2).pb(b.FREISTBRUTTO, 6, 2).pb(b.FREISTNETTO, 6, 2).an(b.FREISTEZ, 1);
    });
}

bool GenDBUN(std::string& out, const Entgelt& e) {
    const auto& b = e.DBUN;
    return write_block(out, "clsGenEntgelt.GenDBUN", 87, "DBUN", [&](Writer& w) {
        w.an(b.UNFALLAZ, 20).n(b.VTAG, 8).an(b.IKUV, 15).pb(b.ZUSCHL1, 6, 2).pb(b.ZUSCHL2, 6, 2);
        w.pb(b.ZUSCHL3, 6, 2).pb(b.FREISTZUSCHL, 6, 2).pb(b.EZUV, 6, 2);
    });
}

bool GenDBMU(std::string& out, const Entgelt& e) {
    const auto& b = e.DBMU;
    return write_block(out, "clsGenEntgelt.GenDBMU", 214, "DBMU", [&](Writer& w) {
        w.n(b.SCHUTZFRBEGINN, 8).n(b.BVBEGINN, 8).n(b.LETZTTAG, 8).n(b.ENDEBVAM, 8).n(b.ENDEBVZUM, 8);
        w.n(b.BVGEKUEND, 2).pb(b.WAEHREELNETTO, 6, 2).n(b.DATUMAEBIS, 8).n(b.FEHLZEIT, 2).an(b.AEUEBER, 1);
        w.n(b.ENTGART, 1);
        w.n(b.BEGINN1, 8).n(b.ENDE1, 8).pb(b.BEZAZ1, 3, 2).pb(b.MASTD1, 3, 2).pb(b.AZUNENTSTD1, 3, 2);
        w.n(b.AZUNENTTAGE1, 2).pb(b.AZENTSCHSTD1, 3, 2).n(b.AZENTSCHTAGE1, 2).pb(b.NETTO1, 6, 2);
        w.n(b.BEGINN2, 8).n(b.ENDE2, 8).pb(b.BEZAZ2, 3, 2).pb(b.MASTD2, 3, 2).pb(b.AZUNENTSTD2, 3, 2);
        w.n(b.AZUNENTTAGE2, 2).pb(b.AZENTSCHSTD2, 3, 2).n(b.AZENTSCHTAGE2, 2).pb(b.NETTO2, 6, 2);
        w.n(b.BEGINN3, 8).n(b.ENDE3, 8).pb(b.BEZAZ3, 3, 2).pb(b.MASTD3, 3, 2).pb(b.AZUNENTSTD3, 3, 2);
        w.n(b.AZUNENTTAGE3, 2).pb(b.AZENTSCHSTD3, 3, 2).n(b.AZENTSCHTAGE3, 2).pb(b.NETTO3, 6, 2);
        w.pb(b.AZWOECH, 2, 2);
    });
}

bool GenDBVO(std::string& out, const Entgelt& e) {
    const auto& b = e.DBVO;
    return routine("clsGenEntgelt.GenDBVO", [&](int& line) {
        if (b.Vorerkrankungen.size() > 32767) raise_overflow();
        const auto count = static_cast<std::int16_t>(b.Vorerkrankungen.size());
        bool filled = false;
        Writer w(out, line, filled);
        w.lit("DBVO").n(b.GRUNDAV, 1).n(b.AUABAG, 8).n(b.AUABSV, 8).n(b.KZAKAU, 1).n(count, 2);
        list_loop(line, 8, 1, count, [&](std::int16_t k) {
            const Vorerkrankung& i = b.Vorerkrankungen[static_cast<std::size_t>(k - 1)];
            w.n(i.BEGINNAU, 8).n(i.ENDEAU, 8).n(i.KZNACHWEIS, 1).n(i.TEILNACHWEISAUBEGINN, 8);
            w.n(i.TEILNACHWEISAUENDE, 8).n(i.KZAU, 1).n(i.TEILANRAUBEGINN, 8).n(i.TEILANRAUENDE, 8);
        });
        w.check([&] { return add16(24, mul16(50, count)); }, "DBVO");
        return filled;
    });
}

bool GenDBHE(std::string& out, const Entgelt& e) {
    const auto& b = e.DBHE;
    return write_block(out, "clsGenEntgelt.GenDBHE", 28, "DBHE",
                       [&](Writer& w) { w.n(b.ZAHLBEGINN, 8).pb(b.EELBRUTTO, 6, 2).pb(b.EELNETTO, 6, 2); });
}

bool GenDBBE(std::string& out, const Entgelt& e) {
    const auto& b = e.DBBE;
    return write_block(out, "clsGenEntgelt.GenDBBE", 28, "DBBE",
                       [&](Writer& w) { w.n(b.ZAHLBEGINN, 8).pb(b.BEITRPFLBRUTTO, 6, 2).pb(b.BEITRPFLNETTO, 6, 2); });
}

bool GenDBLT(std::string& out, const Entgelt& e) {
    const auto& b = e.DBLT;
    return write_block(out, "clsGenEntgelt.GenDBLT", 77, "DBLT", [&](Writer& w) {
        w.n(b.BVSEIT, 8).n(b.BVBIS, 8).an(b.BVALS, 30).an(b.AUSBVERH, 1).an(b.VORER, 1).pb(b.VWL, 4, 2);
        w.pb(b.BRUTTOSB, 6, 2).pb(b.NETTOSB, 6, 2).an(b.MMVERZICHTBEITRAGSFREI, 1).an(b.AEUEBERGANGSBEREICH, 1);
        w.an(b.RECHTSKREIS, 1);
    });
}

bool GenDBSF(std::string& out, const Entgelt& e) {
    const auto& b = e.DBSF;
    return write_block(out, "clsGenEntgelt.GenDBSF", 58, "DBSF", [&](Writer& w) {
        w.n(b.AUBORD, 8).n(b.AUINLAND, 8).n(b.UANSPRUCH, 2).n(b.VERLAENGVON, 8).n(b.VERLAENGBIS, 8);
        w.n(b.KZDHEU, 4).pb(b.DHEU, 6, 2).pb(b.HEUNETTO, 6, 2);
    });
}

bool GenDBTK(std::string& out, const Entgelt& e) {
    const auto& b = e.DBTK;
    return write_block(out, "clsGenEntgelt.GenDBTK", 52, "DBTK", [&](Writer& w) {
        w.pb(b.BRUTTOSOLL, 6, 2).pb(b.NETTOSOLL, 6, 2).pb(b.TRANSFERKUG, 6, 2).pb(b.BRUTTOIST, 6, 2);
        w.pb(b.NETTOIST, 6, 2).pb(b.AUFSTOCKUNGSBETRAG, 6, 2);
    });
}

bool GenDBAP(std::string& out, const Entgelt& e) {
    bool hasData = false;
    AppendContactBlock(out, "DBAP", e, e.Vorgang.Arbeitgeber, hasData, "clsGenEntgelt.GenDBAP");
    return hasData;
}

bool GenDBID(std::string& out, const Entgelt& e) {
    return write_block(out, "clsGenEntgelt.GenDBID", 44, "DBID",
                       [&](Writer& w) { w.an(e.AZSV, 20).an(e.Vorgang.Aktenzeichen, 20); });
}

}  // namespace tamrel::eel
