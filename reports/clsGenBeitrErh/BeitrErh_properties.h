// The property table of the data object `BeitrErh` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "reports/clsGenBeitrErh/BeitrErh.h"

namespace tamrel::properties {

template <>
struct Binding<BeitrErh> {
    using B = BeitrErh;
    static constexpr auto fields = std::make_tuple(
        field("Laufnummer", &B::Laufnummer), field("Ersatzaktenzeichen", &B::Ersatzaktenzeichen),
        field("ArtKennzeichen", &B::ArtKennzeichen), field("Zeitraum1", &B::Zeitraum1),
        field("Zeitraum2", &B::Zeitraum2), field("Betrag1", &B::Betrag1), field("Betrag2", &B::Betrag2),
        field("Merkmal1", &B::Merkmal1), field("Betrag3", &B::Betrag3), field("Betrag4", &B::Betrag4),
        field("Merkmal2", &B::Merkmal2), field("Betrag5", &B::Betrag5), field("Betrag6", &B::Betrag6),
        field("Zeitpunkt", &B::Zeitpunkt), field("Vorgang", &B::Vorgang), field("Empfaenger", &B::Empfaenger));
};

static_assert(complete<BeitrErh>(), "every member of BeitrErh has its entry");

}  // namespace tamrel::properties
