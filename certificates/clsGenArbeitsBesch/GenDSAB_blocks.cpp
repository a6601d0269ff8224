// The employment certificate's blocks, each as its published layout table
// (an = text, n = digits, pb = amounts and decimal numbers, dates as n 8).
#include "certificates/clsGenArbeitsBesch/DSAB_layout.h"
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "core/routine.h"
#include "core/shared_blocks.h"
#include "core/writer.h"

namespace tamrel::bea {

namespace L = layouts::bea;

// The class's own name and address blocks: the shared layouts, with the
// change marker of the object and the country code written as given.
bool GenDBNA(std::string& out, const ArbeitsBesch& a) {
    mlGen::AppendNameBlock(out, mlGen::NameView(a.Vorgang), a.KENNZAB, "clsGenArbeitsBesch.GenDBNA");
    return true;
}

bool GenDBAN(std::string& out, const ArbeitsBesch& a) {
    bool filled = false;
    mlGen::AppendAddressBlock(out, a.Vorgang, false, filled, "clsGenArbeitsBesch.GenDBAN");
    return filled;
}

bool GenDBAG(std::string& out, const ArbeitsBesch& a) {
    const Arbeitgeber& ag = a.Vorgang.Arbeitgeber;
    const auto& b = a.DBAG;
    return write_block(out, "clsGenArbeitsBesch.GenDBAG", L::kDBAG, [&](Writer& w) {
        w.put(L::DBAG::Name1, ag.Name1)
            .put(L::DBAG::Name2, ag.Name2)
            .put(L::DBAG::Name3, ag.Name3)
            .put(L::DBAG::Land, ag.Land)
            .put(L::DBAG::PLZ, ag.PLZ)
            .put(L::DBAG::Ort, ag.Ort);
        w.put(L::DBAG::Strasse, ag.Strasse)
            .put(L::DBAG::Hausnummer, ag.Hausnummer)
            .put(L::DBAG::Adresszusatz, ag.Adresszusatz)
            .put(L::DBAG::AGAPE, b.AGAPE)
            .put(L::DBAG::AGAPP, b.AGAPP);
        w.put(L::DBAG::AGTELE, b.AGTELE)
            .put(L::DBAG::AGTELP, b.AGTELP)
            .put(L::DBAG::AGEMAILE, b.AGEMAILE)
            .put(L::DBAG::AGEMAILP, b.AGEMAILP);
    });
}

bool GenDBAB(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBAB;
    return write_block(out, "clsGenArbeitsBesch.GenDBAB", L::kDBAB, [&](Writer& w) {
        w.put(L::DBAB::BORTLDKZ, b.BORTLDKZ).put(L::DBAB::BPLZ, b.BPLZ).put(L::DBAB::BORT, b.BORT);
    });
}

bool GenDBSE(std::string& out, const DBSE& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBSE", L::kDBSE, [&](Writer& w) {
        w.put(L::DBSE::STKL, i.STKL)
            .put(L::DBSE::FKT, i.FKT)
            .put(L::DBSE::KINDFRB, i.KINDFRB)
            .put(L::DBSE::AESTEDATBEG, i.AESTEDATBEG);
    });
}

bool GenDBNE(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBNE;
    return write_block(out, "clsGenArbeitsBesch.GenDBNE", L::kDBNE, [&](Writer& w) {
        w.put(L::DBNE::AVEND, b.AVEND)
            .put(L::DBNE::MONATBEG, b.MONATBEG)
            .put(L::DBNE::MONATEND, b.MONATEND)
            .put(L::DBNE::Reserve)
            .put(L::DBNE::SVBREGLF, b.SVBREGLF)
            .put(L::DBNE::SVBREGE, b.SVBREGE);
        w.put(L::DBNE::SVBREGEBEG, b.SVBREGEBEG)
            .put(L::DBNE::SVBREGEEND, b.SVBREGEEND)
            .put(L::DBNE::NETTOLFD, b.NETTOLFD)
            .put(L::DBNE::NETTOEINMAL, b.NETTOEINMAL)
            .put(L::DBNE::AZWOECH, b.AZWOECH);
        w.put(L::DBNE::TTAUFENT, b.TTAUFENT).put(L::DBNE::BVUNFORT, b.BVUNFORT).put(L::DBNE::BVUNFORTU, b.BVUNFORTU);
    });
}

bool GenDBSA(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBSA;
    return write_block(out, "clsGenArbeitsBesch.GenDBSA", L::kDBSA, [&](Writer& w) {
        w.put(L::DBSA::BYGRA, b.BYGRA)
            .put(L::DBSA::PERSGRA, b.PERSGRA)
            .put(L::DBSA::KNAPPRV, b.KNAPPRV)
            .put(L::DBSA::KNAPPRVBEG, b.KNAPPRVBEG)
            .put(L::DBSA::TTSC, b.TTSC);
    });
}

