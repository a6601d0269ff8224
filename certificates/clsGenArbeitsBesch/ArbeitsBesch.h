// The employment certificate data object. The blocks' fields carry the
// abbreviations of the published record format; the repeating groups are
// item records read through an item/count pair.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/objects.h"

namespace tamrel::bea {

// Item records of the repeating blocks.

// The single blocks' own fields (names and addresses come from Vorgang).

struct DBSE {
    std::string STKL, FKT, KINDFRB, AESTEDATBEG;
};
struct DBSB {
    std::string PERSBYGRBEG, BYGRB, PERSGRB;
};
struct DBAZ {
    std::string AZWOECH, AZVG, AZAEGR, AZAEBEG;
};
struct DBEN {
    std::string MONATBEG, MONATEND, KENNZRK, SVBREGLF, SVBREGE, FIBR, TATSURLTAGE, URLEG, URLEGGEZ, MIA, MIABEG, MIAEND;
};
struct DBEZ {
    std::string AZWOECH, AZAEGR, AZAEBEG, AZDUWOECH, ATDUWOE;
};
struct DBEE {
    std::string MONATBEGEU, MONATENDEU, STBREGLFEU, STBREGSOEU;
};
struct DBFZ {
    std::string FEHLBEG, FEHLART, FEHLEND;
};
struct DBAG {
    std::string AGAPE, AGAPP, AGTELE, AGTELP, AGEMAILE, AGEMAILP;
};
struct DBAB {
    std::string BORTLDKZ, BPLZ, BORT;
};
struct DBNE {
    std::string AVEND, MONATBEG, MONATEND, SVBREGLF, SVBREGE, SVBREGEBEG, SVBREGEEND, NETTOLFD, NETTOEINMAL, AZWOECH,
        TTAUFENT, BVUNFORT, BVUNFORTU;
};
struct DBSA {
    std::string BYGRA, PERSGRA, KNAPPRV, KNAPPRVBEG, TTSC;
};
struct DBHA {
    std::string URLTAGE;
};
struct DBKE {
    std::string AVEND, BVEND, AVBFR, AVBFSCHR, AVBFURSP, AVBFABSCHL, VLBAV, AVBFABVL, AVBFRL, AVKUEAM, AVUWFWZ,
        AVUWFWZBEG, AVLETZTRL, AVKUEDU, AVKUESCH, AVKUEBETR, AVKUESCHUKL, AVKUEZUST, AVKUEAL, AVKUEALAM, AVAMDAT,
        AVKUEZVB, SAW, SAWPRSC, AGKUEAM, AGKUEZU, KF, KFZE, KFBZ, KA, KAU, KAUAUG, OKGL, OKGLFG, AVENLZ, AVENLZG, ABF,
        ABFHOE, BETZU, BVEGEN, BVEGENB, AVENUAG, BVENUR, AVENVL, AVENVGB, AVENVG, ABFMONAT, ABFGEZ, BFHG;
};
struct DBKU {
    std::string AVEND, BVEND, AVBFR, AVBFURSPR, AVUWFWZ, AVUWFWZBEG, AVKUEAM, AVKUEDU, AVKUEBETR, AVKUESCHUKL, AVKUEAL,
        AVENLZ, AVENLZG, ABF, ABFHOE, BETZU, BVEGEN, BVEGENB, AVENUAG, URLTAGEAV, AVENUR, UAGHOE, AVVERZ, KF, KFZE,
        KFBZ;
};
struct DBNB {
    std::string STU1KW, STU2KW, STU3KW, STU4KW, STU5KW, STU6KW;
};
struct DBHN {
    std::string HEIMARBAUSG, HEIMARBABL;
};

// The item operation of a repeating group: a fresh copy of item `index`
// (from 1); an index beyond the list reads as an empty item.
template <class Item>
Item item(const std::vector<Item>& items, std::int16_t index) {
    return index >= 1 && static_cast<std::size_t>(index) <= items.size() ? items[index - 1] : Item{};
}

}  // namespace tamrel::bea

namespace tamrel {

struct ArbeitsBesch {
    std::int32_t DatensatzNr = 0;
    std::string Feld151;
    std::string ErstellDatum;
    std::int16_t Verfahren = 0;
    std::string KENNZAB;  // DBNA change marker
    bea::DBAG DBAG;
    bea::DBAB DBAB;
    bea::DBNE DBNE;
    bea::DBSA DBSA;
    bea::DBHA DBHA;
    bea::DBKE DBKE;
    bea::DBKU DBKU;
    bea::DBNB DBNB;
    bea::DBHN DBHN;
    std::vector<bea::DBSB> DBSB;
    std::int16_t AnzahlDBSB = 0;
    std::vector<bea::DBSE> DBSE;
    std::int16_t AnzahlDBSE = 0;
    std::vector<bea::DBAZ> DBAZ;
    std::int16_t AnzahlDBAZ = 0;
    std::vector<bea::DBEN> DBEN;
    std::int16_t AnzahlDBEN = 0;
    std::vector<bea::DBEZ> DBEZ;
    std::int16_t AnzahlDBEZ = 0;
    std::vector<bea::DBEE> DBEE;
    std::int16_t AnzahlDBEE = 0;
    std::vector<bea::DBFZ> DBFZ;
    std::int16_t AnzahlDBFZ = 0;
    tamrel::Vorgang Vorgang;
};

}  // namespace tamrel
