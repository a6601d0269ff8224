// Writes a generate job and N DEUEV reports as NDJSON, each with its own
// data, mixing report reasons and blocks (registrations with name, birth,
// address and KS blocks, deregistrations, annual reports, immediate-style
// address reports, reason 58 with DBKV).
//
//   make_reports N OUT_DIR   -> OUT_DIR/job.json, OUT_DIR/reports.ndjson
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "checks/numbers.h"

namespace {

const char* const kNames[] = {"M\u00fcller", "Schmidt", "Schneider", "Fischer", "Weber", "Meyer", "Wagner", "Becker"};
const char* const kFirst[] = {"J\u00fcrgen", "Anna", "Peter", "Maria", "Thomas", "Sabine", "Michael", "Petra"};
const char* const kTowns[] = {"K\u00f6ln", "Berlin", "M\u00fcnchen", "Hamburg", "Dresden", "Leipzig"};

std::string ks_lines() {
    std::string s = "[";
    for (int i = 0; i < 12; ++i) s += std::string(i ? "," : "") + (i == 0 ? "\"DE\"" : "\"\"");
    return s + "]";
}

// Numbers and dates that pass the checks: the insurance number carries the
// birth date and the name's initial, and its check digit.
void report(std::FILE* f, long i) {
    const char* reasons[] = {"10", "30", "50", "10", "40", "58", "13", "70"};
    std::string reason = reasons[i % 8];
    const bool registration = reason == "10" || reason == "13";
    const long year = 50 + i % 50, month = 1 + i % 12, day = 1 + i % 28;
    char insurance[16];
    std::snprintf(insurance, sizeof insurance, "12%02ld%02ld%02ld%c%02ld0", day, month, year, kNames[i % 8][0],
                  i % 100);
    insurance[11] = static_cast<char>('0' + tamrel::checks::versicherungsnummer_check_digit(insurance));
    std::fprintf(
        f,
        "{\"Laufnummer\":%ld,\"Meldegrund\":\"%s\",\"Meldungsart\":1,\"Personengruppe\":\"101\","
        "\"Beitragsgruppe1\":\"1\",\"Beitragsgruppe2\":\"1\",\"Beitragsgruppe3\":\"1\",\"Beitragsgruppe4\":"
        "\"1\",\"Beginn\":\"20240101\",\"Ende\":\"%s\",\"Entgelt\":\"%ld\",\"SchluesselNeu1\":\"43112\","
        "\"SchluesselNeu2\":\"1\",\"SchluesselNeu3\":\"14\",\"KsKennzeichen\":\"N\",\"KsDatum\":\"20240101\","
        "\"KsSchluessel\":\"01\",\"KsZeileA\":%s,\"KvGrund\":\"1\",\"KvBetrag1\":\"%ld,%02ld\","
        "\"Vorgang\":{\"Versicherungsnummer\":\"%s\",\"Aktenzeichen\":\"P-%07ld\",\"Familienname\":\"%s\","
        "\"Vorname\":\"%s\",\"Geburtsdatum\":\"19%02ld%02ld%02ld\",\"Geschlecht\":\"%s\",\"Geburtsort\":\"%s\","
        "\"Strasse\":\"Hauptstra\u00dfe\",\"Hausnummer\":\"%ld\",\"PLZ\":\"%05ld\",\"Ort\":\"%s\","
        "\"Arbeitgeber\":{\"Betriebsnummer\":\"98765432\",\"Kennzeichen\":\"N\"}},"
        "\"Empfaenger\":{\"Betriebsnummer\":\"12345671\"}}\n",
        i + 1, reason.c_str(), registration ? "" : "20241231", 1000 + i % 90000, ks_lines().c_str(), i % 5000, i % 100,
        insurance, i, kNames[i % 8], kFirst[(i / 8) % 8], year, month, day, i % 2 ? "M" : "W", kTowns[i % 6],
        1 + i % 200, 10000 + i % 89999, kTowns[(i / 6) % 6]);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_reports N OUT_DIR\n");
        return 2;
    }
    long n = std::atol(argv[1]);
    std::filesystem::path dir = argv[2];
    std::filesystem::create_directories(dir);
    std::ofstream(dir / "job.json")
        << R"({"class":"clsGenMeldung","strBNRAb":"98765432","strBNREm":"12345671","strFileNr":"1",)"
        << R"("strFirma":"Benchmark GmbH","enmVerfahren":"vmNormal","datDate":"2024-03-01T10:11:12",)"
        << R"("now":"2024-03-01T10:11:12","udtDSKOData":{"strBNRAb":"98765432","strBNREm":"12345671"},)"
        << R"("udtDatensatzData":{"strBNRAb":"98765432","strVersion":"BENCH","strMicroseconds":"1",)"
        << R"("strProdID":"TAMREL1","strModID":"BENCH01"},"reports_file":"reports.ndjson"})" << '\n';
    std::FILE* f = std::fopen((dir / "reports.ndjson").c_str(), "w");
    if (!f) return 1;
    static char buffer[1 << 20];
    std::setvbuf(f, buffer, _IOFBF, sizeof buffer);
    for (long i = 0; i < n; ++i) report(f, i);
    return std::fclose(f) == 0 ? 0 : 1;
}
