// The property table of the data object `Lohnnachweis` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/contact_block.h"
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis.h"

namespace tamrel::properties {

template <>
struct Binding<LnPosition> {
    using P = LnPosition;
    static constexpr auto fields = std::make_tuple(field("PosFeld1", &P::PosFeld1), field("PosFeld2", &P::PosFeld2),
                                                   field("PosFeld3", &P::PosFeld3), field("PosFeld4", &P::PosFeld4),
                                                   field("PosFeld5", &P::PosFeld5));
};
template <>
struct Binding<Lohnnachweis> {
    using base = ContactPerson;  // its contact person's properties are among its own
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

static_assert(complete<LnPosition>(), "every member of LnPosition has its entry");
static_assert(complete<Lohnnachweis>(), "every member of Lohnnachweis has its entry");

}  // namespace tamrel::properties
