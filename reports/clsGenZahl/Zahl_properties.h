// The property table of the data object `Zahl` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "reports/clsGenZahl/Zahl.h"

namespace tamrel::properties {

template <>
struct Binding<Zahl> {
    using Z = Zahl;
    static constexpr auto fields = std::make_tuple(
        field("ZahlId", &Z::ZahlId), field("Pseudonym", &Z::Pseudonym), field("ZKArt", &Z::ZKArt),
        field("ZKKennzeichen", &Z::ZKKennzeichen), field("ZKAngabeJN", &Z::ZKAngabeJN), field("ZKBeginn", &Z::ZKBeginn),
        field("ZKEnde", &Z::ZKEnde), field("ZKDatum", &Z::ZKDatum), field("ZKBetrag1", &Z::ZKBetrag1),
        field("ZKBetrag3", &Z::ZKBetrag3), field("ZKBetrag4", &Z::ZKBetrag4), field("ZKDatum2", &Z::ZKDatum2),
        field("ZKBetrag2", &Z::ZKBetrag2), field("ZKDatum3", &Z::ZKDatum3), field("ZKDatum4", &Z::ZKDatum4),
        field("ErstelltAm", &Z::ErstelltAm), field("Empfaenger", &Z::Empfaenger), field("Vorgang", &Z::Vorgang));
};

static_assert(complete<Zahl>(), "every member of Zahl has its entry");

}  // namespace tamrel::properties
