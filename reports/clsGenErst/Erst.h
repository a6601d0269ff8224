// The reimbursement application data object.
#pragma once
#include <cstdint>
#include <string>

#include "core/objects.h"

namespace tamrel {

struct Erst {
    std::int32_t ErstattungsId = 0;
    std::int32_t Abrechnungskennzeichen = 0;
    std::string ErstDatum;
    bool DBAAEntfaellt = false;
    std::int32_t Leistungsart = 0;
    std::string ErstelltAm;
    std::int32_t Erstattungsgrund = 0;
    tamrel::Empfaenger Empfaenger;
    tamrel::Vorgang Vorgang;
    std::string AnGeschl, AnName, AnTel, AnFax, AnEMail;
    std::string ZeitraumBeginn, ZeitraumEnde;
    std::int32_t Ausgleichsart = 0;
    std::string ZuschussBeginn, ZuschussEnde;
    std::int32_t MerkmalA = 0, MerkmalB = 0;
    std::int32_t AngabeJN1 = 0;
    std::string Satz3;
    std::string Entgelt1, Entgelt2, Entgelt3, Entgelt4;
    std::string ZuschussBetrag1, ZuschussBetrag2, ZuschussBetrag3, ZuschussBetrag4;
    std::string Zusatzdatum;
    std::int32_t AngabeJN2 = 0;
    std::string Wert1, Wert2, Wert3;
    std::string Satz1, Satz2;
    std::string Betrag1, Betrag4, Betrag2, Betrag5, Betrag3, Betrag6;
    std::int32_t BTKennzeichen = 0;
    std::string Abschlussdatum;
    std::int32_t Bankkennzeichen = 0;
    std::string BVZahl2, BVZahl4;
    std::string IBAN, BIC, Kontoinhaber1, Kontoinhaber2;
};

}  // namespace tamrel
