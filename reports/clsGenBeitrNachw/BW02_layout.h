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
constexpr std::array<FieldLayout, 63> statement(std::string_view id, std::string_view procedure,
                                                std::string_view establishment, std::string_view marker) {
    return {{
        lit("identifier", 1, id),
        lit("procedure", 5, procedure),
        {"DatensatzData.strBNRAb", 10, 15, FieldKind::Bnr},
        {"Empfaenger.Betriebsnummer", 25, 15, FieldKind::Bnr},
        lit("version", 40, "11"),
        {"created (Zeitpunkt)", 42, 14, FieldKind::DateTime},
        {"DatensatzData.strMicroseconds", 56, 6, FieldKind::N},
        lit("error marker", 62, "0"),
        lit("number of errors", 63, "0"),
        {"DatensatzData.strVersion", 64, 10, FieldKind::An},
        {"Laufnummer", 74, 10, FieldKind::N},
        {"reserve", 84, 20, FieldKind::An},
        {"Merkmal1 (1 or 0)", 104, 1, FieldKind::Code},
        {"Merkmal2 (1 or 0)", 105, 1, FieldKind::Code},
        {"reserve", 106, 1, FieldKind::N},
        {"Arbeitgeber.Betriebsnummer", 107, 15, FieldKind::Bnr},
        {"Zeitraum1", 122, 8, FieldKind::Date},
        {"Zeitraum2", 130, 8, FieldKind::Date},
        signed_amount("Betrag01", 138, 12, 2),
        signed_amount("Betrag02", 150, 12, 2),
        signed_amount("Betrag03", 162, 12, 2),
        signed_amount("Betrag11", 174, 12, 2),
        signed_amount("Betrag06", 186, 12, 2),
        signed_amount("Betrag04", 198, 12, 2),
        signed_amount("Betrag09", 210, 12, 2),
        signed_amount("Betrag07 (empty in kind 1)", 222, 12, 2),
        signed_amount("Betrag14", 234, 12, 2),
        signed_amount("Betrag10", 246, 12, 2),
        signed_amount("Betrag12", 258, 12, 2),
        signed_amount("Betrag13", 270, 12, 2),
        signed_amount("Betrag05", 282, 12, 2),
        signed_amount("Betrag08", 294, 12, 2),
        signed_amount("reserve", 306, 12, 2),
        signed_amount("Betrag15", 318, 12, 2),
        signed_amount("Sonderbetrag (or Betrag23)", 330, 12, 2),
        signed_amount("Betrag17", 342, 12, 2),
        signed_amount("Betrag18 (sign -)", 354, 12, 2),
        signed_amount("Betrag16", 366, 12, 2),
        signed_amount("Betrag25", 378, 12, 2),
        signed_amount("Betrag26", 390, 12, 2),
        signed_amount("Betrag19", 402, 12, 2),
        signed_amount("reserve", 414, 12, 2),
        signed_amount("reserve", 426, 12, 2),
        signed_amount("reserve", 438, 12, 2),
        {"Arbeitgeber.Name1", 450, 30, FieldKind::An},
        {"Arbeitgeber.Name2", 480, 30, FieldKind::An},
        {"Arbeitgeber.Strasse and Hausnummer", 510, 30, FieldKind::An},
        {"Arbeitgeber.Land", 540, 3, FieldKind::An},
        {"Arbeitgeber.PLZ", 543, 10, FieldKind::An},
        {"Arbeitgeber.Ort", 553, 25, FieldKind::An},
        {establishment, 578, 15, FieldKind::An},
        {"reserve", 593, 15, FieldKind::An},
        {"reserve", 608, 20, FieldKind::An},
        {"SKennzeichen (S or blank)", 628, 1, FieldKind::An},
        {"reserve", 629, 4, FieldKind::N},
        {"reserve", 633, 4, FieldKind::N},
        {"reserve", 637, 4, FieldKind::N},
        {marker, 641, 1, FieldKind::An},
        lit("fixed", 642, "0"),
        lit("fixed", 643, "000"),
        lit("currency", 646, "E"),
        signed_amount("Betrag27", 647, 12, 2),
        {"Arbeitgeber.Arbeitgeberangabe", 659, 20, FieldKind::An},
    }};
}

namespace BW02 {
inline constexpr auto kFields =
    statement("BW02", "BWNAC", "ConvertBNRSt(DatensatzData.strBNRSt)", "Arbeitgeber.Kennzeichen");
}  // namespace BW02
inline constexpr RecordLayout kBW02Short{"BW02", 678, BW02::kFields};

// The statement kind 1: eight further amounts.
inline constexpr std::array<FieldLayout, 8> kExtension{{
    signed_amount("Betrag20", 679, 12, 2),
    signed_amount("Betrag21", 691, 12, 2),
    signed_amount("Betrag22", 703, 12, 2),
    signed_amount("reserve", 715, 12, 2),
    signed_amount("Betrag07", 727, 12, 2),
    signed_amount("reserve", 739, 12, 2),
    signed_amount("Betrag23", 751, 12, 2),
    signed_amount("Betrag24", 763, 12, 2),
}};
namespace BW02Extended {
inline constexpr auto kFields = layout::joined(BW02::kFields, kExtension);
}  // namespace BW02Extended
inline constexpr RecordLayout kBW02Extended{"BW02", 774, BW02Extended::kFields};
inline constexpr const RecordLayout* kBW02Forms[] = {&kBW02Extended, &kBW02Short};
inline constexpr RecordLayout kBW02{"BW02", 678, BW02::kFields, nullptr, 0, 0, kBW02Forms};

namespace BW03 {
inline constexpr auto kFields = statement("BW03", "BWBNV", "DatensatzData.strBNRSt", "reserve");
}  // namespace BW03
inline constexpr RecordLayout kBW03{"BW03", 678, BW03::kFields};

}  // namespace tamrel::layouts::beitrnachw
