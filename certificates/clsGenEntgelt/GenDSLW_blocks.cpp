// The earnings certificate's blocks, each as its published layout table
// (an = text, n = digits and dates, pb = amounts and decimal numbers).
#include "certificates/clsGenEntgelt/DSLW_layout.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "core/contact_block.h"
#include "core/int16.h"
#include "core/list_loop.h"
#include "core/routine.h"
#include "core/shared_blocks.h"
#include "core/writer.h"

namespace tamrel::eel {

namespace L = layouts::eel;

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
    return write_block(out, "clsGenEntgelt.GenDBAL", L::kDBAL, [&](Writer& w) {
        w.put(L::DBAL::DATUMAB, b.DATUMAB)
            .put(L::DBAL::AEERSTTAG, b.AEERSTTAG)
            .put(L::DBAL::DATUMEZGBIS, b.DATUMEZGBIS)
            .put(L::DBAL::ENDEBVAM, b.ENDEBVAM)
            .put(L::DBAL::ENDEBVZUM, b.ENDEBVZUM);
        w.put(L::DBAL::GRUNDBEEND, b.GRUNDBEEND)
            .put(L::DBAL::PFLZUSCHLAG, b.PFLZUSCHLAG)
            .put(L::DBAL::ARBZEITMOD, b.ARBZEITMOD)
            .put(L::DBAL::MMKUG, b.MMKUG)
            .put(L::DBAL::KUGBEGINN, b.KUGBEGINN);
        w.put(L::DBAL::KUGENDE, b.KUGENDE)
            .put(L::DBAL::LAGBEGINN1, b.LAGBEGINN1)
            .put(L::DBAL::LAGENDE1, b.LAGENDE1)
            .put(L::DBAL::LAGBEGINN2, b.LAGBEGINN2)
            .put(L::DBAL::LAGENDE2, b.LAGENDE2);
    });
}

bool GenDBAE(std::string& out, const Entgelt& e) {
    const auto& b = e.DBAE;
    return write_block(out, "clsGenEntgelt.GenDBAE", L::kDBAE, [&](Writer& w) {
        w.put(L::DBAE::WAEHREELBRUTTO, b.WAEHREELBRUTTO)
            .put(L::DBAE::DATUMAEBIS, b.DATUMAEBIS)
            .put(L::DBAE::EAZBEGINN1, b.EAZBEGINN1)
            .put(L::DBAE::EAZENDE1, b.EAZENDE1)
            .put(L::DBAE::BRUTTO1, b.BRUTTO1);
        w.put(L::DBAE::NETTO1, b.NETTO1)
            .put(L::DBAE::UMGEWAE, b.UMGEWAE)
            .put(L::DBAE::ENTGART, b.ENTGART)
            .put(L::DBAE::BRUTTOAE, b.BRUTTOAE)
            .put(L::DBAE::NETTOAE, b.NETTOAE);
        w.put(L::DBAE::EAZBEGINN2, b.EAZBEGINN2)
            .put(L::DBAE::EAZENDE2, b.EAZENDE2)
            .put(L::DBAE::BRUTTO2, b.BRUTTO2)
            .put(L::DBAE::NETTO2, b.NETTO2)
            .put(L::DBAE::EAZBEGINN3, b.EAZBEGINN3);
        w.put(L::DBAE::EAZENDE3, b.EAZENDE3)
            .put(L::DBAE::BRUTTO3, b.BRUTTO3)
            .put(L::DBAE::NETTO3, b.NETTO3)
            .put(L::DBAE::EZKV, b.EZKV)
            .put(L::DBAE::EZRV, b.EZRV);
        w.put(L::DBAE::EZALV, b.EZALV);
    });
}

bool GenDBZA(std::string& out, const Entgelt& e) {
    const auto& b = e.DBZA;
    return write_block(out, "clsGenEntgelt.GenDBZA", L::kDBZA, [&](Writer& w) {
        w.put(L::DBZA::ANZAHLSTD, b.ANZAHLSTD)
            .put(L::DBZA::REGAZ, b.REGAZ)
            .put(L::DBZA::MAZR1, b.MAZR1)
            .put(L::DBZA::AZBEGINN2, b.AZBEGINN2)
            .put(L::DBZA::AZENDE2, b.AZENDE2);
        w.put(L::DBZA::MAZR2, b.MAZR2)
            .put(L::DBZA::AZBEGINN3, b.AZBEGINN3)
            .put(L::DBZA::AZENDE3, b.AZENDE3)
            .put(L::DBZA::MAZR3, b.MAZR3);
    });
}

