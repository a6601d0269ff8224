// The property table of the data object `ArbeitsBesch` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "core/objects_properties.h"
#include "core/property_table.h"

namespace tamrel::properties {

template <>
struct Binding<bea::DBSE> {
    using S = bea::DBSE;
    static constexpr auto fields =
        std::make_tuple(field("STKL", &S::STKL), field("FKT", &S::FKT), field("KINDFRB", &S::KINDFRB),
                        field("AESTEDATBEG", &S::AESTEDATBEG));
};
template <>
struct Binding<bea::DBSB> {
    using S = bea::DBSB;
    static constexpr auto fields = std::make_tuple(field("PERSBYGRBEG", &S::PERSBYGRBEG), field("BYGRB", &S::BYGRB),
                                                   field("PERSGRB", &S::PERSGRB));
};
template <>
struct Binding<bea::DBAZ> {
    using S = bea::DBAZ;
    static constexpr auto fields = std::make_tuple(field("AZWOECH", &S::AZWOECH), field("AZVG", &S::AZVG),
                                                   field("AZAEGR", &S::AZAEGR), field("AZAEBEG", &S::AZAEBEG));
};
template <>
struct Binding<bea::DBEN> {
    using S = bea::DBEN;
    static constexpr auto fields = std::make_tuple(
        field("MONATBEG", &S::MONATBEG), field("MONATEND", &S::MONATEND), field("KENNZRK", &S::KENNZRK),
        field("SVBREGLF", &S::SVBREGLF), field("SVBREGE", &S::SVBREGE), field("FIBR", &S::FIBR),
        field("TATSURLTAGE", &S::TATSURLTAGE), field("URLEG", &S::URLEG), field("URLEGGEZ", &S::URLEGGEZ),
        field("MIA", &S::MIA), field("MIABEG", &S::MIABEG), field("MIAEND", &S::MIAEND));
};
template <>
struct Binding<bea::DBEZ> {
    using S = bea::DBEZ;
    static constexpr auto fields =
        std::make_tuple(field("AZWOECH", &S::AZWOECH), field("AZAEGR", &S::AZAEGR), field("AZAEBEG", &S::AZAEBEG),
                        field("AZDUWOECH", &S::AZDUWOECH), field("ATDUWOE", &S::ATDUWOE));
};
template <>
struct Binding<bea::DBEE> {
    using S = bea::DBEE;
    static constexpr auto fields =
        std::make_tuple(field("MONATBEGEU", &S::MONATBEGEU), field("MONATENDEU", &S::MONATENDEU),
                        field("STBREGLFEU", &S::STBREGLFEU), field("STBREGSOEU", &S::STBREGSOEU));
};
template <>
struct Binding<bea::DBFZ> {
    using S = bea::DBFZ;
    static constexpr auto fields =
        std::make_tuple(field("FEHLBEG", &S::FEHLBEG), field("FEHLART", &S::FEHLART), field("FEHLEND", &S::FEHLEND));
};
template <>
struct Binding<bea::DBAG> {
    using S = bea::DBAG;
    static constexpr auto fields =
        std::make_tuple(field("AGAPE", &S::AGAPE), field("AGAPP", &S::AGAPP), field("AGTELE", &S::AGTELE),
                        field("AGTELP", &S::AGTELP), field("AGEMAILE", &S::AGEMAILE), field("AGEMAILP", &S::AGEMAILP));
};
template <>
struct Binding<bea::DBAB> {
    using S = bea::DBAB;
    static constexpr auto fields =
        std::make_tuple(field("BORTLDKZ", &S::BORTLDKZ), field("BPLZ", &S::BPLZ), field("BORT", &S::BORT));
};
template <>
struct Binding<bea::DBNE> {
    using S = bea::DBNE;
    static constexpr auto fields = std::make_tuple(
        field("AVEND", &S::AVEND), field("MONATBEG", &S::MONATBEG), field("MONATEND", &S::MONATEND),
        field("SVBREGLF", &S::SVBREGLF), field("SVBREGE", &S::SVBREGE), field("SVBREGEBEG", &S::SVBREGEBEG),
        field("SVBREGEEND", &S::SVBREGEEND), field("NETTOLFD", &S::NETTOLFD), field("NETTOEINMAL", &S::NETTOEINMAL),
        field("AZWOECH", &S::AZWOECH), field("TTAUFENT", &S::TTAUFENT), field("BVUNFORT", &S::BVUNFORT),
        field("BVUNFORTU", &S::BVUNFORTU));
};
template <>
struct Binding<bea::DBSA> {
    using S = bea::DBSA;
    static constexpr auto fields =
        std::make_tuple(field("BYGRA", &S::BYGRA), field("PERSGRA", &S::PERSGRA), field("KNAPPRV", &S::KNAPPRV),
                        field("KNAPPRVBEG", &S::KNAPPRVBEG), field("TTSC", &S::TTSC));
};
template <>
struct Binding<bea::DBHA> {
    using S = bea::DBHA;
    static constexpr auto fields = std::make_tuple(field("URLTAGE", &S::URLTAGE));
};
template <>
struct Binding<bea::DBKE> {
    using S = bea::DBKE;
    static constexpr auto fields = std::make_tuple(
        field("AVEND", &S::AVEND), field("BVEND", &S::BVEND), field("AVBFR", &S::AVBFR),
        field("AVBFSCHR", &S::AVBFSCHR), field("AVBFURSP", &S::AVBFURSP), field("AVBFABSCHL", &S::AVBFABSCHL),
        field("VLBAV", &S::VLBAV), field("AVBFABVL", &S::AVBFABVL), field("AVBFRL", &S::AVBFRL),
        field("AVKUEAM", &S::AVKUEAM), field("AVUWFWZ", &S::AVUWFWZ), field("AVUWFWZBEG", &S::AVUWFWZBEG),
        field("AVLETZTRL", &S::AVLETZTRL), field("AVKUEDU", &S::AVKUEDU), field("AVKUESCH", &S::AVKUESCH),
        field("AVKUEBETR", &S::AVKUEBETR), field("AVKUESCHUKL", &S::AVKUESCHUKL), field("AVKUEZUST", &S::AVKUEZUST),
        field("AVKUEAL", &S::AVKUEAL), field("AVKUEALAM", &S::AVKUEALAM), field("AVAMDAT", &S::AVAMDAT),
        field("AVKUEZVB", &S::AVKUEZVB), field("SAW", &S::SAW), field("SAWPRSC", &S::SAWPRSC),
        field("AGKUEAM", &S::AGKUEAM), field("AGKUEZU", &S::AGKUEZU), field("KF", &S::KF), field("KFZE", &S::KFZE),
        field("KFBZ", &S::KFBZ), field("KA", &S::KA), field("KAU", &S::KAU), field("KAUAUG", &S::KAUAUG),
        field("OKGL", &S::OKGL), field("OKGLFG", &S::OKGLFG), field("AVENLZ", &S::AVENLZ),
        field("AVENLZG", &S::AVENLZG), field("ABF", &S::ABF), field("ABFHOE", &S::ABFHOE), field("BETZU", &S::BETZU),
        field("BVEGEN", &S::BVEGEN), field("BVEGENB", &S::BVEGENB), field("AVENUAG", &S::AVENUAG),
        field("BVENUR", &S::BVENUR), field("AVENVL", &S::AVENVL), field("AVENVGB", &S::AVENVGB),
        field("AVENVG", &S::AVENVG), field("ABFMONAT", &S::ABFMONAT), field("ABFGEZ", &S::ABFGEZ),
        field("BFHG", &S::BFHG));
};
template <>
struct Binding<bea::DBKU> {
    using S = bea::DBKU;
    static constexpr auto fields = std::make_tuple(
        field("AVEND", &S::AVEND), field("BVEND", &S::BVEND), field("AVBFR", &S::AVBFR),
        field("AVBFURSPR", &S::AVBFURSPR), field("AVUWFWZ", &S::AVUWFWZ), field("AVUWFWZBEG", &S::AVUWFWZBEG),
        field("AVKUEAM", &S::AVKUEAM), field("AVKUEDU", &S::AVKUEDU), field("AVKUEBETR", &S::AVKUEBETR),
        field("AVKUESCHUKL", &S::AVKUESCHUKL), field("AVKUEAL", &S::AVKUEAL), field("AVENLZ", &S::AVENLZ),
        field("AVENLZG", &S::AVENLZG), field("ABF", &S::ABF), field("ABFHOE", &S::ABFHOE), field("BETZU", &S::BETZU),
        field("BVEGEN", &S::BVEGEN), field("BVEGENB", &S::BVEGENB), field("AVENUAG", &S::AVENUAG),
        field("URLTAGEAV", &S::URLTAGEAV), field("AVENUR", &S::AVENUR), field("UAGHOE", &S::UAGHOE),
        field("AVVERZ", &S::AVVERZ), field("KF", &S::KF), field("KFZE", &S::KFZE), field("KFBZ", &S::KFBZ));
};
template <>
struct Binding<bea::DBNB> {
    using S = bea::DBNB;
    static constexpr auto fields =
        std::make_tuple(field("STU1KW", &S::STU1KW), field("STU2KW", &S::STU2KW), field("STU3KW", &S::STU3KW),
                        field("STU4KW", &S::STU4KW), field("STU5KW", &S::STU5KW), field("STU6KW", &S::STU6KW));
};
template <>
struct Binding<bea::DBHN> {
    using S = bea::DBHN;
    static constexpr auto fields =
        std::make_tuple(field("HEIMARBAUSG", &S::HEIMARBAUSG), field("HEIMARBABL", &S::HEIMARBABL));
};
template <>
struct Binding<ArbeitsBesch> {
    using A = ArbeitsBesch;
    static constexpr auto fields = std::make_tuple(
        field("DatensatzNr", &A::DatensatzNr), field("Feld151", &A::Feld151), field("ErstellDatum", &A::ErstellDatum),
        field("Verfahren", &A::Verfahren), field("KENNZAB", &A::KENNZAB), field("DBAG", &A::DBAG),
        field("DBAB", &A::DBAB), field("DBNE", &A::DBNE), field("DBSA", &A::DBSA), field("DBHA", &A::DBHA),
        field("DBKE", &A::DBKE), field("DBKU", &A::DBKU), field("DBNB", &A::DBNB), field("DBHN", &A::DBHN),
        field("DBSB", &A::DBSB), field("AnzahlDBSB", &A::AnzahlDBSB), field("DBSE", &A::DBSE),
        field("AnzahlDBSE", &A::AnzahlDBSE), field("DBAZ", &A::DBAZ), field("AnzahlDBAZ", &A::AnzahlDBAZ),
        field("DBEN", &A::DBEN), field("AnzahlDBEN", &A::AnzahlDBEN), field("DBEZ", &A::DBEZ),
        field("AnzahlDBEZ", &A::AnzahlDBEZ), field("DBEE", &A::DBEE), field("AnzahlDBEE", &A::AnzahlDBEE),
        field("DBFZ", &A::DBFZ), field("AnzahlDBFZ", &A::AnzahlDBFZ), field("Vorgang", &A::Vorgang));

