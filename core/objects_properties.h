// The property table of the shared data objects and the two structures: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects.h"
#include "core/property_table.h"

namespace tamrel::properties {

template <>
struct Binding<Empfaenger> {
    static constexpr auto fields = std::make_tuple(field("Betriebsnummer", &Empfaenger::Betriebsnummer));
};
template <>
struct Binding<Arbeitgeber> {
    using A = Arbeitgeber;
    static constexpr auto fields = std::make_tuple(
        field("Betriebsnummer", &A::Betriebsnummer), field("Arbeitgeberangabe", &A::Arbeitgeberangabe),
        field("Name1", &A::Name1), field("Name2", &A::Name2), field("Name3", &A::Name3), field("Strasse", &A::Strasse),
        field("Hausnummer", &A::Hausnummer), field("Adresszusatz", &A::Adresszusatz), field("Land", &A::Land),
        field("PLZ", &A::PLZ), field("Ort", &A::Ort), field("AdressTeil1", &A::AdressTeil1),
        field("AdressTeil2", &A::AdressTeil2), field("Kennzeichen", &A::Kennzeichen),
        field("Kontonummer", &A::Kontonummer), field("Bankleitzahl", &A::Bankleitzahl));
};
template <>
struct Binding<Vorgang> {
    using V = Vorgang;
    static constexpr auto fields = std::make_tuple(
        field("Versicherungsnummer", &V::Versicherungsnummer), field("Kennung14", &V::Kennung14),
        field("Bezugskennung", &V::Bezugskennung), field("Aktenzeichen", &V::Aktenzeichen),
        field("Familienname", &V::Familienname), field("Vorsatzwort", &V::Vorsatzwort),
        field("Namenszusatz", &V::Namenszusatz), field("Vorname", &V::Vorname), field("Titel", &V::Titel),
        field("Strasse", &V::Strasse), field("Hausnummer", &V::Hausnummer), field("Adresszusatz", &V::Adresszusatz),
        field("Land", &V::Land), field("PLZ", &V::PLZ), field("Ort", &V::Ort),
        field("Laenderschluessel", &V::Laenderschluessel), field("Geburtsname", &V::Geburtsname),
        field("GeburtsVorsatzwort", &V::GeburtsVorsatzwort), field("GeburtsNamenszusatz", &V::GeburtsNamenszusatz),
        field("Geburtsort", &V::Geburtsort), field("Geburtsdatum", &V::Geburtsdatum),
        field("Geschlecht", &V::Geschlecht), field("EuAngabe1", &V::EuAngabe1), field("EuAngabe2", &V::EuAngabe2),
        field("Arbeitgeber", &V::Arbeitgeber));
};
template <>
struct Binding<DSKOData> {
    using D = DSKOData;
    static constexpr auto fields = std::make_tuple(
        field("strBNRAb", &D::strBNRAb), field("strBNREm", &D::strBNREm), field("strMicroSec", &D::strMicroSec),
        field("strProdID", &D::strProdID), field("strModID", &D::strModID), field("strName1", &D::strName1),
        field("strName2", &D::strName2), field("strName3", &D::strName3), field("strStrasse", &D::strStrasse),
        field("strHausNr", &D::strHausNr), field("strPLZ", &D::strPLZ), field("strOrt", &D::strOrt),
        field("strAnGeschl", &D::strAnGeschl), field("strAnName", &D::strAnName), field("strAnTel", &D::strAnTel),
        field("strAnFax", &D::strAnFax), field("strAnEMail", &D::strAnEMail));
};
template <>
struct Binding<DatensatzData> {
    using D = DatensatzData;
    static constexpr auto fields = std::make_tuple(
        field("strBNRAb", &D::strBNRAb), field("strBNRSt", &D::strBNRSt), field("strVersion", &D::strVersion),
        field("strMicroseconds", &D::strMicroseconds), field("strProdID", &D::strProdID),
        field("strModID", &D::strModID), field("strDateiname", &D::strDateiname));
};

static_assert(complete<Empfaenger>(), "every member of Empfaenger has its entry");
static_assert(complete<Arbeitgeber>(), "every member of Arbeitgeber has its entry");
static_assert(complete<Vorgang>(), "every member of Vorgang has its entry");
static_assert(complete<DSKOData>(), "every member of DSKOData has its entry");
static_assert(complete<DatensatzData>(), "every member of DatensatzData has its entry");

}  // namespace tamrel::properties
