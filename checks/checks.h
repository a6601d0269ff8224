// The checks of a report's data, run before its record is built: they tell
// what the receiving office's acceptance check would reject, and never
// change what the record builders make of the same data.
#pragma once
#include "checks/finding.h"
#include "core/objects.h"

namespace tamrel {
struct Meldung;
struct BeitrNachw;
}  // namespace tamrel

namespace tamrel::checks {

// The rules of a procedure's data object. A procedure without rules of its
// own yet finds nothing.
template <class Obj>
void check_report(const Obj&, Findings&) {}
void check_report(const Meldung& m, Findings& f);
void check_report(const BeitrNachw& b, Findings& f);

// The establishment numbers of the frame records (sender and receiver).
void check_frame(std::string_view strBNRAb, std::string_view strBNREm, Findings& f);

}  // namespace tamrel::checks
