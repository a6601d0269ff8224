// The layouts of the DSBD record and its block DBKA, as GenDSBD.cpp builds
// them.
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"

namespace tamrel::layouts::betrieb {
using layout::lit;

namespace DBKA {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBKA");
inline constexpr FieldLayout DbkaName1{"DbkaName1", 5, 30, FieldKind::An};
inline constexpr FieldLayout DbkaName2{"DbkaName2", 35, 30, FieldKind::An};
inline constexpr FieldLayout DbkaName3{"DbkaName3", 65, 30, FieldKind::An};
inline constexpr FieldLayout DbkaPLZ{"DbkaPLZ", 95, 10, FieldKind::An};
inline constexpr FieldLayout DbkaOrt{"DbkaOrt", 105, 34, FieldKind::An};
inline constexpr FieldLayout DbkaStrasse{"DbkaStrasse", 139, 33, FieldKind::An};
inline constexpr FieldLayout Reserve1{"reserve", 172, 9, FieldKind::An};
inline constexpr FieldLayout DbkaAdressTeil1{"DbkaAdressTeil1", 181, 10, FieldKind::An};
inline constexpr FieldLayout DbkaAdressTeil2{"DbkaAdressTeil2", 191, 10, FieldKind::An};
inline constexpr FieldLayout Reserve2{"reserve", 201, 8, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung,     DbkaName1, DbkaName2,       DbkaName3,       DbkaPLZ, DbkaOrt,
                                          DbkaStrasse, Reserve1,  DbkaAdressTeil1, DbkaAdressTeil2, Reserve2};
}  // namespace DBKA
inline constexpr RecordLayout kDBKA{"DBKA", 208, DBKA::kFields};

namespace DSBD {
inline constexpr RecordHead Head{"DSBD", "BTRAG", "01", "created (ErstellDatum)"};
inline constexpr FieldLayout ArbeitgeberBetriebsnummer{"Arbeitgeber.Betriebsnummer", 64, 15, FieldKind::Bnr};
inline constexpr FieldLayout Reserve1{"reserve", 79, 11, FieldKind::An};
inline constexpr FieldLayout ConvertBNRSt{"ConvertBNRSt(DatensatzData.strBNRSt)", 90, 15, FieldKind::An};
inline constexpr FieldLayout Kennziffer{"Kennziffer", 105, 2, FieldKind::N};
inline constexpr FieldLayout Reserve2{"reserve", 107, 5, FieldKind::An};
inline constexpr FieldLayout Name1{"Arbeitgeber.Name1", 112, 30, FieldKind::An};
inline constexpr FieldLayout Name2{"Arbeitgeber.Name2", 142, 30, FieldKind::An};
inline constexpr FieldLayout Name3{"Arbeitgeber.Name3", 172, 30, FieldKind::An};
inline constexpr FieldLayout PLZ{"Arbeitgeber.PLZ", 202, 10, FieldKind::An};
inline constexpr FieldLayout Ort{"Arbeitgeber.Ort", 212, 34, FieldKind::An};
inline constexpr FieldLayout Strasse{"Arbeitgeber.Strasse", 246, 33, FieldKind::An};
inline constexpr FieldLayout Hausnummer{"Arbeitgeber.Hausnummer", 279, 9, FieldKind::An};
inline constexpr FieldLayout AdressTeil1{"Arbeitgeber.AdressTeil1", 288, 10, FieldKind::An};
inline constexpr FieldLayout AdressTeil2{"Arbeitgeber.AdressTeil2", 298, 10, FieldKind::An};
inline constexpr FieldLayout KennzeichenR{"KennzeichenR (R or A)", 308, 1, FieldKind::Code};
inline constexpr FieldLayout Kennung15{"Kennung15", 309, 15, FieldKind::An};
inline constexpr FieldLayout AnsprechpartnerGeschlecht{"AnsprechpartnerGeschlecht", 324, 1, FieldKind::An};
inline constexpr FieldLayout AnsprechpartnerName{"AnsprechpartnerName", 325, 30, FieldKind::An};
inline constexpr FieldLayout AnsprechpartnerTelefon{"AnsprechpartnerTelefon", 355, 20, FieldKind::An};
inline constexpr FieldLayout AnsprechpartnerFax{"AnsprechpartnerFax", 375, 20, FieldKind::An};
inline constexpr FieldLayout AnsprechpartnerEMail{"AnsprechpartnerEMail", 395, 70, FieldKind::An};
inline constexpr FieldLayout Reserve3{"reserve", 465, 20, FieldKind::An};
inline constexpr FieldLayout strVersion{"DatensatzData.strVersion", 485, 10, FieldKind::An};
inline constexpr FieldLayout DatensatzNr{"DatensatzNr", 495, 10, FieldKind::N};
inline constexpr FieldLayout EmpfaengerBetriebsnummer{"Empfaenger.Betriebsnummer", 505, 15, FieldKind::Bnr};
inline constexpr FieldLayout Reserve4{"reserve", 520, 15, FieldKind::An};
inline constexpr FieldLayout MitDBKA = layout::flag(kDBKA, 535);
inline constexpr FieldLayout Fest = lit("fixed", 536, "N");
inline constexpr FieldLayout Reserve5{"reserve", 537, 5, FieldKind::An};
inline constexpr std::array kOwn{ArbeitgeberBetriebsnummer,
                                 Reserve1,
                                 ConvertBNRSt,
                                 Kennziffer,
                                 Reserve2,
                                 Name1,
                                 Name2,
                                 Name3,
                                 PLZ,
                                 Ort,
                                 Strasse,
                                 Hausnummer,
                                 AdressTeil1,
                                 AdressTeil2,
                                 KennzeichenR,
                                 Kennung15,
                                 AnsprechpartnerGeschlecht,
                                 AnsprechpartnerName,
                                 AnsprechpartnerTelefon,
                                 AnsprechpartnerFax,
                                 AnsprechpartnerEMail,
                                 Reserve3,
                                 strVersion,
                                 DatensatzNr,
                                 EmpfaengerBetriebsnummer,
                                 Reserve4,
                                 MitDBKA,
                                 Fest,
                                 Reserve5};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
}  // namespace DSBD
inline constexpr RecordLayout kDSBD{"DSBD", 541, DSBD::kFields};

}  // namespace tamrel::layouts::betrieb
