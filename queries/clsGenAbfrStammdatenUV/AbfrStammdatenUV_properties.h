// The property table of the data object `AbfrStammdatenUV` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/contact_block.h"
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV.h"

namespace tamrel::properties {

template <>
struct Binding<AbfrStammdatenUV> {
    using base = ContactPerson;  // its contact person's properties are among its own
    using A = AbfrStammdatenUV;
    static constexpr auto fields =
        std::make_tuple(field("DatensatzNr", &A::DatensatzNr), field("Kennz248", &A::Kennz248),
                        field("Feld216", &A::Feld216), field("Feld444", &A::Feld444), field("ApAnrede", &A::ApAnrede),
                        field("ApName", &A::ApName), field("ApTel", &A::ApTel), field("ApFax", &A::ApFax),
                        field("ApEmail", &A::ApEmail), field("Feld382", &A::Feld382), field("Feld397", &A::Feld397),
                        field("Feld417", &A::Feld417), field("Feld422", &A::Feld422), field("Feld425", &A::Feld425),
                        field("ErstellDatum", &A::ErstellDatum), field("Arbeitgeber", &A::Arbeitgeber));
};

static_assert(complete<AbfrStammdatenUV>(), "every member of AbfrStammdatenUV has its entry");

}  // namespace tamrel::properties
