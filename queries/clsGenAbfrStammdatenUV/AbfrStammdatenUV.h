// The accident-insurance master-data query data object.
#pragma once
#include <cstdint>
#include <string>

#include "core/contact_block.h"
#include "core/objects.h"

namespace tamrel {

struct AbfrStammdatenUV : ContactPerson {
    std::int32_t DatensatzNr = 0;
    bool Kennz248 = false;
    std::string Feld216, Feld444;
    std::string Feld382, Feld397, Feld417, Feld422, Feld425;
    std::string ErstellDatum;
    tamrel::Arbeitgeber Arbeitgeber;
};

}  // namespace tamrel
