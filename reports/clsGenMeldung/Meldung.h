// The DEUEV report data object: one employer's report on one employee.
#pragma once
#include <cstdint>
#include <string>

#include "core/indexed.h"
#include "core/objects.h"

namespace tamrel {

struct Meldung {
    std::int32_t Laufnummer = 0;
    std::string Meldegrund;
    bool MitNamensdaten = false;
    std::string Personengruppe;
    std::string Zusatzmerkmal;
    std::string Ersatzaktenzeichen;
    std::string Zeitpunkt;
    std::int32_t Meldungsart = 0;
    bool Storno = false;
    std::string Meldekennzeichen;
    std::string Beginn, Ende;
    bool Sonderkennzeichen = false;
    std::string Beitragsgruppe1, Beitragsgruppe2, Beitragsgruppe3, Beitragsgruppe4;
    std::string SchluesselAlt1, SchluesselAlt2, SchluesselAlt3, SchluesselAlt4, SchluesselAlt5;
    std::string SchluesselNeu1, SchluesselNeu2, SchluesselNeu3;
    std::string KsKennzeichen;
    std::string Statuskennzeichen;
    std::string Entgelt;
    std::string KvGrund;
    std::string KvBetrag1, KvBetrag2, KvBetrag3, KvBetrag4;
    bool KsMerkmal = false;
    std::string KsAngabe1, KsAngabe2, KsAngabe3, KsAngabe4;
    std::string KsSchluessel, KsDatum;
    Indexed<std::string> KsZeileA, KsZeileB, KsZeileC, KsZeileD;
    Indexed<std::string> UvAngabe2, UvAngabe3, UvAngabe1, UvAngabe4, UvAngabe5, UvAngabe6;
    std::int16_t KsLetzter = 0, KsErster = 1;
    std::int16_t UvLetzter = 0, UvErster = 1;
    Indexed<bool> UvEntfaellt;
    tamrel::Vorgang Vorgang;
    tamrel::Empfaenger Empfaenger;
};

}  // namespace tamrel
