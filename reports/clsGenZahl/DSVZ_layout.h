// The layouts of the DSVZ record and its blocks DBZK, DBNA and DBGA, as
// GenDSVZ.cpp builds them; DBAN is the shared block.
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::zahl {
using layout::amount;
using layout::lit;

namespace DBZK {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBZK");
inline constexpr FieldLayout ZKKennzeichen{"ZKKennzeichen", 5, 1, FieldKind::Flag};
inline constexpr FieldLayout ZKArt{"ZKArt (2 when pseudonymised)", 6, 1, FieldKind::N};
inline constexpr FieldLayout ZKAngabeJN{"ZKAngabeJN (J, N or blank)", 7, 1, FieldKind::Code};
inline constexpr FieldLayout ZKBeginn{"ZKBeginn", 8, 8, FieldKind::Date};
inline constexpr FieldLayout ZKEnde{"ZKEnde", 16, 8, FieldKind::Date};
inline constexpr FieldLayout ZKDatum{"ZKDatum (today when pseudonymised)", 24, 8, FieldKind::Date};
inline constexpr FieldLayout ZKBetrag1 = amount("ZKBetrag1", 32, 8, 2);
inline constexpr FieldLayout ZKDatum2{"ZKDatum2", 40, 8, FieldKind::Date};
inline constexpr FieldLayout ZKDatum3{"ZKDatum3", 48, 8, FieldKind::Date};
inline constexpr FieldLayout ZKDatum4{"ZKDatum4", 56, 8, FieldKind::Date};
inline constexpr FieldLayout ZKBetrag2 = amount("ZKBetrag2", 64, 12, 2);
inline constexpr FieldLayout ZKBetrag3 = amount("ZKBetrag3", 76, 8, 2);
inline constexpr FieldLayout ZKBetrag4 = amount("ZKBetrag4", 84, 8, 2);
inline constexpr FieldLayout kFields[] = {Kennung,  ZKKennzeichen, ZKArt,     ZKAngabeJN, ZKBeginn,
                                          ZKEnde,   ZKDatum,       ZKBetrag1, ZKDatum2,   ZKDatum3,
                                          ZKDatum4, ZKBetrag2,     ZKBetrag3, ZKBetrag4};
}  // namespace DBZK
inline constexpr RecordLayout kDBZK{"DBZK", 91, DBZK::kFields};

// The shared name block, with the pseudonyms in place of the names where
// the report is pseudonymised.
namespace DBNAZahl {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBNA");
inline constexpr FieldLayout Familienname{"Vorgang.Familienname (or Pseudoname)", 5, 30, FieldKind::An};
inline constexpr FieldLayout Vorname{"Vorgang.Vorname (or Pseudovorname)", 35, 30, FieldKind::An};
inline constexpr FieldLayout Vorsatzwort{"Vorgang.Vorsatzwort", 65, 20, FieldKind::An};
inline constexpr FieldLayout Namenszusatz{"Vorgang.Namenszusatz", 85, 20, FieldKind::An};
inline constexpr FieldLayout Titel{"Vorgang.Titel", 105, 20, FieldKind::An};
inline constexpr FieldLayout Marker{"marker (blank)", 125, 1, FieldKind::Code};
inline constexpr FieldLayout kFields[] = {Kennung, Familienname, Vorname, Vorsatzwort, Namenszusatz, Titel, Marker};
}  // namespace DBNAZahl
inline constexpr RecordLayout kDBNAZahl{"DBNA", 125, DBNAZahl::kFields};

namespace DBGA {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBGA");
inline constexpr FieldLayout Geburtsdatum{"Vorgang.Geburtsdatum", 5, 8, FieldKind::Date};
inline constexpr FieldLayout Geschlecht{"Vorgang.Geschlecht", 13, 1, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, Geburtsdatum, Geschlecht};
}  // namespace DBGA
inline constexpr RecordLayout kDBGA{"DBGA", 13, DBGA::kFields};

namespace DSVZ {
inline constexpr RecordHead Head{"DSVZ", "ZAHLS", "02", "created (ErstelltAm)"};
inline constexpr FieldLayout Kennung14{"Vorgang.Kennung14", 64, 14, FieldKind::An};
inline constexpr FieldLayout ArbeitgeberBetriebsnummer{"Vorgang.Arbeitgeber.Betriebsnummer", 78, 15, FieldKind::Bnr};
inline constexpr FieldLayout Aktenzeichen{"Vorgang.Aktenzeichen", 93, 20, FieldKind::An};
inline constexpr FieldLayout EmpfaengerBetriebsnummer{"Empfaenger.Betriebsnummer", 113, 15, FieldKind::Bnr};
inline constexpr FieldLayout strVersion1{"DatensatzData.strVersion", 128, 10, FieldKind::An};
inline constexpr FieldLayout ZahlId1{"ZahlId", 138, 10, FieldKind::N};
inline constexpr FieldLayout strBNRSt{"DatensatzData.strBNRSt", 148, 15, FieldKind::An};
inline constexpr FieldLayout Reserve1{"reserve", 163, 3, FieldKind::An};
inline constexpr FieldLayout Fest1 = lit("fixed", 166, "01");
inline constexpr FieldLayout strProdID{"DatensatzData.strProdID", 168, 7, FieldKind::An};
inline constexpr FieldLayout strModID{"DatensatzData.strModID", 175, 8, FieldKind::An};
inline constexpr FieldLayout strVersion2{"DatensatzData.strVersion", 183, 10, FieldKind::An};
inline constexpr FieldLayout ZahlId2{"ZahlId", 193, 10, FieldKind::N};
inline constexpr FieldLayout Reserve2{"reserve", 203, 12, FieldKind::An};
inline constexpr FieldLayout Reserve3{"reserve", 215, 3, FieldKind::An};
inline constexpr FieldLayout MitDBZK = layout::always(kDBZK, 218);
inline constexpr FieldLayout MitDBNAZahl = layout::always(kDBNAZahl, 219);
inline constexpr FieldLayout MitDBGA = layout::flag(kDBGA, 220);
inline constexpr FieldLayout Fest2 = lit("fixed", 221, "N");
inline constexpr FieldLayout MitDBAN = layout::flag(kDBAN, 222);
inline constexpr FieldLayout Fest3 = lit("fixed", 223, "N");
inline constexpr FieldLayout Versicherungsnummer{"Vorgang.Versicherungsnummer (zeros when pseudonymised)", 224, 12,
                                                 FieldKind::Vsnr};
inline constexpr FieldLayout VersicherungsnummerNullen = layout::as(Versicherungsnummer, FieldKind::N);
inline constexpr FieldLayout Reserve4{"reserve", 236, 2, FieldKind::An};
inline constexpr std::array kOwn{Kennung14,    ArbeitgeberBetriebsnummer,
                                 Aktenzeichen, EmpfaengerBetriebsnummer,
                                 strVersion1,  ZahlId1,
                                 strBNRSt,     Reserve1,
                                 Fest1,        strProdID,
                                 strModID,     strVersion2,
                                 ZahlId2,      Reserve2,
                                 Reserve3,     MitDBZK,
                                 MitDBNAZahl,  MitDBGA,
                                 Fest2,        MitDBAN,
                                 Fest3,        Versicherungsnummer,
                                 Reserve4};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
}  // namespace DSVZ
inline constexpr RecordLayout kDSVZ{"DSVZ", 237, DSVZ::kFields};

}  // namespace tamrel::layouts::zahl
