// The layouts of the employment certificate's records DSAB, DSEU and DSNE
// and their blocks, as GenDSAB.cpp and GenDSAB_blocks.cpp build them;
// DBNA and DBAN are the shared blocks. A repeated block's fields name the
// list item they come from (DBSE.STKL: STKL of the block's DBSE item).
#pragma once
#include "core/layout.h"
#include "core/shared_block_layouts.h"

namespace tamrel::layouts::bea {
using layout::always;
using layout::amount;
using layout::count;
using layout::flag;
using layout::lit;

inline constexpr FieldLayout kDBAGFields[] = {
    lit("identifier", 1, "DBAG"),
    {"Vorgang.Arbeitgeber.Name1", 5, 30, FieldKind::An},
    {"Vorgang.Arbeitgeber.Name2", 35, 30, FieldKind::An},
    {"Vorgang.Arbeitgeber.Name3", 65, 30, FieldKind::An},
    {"Vorgang.Arbeitgeber.Land", 95, 3, FieldKind::An},
    {"Vorgang.Arbeitgeber.PLZ", 98, 10, FieldKind::An},
    {"Vorgang.Arbeitgeber.Ort", 108, 34, FieldKind::An},
    {"Vorgang.Arbeitgeber.Strasse", 142, 33, FieldKind::An},
    {"Vorgang.Arbeitgeber.Hausnummer", 175, 9, FieldKind::An},
    {"Vorgang.Arbeitgeber.Adresszusatz", 184, 40, FieldKind::An},
    {"DBAG.AGAPE", 224, 60, FieldKind::An},
    {"DBAG.AGAPP", 284, 60, FieldKind::An},
    {"DBAG.AGTELE", 344, 25, FieldKind::An},
    {"DBAG.AGTELP", 369, 25, FieldKind::An},
    {"DBAG.AGEMAILE", 394, 70, FieldKind::An},
    {"DBAG.AGEMAILP", 464, 70, FieldKind::An},
};
inline constexpr RecordLayout kDBAG{"DBAG", 533, kDBAGFields};

inline constexpr FieldLayout kDBABFields[] = {
    lit("identifier", 1, "DBAB"),
    {"DBAB.BORTLDKZ", 5, 3, FieldKind::An},
    {"DBAB.BPLZ", 8, 10, FieldKind::An},
    {"DBAB.BORT", 18, 34, FieldKind::An},
};
inline constexpr RecordLayout kDBAB{"DBAB", 51, kDBABFields};

inline constexpr FieldLayout kDBSEFields[] = {
    lit("identifier", 1, "DBSE"),
    {"DBSE.STKL", 5, 1, FieldKind::N},
    amount("DBSE.FKT", 6, 4, 3),
    amount("DBSE.KINDFRB", 10, 3, 1),
    {"DBSE.AESTEDATBEG", 13, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBSE{"DBSE", 20, kDBSEFields};

inline constexpr FieldLayout kDBNEFields[] = {
    lit("identifier", 1, "DBNE"),
    {"DBNE.AVEND", 5, 8, FieldKind::Date},
    {"DBNE.MONATBEG", 13, 8, FieldKind::Date},
    {"DBNE.MONATEND", 21, 8, FieldKind::Date},
    {"reserve", 29, 9, FieldKind::An},
    amount("DBNE.SVBREGLF", 38, 10, 2),
    amount("DBNE.SVBREGE", 48, 10, 2),
    {"DBNE.SVBREGEBEG", 58, 8, FieldKind::Date},
    {"DBNE.SVBREGEEND", 66, 8, FieldKind::Date},
    amount("DBNE.NETTOLFD", 74, 10, 2),
    amount("DBNE.NETTOEINMAL", 84, 10, 2),
    amount("DBNE.AZWOECH", 94, 4, 2),
    {"DBNE.TTAUFENT", 98, 1, FieldKind::N},
    {"DBNE.BVUNFORT", 99, 1, FieldKind::Code},
    {"DBNE.BVUNFORTU", 100, 1, FieldKind::Code},
};
inline constexpr RecordLayout kDBNE{"DBNE", 100, kDBNEFields};

inline constexpr FieldLayout kDBSAFields[] = {
    lit("identifier", 1, "DBSA"),
    {"DBSA.BYGRA", 5, 4, FieldKind::N},
    {"DBSA.PERSGRA", 9, 3, FieldKind::N},
    {"DBSA.KNAPPRV", 12, 1, FieldKind::Code},
    {"DBSA.KNAPPRVBEG", 13, 8, FieldKind::Date},
    {"DBSA.TTSC", 21, 9, FieldKind::An},
};
inline constexpr RecordLayout kDBSA{"DBSA", 29, kDBSAFields};

inline constexpr FieldLayout kDBSBFields[] = {
    lit("identifier", 1, "DBSB"),
    {"DBSB.PERSBYGRBEG", 5, 8, FieldKind::Date},
    {"DBSB.BYGRB", 13, 4, FieldKind::N},
    {"DBSB.PERSGRB", 17, 3, FieldKind::N},
};
inline constexpr RecordLayout kDBSB{"DBSB", 19, kDBSBFields};

inline constexpr FieldLayout kDBAZFields[] = {
    lit("identifier", 1, "DBAZ"),         amount("DBAZ.AZWOECH", 5, 4, 2),          amount("DBAZ.AZVG", 9, 4, 2),
    {"DBAZ.AZAEGR", 13, 2, FieldKind::N}, {"DBAZ.AZAEBEG", 15, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBAZ{"DBAZ", 22, kDBAZFields};

inline constexpr FieldLayout kDBENFields[] = {
    lit("identifier", 1, "DBEN"),
    {"DBEN.MONATBEG", 5, 8, FieldKind::Date},
    {"DBEN.MONATEND", 13, 8, FieldKind::Date},
    {"reserve", 21, 9, FieldKind::An},
    {"DBEN.KENNZRK", 30, 1, FieldKind::An},
    {"reserve", 31, 20, FieldKind::An},
    amount("DBEN.SVBREGLF", 51, 10, 2),
    amount("DBEN.SVBREGE", 61, 10, 2),
    amount("DBEN.FIBR", 71, 10, 2),
    {"reserve", 81, 12, FieldKind::An},
    {"DBEN.TATSURLTAGE", 93, 3, FieldKind::N},
    amount("DBEN.URLEG", 96, 10, 2),
    {"DBEN.URLEGGEZ", 106, 1, FieldKind::N},
    {"DBEN.MIA", 107, 1, FieldKind::Code},
    {"DBEN.MIABEG", 108, 8, FieldKind::Date},
    {"DBEN.MIAEND", 116, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBEN{"DBEN", 123, kDBENFields};

inline constexpr FieldLayout kDBEZFields[] = {
    lit("identifier", 1, "DBEZ"),        amount("DBEZ.AZWOECH", 5, 4, 2),
    {"DBEZ.AZAEGR", 9, 2, FieldKind::N}, {"DBEZ.AZAEBEG", 11, 8, FieldKind::Date},
    amount("DBEZ.AZDUWOECH", 19, 4, 2),  amount("DBEZ.ATDUWOE", 23, 3, 2),
};
inline constexpr RecordLayout kDBEZ{"DBEZ", 25, kDBEZFields};

inline constexpr FieldLayout kDBEEFields[] = {
    lit("identifier", 1, "DBEE"),
    {"DBEE.MONATBEGEU", 5, 8, FieldKind::Date},
    {"DBEE.MONATENDEU", 13, 8, FieldKind::Date},
    {"reserve", 21, 9, FieldKind::An},
    amount("DBEE.STBREGLFEU", 30, 10, 2),
    amount("DBEE.STBREGSOEU", 40, 10, 2),
    {"reserve", 50, 22, FieldKind::An},
};
inline constexpr RecordLayout kDBEE{"DBEE", 71, kDBEEFields};

inline constexpr FieldLayout kDBFZFields[] = {
    lit("identifier", 1, "DBFZ"),
    {"DBFZ.FEHLBEG", 5, 8, FieldKind::Date},
    {"DBFZ.FEHLART", 13, 2, FieldKind::N},
    {"DBFZ.FEHLEND", 15, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBFZ{"DBFZ", 22, kDBFZFields};

inline constexpr FieldLayout kDBHAFields[] = {
    lit("identifier", 1, "DBHA"),
    {"DBHA.URLTAGE", 5, 3, FieldKind::N},
};
inline constexpr RecordLayout kDBHA{"DBHA", 7, kDBHAFields};

inline constexpr FieldLayout kDBKEFields[] = {
    lit("identifier", 1, "DBKE"),
    {"DBKE.AVEND", 5, 8, FieldKind::Date},
    {"DBKE.BVEND", 13, 8, FieldKind::Date},
    {"DBKE.AVBFR", 21, 1, FieldKind::An},
    {"DBKE.AVBFSCHR", 22, 1, FieldKind::Code},
    {"DBKE.AVBFURSP", 23, 8, FieldKind::Date},
    {"DBKE.AVBFABSCHL", 31, 8, FieldKind::Date},
    {"DBKE.VLBAV", 39, 1, FieldKind::Code},
    {"DBKE.AVBFABVL", 40, 8, FieldKind::Date},
    {"DBKE.AVBFRL", 48, 1, FieldKind::Code},
    {"DBKE.AVKUEAM", 49, 8, FieldKind::Date},
    {"DBKE.AVUWFWZ", 57, 1, FieldKind::Code},
    {"DBKE.AVUWFWZBEG", 58, 8, FieldKind::Date},
    {"DBKE.AVLETZTRL", 66, 6, FieldKind::N},
    {"DBKE.AVKUEDU", 72, 1, FieldKind::N},
    {"DBKE.AVKUESCH", 73, 1, FieldKind::Code},
    {"DBKE.AVKUEBETR", 74, 1, FieldKind::Code},
    {"DBKE.AVKUESCHUKL", 75, 1, FieldKind::An},
    {"DBKE.AVKUEZUST", 76, 1, FieldKind::N},
    {"DBKE.AVKUEAL", 77, 1, FieldKind::Code},
    {"DBKE.AVKUEALAM", 78, 1, FieldKind::Code},
    {"DBKE.AVAMDAT", 79, 8, FieldKind::Date},
    {"DBKE.AVKUEZVB", 87, 1, FieldKind::Code},
    {"DBKE.SAW", 88, 1, FieldKind::An},
    {"DBKE.SAWPRSC", 89, 3, FieldKind::An},
    {"DBKE.AGKUEAM", 92, 8, FieldKind::Date},
    {"DBKE.AGKUEZU", 100, 8, FieldKind::Date},
    {"DBKE.KF", 108, 3, FieldKind::N},
    {"DBKE.KFZE", 111, 1, FieldKind::N},
    {"DBKE.KFBZ", 112, 1, FieldKind::N},
    {"DBKE.KA", 113, 1, FieldKind::Code},
    {"DBKE.KAU", 114, 1, FieldKind::Code},
    {"DBKE.KAUAUG", 115, 1, FieldKind::Code},
    {"DBKE.OKGL", 116, 1, FieldKind::Code},
    {"DBKE.OKGLFG", 117, 1, FieldKind::Code},
    {"DBKE.AVENLZ", 118, 1, FieldKind::An},
    {"DBKE.AVENLZG", 119, 2, FieldKind::N},
    {"DBKE.ABF", 121, 1, FieldKind::An},
    amount("DBKE.ABFHOE", 122, 10, 2),
    {"DBKE.BETZU", 132, 2, FieldKind::N},
    {"DBKE.BVEGEN", 134, 1, FieldKind::An},
    {"DBKE.BVEGENB", 135, 8, FieldKind::Date},
    {"DBKE.AVENUAG", 143, 1, FieldKind::An},
    {"DBKE.BVENUR", 144, 8, FieldKind::Date},
    {"DBKE.AVENVL", 152, 1, FieldKind::An},
    {"DBKE.AVENVGB", 153, 8, FieldKind::Date},
    amount("DBKE.AVENVG", 161, 5, 2),
    {"DBKE.ABFMONAT", 166, 1, FieldKind::Code},
    {"DBKE.ABFGEZ", 167, 1, FieldKind::Code},
    {"DBKE.BFHG", 168, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBKE{"DBKE", 175, kDBKEFields};

inline constexpr FieldLayout kDBKUFields[] = {
    lit("identifier", 1, "DBKU"),
    {"DBKU.AVEND", 5, 8, FieldKind::Date},
    {"DBKU.BVEND", 13, 8, FieldKind::Date},
    {"DBKU.AVBFR", 21, 1, FieldKind::An},
    {"DBKU.AVBFURSPR", 22, 8, FieldKind::Date},
    {"DBKU.AVUWFWZ", 30, 1, FieldKind::Code},
    {"DBKU.AVUWFWZBEG", 31, 8, FieldKind::Date},
    {"DBKU.AVKUEAM", 39, 8, FieldKind::Date},
    {"DBKU.AVKUEDU", 47, 1, FieldKind::N},
    {"DBKU.AVKUEBETR", 48, 1, FieldKind::Code},
    {"DBKU.AVKUESCHUKL", 49, 1, FieldKind::An},
    {"DBKU.AVKUEAL", 50, 1, FieldKind::Code},
    {"DBKU.AVENLZ", 51, 1, FieldKind::An},
    {"DBKU.AVENLZG", 52, 2, FieldKind::N},
    {"DBKU.ABF", 54, 1, FieldKind::An},
    amount("DBKU.ABFHOE", 55, 10, 2),
    {"DBKU.BETZU", 65, 2, FieldKind::N},
    {"DBKU.BVEGEN", 67, 1, FieldKind::An},
    {"DBKU.BVEGENB", 68, 8, FieldKind::Date},
    {"DBKU.AVENUAG", 76, 1, FieldKind::An},
    {"DBKU.URLTAGEAV", 77, 3, FieldKind::N},
    {"DBKU.AVENUR", 80, 8, FieldKind::Date},
    amount("DBKU.UAGHOE", 88, 10, 2),
    {"DBKU.AVVERZ", 98, 1, FieldKind::N},
    {"DBKU.KF", 99, 3, FieldKind::N},
    {"DBKU.KFZE", 102, 1, FieldKind::N},
    {"DBKU.KFBZ", 103, 1, FieldKind::N},
};
inline constexpr RecordLayout kDBKU{"DBKU", 103, kDBKUFields};

inline constexpr FieldLayout kDBNBFields[] = {
    lit("identifier", 1, "DBNB"),    amount("DBNB.STU1KW", 5, 4, 2),  amount("DBNB.STU2KW", 9, 4, 2),
    amount("DBNB.STU3KW", 13, 4, 2), amount("DBNB.STU4KW", 17, 4, 2), amount("DBNB.STU5KW", 21, 4, 2),
    amount("DBNB.STU6KW", 25, 4, 2),
};
inline constexpr RecordLayout kDBNB{"DBNB", 28, kDBNBFields};

inline constexpr FieldLayout kDBHNFields[] = {
    lit("identifier", 1, "DBHN"),
    {"DBHN.HEIMARBAUSG", 5, 8, FieldKind::Date},
    {"DBHN.HEIMARBABL", 13, 8, FieldKind::Date},
};
inline constexpr RecordLayout kDBHN{"DBHN", 20, kDBHNFields};

// Positions 1-162, the same in the three records.
constexpr std::array<FieldLayout, 21> head(std::string_view id) {
    return {{
        lit("identifier", 1, id),
        lit("version", 5, "03"),
        {"procedure (ALG)", 7, 5, FieldKind::An},
        {"DatensatzData.strBNRAb", 12, 15, FieldKind::Bnr},
        {"created (ErstellDatum)", 27, 14, FieldKind::DateTime},
        {"DatensatzData.strMicroseconds", 41, 6, FieldKind::N},
        lit("error marker", 47, "0"),
        lit("number of errors", 48, "0"),
        {"Vorgang.Versicherungsnummer", 49, 12, FieldKind::Vsnr},
        {"Vorgang.Arbeitgeber.Betriebsnummer", 61, 15, FieldKind::Bnr},
        {"Vorgang.Aktenzeichen", 76, 20, FieldKind::An},
        {"DatensatzData.strBNRSt", 96, 15, FieldKind::An},
        {"DatensatzData.strVersion", 111, 10, FieldKind::An},
        {"DatensatzNr", 121, 10, FieldKind::N},
        {"reserve", 131, 12, FieldKind::An},
        {"reserve", 143, 8, FieldKind::An},
        {"Feld151", 151, 8, FieldKind::N},
        always(kDBNA, 159),
        always(kDBAN, 160),
        always(kDBAG, 161),
        flag(kDBAB, 162),
    }};
}

inline constexpr std::array<FieldLayout, 9> kDSABTail{{
    count(kDBSE, 163, 2),
    {"reserve", 165, 2, FieldKind::N},
    always(kDBSA, 167),
    count(kDBSB, 168, 2),
    count(kDBAZ, 170, 2),
    count(kDBEN, 172, 2),
    count(kDBFZ, 174, 2),
    flag(kDBHA, 176),
    always(kDBKE, 177),
}};
inline constexpr auto kDSABFields = layout::joined(head("DSAB"), kDSABTail);
inline constexpr RecordLayout kDSAB{"DSAB", 177, kDSABFields};

inline constexpr std::array<FieldLayout, 8> kDSEUTail{{
    count(kDBSE, 163, 2),
    {"reserve", 165, 2, FieldKind::N},
    always(kDBSA, 167),
    count(kDBSB, 168, 2),
    count(kDBEZ, 170, 2),
    count(kDBEE, 172, 2),
    count(kDBFZ, 174, 2),
    always(kDBKU, 176),
}};
inline constexpr auto kDSEUFields = layout::joined(head("DSEU"), kDSEUTail);
inline constexpr RecordLayout kDSEU{"DSEU", 176, kDSEUFields};

inline constexpr std::array<FieldLayout, 5> kDSNETail{{
    always(kDBNE, 163),
    {"reserve", 164, 2, FieldKind::N},
    always(kDBSA, 166),
    always(kDBNB, 167),
    flag(kDBHN, 168),
}};
inline constexpr auto kDSNEFields = layout::joined(head("DSNE"), kDSNETail);
inline constexpr RecordLayout kDSNE{"DSNE", 168, kDSNEFields};

}  // namespace tamrel::layouts::bea
