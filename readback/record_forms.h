// What each procedure writes in a form of its own, read back: fields that
// hold several properties, or a property in another form, which the
// declarations alone do not place (readback/forms/<Object>_forms.cpp).
// `left` are the fields the declarations did not place, with their values.
#pragma once
#include <span>

#include "readback/report_reading.h"

namespace tamrel {
struct Meldung;
struct Betrieb;
struct Erst;
}  // namespace tamrel

namespace tamrel::readback {

template <class T>
void read_own_forms(T&, std::span<const ReadField>, std::span<const checks::Part>, RecordFrame&) {}

template <>
void read_own_forms<Meldung>(Meldung&, std::span<const ReadField>, std::span<const checks::Part>, RecordFrame&);
template <>
void read_own_forms<Betrieb>(Betrieb&, std::span<const ReadField>, std::span<const checks::Part>, RecordFrame&);
template <>
void read_own_forms<Erst>(Erst&, std::span<const ReadField>, std::span<const checks::Part>, RecordFrame&);

// The record identification's strBNRSt, from the field that writes it
// only outside the excluded range (written blank, read empty).
void read_converted_bnrst(std::span<const ReadField> left, RecordFrame& frame);

}  // namespace tamrel::readback
