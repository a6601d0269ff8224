// The contribution statement data object.
#pragma once
#include <cstdint>
#include <string>

#include "core/objects.h"

namespace tamrel {

struct BeitrNachw {
    std::int32_t Laufnummer = 0;
    bool SKennzeichen = false;
    std::string Waehrung;
    std::string Zeitraum1, Zeitraum2;
    bool Merkmal1 = false, Merkmal2 = false;
    std::string Betrag01, Betrag02, Betrag03, Betrag04, Betrag05, Betrag06, Betrag07, Betrag08, Betrag09, Betrag10;
    std::string Betrag11, Betrag12, Betrag13, Betrag14, Betrag15;
    std::string Sonderbetrag;
    std::string Betrag16, Betrag17, Betrag18, Betrag19;
    std::string Zeitpunkt;
    std::int32_t Nachweisart = 0;
    std::string Betrag20, Betrag21, Betrag22, Betrag23, Betrag24, Betrag25, Betrag26, Betrag27;
    tamrel::Arbeitgeber Arbeitgeber;
    tamrel::Empfaenger Empfaenger;
};

}  // namespace tamrel
