// The property table of the data object `Betrieb` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "queries/clsGenBetrieb/Betrieb.h"

namespace tamrel::properties {

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

static_assert(complete<Betrieb>(), "every member of Betrieb has its entry");

}  // namespace tamrel::properties
