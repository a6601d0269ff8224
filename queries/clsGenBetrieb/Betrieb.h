// The establishment master data object.
#pragma once
#include <cstdint>
#include <string>

#include "core/objects.h"

namespace tamrel {

struct Betrieb {
    std::int32_t DatensatzNr = 0;
    std::string Kennziffer;
    std::string Kennung15;
    bool KennzeichenR = false;
    std::string AnsprechpartnerGeschlecht, AnsprechpartnerName, AnsprechpartnerTelefon, AnsprechpartnerFax,
        AnsprechpartnerEMail;
    std::string DbkaName1, DbkaName2, DbkaName3, DbkaStrasse, DbkaPLZ, DbkaOrt, DbkaAdressTeil1, DbkaAdressTeil2;
    std::string ErstellDatum;
    tamrel::Empfaenger Empfaenger;
    tamrel::Arbeitgeber Arbeitgeber;
};

}  // namespace tamrel
