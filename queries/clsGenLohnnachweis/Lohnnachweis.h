// The accident-insurance wage statement data object and its positions.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/contact_block.h"
#include "core/objects.h"

namespace tamrel {

struct LnPosition {
    std::string PosFeld1, PosFeld2, PosFeld3, PosFeld4, PosFeld5;
};

struct Lohnnachweis : ContactPerson {
    std::int32_t DatensatzNr = 0;
    bool Kennz268 = false;
    std::string Feld464;
    std::string Feld402, Feld417, Feld236, Feld437, Feld442, Feld445, Feld480, Feld484, Feld487;
    std::string ErstellDatum;
    std::vector<LnPosition> Positionen;  // Position(1) is the first element
    std::int16_t AnzahlPositionen = 0;
    tamrel::Arbeitgeber Arbeitgeber;

    // The item operation: a fresh copy of position `index`; an index beyond
    // the list reads as an empty position.
    LnPosition Position(std::int16_t index) const {
        return index >= 1 && static_cast<std::size_t>(index) <= Positionen.size() ? Positionen[index - 1]
                                                                                  : LnPosition{};
    }
};

}  // namespace tamrel
