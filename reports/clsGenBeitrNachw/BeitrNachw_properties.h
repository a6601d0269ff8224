// The property table of the data object `BeitrNachw` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"

namespace tamrel::properties {

template <>
struct Binding<BeitrNachw> {
    using B = BeitrNachw;
    static constexpr auto fields = std::make_tuple(
        field("Laufnummer", &B::Laufnummer), field("SKennzeichen", &B::SKennzeichen), field("Waehrung", &B::Waehrung),
        field("Zeitraum1", &B::Zeitraum1), field("Zeitraum2", &B::Zeitraum2), field("Merkmal1", &B::Merkmal1),
        field("Merkmal2", &B::Merkmal2), field("Betrag01", &B::Betrag01), field("Betrag02", &B::Betrag02),
        field("Betrag03", &B::Betrag03), field("Betrag04", &B::Betrag04), field("Betrag05", &B::Betrag05),
        field("Betrag06", &B::Betrag06), field("Betrag07", &B::Betrag07), field("Betrag08", &B::Betrag08),
        field("Betrag09", &B::Betrag09), field("Betrag10", &B::Betrag10), field("Betrag11", &B::Betrag11),
        field("Betrag12", &B::Betrag12), field("Betrag13", &B::Betrag13), field("Betrag14", &B::Betrag14),
        field("Betrag15", &B::Betrag15), field("Sonderbetrag", &B::Sonderbetrag), field("Betrag16", &B::Betrag16),
        field("Betrag17", &B::Betrag17), field("Betrag18", &B::Betrag18), field("Betrag19", &B::Betrag19),
        field("Zeitpunkt", &B::Zeitpunkt), field("Nachweisart", &B::Nachweisart), field("Betrag20", &B::Betrag20),
        field("Betrag21", &B::Betrag21), field("Betrag22", &B::Betrag22), field("Betrag23", &B::Betrag23),
        field("Betrag24", &B::Betrag24), field("Betrag25", &B::Betrag25), field("Betrag26", &B::Betrag26),
        field("Betrag27", &B::Betrag27), field("Arbeitgeber", &B::Arbeitgeber), field("Empfaenger", &B::Empfaenger));
};

static_assert(complete<BeitrNachw>(), "every member of BeitrNachw has its entry");

}  // namespace tamrel::properties
