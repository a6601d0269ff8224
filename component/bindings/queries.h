#pragma once
#include "component/shared_bindings.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/AbfrVers.h"
#include "queries/clsGenBetrieb/Betrieb.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis.h"

namespace tamrel::json_binding {

template <>
struct Binding<Betrieb> {
    using B = Betrieb;
    static constexpr auto fields = std::make_tuple(
        field("DatensatzNr", &B::DatensatzNr), field("Kennziffer", &B::Kennziffer), field("Kennung15", &B::Kennung15),
        field("KennzeichenR", &B::KennzeichenR), field("AnsprechpartnerGeschlecht", &B::AnsprechpartnerGeschlecht),
        field("AnsprechpartnerName", &B::AnsprechpartnerName),
        field("AnsprechpartnerTelefon", &B::AnsprechpartnerTelefon),
        field("AnsprechpartnerFax", &B::AnsprechpartnerFax), field("AnsprechpartnerEMail", &B::AnsprechpartnerEMail),
        field("DbkaName1", &B::DbkaName1), field("DbkaName2", &B::DbkaName2), field("DbkaName3", &B::DbkaName3),
        field("DbkaStrasse", &B::DbkaStrasse), field("DbkaPLZ", &B::DbkaPLZ), field("DbkaOrt", &B::DbkaOrt),
        field("DbkaAdressTeil1", &B::DbkaAdressTeil1), field("DbkaAdressTeil2", &B::DbkaAdressTeil2),
        field("ErstellDatum", &B::ErstellDatum), field("Empfaenger", &B::Empfaenger),
        field("Arbeitgeber", &B::Arbeitgeber));
};

template <>
struct Binding<AbfrVers> {
    static constexpr auto fields = std::make_tuple(
        field("Kennzahl", &AbfrVers::Kennzahl), field("Datum", &AbfrVers::Datum), field("Vorgang", &AbfrVers::Vorgang));
};

template <>
struct Binding<AbfrStammdatenUV> {
    using A = AbfrStammdatenUV;
    static constexpr auto fields =
        std::make_tuple(field("DatensatzNr", &A::DatensatzNr), field("Kennz248", &A::Kennz248),
                        field("Feld216", &A::Feld216), field("Feld444", &A::Feld444), field("ApAnrede", &A::ApAnrede),
                        field("ApName", &A::ApName), field("ApTel", &A::ApTel), field("ApFax", &A::ApFax),
                        field("ApEmail", &A::ApEmail), field("Feld382", &A::Feld382), field("Feld397", &A::Feld397),
                        field("Feld417", &A::Feld417), field("Feld422", &A::Feld422), field("Feld425", &A::Feld425),
                        field("ErstellDatum", &A::ErstellDatum), field("Arbeitgeber", &A::Arbeitgeber));
};

template <>
struct Binding<LnPosition> {
    using P = LnPosition;
    static constexpr auto fields = std::make_tuple(field("PosFeld1", &P::PosFeld1), field("PosFeld2", &P::PosFeld2),
                                                   field("PosFeld3", &P::PosFeld3), field("PosFeld4", &P::PosFeld4),
                                                   field("PosFeld5", &P::PosFeld5));
};

template <>
struct Binding<Lohnnachweis> {
    using L = Lohnnachweis;
    static constexpr auto fields =
        std::make_tuple(field("DatensatzNr", &L::DatensatzNr), field("Kennz268", &L::Kennz268),
                        field("Feld464", &L::Feld464), field("ApAnrede", &L::ApAnrede), field("ApName", &L::ApName),
                        field("ApTel", &L::ApTel), field("ApFax", &L::ApFax), field("ApEmail", &L::ApEmail),
                        field("Feld402", &L::Feld402), field("Feld417", &L::Feld417), field("Feld236", &L::Feld236),
                        field("Feld437", &L::Feld437), field("Feld442", &L::Feld442), field("Feld445", &L::Feld445),
                        field("Feld480", &L::Feld480), field("Feld484", &L::Feld484), field("Feld487", &L::Feld487),
                        field("ErstellDatum", &L::ErstellDatum), field("Position", &L::Positionen),
                        field("AnzahlPositionen", &L::AnzahlPositionen), field("Arbeitgeber", &L::Arbeitgeber));

    // An absent count is the number of positions given.
    template <class V>
    static void finish(Lohnnachweis& l, const V& j) {
        if (j.has("AnzahlPositionen")) return;
        if (l.Positionen.size() > 32767) fail("Position", "more than 32767 positions");
        l.AnzahlPositionen = static_cast<std::int16_t>(l.Positionen.size());
    }
};

}  // namespace tamrel::json_binding
