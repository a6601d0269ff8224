// The employment certificate's blocks, each as its published layout table
// (an = text, n = digits, pb = amounts and decimal numbers, dates as n 8).
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "core/routine.h"
#include "core/shared_blocks.h"
#include "core/writer.h"

namespace tamrel::bea {
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
    return write_block(out, "clsGenArbeitsBesch.GenDBAG", 533, "DBAG", [&](Writer& w) {
        w.an(ag.Name1, 30).an(ag.Name2, 30).an(ag.Name3, 30).an(ag.Land, 3).an(ag.PLZ, 10).an(ag.Ort, 34);
        w.an(ag.Strasse, 33).an(ag.Hausnummer, 9).an(ag.Adresszusatz, 40).an(b.AGAPE, 60).an(b.AGAPP, 60);
        w.an(b.AGTELE, 25).an(b.AGTELP, 25).an(b.AGEMAILE, 70).an(b.AGEMAILP, 70);
    });
}

bool GenDBAB(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBAB;
    return write_block(out, "clsGenArbeitsBesch.GenDBAB", 51, "DBAB",
                       [&](Writer& w) { w.an(b.BORTLDKZ, 3).an(b.BPLZ, 10).an(b.BORT, 34); });
}

bool GenDBSE(std::string& out, const DBSE& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBSE", 20, "DBSE",
                       [&](Writer& w) { w.n(i.STKL, 1).pb(i.FKT, 1, 3).pb(i.KINDFRB, 2, 1).n(i.AESTEDATBEG, 8); });
}

bool GenDBNE(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBNE;
    return write_block(out, "clsGenArbeitsBesch.GenDBNE", 100, "DBNE", [&](Writer& w) {
        w.n(b.AVEND, 8).n(b.MONATBEG, 8).n(b.MONATEND, 8).blank(9).pb(b.SVBREGLF, 8, 2).pb(b.SVBREGE, 8, 2);
        w.n(b.SVBREGEBEG, 8).n(b.SVBREGEEND, 8).pb(b.NETTOLFD, 8, 2).pb(b.NETTOEINMAL, 8, 2).pb(b.AZWOECH, 2, 2);
        w.n(b.TTAUFENT, 1).an(b.BVUNFORT, 1).an(b.BVUNFORTU, 1);
    });
}

bool GenDBSA(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBSA;
    return write_block(out, "clsGenArbeitsBesch.GenDBSA", 29, "DBSA", [&](Writer& w) {
        w.n(b.BYGRA, 4).n(b.PERSGRA, 3).an(b.KNAPPRV, 1).n(b.KNAPPRVBEG, 8).an(b.TTSC, 9);
    });
}

bool GenDBSB(std::string& out, const DBSB& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBSB", 19, "DBSB",
                       [&](Writer& w) { w.n(i.PERSBYGRBEG, 8).n(i.BYGRB, 4).n(i.PERSGRB, 3); });
}

bool GenDBAZ(std::string& out, const DBAZ& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBAZ", 22, "DBAZ",
                       [&](Writer& w) { w.pb(i.AZWOECH, 2, 2).pb(i.AZVG, 2, 2).n(i.AZAEGR, 2).n(i.AZAEBEG, 8); });
}

bool GenDBEN(std::string& out, const DBEN& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBEN", 123, "DBEN", [&](Writer& w) {
        w.n(i.MONATBEG, 8).n(i.MONATEND, 8).blank(9).an(i.KENNZRK, 1).blank(20).pb(i.SVBREGLF, 8, 2);
        w.pb(i.SVBREGE, 8, 2).pb(i.FIBR, 8, 2).blank(12).n(i.TATSURLTAGE, 3).pb(i.URLEG, 8, 2).n(i.URLEGGEZ, 1);
        w.an(i.MIA, 1).n(i.MIABEG, 8).n(i.MIAEND, 8);
    });
}

bool GenDBEZ(std::string& out, const DBEZ& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBEZ", 25, "DBEZ", [&](Writer& w) {
        w.pb(i.AZWOECH, 2, 2).n(i.AZAEGR, 2).n(i.AZAEBEG, 8).pb(i.AZDUWOECH, 2, 2).pb(i.ATDUWOE, 1, 2);
    });
}

bool GenDBEE(std::string& out, const DBEE& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBEE", 71, "DBEE", [&](Writer& w) {
        w.n(i.MONATBEGEU, 8).n(i.MONATENDEU, 8).blank(9).pb(i.STBREGLFEU, 8, 2).pb(i.STBREGSOEU, 8, 2).blank(22);
    });
}

