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
struct ArbeitsBesch;
struct BeitrErh;
struct BeitrNachw;
struct Zahl;
struct Entgelt;
struct Lohnnachweis;
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
template <>
void read_own_forms<BeitrNachw>(BeitrNachw&, std::span<const ReadField>, std::span<const checks::Part>, RecordFrame&);
template <>
void read_own_forms<Zahl>(Zahl&, std::span<const ReadField>, std::span<const checks::Part>, RecordFrame&);
template <>
void read_own_forms<Entgelt>(Entgelt&, std::span<const ReadField>, std::span<const checks::Part>, RecordFrame&);
template <>
void read_own_forms<Lohnnachweis>(Lohnnachweis&, std::span<const ReadField>, std::span<const checks::Part>,
                                  RecordFrame&);
template <>
void read_own_forms<BeitrErh>(BeitrErh&, std::span<const ReadField>, std::span<const checks::Part>, RecordFrame&);
template <>
void read_own_forms<ArbeitsBesch>(ArbeitsBesch&, std::span<const ReadField>, std::span<const checks::Part>,
                                  RecordFrame&);

// A J/N flag's property: 1 for "J", 2 for "N", 0 for a blank.
inline std::int32_t jn_value(std::string_view v) { return v == "J" ? 1 : v == "N" ? 2 : 0; }

// A one-digit code "0".."last" that stands for the values 1 onwards; 0 for
// an empty field or any other text.
inline std::int32_t from_zero_code(std::string_view v, char last) {
    return v.size() == 1 && v[0] >= '0' && v[0] <= last ? v[0] - '0' + 1 : 0;
}

// A list's entries, whose fields are named "X(i)", as the items of `items`
// (entry i is item i, its property X).
// The setters are found once a field, as the declared fields' are.
template <Bound Item>
void read_entries(std::vector<Item>& items, std::span<const ReadField> left, const RecordLayout& entry) {
    thread_local std::unordered_map<const FieldLayout*, Setter<Item>> setters;
    for (const ReadField& r : left) {
        if (r.part->layout != &entry || r.part->entry == 0) continue;
        if (items.size() < r.part->entry) items.resize(r.part->entry);
        auto it = setters.find(r.field);
        if (it == setters.end()) {
            const std::string_view name = r.field->name;
            it = setters.emplace(r.field, resolve<Item>(name.substr(0, name.find('(')))).first;
        }
        if (it->second) it->second(items[r.part->entry - 1], {}, r.value);
    }
}

// The record identification's strBNRSt, from the field that writes it
// only outside the excluded range (written blank, read empty).
void read_converted_bnrst(std::span<const ReadField> left, RecordFrame& frame);

// A record reference: the version (10 characters, into the record
// identification) and a running number (10 digits, returned).
std::int32_t read_version_number(std::string_view v, RecordFrame& frame);

}  // namespace tamrel::readback
