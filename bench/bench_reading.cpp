// Reading one report line of tamrel generate into its data object: the
// fast scanner, and simdjson's DOM reader it falls back to.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "call/report_runner.h"
#include "core/host.h"

using namespace tamrel;

namespace {

// A registration as bench/make_reports writes it (about 800 bytes).
const std::string kLine =
    R"({"Laufnummer":1,"Meldegrund":"10","Meldungsart":1,"Personengruppe":"101","Beitragsgruppe1":"1",)"
    R"("Beitragsgruppe2":"1","Beitragsgruppe3":"1","Beitragsgruppe4":"1","Beginn":"20240101","Ende":"20241231",)"
    R"("Entgelt":"1000","SchluesselNeu1":"43112","SchluesselNeu2":"1","SchluesselNeu3":"14","KsKennzeichen":"N",)"
    R"("KsDatum":"20240101","KsSchluessel":"01","KsZeileA":["DE","","","","","","","","","","",""],"KvGrund":"1",)"
    R"("KvBetrag1":"0,00","Vorgang":{"Versicherungsnummer":"10000000A000","Aktenzeichen":"P-0000000",)"
    R"("Familienname":"Müller","Vorname":"Jürgen","Geburtsdatum":"19500101","Geschlecht":"W","Geburtsort":"Köln",)"
    R"("Strasse":"Hauptstraße","Hausnummer":"1","PLZ":"10000","Ort":"Köln",)"
    R"("Arbeitgeber":{"Betriebsnummer":"98765432","Kennzeichen":"N"}},"Empfaenger":{"Betriebsnummer":"12345678"}})";

// Reads kLine over and over through one of the runner's readers.
void read_line(benchmark::State& state, void (ReportRunner::*read)(std::string_view)) {
    const Host host{[](std::string_view) {}, [] { return Date{2024, 3, 1, 10, 11, 12}; }, {}};
    auto runner = make_runner("clsGenMeldung", RunnerSettings{&host, {}, 0, {}});
    for (auto _ : state) ((*runner).*read)(kLine);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * kLine.size()));
}

void BM_ReadReportLine_Scanner(benchmark::State& state) { read_line(state, &ReportRunner::read_text); }
BENCHMARK(BM_ReadReportLine_Scanner);

void BM_ReadReportLine_Dom(benchmark::State& state) { read_line(state, &ReportRunner::read_text_reference); }
BENCHMARK(BM_ReadReportLine_Dom);

}  // namespace
