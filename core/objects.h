// The shared interfaces of the data-object side (receiver, employer, report
// case) and the two structures and the enumeration of the component
// interface. Plain values: the host fills them, the library reads them.
#pragma once
#include <cstdint>
#include <string>

namespace tamrel {

struct Empfaenger {
    std::string Betriebsnummer;
};

struct Arbeitgeber {
    std::string Betriebsnummer;
    std::string Arbeitgeberangabe;  // read only by the contribution statement
    std::string Name1, Name2, Name3;
    std::string Strasse, Hausnummer, Adresszusatz, Land, PLZ, Ort;
    std::string AdressTeil1, AdressTeil2;
    std::string Kennzeichen;  // one character, DEUEV blocks and contribution statement
    std::string Kontonummer, Bankleitzahl;
};

struct Vorgang {
    std::string Versicherungsnummer;
    std::string Kennung14;      // pay-agency report
    std::string Bezugskennung;  // DEUEV report of kind 8, contribution collection
    std::string Aktenzeichen;
    std::string Familienname, Vorsatzwort, Namenszusatz, Vorname, Titel;
    std::string Strasse, Hausnummer, Adresszusatz, Land, PLZ, Ort;
    std::string Laenderschluessel;
    std::string Geburtsname, GeburtsVorsatzwort, GeburtsNamenszusatz, Geburtsort, Geburtsdatum, Geschlecht;
    std::string EuAngabe1, EuAngabe2;
    tamrel::Arbeitgeber Arbeitgeber;
};

struct DSKOData {
    std::string strBNRAb, strBNREm, strMicroSec, strProdID, strModID;
    std::string strName1, strName2, strName3, strStrasse, strHausNr, strPLZ, strOrt;
    std::string strAnGeschl, strAnName, strAnTel, strAnFax, strAnEMail;
};

struct DatensatzData {
    std::string strBNRAb, strBNRSt, strVersion, strMicroseconds, strProdID, strModID, strDateiname;
};

enum VerfMerkmal : std::int32_t { vmNormal = 0, vmSofort = 1, vmBV = 2 };

}  // namespace tamrel