bool GenDBSB(std::string& out, const DBSB& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBSB", L::kDBSB, [&](Writer& w) {
        w.put(L::DBSB::PERSBYGRBEG, i.PERSBYGRBEG).put(L::DBSB::BYGRB, i.BYGRB).put(L::DBSB::PERSGRB, i.PERSGRB);
    });
}

bool GenDBAZ(std::string& out, const DBAZ& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBAZ", L::kDBAZ, [&](Writer& w) {
        w.put(L::DBAZ::AZWOECH, i.AZWOECH)
            .put(L::DBAZ::AZVG, i.AZVG)
            .put(L::DBAZ::AZAEGR, i.AZAEGR)
            .put(L::DBAZ::AZAEBEG, i.AZAEBEG);
    });
}

bool GenDBEN(std::string& out, const DBEN& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBEN", L::kDBEN, [&](Writer& w) {
        w.put(L::DBEN::MONATBEG, i.MONATBEG)
            .put(L::DBEN::MONATEND, i.MONATEND)
            .put(L::DBEN::Reserve1)
            .put(L::DBEN::KENNZRK, i.KENNZRK)
            .put(L::DBEN::Reserve2)
            .put(L::DBEN::SVBREGLF, i.SVBREGLF);
        w.put(L::DBEN::SVBREGE, i.SVBREGE)
            .put(L::DBEN::FIBR, i.FIBR)
            .put(L::DBEN::Reserve3)
            .put(L::DBEN::TATSURLTAGE, i.TATSURLTAGE)
            .put(L::DBEN::URLEG, i.URLEG)
            .put(L::DBEN::URLEGGEZ, i.URLEGGEZ);
        w.put(L::DBEN::MIA, i.MIA).put(L::DBEN::MIABEG, i.MIABEG).put(L::DBEN::MIAEND, i.MIAEND);
    });
}

bool GenDBEZ(std::string& out, const DBEZ& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBEZ", L::kDBEZ, [&](Writer& w) {
        w.put(L::DBEZ::AZWOECH, i.AZWOECH)
            .put(L::DBEZ::AZAEGR, i.AZAEGR)
            .put(L::DBEZ::AZAEBEG, i.AZAEBEG)
            .put(L::DBEZ::AZDUWOECH, i.AZDUWOECH)
            .put(L::DBEZ::ATDUWOE, i.ATDUWOE);
    });
}

bool GenDBEE(std::string& out, const DBEE& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBEE", L::kDBEE, [&](Writer& w) {
        w.put(L::DBEE::MONATBEGEU, i.MONATBEGEU)
            .put(L::DBEE::MONATENDEU, i.MONATENDEU)
            .put(L::DBEE::Reserve1)
            .put(L::DBEE::STBREGLFEU, i.STBREGLFEU)
            .put(L::DBEE::STBREGSOEU, i.STBREGSOEU)
            .put(L::DBEE::Reserve2);
    });
}

bool GenDBFZ(std::string& out, const DBFZ& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBFZ", L::kDBFZ, [&](Writer& w) {
        w.put(L::DBFZ::FEHLBEG, i.FEHLBEG).put(L::DBFZ::FEHLART, i.FEHLART).put(L::DBFZ::FEHLEND, i.FEHLEND);
    });
}

bool GenDBHA(std::string& out, const ArbeitsBesch& a) {
    return write_block(out, "clsGenArbeitsBesch.GenDBHA", L::kDBHA,
                       [&](Writer& w) { w.put(L::DBHA::URLTAGE, a.DBHA.URLTAGE); });
}