    // An absent count is the number of items given.
    template <class V>
    static void finish(ArbeitsBesch& a, const V& j) {
        auto count = [&](const char* name, std::size_t size, std::int16_t& out) {
            if (j.has(name)) return;
            if (size > 32767) fail(name, "more than 32767 items");
            out = static_cast<std::int16_t>(size);
        };
        count("AnzahlDBSB", a.DBSB.size(), a.AnzahlDBSB);
        count("AnzahlDBSE", a.DBSE.size(), a.AnzahlDBSE);
        count("AnzahlDBAZ", a.DBAZ.size(), a.AnzahlDBAZ);
        count("AnzahlDBEN", a.DBEN.size(), a.AnzahlDBEN);
        count("AnzahlDBEZ", a.DBEZ.size(), a.AnzahlDBEZ);
        count("AnzahlDBEE", a.DBEE.size(), a.AnzahlDBEE);
        count("AnzahlDBFZ", a.DBFZ.size(), a.AnzahlDBFZ);
    }
};

static_assert(complete<bea::DBSE>(), "every member of bea::DBSE has its entry");
static_assert(complete<bea::DBSB>(), "every member of bea::DBSB has its entry");
static_assert(complete<bea::DBAZ>(), "every member of bea::DBAZ has its entry");
static_assert(complete<bea::DBEN>(), "every member of bea::DBEN has its entry");
static_assert(complete<bea::DBEZ>(), "every member of bea::DBEZ has its entry");
static_assert(complete<bea::DBEE>(), "every member of bea::DBEE has its entry");
static_assert(complete<bea::DBFZ>(), "every member of bea::DBFZ has its entry");
static_assert(complete<bea::DBAG>(), "every member of bea::DBAG has its entry");
static_assert(complete<bea::DBAB>(), "every member of bea::DBAB has its entry");
static_assert(complete<bea::DBNE>(), "every member of bea::DBNE has its entry");
static_assert(complete<bea::DBSA>(), "every member of bea::DBSA has its entry");
static_assert(complete<bea::DBHA>(), "every member of bea::DBHA has its entry");
static_assert(complete<bea::DBKE>(), "every member of bea::DBKE has its entry");
static_assert(complete<bea::DBKU>(), "every member of bea::DBKU has its entry");
static_assert(complete<bea::DBNB>(), "every member of bea::DBNB has its entry");
static_assert(complete<bea::DBHN>(), "every member of bea::DBHN has its entry");
static_assert(complete<ArbeitsBesch>(), "every member of ArbeitsBesch has its entry");

}  // namespace tamrel::properties