bool GenDBEE(std::string& out, const Entgelt& e) {
    const auto& b = e.DBEE;
    return write_block(out, "clsGenEntgelt.GenDBEE", L::kDBEE, [&](Writer& w) {
        w.put(L::DBEE::EELABAG, b.EELABAG)
            .put(L::DBEE::EELABSV, b.EELABSV)
            .put(L::DBEE::EELENDE, b.EELENDE)
            .put(L::DBEE::EELENDEGRUND, b.EELENDEGRUND);
    });
}

bool GenDBAW(std::string& out, const Entgelt& e) {
    const auto& b = e.DBAW;
    return write_block(out, "clsGenEntgelt.GenDBAW", L::kDBAW, [&](Writer& w) {
        w.put(L::DBAW::TAGE1, b.TAGE1).put(L::DBAW::TAGE2, b.TAGE2).put(L::DBAW::TAGE3, b.TAGE3);
    });
}

bool GenDBFR(std::string& out, const Entgelt& e) {
    const auto& b = e.DBFR;
    return write_block(out, "clsGenEntgelt.GenDBFR", L::kDBFR, [&](Writer& w) {
        w.put(L::DBFR::ENDEBVZUM, b.ENDEBVZUM)
            .put(L::DBFR::FREISTVOM, b.FREISTVOM)
            .put(L::DBFR::FREISTBIS, b.FREISTBIS)
            .put(L::DBFR::VAEERSTTAG, b.VAEERSTTAG)
            .put(L::DBFR::TAGE, b.TAGE);
        w.put(L::DBFR::KEINEFREIST, b.KEINEFREIST)
            .put(L::DBFR::BEGRZFREIST, b.BEGRZFREIST)
            .put(L::DBFR::BEZFREISTVOM, b.BEZFREISTVOM)
            .put(L::DBFR::BEZFREISTBIS, b.BEZFREISTBIS);
        w.put(L::DBFR::BEZFREISTJAHR, b.BEZFREISTJAHR)
            .put(L::DBFR::FREISTBRUTTO, b.FREISTBRUTTO)
            .put(L::DBFR::FREISTNETTO, b.FREISTNETTO)
            .put(L::DBFR::FREISTEZ, b.FREISTEZ);
    });
}

bool GenDBUN(std::string& out, const Entgelt& e) {
    const auto& b = e.DBUN;
    return write_block(out, "clsGenEntgelt.GenDBUN", L::kDBUN, [&](Writer& w) {
        w.put(L::DBUN::UNFALLAZ, b.UNFALLAZ)
            .put(L::DBUN::VTAG, b.VTAG)
            .put(L::DBUN::IKUV, b.IKUV)
            .put(L::DBUN::ZUSCHL1, b.ZUSCHL1)
            .put(L::DBUN::ZUSCHL2, b.ZUSCHL2);
        w.put(L::DBUN::ZUSCHL3, b.ZUSCHL3).put(L::DBUN::FREISTZUSCHL, b.FREISTZUSCHL).put(L::DBUN::EZUV, b.EZUV);
    });
}

