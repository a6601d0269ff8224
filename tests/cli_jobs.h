// The small DEUEV job that the command-line tests run: a registration
// whose file reference and family name carry a name, so that a test finds
// its report in the transfer file and in the protocol.
#pragma once
#include <string>

#include <nlohmann/json.hpp>

#include "tests/test_support.h"

namespace tamrel::testing {

inline nlohmann::json named_report(const std::string& name) {
    return {{"Meldegrund", "62"},
            {"Meldungsart", 1},
            {"Vorgang",
             {{"Aktenzeichen", name}, {"Familienname", name}, {"Arbeitgeber", {{"Betriebsnummer", kSenderBnr}}}}},
            {"Empfaenger", {{"Betriebsnummer", kReceiverBnr}}}};
}

inline nlohmann::json small_job(const nlohmann::json& reports) {
    return {{"class", "clsGenMeldung"}, {"strBNRAb", kSenderBnr}, {"strBNREm", kReceiverBnr},
            {"strFileNr", "1"},         {"strFirma", "F"},        {"datDate", "2024-03-01T10:11:12"},
            {"reports", reports}};
}

}  // namespace tamrel::testing
