// The layouts of the DSBD record and its block DBKA, as GenDSBD.cpp builds
// them.
#pragma once
#include "core/common_layouts.h"
#include "core/layout.h"

namespace tamrel::layouts::betrieb {
using layout::lit;

inline constexpr FieldLayout kDBKAFields[] = {
    lit("identifier", 1, "DBKA"),
    {"DbkaName1", 5, 30, FieldKind::An},
    {"DbkaName2", 35, 30, FieldKind::An},
    {"DbkaName3", 65, 30, FieldKind::An},
    {"DbkaPLZ", 95, 10, FieldKind::An},
    {"DbkaOrt", 105, 34, FieldKind::An},
    {"DbkaStrasse", 139, 33, FieldKind::An},
    {"reserve", 172, 9, FieldKind::An},
    {"DbkaAdressTeil1", 181, 10, FieldKind::An},
    {"DbkaAdressTeil2", 191, 10, FieldKind::An},
    {"reserve", 201, 8, FieldKind::An},
};
inline constexpr RecordLayout kDBKA{"DBKA", 208, kDBKAFields};

inline constexpr std::array<FieldLayout, 29> kDSBDOwn{{
    {"Arbeitgeber.Betriebsnummer", 64, 15, FieldKind::Bnr},
    {"reserve", 79, 11, FieldKind::An},
    {"ConvertBNRSt(DatensatzData.strBNRSt)", 90, 15, FieldKind::An},
    {"Kennziffer", 105, 2, FieldKind::N},
    {"reserve", 107, 5, FieldKind::An},
    {"Arbeitgeber.Name1", 112, 30, FieldKind::An},
    {"Arbeitgeber.Name2", 142, 30, FieldKind::An},
    {"Arbeitgeber.Name3", 172, 30, FieldKind::An},
    {"Arbeitgeber.PLZ", 202, 10, FieldKind::An},
    {"Arbeitgeber.Ort", 212, 34, FieldKind::An},
    {"Arbeitgeber.Strasse", 246, 33, FieldKind::An},
    {"Arbeitgeber.Hausnummer", 279, 9, FieldKind::An},
    {"Arbeitgeber.AdressTeil1", 288, 10, FieldKind::An},
    {"Arbeitgeber.AdressTeil2", 298, 10, FieldKind::An},
    {"KennzeichenR (R or A)", 308, 1, FieldKind::Code},
    {"Kennung15", 309, 15, FieldKind::An},
    {"AnsprechpartnerGeschlecht", 324, 1, FieldKind::An},
    {"AnsprechpartnerName", 325, 30, FieldKind::An},
    {"AnsprechpartnerTelefon", 355, 20, FieldKind::An},
    {"AnsprechpartnerFax", 375, 20, FieldKind::An},
    {"AnsprechpartnerEMail", 395, 70, FieldKind::An},
    {"reserve", 465, 20, FieldKind::An},
    {"DatensatzData.strVersion", 485, 10, FieldKind::An},
    {"DatensatzNr", 495, 10, FieldKind::N},
    {"Empfaenger.Betriebsnummer", 505, 15, FieldKind::Bnr},
    {"reserve", 520, 15, FieldKind::An},
    layout::flag(kDBKA, 535),
    lit("fixed", 536, "N"),
    {"reserve", 537, 5, FieldKind::An},
}};
inline constexpr auto kDSBDFields =
    layout::joined(record_head("DSBD", "BTRAG", "01", "created (ErstellDatum)"), kDSBDOwn);
inline constexpr RecordLayout kDSBD{"DSBD", 541, kDSBDFields};

}  // namespace tamrel::layouts::betrieb