bool GenDBMU(std::string& out, const Entgelt& e) {
    const auto& b = e.DBMU;
    return write_block(out, "clsGenEntgelt.GenDBMU", L::kDBMU, [&](Writer& w) {
        w.put(L::DBMU::SCHUTZFRBEGINN, b.SCHUTZFRBEGINN)
            .put(L::DBMU::BVBEGINN, b.BVBEGINN)
            .put(L::DBMU::LETZTTAG, b.LETZTTAG)
            .put(L::DBMU::ENDEBVAM, b.ENDEBVAM)
            .put(L::DBMU::ENDEBVZUM, b.ENDEBVZUM);
        w.put(L::DBMU::BVGEKUEND, b.BVGEKUEND)
            .put(L::DBMU::WAEHREELNETTO, b.WAEHREELNETTO)
            .put(L::DBMU::DATUMAEBIS, b.DATUMAEBIS)
            .put(L::DBMU::FEHLZEIT, b.FEHLZEIT)
            .put(L::DBMU::AEUEBER, b.AEUEBER);
        w.put(L::DBMU::ENTGART, b.ENTGART);
        w.put(L::DBMU::BEGINN1, b.BEGINN1)
            .put(L::DBMU::ENDE1, b.ENDE1)
            .put(L::DBMU::BEZAZ1, b.BEZAZ1)
            .put(L::DBMU::MASTD1, b.MASTD1)
            .put(L::DBMU::AZUNENTSTD1, b.AZUNENTSTD1);
        w.put(L::DBMU::AZUNENTTAGE1, b.AZUNENTTAGE1)
            .put(L::DBMU::AZENTSCHSTD1, b.AZENTSCHSTD1)
            .put(L::DBMU::AZENTSCHTAGE1, b.AZENTSCHTAGE1)
            .put(L::DBMU::NETTO1, b.NETTO1);
        w.put(L::DBMU::BEGINN2, b.BEGINN2)
            .put(L::DBMU::ENDE2, b.ENDE2)
            .put(L::DBMU::BEZAZ2, b.BEZAZ2)
            .put(L::DBMU::MASTD2, b.MASTD2)
            .put(L::DBMU::AZUNENTSTD2, b.AZUNENTSTD2);
        w.put(L::DBMU::AZUNENTTAGE2, b.AZUNENTTAGE2)
            .put(L::DBMU::AZENTSCHSTD2, b.AZENTSCHSTD2)
            .put(L::DBMU::AZENTSCHTAGE2, b.AZENTSCHTAGE2)
            .put(L::DBMU::NETTO2, b.NETTO2);
        w.put(L::DBMU::BEGINN3, b.BEGINN3)
            .put(L::DBMU::ENDE3, b.ENDE3)
            .put(L::DBMU::BEZAZ3, b.BEZAZ3)
            .put(L::DBMU::MASTD3, b.MASTD3)
            .put(L::DBMU::AZUNENTSTD3, b.AZUNENTSTD3);
        w.put(L::DBMU::AZUNENTTAGE3, b.AZUNENTTAGE3)
            .put(L::DBMU::AZENTSCHSTD3, b.AZENTSCHSTD3)
            .put(L::DBMU::AZENTSCHTAGE3, b.AZENTSCHTAGE3)
            .put(L::DBMU::NETTO3, b.NETTO3);
        w.put(L::DBMU::AZWOECH, b.AZWOECH);
    });
}

bool GenDBVO(std::string& out, const Entgelt& e) {
    const auto& b = e.DBVO;
    return routine("clsGenEntgelt.GenDBVO", [&](int& line) {
        if (b.Vorerkrankungen.size() > 32767) raise_overflow();
        const auto count = static_cast<std::int16_t>(b.Vorerkrankungen.size());
        bool filled = false;
        Writer w(out, line, filled);
        using namespace L::DBVO;
        w.put(Kennung).put(GRUNDAV, b.GRUNDAV).put(AUABAG, b.AUABAG).put(AUABSV, b.AUABSV).put(KZAKAU, b.KZAKAU);
        w.put(AnzahlVorerkrankungen, count);
        list_loop(line, 8, 1, count, [&](std::int16_t k) {
            using namespace L::DBVOEntry;
            const Vorerkrankung& i = b.Vorerkrankungen[static_cast<std::size_t>(k - 1)];
            w.entry();
            w.put(BEGINNAU, i.BEGINNAU).put(ENDEAU, i.ENDEAU).put(KZNACHWEIS, i.KZNACHWEIS);
            w.put(TEILNACHWEISAUBEGINN, i.TEILNACHWEISAUBEGINN).put(TEILNACHWEISAUENDE, i.TEILNACHWEISAUENDE);
            w.put(KZAU, i.KZAU).put(TEILANRAUBEGINN, i.TEILANRAUBEGINN).put(TEILANRAUENDE, i.TEILANRAUENDE);
        });
        w.check([&] { return add16(L::kDBVO.length, mul16(L::kDBVOEntry.length, count)); }, L::kDBVO.id);
        return filled;
    });
}

