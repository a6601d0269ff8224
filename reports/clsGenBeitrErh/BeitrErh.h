// The contribution collection data object.
#pragma once
#include <cstdint>
#include <string>

#include "core/objects.h"

namespace tamrel {

struct BeitrErh {
    std::int32_t Laufnummer = 0;
    std::string Ersatzaktenzeichen;
    bool ArtKennzeichen = false;
    std::string Zeitraum1, Zeitraum2;
    std::string Betrag1, Betrag2;
    std::int32_t Merkmal1 = 0;
    std::string Betrag3, Betrag4;
    std::int32_t Merkmal2 = 0;
    std::string Betrag5;
    std::string Betrag6;
    std::string Zeitpunkt;
    tamrel::Vorgang Vorgang;
    tamrel::Empfaenger Empfaenger;
};

}  // namespace tamrel
