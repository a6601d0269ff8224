// The property table of the data object `AbfrVers` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "queries/clsGenAbfrVers/AbfrVers.h"

namespace tamrel::properties {

template <>
struct Binding<AbfrVers> {
    static constexpr auto fields = std::make_tuple(
        field("Kennzahl", &AbfrVers::Kennzahl), field("Datum", &AbfrVers::Datum), field("Vorgang", &AbfrVers::Vorgang));
};

static_assert(complete<AbfrVers>(), "every member of AbfrVers has its entry");

}  // namespace tamrel::properties
