// The insurance-number query data object.
#pragma once
#include <cstdint>
#include <string>

#include "core/objects.h"

namespace tamrel {

struct AbfrVers {
    std::int32_t Kennzahl = 0;
    std::string Datum;
    tamrel::Vorgang Vorgang;
};

}  // namespace tamrel
