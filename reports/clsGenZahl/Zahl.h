// The pay-agency report data object.
#pragma once
#include <cstdint>
#include <string>

#include "core/objects.h"

namespace tamrel {

struct Zahl {
    std::int32_t ZahlId = 0;
    bool Pseudonym = false;
    std::string ZKArt;
    bool ZKKennzeichen = false;
    std::int32_t ZKAngabeJN = 0;
    std::string ZKBeginn, ZKEnde, ZKDatum;
    std::string ZKBetrag1, ZKBetrag3, ZKBetrag4;
    std::string ZKDatum2;
    std::string ZKBetrag2;
    std::string ZKDatum3, ZKDatum4;
    std::string ErstelltAm;
    tamrel::Empfaenger Empfaenger;
    tamrel::Vorgang Vorgang;
};

}  // namespace tamrel
