#pragma once
#include "component/shared_bindings.h"
#include "reports/clsGenErst/Erst.h"
#include "reports/clsGenZahl/Zahl.h"

namespace tamrel::json_binding {

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

}  // namespace tamrel::json_binding
