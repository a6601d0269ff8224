// The checks of a report's data, run before its record is built: they tell
// what the receiving office's acceptance check would reject, and never
// change what the record builders make of the same data.
#pragma once
#include "checks/finding.h"
#include "core/objects.h"

namespace tamrel {
struct Meldung;
struct BeitrNachw;
struct BeitrErh;
struct Erst;
struct Zahl;
struct ArbeitsBesch;
struct Entgelt;
struct Betrieb;
struct AbfrVers;
struct AbfrStammdatenUV;
struct Lohnnachweis;
struct Asyl;
}  // namespace tamrel

namespace tamrel::checks {

// The rules of each procedure's data object.
void check_report(const Meldung& m, Findings& f);
void check_report(const BeitrNachw& b, Findings& f);
void check_report(const BeitrErh& b, Findings& f);
void check_report(const Erst& e, Findings& f);
void check_report(const Zahl& z, Findings& f);
void check_report(const ArbeitsBesch& a, Findings& f);
void check_report(const Entgelt& e, Findings& f);
void check_report(const Betrieb& b, Findings& f);
void check_report(const AbfrVers& a, Findings& f);
void check_report(const AbfrStammdatenUV& a, Findings& f);
void check_report(const Lohnnachweis& l, Findings& f);
void check_report(const Asyl& a, Findings& f);

// The values of the frame records, before any is written: the parties'
// establishment numbers (the communication record's the same as the
// header's), the file number and the numeric fields the records share,
// each against its field's declared width.
struct FrameFields {
    std::string_view strBNRAb, strBNREm, strFileNr, strDatum;
    const std::int32_t* enmVerfahren = nullptr;  // where it is a VerfMerkmal
    const DSKOData* dsko = nullptr;              // absent for the XML report
    const DatensatzData* datensatz = nullptr;
};
void check_frame(const FrameFields& v, Findings& f);

}  // namespace tamrel::checks
