// The property table of the data object `Erst` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "reports/clsGenErst/Erst.h"

namespace tamrel::properties {

template <>
struct Binding<Erst> {
    using E = Erst;
    static constexpr auto fields = std::make_tuple(
        field("ErstattungsId", &E::ErstattungsId), field("Abrechnungskennzeichen", &E::Abrechnungskennzeichen),
        field("ErstDatum", &E::ErstDatum), field("DBAAEntfaellt", &E::DBAAEntfaellt),
        field("Leistungsart", &E::Leistungsart), field("ErstelltAm", &E::ErstelltAm),
        field("Erstattungsgrund", &E::Erstattungsgrund), field("Empfaenger", &E::Empfaenger),
        field("Vorgang", &E::Vorgang), field("AnGeschl", &E::AnGeschl), field("AnName", &E::AnName),
        field("AnTel", &E::AnTel), field("AnFax", &E::AnFax), field("AnEMail", &E::AnEMail),
        field("ZeitraumBeginn", &E::ZeitraumBeginn), field("ZeitraumEnde", &E::ZeitraumEnde),
        field("Ausgleichsart", &E::Ausgleichsart), field("ZuschussBeginn", &E::ZuschussBeginn),
        field("ZuschussEnde", &E::ZuschussEnde), field("MerkmalA", &E::MerkmalA), field("MerkmalB", &E::MerkmalB),
        field("AngabeJN1", &E::AngabeJN1), field("Satz3", &E::Satz3), field("Entgelt1", &E::Entgelt1),
        field("Entgelt2", &E::Entgelt2), field("Entgelt3", &E::Entgelt3), field("Entgelt4", &E::Entgelt4),
        field("ZuschussBetrag1", &E::ZuschussBetrag1), field("ZuschussBetrag2", &E::ZuschussBetrag2),
        field("ZuschussBetrag3", &E::ZuschussBetrag3), field("ZuschussBetrag4", &E::ZuschussBetrag4),
        field("Zusatzdatum", &E::Zusatzdatum), field("AngabeJN2", &E::AngabeJN2), field("Wert1", &E::Wert1),
        field("Wert2", &E::Wert2), field("Wert3", &E::Wert3), field("Satz1", &E::Satz1), field("Satz2", &E::Satz2),
        field("Betrag1", &E::Betrag1), field("Betrag4", &E::Betrag4), field("Betrag2", &E::Betrag2),
        field("Betrag5", &E::Betrag5), field("Betrag3", &E::Betrag3), field("Betrag6", &E::Betrag6),
        field("BTKennzeichen", &E::BTKennzeichen), field("Abschlussdatum", &E::Abschlussdatum),
        field("Bankkennzeichen", &E::Bankkennzeichen), field("BVZahl2", &E::BVZahl2), field("BVZahl4", &E::BVZahl4),
        field("IBAN", &E::IBAN), field("BIC", &E::BIC), field("Kontoinhaber1", &E::Kontoinhaber1),
        field("Kontoinhaber2", &E::Kontoinhaber2));
};

static_assert(complete<Erst>(), "every member of Erst has its entry");

}  // namespace tamrel::properties
