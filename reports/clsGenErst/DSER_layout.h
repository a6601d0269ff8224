// The layouts of the DSER record and its blocks DBAU, DBBT, DBZU, DBBV and
// DBAA, as GenDSER.cpp and GenDSER_blocks.cpp build them; DBNA is the
// shared block.
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::erst {
using layout::amount;
using layout::lit;

// The common start of DBAU, DBBT and DBZU.
struct ClaimHead {
    std::string_view id;
    FieldLayout Kennung = lit("identifier", 1, id);
    FieldLayout DBAAEntfaellt{"DBAAEntfaellt (1 or 0)", 5, 1, FieldKind::N};
    FieldLayout ZeitraumBeginn{"ZeitraumBeginn", 6, 8, FieldKind::Date};
    FieldLayout ZeitraumEnde{"ZeitraumEnde", 14, 8, FieldKind::Date};
    FieldLayout Ausgleichsart2{"Ausgleichsart 2 (1 or 0)", 22, 1, FieldKind::N};
    constexpr std::array<FieldLayout, 5> fields() const {
        return {Kennung, DBAAEntfaellt, ZeitraumBeginn, ZeitraumEnde, Ausgleichsart2};
    }
};

namespace DBAU {
inline constexpr ClaimHead Head{"DBAU"};
inline constexpr FieldLayout FirstOfEntgelt14 = amount("first of Entgelt1-4", 23, 9, 2);
inline constexpr FieldLayout WhichEntgelt{"which Entgelt (1-4)", 32, 1, FieldKind::N};
inline constexpr FieldLayout AngabeJN2{"AngabeJN2 (J, N or blank)", 33, 1, FieldKind::Code};
inline constexpr FieldLayout FirstOfWert13 = amount("first of Wert1-3", 34, 5, 2);
inline constexpr FieldLayout WhichWert{"which Wert (1-3)", 39, 1, FieldKind::N};
inline constexpr FieldLayout Satz1 = amount("Satz1", 40, 4, 2);
inline constexpr FieldLayout Satz2 = amount("Satz2", 44, 4, 2);
inline constexpr FieldLayout Betrag1 = amount("Betrag1", 48, 9, 2);
inline constexpr FieldLayout Betrag2 = amount("Betrag2", 57, 9, 2);
inline constexpr FieldLayout Betrag3 = amount("Betrag3", 66, 5, 2);
inline constexpr FieldLayout Betrag6 = amount("Betrag6", 71, 9, 2);
inline constexpr FieldLayout MerkmalAOrMerkmalB{"MerkmalA or MerkmalB (2, 1 or 0)", 80, 1, FieldKind::N};
inline constexpr FieldLayout AngabeJN1{"AngabeJN1 (J, N or blank)", 81, 1, FieldKind::Code};
inline constexpr FieldLayout Satz3{"Satz3 (or blanks)", 82, 4, FieldKind::Code};
inline constexpr FieldLayout Satz3Betrag = layout::as(Satz3, FieldKind::Amount, 2);
inline constexpr FieldLayout Zusatzdatum{"Zusatzdatum", 86, 8, FieldKind::Date};
inline constexpr FieldLayout Betrag4 = amount("Betrag4", 94, 9, 2);
inline constexpr FieldLayout Betrag5 = amount("Betrag5", 103, 9, 2);
inline constexpr FieldLayout Reserve{"reserve", 112, 91, FieldKind::An};
inline constexpr std::array kOwn{
    FirstOfEntgelt14, WhichEntgelt, AngabeJN2, FirstOfWert13, WhichWert,          Satz1,     Satz2,
    Betrag1,          Betrag2,      Betrag3,   Betrag6,       MerkmalAOrMerkmalB, AngabeJN1, Satz3,
    Zusatzdatum,      Betrag4,      Betrag5,   Reserve};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
}  // namespace DBAU
inline constexpr RecordLayout kDBAU{"DBAU", 202, DBAU::kFields};

namespace DBBT {
inline constexpr ClaimHead Head{"DBBT"};
inline constexpr FieldLayout Zusatzdatum{"Zusatzdatum (or blanks)", 23, 8, FieldKind::Code};
inline constexpr FieldLayout ZusatzdatumDatum = layout::as(Zusatzdatum, FieldKind::Date);
inline constexpr FieldLayout Betrag1 = amount("Betrag1", 31, 9, 2);
inline constexpr FieldLayout Betrag2 = amount("Betrag2", 40, 9, 2);
inline constexpr FieldLayout Fest = lit("fixed", 49, "10000");
inline constexpr FieldLayout Betrag6 = amount("Betrag6", 54, 9, 2);
inline constexpr FieldLayout BTKennzeichen{"BTKennzeichen (0-3)", 63, 1, FieldKind::N};
inline constexpr FieldLayout Abschlussdatum{"Abschlussdatum", 64, 8, FieldKind::Date};
inline constexpr FieldLayout Betrag4 = amount("Betrag4", 72, 9, 2);
inline constexpr FieldLayout Betrag5 = amount("Betrag5", 81, 9, 2);
inline constexpr FieldLayout Reserve{"reserve", 90, 91, FieldKind::An};
inline constexpr std::array kOwn{Zusatzdatum,   Betrag1,        Betrag2, Fest,    Betrag6,
                                 BTKennzeichen, Abschlussdatum, Betrag4, Betrag5, Reserve};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
}  // namespace DBBT
inline constexpr RecordLayout kDBBT{"DBBT", 180, DBBT::kFields};

namespace DBZU {
inline constexpr ClaimHead Head{"DBZU"};
inline constexpr FieldLayout ZuschussBeginn{"ZuschussBeginn", 23, 8, FieldKind::Date};
inline constexpr FieldLayout ZuschussEnde{"ZuschussEnde", 31, 8, FieldKind::Date};
inline constexpr FieldLayout Entgelt4 = amount("Entgelt4", 39, 9, 2);
inline constexpr FieldLayout ZuschussBetrag1 = amount("ZuschussBetrag1", 48, 9, 2);
inline constexpr FieldLayout ZuschussBetrag2 = amount("ZuschussBetrag2", 57, 9, 2);
inline constexpr FieldLayout ZuschussBetrag3 = amount("ZuschussBetrag3", 66, 9, 2);
inline constexpr FieldLayout ZuschussBetrag4 = amount("ZuschussBetrag4", 75, 9, 2);
inline constexpr FieldLayout Abschlussdatum{"Abschlussdatum", 84, 8, FieldKind::Date};
inline constexpr FieldLayout Reserve{"reserve", 92, 100, FieldKind::An};
inline constexpr std::array kOwn{ZuschussBeginn,  ZuschussEnde,    Entgelt4,       ZuschussBetrag1, ZuschussBetrag2,
                                 ZuschussBetrag3, ZuschussBetrag4, Abschlussdatum, Reserve};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
}  // namespace DBZU
inline constexpr RecordLayout kDBZU{"DBZU", 191, DBZU::kFields};

namespace DBBV {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBBV");
inline constexpr FieldLayout Bankkennzeichen{"Bankkennzeichen (2, 1 or 0)", 5, 1, FieldKind::N};
inline constexpr FieldLayout BVZahl4{"BVZahl4", 6, 4, FieldKind::N};
inline constexpr FieldLayout BVZahl2{"BVZahl2", 10, 2, FieldKind::N};
inline constexpr FieldLayout Kontonummer{"Vorgang.Arbeitgeber.Kontonummer", 12, 10, FieldKind::An};
inline constexpr FieldLayout Bankleitzahl{"Vorgang.Arbeitgeber.Bankleitzahl", 22, 8, FieldKind::An};
// Before 1 January 2014 account number and bank code were numeric.
inline constexpr FieldLayout KontonummerNumerisch = layout::as(Kontonummer, FieldKind::N);
inline constexpr FieldLayout BankleitzahlNumerisch = layout::as(Bankleitzahl, FieldKind::N);
inline constexpr FieldLayout IBAN{"IBAN", 30, 34, FieldKind::An};
inline constexpr FieldLayout BIC{"BIC", 64, 11, FieldKind::An};
inline constexpr FieldLayout Kontoinhaber1{"Kontoinhaber1", 75, 50, FieldKind::An};
inline constexpr FieldLayout Kontoinhaber2{"Kontoinhaber2", 125, 50, FieldKind::An};
inline constexpr FieldLayout kFields[] = {
    Kennung, Bankkennzeichen, BVZahl4, BVZahl2, Kontonummer, Bankleitzahl, IBAN, BIC, Kontoinhaber1, Kontoinhaber2};
}  // namespace DBBV
inline constexpr RecordLayout kDBBV{"DBBV", 174, DBBV::kFields};

namespace DBAA {
inline constexpr auto kFields =
    contact_block("DBAA", {"AnGeschl", "AnName", "AnTel", "AnFax", "AnEMail", "Vorgang.Arbeitgeber.Name1",
                           "Vorgang.Arbeitgeber.Name2", "Vorgang.Arbeitgeber.Name3", "Vorgang.Arbeitgeber.PLZ",
                           "Vorgang.Arbeitgeber.Ort", "Vorgang.Arbeitgeber.Strasse", "Vorgang.Arbeitgeber.Hausnummer"});
}  // namespace DBAA
inline constexpr RecordLayout kDBAA{"DBAA", Contact::kLength, DBAA::kFields};

namespace DSER {
inline constexpr RecordHead Head{"DSER", "AAGER", "05", "created (ErstelltAm)"};
inline constexpr FieldLayout Versicherungsnummer{"Vorgang.Versicherungsnummer", 64, 12, FieldKind::Vsnr};
inline constexpr FieldLayout Geburtsdatum{"Vorgang.Geburtsdatum", 76, 8, FieldKind::Date};
inline constexpr FieldLayout ArbeitgeberBetriebsnummer{"Vorgang.Arbeitgeber.Betriebsnummer", 84, 15, FieldKind::Bnr};
inline constexpr FieldLayout Aktenzeichen{"Vorgang.Aktenzeichen", 99, 20, FieldKind::An};
inline constexpr FieldLayout Reserve1{"reserve", 119, 20, FieldKind::An};
inline constexpr FieldLayout EmpfaengerBetriebsnummer{"Empfaenger.Betriebsnummer", 139, 15, FieldKind::Bnr};
inline constexpr FieldLayout Reserve2{"reserve", 154, 20, FieldKind::An};
inline constexpr FieldLayout ConvertBNRSt{"ConvertBNRSt(DatensatzData.strBNRSt)", 174, 15, FieldKind::An};
inline constexpr FieldLayout ReasonCode{"reason code (Erstattungsgrund, Leistungsart)", 189, 2, FieldKind::N};
inline constexpr FieldLayout ErstDatum{"ErstDatum", 191, 8, FieldKind::Date};
inline constexpr FieldLayout Abrechnungskennzeichen{"Abrechnungskennzeichen (0-3)", 199, 1, FieldKind::N};
inline constexpr FieldLayout Geschlecht{"Vorgang.Geschlecht", 200, 1, FieldKind::An};
inline constexpr FieldLayout Fest = lit("fixed", 201, "2");
inline constexpr FieldLayout strProdID{"DatensatzData.strProdID", 202, 7, FieldKind::An};
inline constexpr FieldLayout strModID{"DatensatzData.strModID", 209, 8, FieldKind::An};
inline constexpr FieldLayout RecordReference{"record reference (strVersion, ErstattungsId)", 217, 32, FieldKind::An};
inline constexpr FieldLayout Reserve3{"reserve", 249, 100, FieldKind::An};
inline constexpr FieldLayout MitDBAU = layout::flag(kDBAU, 349);
inline constexpr FieldLayout MitDBBT = layout::flag(kDBBT, 350);
inline constexpr FieldLayout MitDBZU = layout::flag(kDBZU, 351);
inline constexpr FieldLayout MitDBBV = layout::always(kDBBV, 352);
inline constexpr FieldLayout MitDBNA = layout::always(kDBNA, 353);
inline constexpr FieldLayout MitDBAA = layout::flag(kDBAA, 354);
inline constexpr FieldLayout Reserve4{"reserve", 355, 1, FieldKind::An};
inline constexpr FieldLayout Reserve5{"reserve", 356, 100, FieldKind::An};
inline constexpr std::array kOwn{Versicherungsnummer,
                                 Geburtsdatum,
                                 ArbeitgeberBetriebsnummer,
                                 Aktenzeichen,
                                 Reserve1,
                                 EmpfaengerBetriebsnummer,
                                 Reserve2,
                                 ConvertBNRSt,
                                 ReasonCode,
                                 ErstDatum,
                                 Abrechnungskennzeichen,
                                 Geschlecht,
                                 Fest,
                                 strProdID,
                                 strModID,
                                 RecordReference,
                                 Reserve3,
                                 MitDBAU,
                                 MitDBBT,
                                 MitDBZU,
                                 MitDBBV,
                                 MitDBNA,
                                 MitDBAA,
                                 Reserve4,
                                 Reserve5};
inline constexpr auto kFields = layout::joined(Head.fields(), kOwn);
}  // namespace DSER
inline constexpr RecordLayout kDSER{"DSER", 455, DSER::kFields};

}  // namespace tamrel::layouts::erst
