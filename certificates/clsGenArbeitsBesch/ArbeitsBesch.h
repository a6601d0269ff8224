// The employment certificate data object. The blocks' fields carry the
// abbreviations of the published record format; the repeating groups are
// item records read through an item/count pair.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/field_list.h"
#include "core/objects.h"

namespace tamrel::bea {

// Item records of the repeating blocks.
#define TAMREL_BEA_DBSE(X) X(STKL) X(FKT) X(KINDFRB) X(AESTEDATBEG)
#define TAMREL_BEA_DBSB(X) X(PERSBYGRBEG) X(BYGRB) X(PERSGRB)
#define TAMREL_BEA_DBAZ(X) X(AZWOECH) X(AZVG) X(AZAEGR) X(AZAEBEG)
#define TAMREL_BEA_DBEN(X)                                                                                     \
    X(MONATBEG) X(MONATEND) X(KENNZRK) X(SVBREGLF) X(SVBREGE) X(FIBR) X(TATSURLTAGE) X(URLEG) X(URLEGGEZ) X(MIA) \
    X(MIABEG) X(MIAEND)
#define TAMREL_BEA_DBEZ(X) X(AZWOECH) X(AZAEGR) X(AZAEBEG) X(AZDUWOECH) X(ATDUWOE)
#define TAMREL_BEA_DBEE(X) X(MONATBEGEU) X(MONATENDEU) X(STBREGLFEU) X(STBREGSOEU)
#define TAMREL_BEA_DBFZ(X) X(FEHLBEG) X(FEHLART) X(FEHLEND)

// The single blocks' own fields (names and addresses come from Vorgang).
#define TAMREL_BEA_DBAG(X) X(AGAPE) X(AGAPP) X(AGTELE) X(AGTELP) X(AGEMAILE) X(AGEMAILP)
#define TAMREL_BEA_DBAB(X) X(BORTLDKZ) X(BPLZ) X(BORT)
#define TAMREL_BEA_DBNE(X)                                                                                  \
    X(AVEND) X(MONATBEG) X(MONATEND) X(SVBREGLF) X(SVBREGE) X(SVBREGEBEG) X(SVBREGEEND) X(NETTOLFD)         \
    X(NETTOEINMAL) X(AZWOECH) X(TTAUFENT) X(BVUNFORT) X(BVUNFORTU)
#define TAMREL_BEA_DBSA(X) X(BYGRA) X(PERSGRA) X(KNAPPRV) X(KNAPPRVBEG) X(TTSC)
#define TAMREL_BEA_DBHA(X) X(URLTAGE)
#define TAMREL_BEA_DBKE(X)                                                                                    \
    X(AVEND) X(BVEND) X(AVBFR) X(AVBFSCHR) X(AVBFURSP) X(AVBFABSCHL) X(VLBAV) X(AVBFABVL) X(AVBFRL) X(AVKUEAM) \
    X(AVUWFWZ) X(AVUWFWZBEG) X(AVLETZTRL) X(AVKUEDU) X(AVKUESCH) X(AVKUEBETR) X(AVKUESCHUKL) X(AVKUEZUST)    \
    X(AVKUEAL) X(AVKUEALAM) X(AVAMDAT) X(AVKUEZVB) X(SAW) X(SAWPRSC) X(AGKUEAM) X(AGKUEZU) X(KF) X(KFZE)      \
    X(KFBZ) X(KA) X(KAU) X(KAUAUG) X(OKGL) X(OKGLFG) X(AVENLZ) X(AVENLZG) X(ABF) X(ABFHOE) X(BETZU) X(BVEGEN) \
    X(BVEGENB) X(AVENUAG) X(BVENUR) X(AVENVL) X(AVENVGB) X(AVENVG) X(ABFMONAT) X(ABFGEZ) X(BFHG)
#define TAMREL_BEA_DBKU(X)                                                                                    \
    X(AVEND) X(BVEND) X(AVBFR) X(AVBFURSPR) X(AVUWFWZ) X(AVUWFWZBEG) X(AVKUEAM) X(AVKUEDU) X(AVKUEBETR)         \
    X(AVKUESCHUKL) X(AVKUEAL) X(AVENLZ) X(AVENLZG) X(ABF) X(ABFHOE) X(BETZU) X(BVEGEN) X(BVEGENB) X(AVENUAG)  \
    X(URLTAGEAV) X(AVENUR) X(UAGHOE) X(AVVERZ) X(KF) X(KFZE) X(KFBZ)
#define TAMREL_BEA_DBNB(X) X(STU1KW) X(STU2KW) X(STU3KW) X(STU4KW) X(STU5KW) X(STU6KW)
#define TAMREL_BEA_DBHN(X) X(HEIMARBAUSG) X(HEIMARBABL)

struct DBSE { TAMREL_BEA_DBSE(TAMREL_TEXT_MEMBER) };
struct DBSB { TAMREL_BEA_DBSB(TAMREL_TEXT_MEMBER) };
struct DBAZ { TAMREL_BEA_DBAZ(TAMREL_TEXT_MEMBER) };
struct DBEN { TAMREL_BEA_DBEN(TAMREL_TEXT_MEMBER) };
struct DBEZ { TAMREL_BEA_DBEZ(TAMREL_TEXT_MEMBER) };
struct DBEE { TAMREL_BEA_DBEE(TAMREL_TEXT_MEMBER) };
struct DBFZ { TAMREL_BEA_DBFZ(TAMREL_TEXT_MEMBER) };
struct DBAG { TAMREL_BEA_DBAG(TAMREL_TEXT_MEMBER) };
struct DBAB { TAMREL_BEA_DBAB(TAMREL_TEXT_MEMBER) };
struct DBNE { TAMREL_BEA_DBNE(TAMREL_TEXT_MEMBER) };
struct DBSA { TAMREL_BEA_DBSA(TAMREL_TEXT_MEMBER) };
struct DBHA { TAMREL_BEA_DBHA(TAMREL_TEXT_MEMBER) };
struct DBKE { TAMREL_BEA_DBKE(TAMREL_TEXT_MEMBER) };
struct DBKU { TAMREL_BEA_DBKU(TAMREL_TEXT_MEMBER) };
struct DBNB { TAMREL_BEA_DBNB(TAMREL_TEXT_MEMBER) };
struct DBHN { TAMREL_BEA_DBHN(TAMREL_TEXT_MEMBER) };

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