bool GenDBKE(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBKE;
    return write_block(out, "clsGenArbeitsBesch.GenDBKE", L::kDBKE, [&](Writer& w) {
        w.put(L::DBKE::AVEND, b.AVEND)
            .put(L::DBKE::BVEND, b.BVEND)
            .put(L::DBKE::AVBFR, b.AVBFR)
            .put(L::DBKE::AVBFSCHR, b.AVBFSCHR)
            .put(L::DBKE::AVBFURSP, b.AVBFURSP)
            .put(L::DBKE::AVBFABSCHL, b.AVBFABSCHL);
        w.put(L::DBKE::VLBAV, b.VLBAV)
            .put(L::DBKE::AVBFABVL, b.AVBFABVL)
            .put(L::DBKE::AVBFRL, b.AVBFRL)
            .put(L::DBKE::AVKUEAM, b.AVKUEAM)
            .put(L::DBKE::AVUWFWZ, b.AVUWFWZ)
            .put(L::DBKE::AVUWFWZBEG, b.AVUWFWZBEG);
        w.put(L::DBKE::AVLETZTRL, b.AVLETZTRL)
            .put(L::DBKE::AVKUEDU, b.AVKUEDU)
            .put(L::DBKE::AVKUESCH, b.AVKUESCH)
            .put(L::DBKE::AVKUEBETR, b.AVKUEBETR)
            .put(L::DBKE::AVKUESCHUKL, b.AVKUESCHUKL);
        w.put(L::DBKE::AVKUEZUST, b.AVKUEZUST)
            .put(L::DBKE::AVKUEAL, b.AVKUEAL)
            .put(L::DBKE::AVKUEALAM, b.AVKUEALAM)
            .put(L::DBKE::AVAMDAT, b.AVAMDAT)
            .put(L::DBKE::AVKUEZVB, b.AVKUEZVB)
            .put(L::DBKE::SAW, b.SAW);
        w.put(L::DBKE::SAWPRSC, b.SAWPRSC)
            .put(L::DBKE::AGKUEAM, b.AGKUEAM)
            .put(L::DBKE::AGKUEZU, b.AGKUEZU)
            .put(L::DBKE::KF, b.KF)
            .put(L::DBKE::KFZE, b.KFZE)
            .put(L::DBKE::KFBZ, b.KFBZ)
            .put(L::DBKE::KA, b.KA);
        w.put(L::DBKE::KAU, b.KAU)
            .put(L::DBKE::KAUAUG, b.KAUAUG)
            .put(L::DBKE::OKGL, b.OKGL)
            .put(L::DBKE::OKGLFG, b.OKGLFG)
            .put(L::DBKE::AVENLZ, b.AVENLZ)
            .put(L::DBKE::AVENLZG, b.AVENLZG)
            .put(L::DBKE::ABF, b.ABF);
        w.put(L::DBKE::ABFHOE, b.ABFHOE)
            .put(L::DBKE::BETZU, b.BETZU)
            .put(L::DBKE::BVEGEN, b.BVEGEN)
            .put(L::DBKE::BVEGENB, b.BVEGENB)
            .put(L::DBKE::AVENUAG, b.AVENUAG)
            .put(L::DBKE::BVENUR, b.BVENUR);
        w.put(L::DBKE::AVENVL, b.AVENVL)
            .put(L::DBKE::AVENVGB, b.AVENVGB)
            .put(L::DBKE::AVENVG, b.AVENVG)
            .put(L::DBKE::ABFMONAT, b.ABFMONAT)
            .put(L::DBKE::ABFGEZ, b.ABFGEZ)
            .put(L::DBKE::BFHG, b.BFHG);
    });
}

bool GenDBKU(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBKU;
    return write_block(out, "clsGenArbeitsBesch.GenDBKU", L::kDBKU, [&](Writer& w) {
        w.put(L::DBKU::AVEND, b.AVEND)
            .put(L::DBKU::BVEND, b.BVEND)
            .put(L::DBKU::AVBFR, b.AVBFR)
            .put(L::DBKU::AVBFURSPR, b.AVBFURSPR)
            .put(L::DBKU::AVUWFWZ, b.AVUWFWZ)
            .put(L::DBKU::AVUWFWZBEG, b.AVUWFWZBEG);
        w.put(L::DBKU::AVKUEAM, b.AVKUEAM)
            .put(L::DBKU::AVKUEDU, b.AVKUEDU)
            .put(L::DBKU::AVKUEBETR, b.AVKUEBETR)
            .put(L::DBKU::AVKUESCHUKL, b.AVKUESCHUKL)
            .put(L::DBKU::AVKUEAL, b.AVKUEAL);
        w.put(L::DBKU::AVENLZ, b.AVENLZ)
            .put(L::DBKU::AVENLZG, b.AVENLZG)
            .put(L::DBKU::ABF, b.ABF)
            .put(L::DBKU::ABFHOE, b.ABFHOE)
            .put(L::DBKU::BETZU, b.BETZU)
            .put(L::DBKU::BVEGEN, b.BVEGEN);
        w.put(L::DBKU::BVEGENB, b.BVEGENB)
            .put(L::DBKU::AVENUAG, b.AVENUAG)
            .put(L::DBKU::URLTAGEAV, b.URLTAGEAV)
            .put(L::DBKU::AVENUR, b.AVENUR)
            .put(L::DBKU::UAGHOE, b.UAGHOE)
            .put(L::DBKU::AVVERZ, b.AVVERZ);
        w.put(L::DBKU::KF, b.KF).put(L::DBKU::KFZE, b.KFZE).put(L::DBKU::KFBZ, b.KFBZ);
    });
}

bool GenDBNB(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBNB;
    return write_block(out, "clsGenArbeitsBesch.GenDBNB", L::kDBNB, [&](Writer& w) {
        w.put(L::DBNB::STU1KW, b.STU1KW)
            .put(L::DBNB::STU2KW, b.STU2KW)
            .put(L::DBNB::STU3KW, b.STU3KW)
            .put(L::DBNB::STU4KW, b.STU4KW)
            .put(L::DBNB::STU5KW, b.STU5KW);
        w.put(L::DBNB::STU6KW, b.STU6KW);
    });
}

bool GenDBHN(std::string& out, const ArbeitsBesch& a) {
    return write_block(out, "clsGenArbeitsBesch.GenDBHN", L::kDBHN, [&](Writer& w) {
        w.put(L::DBHN::HEIMARBAUSG, a.DBHN.HEIMARBAUSG).put(L::DBHN::HEIMARBABL, a.DBHN.HEIMARBABL);
    });
}

}  // namespace tamrel::bea