bool GenDBHE(std::string& out, const Entgelt& e) {
    const auto& b = e.DBHE;
    return write_block(out, "clsGenEntgelt.GenDBHE", L::kDBHE, [&](Writer& w) {
        w.put(L::DBHE::ZAHLBEGINN, b.ZAHLBEGINN)
            .put(L::DBHE::EELBRUTTO, b.EELBRUTTO)
            .put(L::DBHE::EELNETTO, b.EELNETTO);
    });
}

bool GenDBBE(std::string& out, const Entgelt& e) {
    const auto& b = e.DBBE;
    return write_block(out, "clsGenEntgelt.GenDBBE", L::kDBBE, [&](Writer& w) {
        w.put(L::DBBE::ZAHLBEGINN, b.ZAHLBEGINN)
            .put(L::DBBE::BEITRPFLBRUTTO, b.BEITRPFLBRUTTO)
            .put(L::DBBE::BEITRPFLNETTO, b.BEITRPFLNETTO);
    });
}

bool GenDBLT(std::string& out, const Entgelt& e) {
    const auto& b = e.DBLT;
    return write_block(out, "clsGenEntgelt.GenDBLT", L::kDBLT, [&](Writer& w) {
        w.put(L::DBLT::BVSEIT, b.BVSEIT)
            .put(L::DBLT::BVBIS, b.BVBIS)
            .put(L::DBLT::BVALS, b.BVALS)
            .put(L::DBLT::AUSBVERH, b.AUSBVERH)
            .put(L::DBLT::VORER, b.VORER)
            .put(L::DBLT::VWL, b.VWL);
        w.put(L::DBLT::BRUTTOSB, b.BRUTTOSB)
            .put(L::DBLT::NETTOSB, b.NETTOSB)
            .put(L::DBLT::MMVERZICHTBEITRAGSFREI, b.MMVERZICHTBEITRAGSFREI)
            .put(L::DBLT::AEUEBERGANGSBEREICH, b.AEUEBERGANGSBEREICH);
        w.put(L::DBLT::RECHTSKREIS, b.RECHTSKREIS);
    });
}

bool GenDBSF(std::string& out, const Entgelt& e) {
    const auto& b = e.DBSF;
    return write_block(out, "clsGenEntgelt.GenDBSF", L::kDBSF, [&](Writer& w) {
        w.put(L::DBSF::AUBORD, b.AUBORD)
            .put(L::DBSF::AUINLAND, b.AUINLAND)
            .put(L::DBSF::UANSPRUCH, b.UANSPRUCH)
            .put(L::DBSF::VERLAENGVON, b.VERLAENGVON)
            .put(L::DBSF::VERLAENGBIS, b.VERLAENGBIS);
        w.put(L::DBSF::KZDHEU, b.KZDHEU).put(L::DBSF::DHEU, b.DHEU).put(L::DBSF::HEUNETTO, b.HEUNETTO);
    });
}

bool GenDBTK(std::string& out, const Entgelt& e) {
    const auto& b = e.DBTK;
    return write_block(out, "clsGenEntgelt.GenDBTK", L::kDBTK, [&](Writer& w) {
        w.put(L::DBTK::BRUTTOSOLL, b.BRUTTOSOLL)
            .put(L::DBTK::NETTOSOLL, b.NETTOSOLL)
            .put(L::DBTK::TRANSFERKUG, b.TRANSFERKUG)
            .put(L::DBTK::BRUTTOIST, b.BRUTTOIST);
        w.put(L::DBTK::NETTOIST, b.NETTOIST).put(L::DBTK::AUFSTOCKUNGSBETRAG, b.AUFSTOCKUNGSBETRAG);
    });
}

bool GenDBAP(std::string& out, const Entgelt& e) {
    bool hasData = false;
    AppendContactBlock(out, "DBAP", e, e.Vorgang.Arbeitgeber, hasData, "clsGenEntgelt.GenDBAP");
    return hasData;
}

bool GenDBID(std::string& out, const Entgelt& e) {
    return write_block(out, "clsGenEntgelt.GenDBID", L::kDBID, [&](Writer& w) {
        w.put(L::DBID::AZSV, e.AZSV).put(L::DBID::Aktenzeichen, e.Vorgang.Aktenzeichen);
    });
}

}  // namespace tamrel::eel
