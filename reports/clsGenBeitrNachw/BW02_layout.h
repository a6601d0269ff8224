// The layouts of the contribution statement record, as GenBW02.cpp builds
// it: BW02 (678 characters, or 774 for the statement kind 1 with its eight
// further amounts) and BW03 for the BNV procedure.
#pragma once
#include "core/layout.h"

namespace tamrel::layouts::beitrnachw {
using layout::lit;
using layout::signed_amount;

// The fields of every statement; BW03 (the BNV procedure) writes its
// establishment number unconverted and no employer marker.
struct Statement {
    std::string_view id, procedure, establishment, marker;
    FieldLayout Kennung = lit("identifier", 1, id);
    FieldLayout Verfahren = lit("procedure", 5, procedure);
    FieldLayout strBNRAb{"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr};
    FieldLayout EmpfaengerBetriebsnummer{"Empfaenger.Betriebsnummer", 25, 15, FieldKind::Bnr};
    FieldLayout Version = lit("version", 40, "11");
    FieldLayout Erstellt{"created (Zeitpunkt)", 42, 14, FieldKind::DateTime};
    FieldLayout strMicroseconds{"DatensatzData.strMicroseconds", 56, 6, FieldKind::N};
    FieldLayout Fehlerkennzeichen = lit("error marker", 62, "0");
    FieldLayout Fehleranzahl = lit("number of errors", 63, "0");
    FieldLayout strVersion{"DatensatzData.strVersion", 64, 10, FieldKind::An};
    FieldLayout Laufnummer{"Laufnummer", 74, 10, FieldKind::N};
    FieldLayout Reserve1{"reserve", 84, 20, FieldKind::An};
    FieldLayout Merkmal1{"Merkmal1 (1 or 0)", 104, 1, FieldKind::Code};
    FieldLayout Merkmal2{"Merkmal2 (1 or 0)", 105, 1, FieldKind::Code};
    FieldLayout Reserve2{"reserve", 106, 1, FieldKind::N};
    FieldLayout Betriebsnummer{"Arbeitgeber.Betriebsnummer", 107, 15, FieldKind::Bnr};
    FieldLayout Zeitraum1{"Zeitraum1", 122, 8, FieldKind::Date};
    FieldLayout Zeitraum2{"Zeitraum2", 130, 8, FieldKind::Date};
    FieldLayout Betrag01 = signed_amount("Betrag01", 138, 12, 2);
    FieldLayout Betrag02 = signed_amount("Betrag02", 150, 12, 2);
    FieldLayout Betrag03 = signed_amount("Betrag03", 162, 12, 2);
    FieldLayout Betrag11 = signed_amount("Betrag11", 174, 12, 2);
    FieldLayout Betrag06 = signed_amount("Betrag06", 186, 12, 2);
    FieldLayout Betrag04 = signed_amount("Betrag04", 198, 12, 2);
    FieldLayout Betrag09 = signed_amount("Betrag09", 210, 12, 2);
    FieldLayout Betrag07 = signed_amount("Betrag07 (empty in kind 1)", 222, 12, 2);
    FieldLayout Betrag14 = signed_amount("Betrag14", 234, 12, 2);
    FieldLayout Betrag10 = signed_amount("Betrag10", 246, 12, 2);
    FieldLayout Betrag12 = signed_amount("Betrag12", 258, 12, 2);
    FieldLayout Betrag13 = signed_amount("Betrag13", 270, 12, 2);
    FieldLayout Betrag05 = signed_amount("Betrag05", 282, 12, 2);
    FieldLayout Betrag08 = signed_amount("Betrag08", 294, 12, 2);
    FieldLayout Reserve3 = signed_amount("reserve", 306, 12, 2);
    FieldLayout Betrag15 = signed_amount("Betrag15", 318, 12, 2);
    FieldLayout Sonderbetrag = signed_amount("Sonderbetrag (or Betrag23)", 330, 12, 2);
    FieldLayout Betrag17 = signed_amount("Betrag17", 342, 12, 2);
    FieldLayout Betrag18 = signed_amount("Betrag18 (sign -)", 354, 12, 2);
    FieldLayout Betrag16 = signed_amount("Betrag16", 366, 12, 2);
    FieldLayout Betrag25 = signed_amount("Betrag25", 378, 12, 2);
    FieldLayout Betrag26 = signed_amount("Betrag26", 390, 12, 2);
    FieldLayout Betrag19 = signed_amount("Betrag19", 402, 12, 2);
    FieldLayout Reserve4 = signed_amount("reserve", 414, 12, 2);
    FieldLayout Reserve5 = signed_amount("reserve", 426, 12, 2);
    FieldLayout Reserve6 = signed_amount("reserve", 438, 12, 2);
    FieldLayout Name1{"Arbeitgeber.Name1", 450, 30, FieldKind::An};
    FieldLayout Name2{"Arbeitgeber.Name2", 480, 30, FieldKind::An};
    FieldLayout StrasseHausnummer{"Arbeitgeber.Strasse and Hausnummer", 510, 30, FieldKind::An};
    FieldLayout Land{"Arbeitgeber.Land", 540, 3, FieldKind::An};
    FieldLayout PLZ{"Arbeitgeber.PLZ", 543, 10, FieldKind::An};
    FieldLayout Ort{"Arbeitgeber.Ort", 553, 25, FieldKind::An};
    FieldLayout Betriebsstaette{establishment, 578, 15, FieldKind::An};
    FieldLayout Reserve7{"reserve", 593, 15, FieldKind::An};
    FieldLayout Reserve8{"reserve", 608, 20, FieldKind::An};
    FieldLayout SKennzeichen{"SKennzeichen (S or blank)", 628, 1, FieldKind::An};
    FieldLayout Reserve9{"reserve", 629, 4, FieldKind::N};
    FieldLayout Reserve10{"reserve", 633, 4, FieldKind::N};
    FieldLayout Reserve11{"reserve", 637, 4, FieldKind::N};
    FieldLayout Kennzeichen{marker, 641, 1, FieldKind::An};
    FieldLayout Fest1 = lit("fixed", 642, "0");
    FieldLayout Fest2 = lit("fixed", 643, "000");
    FieldLayout Waehrung = lit("currency", 646, "E");
    FieldLayout Betrag27 = signed_amount("Betrag27", 647, 12, 2);
    FieldLayout Arbeitgeberangabe{"Arbeitgeber.Arbeitgeberangabe", 659, 20, FieldKind::An};
    constexpr std::array<FieldLayout, 63> fields() const {
        return {Kennung,
                Verfahren,
                strBNRAb,
                EmpfaengerBetriebsnummer,
                Version,
                Erstellt,
                strMicroseconds,
                Fehlerkennzeichen,
                Fehleranzahl,
                strVersion,
                Laufnummer,
                Reserve1,
                Merkmal1,
                Merkmal2,
                Reserve2,
                Betriebsnummer,
                Zeitraum1,
                Zeitraum2,
                Betrag01,
                Betrag02,
                Betrag03,
                Betrag11,
                Betrag06,
                Betrag04,
                Betrag09,
                Betrag07,
                Betrag14,
                Betrag10,
                Betrag12,
                Betrag13,
                Betrag05,
                Betrag08,
                Reserve3,
                Betrag15,
                Sonderbetrag,
                Betrag17,
                Betrag18,
                Betrag16,
                Betrag25,
                Betrag26,
                Betrag19,
                Reserve4,
                Reserve5,
                Reserve6,
                Name1,
                Name2,
                StrasseHausnummer,
                Land,
                PLZ,
                Ort,
                Betriebsstaette,
                Reserve7,
                Reserve8,
                SKennzeichen,
                Reserve9,
                Reserve10,
                Reserve11,
                Kennzeichen,
                Fest1,
                Fest2,
                Waehrung,
                Betrag27,
                Arbeitgeberangabe};
    }
};

namespace BW02 {
inline constexpr Statement Fields{"BW02", "BWNAC", "ConvertBNRSt(DatensatzData.strBNRSt)", "Arbeitgeber.Kennzeichen"};
inline constexpr auto kFields = Fields.fields();
// The statement kind 1: eight further amounts.
inline constexpr FieldLayout Betrag20 = signed_amount("Betrag20", 679, 12, 2);
inline constexpr FieldLayout Betrag21 = signed_amount("Betrag21", 691, 12, 2);
inline constexpr FieldLayout Betrag22 = signed_amount("Betrag22", 703, 12, 2);
inline constexpr FieldLayout Reserve12 = signed_amount("reserve", 715, 12, 2);
inline constexpr FieldLayout Betrag07 = signed_amount("Betrag07", 727, 12, 2);
inline constexpr FieldLayout Reserve13 = signed_amount("reserve", 739, 12, 2);
inline constexpr FieldLayout Betrag23 = signed_amount("Betrag23", 751, 12, 2);
inline constexpr FieldLayout Betrag24 = signed_amount("Betrag24", 763, 12, 2);
inline constexpr std::array kExtension{Betrag20, Betrag21,  Betrag22, Reserve12,
                                       Betrag07, Reserve13, Betrag23, Betrag24};
inline constexpr auto kExtendedFields = layout::joined(kFields, kExtension);
}  // namespace BW02
inline constexpr RecordLayout kBW02Short{"BW02", 678, BW02::kFields};
inline constexpr RecordLayout kBW02Extended{"BW02", 774, BW02::kExtendedFields};
inline constexpr const RecordLayout* kBW02Forms[] = {&kBW02Extended, &kBW02Short};
inline constexpr RecordLayout kBW02{"BW02", 678, BW02::kFields, nullptr, 0, 0, kBW02Forms};

namespace BW03 {
inline constexpr Statement Fields{"BW03", "BWBNV", "DatensatzData.strBNRSt", "reserve"};
inline constexpr auto kFields = Fields.fields();
}  // namespace BW03
inline constexpr RecordLayout kBW03{"BW03", 678, BW03::kFields};

}  // namespace tamrel::layouts::beitrnachw
