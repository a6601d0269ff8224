// The layouts of the frame records VOSZ, NCSZ and DSKO, as core/frames.cpp
// builds them.
#pragma once
#include "core/layout.h"

namespace tamrel::layouts {

namespace VOSZ {
inline constexpr FieldLayout Kennung{"identifier", 1, 4, FieldKind::Literal, "VOSZ"};
inline constexpr FieldLayout Verfahren{"procedure", 5, 5, FieldKind::Code};
inline constexpr FieldLayout strBNRAb{"strBNRAb", 10, 15, FieldKind::Bnr};
inline constexpr FieldLayout strBNREm{"strBNREm", 25, 15, FieldKind::Bnr};
inline constexpr FieldLayout strDatum{"strDatum", 40, 8, FieldKind::Date};
inline constexpr FieldLayout strFileNr{"strFileNr", 48, 6, FieldKind::N};
inline constexpr FieldLayout strFirma{"strFirma", 54, 50, FieldKind::An};
inline constexpr FieldLayout Version{"version", 104, 2, FieldKind::Literal, "01"};
inline constexpr FieldLayout kFields[] = {Kennung,  Verfahren, strBNRAb, strBNREm,
                                          strDatum, strFileNr, strFirma, Version};
}  // namespace VOSZ
inline constexpr RecordLayout kVOSZ{"VOSZ", 105, VOSZ::kFields};

namespace NCSZ {
inline constexpr FieldLayout Kennung{"identifier", 1, 4, FieldKind::Literal, "NCSZ"};
inline constexpr FieldLayout Verfahren{"procedure", 5, 5, FieldKind::Code};
inline constexpr FieldLayout strBNRAb{"strBNRAb", 10, 15, FieldKind::Bnr};
inline constexpr FieldLayout strBNREm{"strBNREm", 25, 15, FieldKind::Bnr};
inline constexpr FieldLayout Datum{"date", 40, 8, FieldKind::Date};
inline constexpr FieldLayout strFileNr{"strFileNr", 48, 6, FieldKind::N};
inline constexpr FieldLayout strCount{"strCount", 54, 8, FieldKind::N};
inline constexpr FieldLayout Version{"version", 62, 2, FieldKind::Literal, "01"};
inline constexpr FieldLayout kFields[] = {Kennung, Verfahren, strBNRAb, strBNREm, Datum, strFileNr, strCount, Version};
}  // namespace NCSZ
inline constexpr RecordLayout kNCSZ{"NCSZ", 63, NCSZ::kFields};

namespace DSKO {
inline constexpr FieldLayout Kennung{"identifier", 1, 4, FieldKind::Literal, "DSKO"};
inline constexpr FieldLayout Verfahren{"procedure", 5, 5, FieldKind::Code};
inline constexpr FieldLayout strBNRAb{"strBNRAb", 10, 15, FieldKind::Bnr};
inline constexpr FieldLayout strBNREm{"strBNREm", 25, 15, FieldKind::Bnr};
inline constexpr FieldLayout Version{"version", 40, 2, FieldKind::Literal, "04"};
inline constexpr FieldLayout Erstellt{"created", 42, 14, FieldKind::DateTime};
inline constexpr FieldLayout strMicroSec{"strMicroSec", 56, 6, FieldKind::N};
inline constexpr FieldLayout Fehlerkennzeichen{"error marker", 62, 1, FieldKind::Literal, "0"};
inline constexpr FieldLayout Fehleranzahl{"number of errors", 63, 1, FieldKind::Literal, "0"};
inline constexpr FieldLayout Verursacher{"causer (strBNRAb)", 64, 15, FieldKind::An};
inline constexpr FieldLayout strProdID{"strProdID", 79, 7, FieldKind::An};
inline constexpr FieldLayout strModID{"strModID", 86, 8, FieldKind::An};
inline constexpr FieldLayout strName1{"strName1", 94, 30, FieldKind::An};
inline constexpr FieldLayout strName2{"strName2", 124, 30, FieldKind::An};
inline constexpr FieldLayout strName3{"strName3", 154, 30, FieldKind::An};
inline constexpr FieldLayout strPLZ{"strPLZ", 184, 10, FieldKind::An};
inline constexpr FieldLayout strOrt{"strOrt", 194, 34, FieldKind::An};
inline constexpr FieldLayout strStrasse{"strStrasse", 228, 33, FieldKind::An};
inline constexpr FieldLayout strHausNr{"strHausNr", 261, 9, FieldKind::An};
inline constexpr FieldLayout strAnGeschl{"strAnGeschl", 270, 1, FieldKind::An};
inline constexpr FieldLayout strAnName{"strAnName", 271, 30, FieldKind::An};
inline constexpr FieldLayout strAnTel{"strAnTel", 301, 20, FieldKind::An};
inline constexpr FieldLayout strAnFax{"strAnFax", 321, 20, FieldKind::An};
inline constexpr FieldLayout strAnEMail{"strAnEMail", 341, 70, FieldKind::An};
inline constexpr FieldLayout Reserve{"reserve", 411, 5, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung,   Verfahren,   strBNRAb,          strBNREm,     Version,
                                          Erstellt,  strMicroSec, Fehlerkennzeichen, Fehleranzahl, Verursacher,
                                          strProdID, strModID,    strName1,          strName2,     strName3,
                                          strPLZ,    strOrt,      strStrasse,        strHausNr,    strAnGeschl,
                                          strAnName, strAnTel,    strAnFax,          strAnEMail,   Reserve};
}  // namespace DSKO
inline constexpr RecordLayout kDSKO{"DSKO", 415, DSKO::kFields};

}  // namespace tamrel::layouts