bool GenDBFZ(std::string& out, const DBFZ& i) {
    return write_block(out, "clsGenArbeitsBesch.GenDBFZ", 22, "DBFZ",
                       [&](Writer& w) { w.n(i.FEHLBEG, 8).n(i.FEHLART, 2).n(i.FEHLEND, 8); });
}

bool GenDBHA(std::string& out, const ArbeitsBesch& a) {
    return write_block(out, "clsGenArbeitsBesch.GenDBHA", 7, "DBHA", [&](Writer& w) { w.n(a.DBHA.URLTAGE, 3); });
}

bool GenDBKE(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBKE;
    return write_block(out, "clsGenArbeitsBesch.GenDBKE", 175, "DBKE", [&](Writer& w) {
        w.n(b.AVEND, 8).n(b.BVEND, 8).an(b.AVBFR, 1).an(b.AVBFSCHR, 1).n(b.AVBFURSP, 8).n(b.AVBFABSCHL, 8);
        w.an(b.VLBAV, 1).n(b.AVBFABVL, 8).an(b.AVBFRL, 1).n(b.AVKUEAM, 8).an(b.AVUWFWZ, 1).n(b.AVUWFWZBEG, 8);
        w.n(b.AVLETZTRL, 6).n(b.AVKUEDU, 1).an(b.AVKUESCH, 1).an(b.AVKUEBETR, 1).an(b.AVKUESCHUKL, 1);
        w.n(b.AVKUEZUST, 1).an(b.AVKUEAL, 1).an(b.AVKUEALAM, 1).n(b.AVAMDAT, 8).an(b.AVKUEZVB, 1).an(b.SAW, 1);
        w.an(b.SAWPRSC, 3).n(b.AGKUEAM, 8).n(b.AGKUEZU, 8).n(b.KF, 3).n(b.KFZE, 1).n(b.KFBZ, 1).an(b.KA, 1);
        w.an(b.KAU, 1).an(b.KAUAUG, 1).an(b.OKGL, 1).an(b.OKGLFG, 1).an(b.AVENLZ, 1).n(b.AVENLZG, 2).an(b.ABF, 1);
        w.pb(b.ABFHOE, 8, 2).n(b.BETZU, 2).an(b.BVEGEN, 1).n(b.BVEGENB, 8).an(b.AVENUAG, 1).n(b.BVENUR, 8);
        w.an(b.AVENVL, 1).n(b.AVENVGB, 8).pb(b.AVENVG, 3, 2).an(b.ABFMONAT, 1).an(b.ABFGEZ, 1).n(b.BFHG, 8);
    });
}

bool GenDBKU(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBKU;
    return write_block(out, "clsGenArbeitsBesch.GenDBKU", 103, "DBKU", [&](Writer& w) {
        w.n(b.AVEND, 8).n(b.BVEND, 8).an(b.AVBFR, 1).n(b.AVBFURSPR, 8).an(b.AVUWFWZ, 1).n(b.AVUWFWZBEG, 8);
        w.n(b.AVKUEAM, 8).n(b.AVKUEDU, 1).an(b.AVKUEBETR, 1).an(b.AVKUESCHUKL, 1).an(b.AVKUEAL, 1);
        w.an(b.AVENLZ, 1).n(b.AVENLZG, 2).an(b.ABF, 1).pb(b.ABFHOE, 8, 2).n(b.BETZU, 2).an(b.BVEGEN, 1);
        w.n(b.BVEGENB, 8).an(b.AVENUAG, 1).n(b.URLTAGEAV, 3).n(b.AVENUR, 8).pb(b.UAGHOE, 8, 2).n(b.AVVERZ, 1);
        w.n(b.KF, 3).n(b.KFZE, 1).n(b.KFBZ, 1);
    });
}

bool GenDBNB(std::string& out, const ArbeitsBesch& a) {
    const auto& b = a.DBNB;
    return write_block(out, "clsGenArbeitsBesch.GenDBNB", 28, "DBNB", [&](Writer& w) {
        w.pb(b.STU1KW, 2, 2).pb(b.STU2KW, 2, 2).pb(b.STU3KW, 2, 2).pb(b.STU4KW, 2, 2).pb(b.STU5KW, 2, 2);
        w.pb(b.STU6KW, 2, 2);
    });
}

bool GenDBHN(std::string& out, const ArbeitsBesch& a) {
    return write_block(out, "clsGenArbeitsBesch.GenDBHN", 20, "DBHN",
                       [&](Writer& w) { w.n(a.DBHN.HEIMARBAUSG, 8).n(a.DBHN.HEIMARBABL, 8); });
}

}  // namespace tamrel::bea
