// The XML report data object. The person and address families share their
// fields under the prefixes Mgd (person concerned), Ang (applicant), Btr
// (supervisor) and Zgk (authorised recipient).
#pragma once
#include <cstdint>
#include <string>

#include "core/objects.h"

namespace tamrel {

struct AsylPerson {
    std::string Vsnr, Kvnr, Sasc, Aktenzeichen, Fmna, Vosa, Nazu, Titel, Vona, Gbdt, Ge, Gbot, Gbld, Gbna, Gbvosa,
        Gbnazu, Str, Nr, Adrzu, Plz, Ort, Tel, Email;
};

struct AsylAddress {
    std::string Fmna, Vosa, Nazu, Titel, Vona, Ge, Str, Nr, Adrzu, Plz, Ort;
};

struct Asyl {
    std::int32_t DatensatzNr = 0;
    std::string Gd, Rg, ZrBeginn, ZrEnde, BbnrVu, Ikko;
    std::string ApAnrede, ApName, ApTel, ApFax, ApEmail;
    AsylPerson Mgd;
    std::string AngArt;
    AsylPerson Ang;
    AsylAddress Btr, Zgk;
    std::string Bilddatei;
    std::string ErstellDatum;
    tamrel::Empfaenger Empfaenger;
};

}  // namespace tamrel
