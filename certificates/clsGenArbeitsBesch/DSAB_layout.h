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

namespace DBAG {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBAG");
inline constexpr FieldLayout Name1{"Vorgang.Arbeitgeber.Name1", 5, 30, FieldKind::An};
inline constexpr FieldLayout Name2{"Vorgang.Arbeitgeber.Name2", 35, 30, FieldKind::An};
inline constexpr FieldLayout Name3{"Vorgang.Arbeitgeber.Name3", 65, 30, FieldKind::An};
inline constexpr FieldLayout Land{"Vorgang.Arbeitgeber.Land", 95, 3, FieldKind::An};
inline constexpr FieldLayout PLZ{"Vorgang.Arbeitgeber.PLZ", 98, 10, FieldKind::An};
inline constexpr FieldLayout Ort{"Vorgang.Arbeitgeber.Ort", 108, 34, FieldKind::An};
inline constexpr FieldLayout Strasse{"Vorgang.Arbeitgeber.Strasse", 142, 33, FieldKind::An};
inline constexpr FieldLayout Hausnummer{"Vorgang.Arbeitgeber.Hausnummer", 175, 9, FieldKind::An};
inline constexpr FieldLayout Adresszusatz{"Vorgang.Arbeitgeber.Adresszusatz", 184, 40, FieldKind::An};
inline constexpr FieldLayout AGAPE{"DBAG.AGAPE", 224, 60, FieldKind::An};
inline constexpr FieldLayout AGAPP{"DBAG.AGAPP", 284, 60, FieldKind::An};
inline constexpr FieldLayout AGTELE{"DBAG.AGTELE", 344, 25, FieldKind::An};
inline constexpr FieldLayout AGTELP{"DBAG.AGTELP", 369, 25, FieldKind::An};
inline constexpr FieldLayout AGEMAILE{"DBAG.AGEMAILE", 394, 70, FieldKind::An};
inline constexpr FieldLayout AGEMAILP{"DBAG.AGEMAILP", 464, 70, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung,    Name1,        Name2, Name3, Land,   PLZ,    Ort,      Strasse,
                                          Hausnummer, Adresszusatz, AGAPE, AGAPP, AGTELE, AGTELP, AGEMAILE, AGEMAILP};
}  // namespace DBAG
inline constexpr RecordLayout kDBAG{"DBAG", 533, DBAG::kFields};

namespace DBAB {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBAB");
inline constexpr FieldLayout BORTLDKZ{"DBAB.BORTLDKZ", 5, 3, FieldKind::An};
inline constexpr FieldLayout BPLZ{"DBAB.BPLZ", 8, 10, FieldKind::An};
inline constexpr FieldLayout BORT{"DBAB.BORT", 18, 34, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, BORTLDKZ, BPLZ, BORT};
}  // namespace DBAB
inline constexpr RecordLayout kDBAB{"DBAB", 51, DBAB::kFields};

namespace DBSE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBSE");
inline constexpr FieldLayout STKL{"DBSE.STKL", 5, 1, FieldKind::N};
inline constexpr FieldLayout FKT = amount("DBSE.FKT", 6, 4, 3);
inline constexpr FieldLayout KINDFRB = amount("DBSE.KINDFRB", 10, 3, 1);
inline constexpr FieldLayout AESTEDATBEG{"DBSE.AESTEDATBEG", 13, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {Kennung, STKL, FKT, KINDFRB, AESTEDATBEG};
}  // namespace DBSE
inline constexpr RecordLayout kDBSE{"DBSE", 20, DBSE::kFields};

namespace DBNE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBNE");
inline constexpr FieldLayout AVEND{"DBNE.AVEND", 5, 8, FieldKind::Date};
inline constexpr FieldLayout MONATBEG{"DBNE.MONATBEG", 13, 8, FieldKind::Date};
inline constexpr FieldLayout MONATEND{"DBNE.MONATEND", 21, 8, FieldKind::Date};
inline constexpr FieldLayout Reserve{"reserve", 29, 9, FieldKind::An};
inline constexpr FieldLayout SVBREGLF = amount("DBNE.SVBREGLF", 38, 10, 2);
inline constexpr FieldLayout SVBREGE = amount("DBNE.SVBREGE", 48, 10, 2);
inline constexpr FieldLayout SVBREGEBEG{"DBNE.SVBREGEBEG", 58, 8, FieldKind::Date};
inline constexpr FieldLayout SVBREGEEND{"DBNE.SVBREGEEND", 66, 8, FieldKind::Date};
inline constexpr FieldLayout NETTOLFD = amount("DBNE.NETTOLFD", 74, 10, 2);
inline constexpr FieldLayout NETTOEINMAL = amount("DBNE.NETTOEINMAL", 84, 10, 2);
inline constexpr FieldLayout AZWOECH = amount("DBNE.AZWOECH", 94, 4, 2);
inline constexpr FieldLayout TTAUFENT{"DBNE.TTAUFENT", 98, 1, FieldKind::N};
inline constexpr FieldLayout BVUNFORT{"DBNE.BVUNFORT", 99, 1, FieldKind::Code};
inline constexpr FieldLayout BVUNFORTU{"DBNE.BVUNFORTU", 100, 1, FieldKind::Code};
inline constexpr FieldLayout kFields[] = {Kennung,     AVEND,   MONATBEG,   MONATEND,   Reserve,
                                          SVBREGLF,    SVBREGE, SVBREGEBEG, SVBREGEEND, NETTOLFD,
                                          NETTOEINMAL, AZWOECH, TTAUFENT,   BVUNFORT,   BVUNFORTU};
}  // namespace DBNE
inline constexpr RecordLayout kDBNE{"DBNE", 100, DBNE::kFields};

namespace DBSA {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBSA");
inline constexpr FieldLayout BYGRA{"DBSA.BYGRA", 5, 4, FieldKind::N};
inline constexpr FieldLayout PERSGRA{"DBSA.PERSGRA", 9, 3, FieldKind::N};
inline constexpr FieldLayout KNAPPRV{"DBSA.KNAPPRV", 12, 1, FieldKind::Code};
inline constexpr FieldLayout KNAPPRVBEG{"DBSA.KNAPPRVBEG", 13, 8, FieldKind::Date};
inline constexpr FieldLayout TTSC{"DBSA.TTSC", 21, 9, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, BYGRA, PERSGRA, KNAPPRV, KNAPPRVBEG, TTSC};
}  // namespace DBSA
inline constexpr RecordLayout kDBSA{"DBSA", 29, DBSA::kFields};

namespace DBSB {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBSB");
inline constexpr FieldLayout PERSBYGRBEG{"DBSB.PERSBYGRBEG", 5, 8, FieldKind::Date};
inline constexpr FieldLayout BYGRB{"DBSB.BYGRB", 13, 4, FieldKind::N};
inline constexpr FieldLayout PERSGRB{"DBSB.PERSGRB", 17, 3, FieldKind::N};
inline constexpr FieldLayout kFields[] = {Kennung, PERSBYGRBEG, BYGRB, PERSGRB};
}  // namespace DBSB
inline constexpr RecordLayout kDBSB{"DBSB", 19, DBSB::kFields};

namespace DBAZ {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBAZ");
inline constexpr FieldLayout AZWOECH = amount("DBAZ.AZWOECH", 5, 4, 2);
inline constexpr FieldLayout AZVG = amount("DBAZ.AZVG", 9, 4, 2);
inline constexpr FieldLayout AZAEGR{"DBAZ.AZAEGR", 13, 2, FieldKind::N};
inline constexpr FieldLayout AZAEBEG{"DBAZ.AZAEBEG", 15, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {Kennung, AZWOECH, AZVG, AZAEGR, AZAEBEG};
}  // namespace DBAZ
inline constexpr RecordLayout kDBAZ{"DBAZ", 22, DBAZ::kFields};

namespace DBEN {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBEN");
inline constexpr FieldLayout MONATBEG{"DBEN.MONATBEG", 5, 8, FieldKind::Date};
inline constexpr FieldLayout MONATEND{"DBEN.MONATEND", 13, 8, FieldKind::Date};
inline constexpr FieldLayout Reserve1{"reserve", 21, 9, FieldKind::An};
inline constexpr FieldLayout KENNZRK{"DBEN.KENNZRK", 30, 1, FieldKind::An};
inline constexpr FieldLayout Reserve2{"reserve", 31, 20, FieldKind::An};
inline constexpr FieldLayout SVBREGLF = amount("DBEN.SVBREGLF", 51, 10, 2);
inline constexpr FieldLayout SVBREGE = amount("DBEN.SVBREGE", 61, 10, 2);
inline constexpr FieldLayout FIBR = amount("DBEN.FIBR", 71, 10, 2);
inline constexpr FieldLayout Reserve3{"reserve", 81, 12, FieldKind::An};
inline constexpr FieldLayout TATSURLTAGE{"DBEN.TATSURLTAGE", 93, 3, FieldKind::N};
inline constexpr FieldLayout URLEG = amount("DBEN.URLEG", 96, 10, 2);
inline constexpr FieldLayout URLEGGEZ{"DBEN.URLEGGEZ", 106, 1, FieldKind::N};
inline constexpr FieldLayout MIA{"DBEN.MIA", 107, 1, FieldKind::Code};
inline constexpr FieldLayout MIABEG{"DBEN.MIABEG", 108, 8, FieldKind::Date};
inline constexpr FieldLayout MIAEND{"DBEN.MIAEND", 116, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {Kennung,  MONATBEG, MONATEND, Reserve1, KENNZRK,     Reserve2,
                                          SVBREGLF, SVBREGE,  FIBR,     Reserve3, TATSURLTAGE, URLEG,
                                          URLEGGEZ, MIA,      MIABEG,   MIAEND};
}  // namespace DBEN
inline constexpr RecordLayout kDBEN{"DBEN", 123, DBEN::kFields};

namespace DBEZ {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBEZ");
inline constexpr FieldLayout AZWOECH = amount("DBEZ.AZWOECH", 5, 4, 2);
inline constexpr FieldLayout AZAEGR{"DBEZ.AZAEGR", 9, 2, FieldKind::N};
inline constexpr FieldLayout AZAEBEG{"DBEZ.AZAEBEG", 11, 8, FieldKind::Date};
inline constexpr FieldLayout AZDUWOECH = amount("DBEZ.AZDUWOECH", 19, 4, 2);
inline constexpr FieldLayout ATDUWOE = amount("DBEZ.ATDUWOE", 23, 3, 2);
inline constexpr FieldLayout kFields[] = {Kennung, AZWOECH, AZAEGR, AZAEBEG, AZDUWOECH, ATDUWOE};
}  // namespace DBEZ
inline constexpr RecordLayout kDBEZ{"DBEZ", 25, DBEZ::kFields};

namespace DBEE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBEE");
inline constexpr FieldLayout MONATBEGEU{"DBEE.MONATBEGEU", 5, 8, FieldKind::Date};
inline constexpr FieldLayout MONATENDEU{"DBEE.MONATENDEU", 13, 8, FieldKind::Date};
inline constexpr FieldLayout Reserve1{"reserve", 21, 9, FieldKind::An};
inline constexpr FieldLayout STBREGLFEU = amount("DBEE.STBREGLFEU", 30, 10, 2);
inline constexpr FieldLayout STBREGSOEU = amount("DBEE.STBREGSOEU", 40, 10, 2);
inline constexpr FieldLayout Reserve2{"reserve", 50, 22, FieldKind::An};
inline constexpr FieldLayout kFields[] = {Kennung, MONATBEGEU, MONATENDEU, Reserve1, STBREGLFEU, STBREGSOEU, Reserve2};
}  // namespace DBEE
inline constexpr RecordLayout kDBEE{"DBEE", 71, DBEE::kFields};

namespace DBFZ {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBFZ");
inline constexpr FieldLayout FEHLBEG{"DBFZ.FEHLBEG", 5, 8, FieldKind::Date};
inline constexpr FieldLayout FEHLART{"DBFZ.FEHLART", 13, 2, FieldKind::N};
inline constexpr FieldLayout FEHLEND{"DBFZ.FEHLEND", 15, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {Kennung, FEHLBEG, FEHLART, FEHLEND};
}  // namespace DBFZ
inline constexpr RecordLayout kDBFZ{"DBFZ", 22, DBFZ::kFields};

namespace DBHA {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBHA");
inline constexpr FieldLayout URLTAGE{"DBHA.URLTAGE", 5, 3, FieldKind::N};
inline constexpr FieldLayout kFields[] = {Kennung, URLTAGE};
}  // namespace DBHA
inline constexpr RecordLayout kDBHA{"DBHA", 7, DBHA::kFields};

namespace DBKE {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBKE");
inline constexpr FieldLayout AVEND{"DBKE.AVEND", 5, 8, FieldKind::Date};
inline constexpr FieldLayout BVEND{"DBKE.BVEND", 13, 8, FieldKind::Date};
inline constexpr FieldLayout AVBFR{"DBKE.AVBFR", 21, 1, FieldKind::An};
inline constexpr FieldLayout AVBFSCHR{"DBKE.AVBFSCHR", 22, 1, FieldKind::Code};
inline constexpr FieldLayout AVBFURSP{"DBKE.AVBFURSP", 23, 8, FieldKind::Date};
inline constexpr FieldLayout AVBFABSCHL{"DBKE.AVBFABSCHL", 31, 8, FieldKind::Date};
inline constexpr FieldLayout VLBAV{"DBKE.VLBAV", 39, 1, FieldKind::Code};
inline constexpr FieldLayout AVBFABVL{"DBKE.AVBFABVL", 40, 8, FieldKind::Date};
inline constexpr FieldLayout AVBFRL{"DBKE.AVBFRL", 48, 1, FieldKind::Code};
inline constexpr FieldLayout AVKUEAM{"DBKE.AVKUEAM", 49, 8, FieldKind::Date};
inline constexpr FieldLayout AVUWFWZ{"DBKE.AVUWFWZ", 57, 1, FieldKind::Code};
inline constexpr FieldLayout AVUWFWZBEG{"DBKE.AVUWFWZBEG", 58, 8, FieldKind::Date};
inline constexpr FieldLayout AVLETZTRL{"DBKE.AVLETZTRL", 66, 6, FieldKind::N};
inline constexpr FieldLayout AVKUEDU{"DBKE.AVKUEDU", 72, 1, FieldKind::N};
inline constexpr FieldLayout AVKUESCH{"DBKE.AVKUESCH", 73, 1, FieldKind::Code};
inline constexpr FieldLayout AVKUEBETR{"DBKE.AVKUEBETR", 74, 1, FieldKind::Code};
inline constexpr FieldLayout AVKUESCHUKL{"DBKE.AVKUESCHUKL", 75, 1, FieldKind::An};
inline constexpr FieldLayout AVKUEZUST{"DBKE.AVKUEZUST", 76, 1, FieldKind::N};
inline constexpr FieldLayout AVKUEAL{"DBKE.AVKUEAL", 77, 1, FieldKind::Code};
inline constexpr FieldLayout AVKUEALAM{"DBKE.AVKUEALAM", 78, 1, FieldKind::Code};
inline constexpr FieldLayout AVAMDAT{"DBKE.AVAMDAT", 79, 8, FieldKind::Date};
inline constexpr FieldLayout AVKUEZVB{"DBKE.AVKUEZVB", 87, 1, FieldKind::Code};
inline constexpr FieldLayout SAW{"DBKE.SAW", 88, 1, FieldKind::An};
inline constexpr FieldLayout SAWPRSC{"DBKE.SAWPRSC", 89, 3, FieldKind::An};
inline constexpr FieldLayout AGKUEAM{"DBKE.AGKUEAM", 92, 8, FieldKind::Date};
inline constexpr FieldLayout AGKUEZU{"DBKE.AGKUEZU", 100, 8, FieldKind::Date};
inline constexpr FieldLayout KF{"DBKE.KF", 108, 3, FieldKind::N};
inline constexpr FieldLayout KFZE{"DBKE.KFZE", 111, 1, FieldKind::N};
inline constexpr FieldLayout KFBZ{"DBKE.KFBZ", 112, 1, FieldKind::N};
inline constexpr FieldLayout KA{"DBKE.KA", 113, 1, FieldKind::Code};
inline constexpr FieldLayout KAU{"DBKE.KAU", 114, 1, FieldKind::Code};
inline constexpr FieldLayout KAUAUG{"DBKE.KAUAUG", 115, 1, FieldKind::Code};
inline constexpr FieldLayout OKGL{"DBKE.OKGL", 116, 1, FieldKind::Code};
inline constexpr FieldLayout OKGLFG{"DBKE.OKGLFG", 117, 1, FieldKind::Code};
inline constexpr FieldLayout AVENLZ{"DBKE.AVENLZ", 118, 1, FieldKind::An};
inline constexpr FieldLayout AVENLZG{"DBKE.AVENLZG", 119, 2, FieldKind::N};
inline constexpr FieldLayout ABF{"DBKE.ABF", 121, 1, FieldKind::An};
inline constexpr FieldLayout ABFHOE = amount("DBKE.ABFHOE", 122, 10, 2);
inline constexpr FieldLayout BETZU{"DBKE.BETZU", 132, 2, FieldKind::N};
inline constexpr FieldLayout BVEGEN{"DBKE.BVEGEN", 134, 1, FieldKind::An};
inline constexpr FieldLayout BVEGENB{"DBKE.BVEGENB", 135, 8, FieldKind::Date};
inline constexpr FieldLayout AVENUAG{"DBKE.AVENUAG", 143, 1, FieldKind::An};
inline constexpr FieldLayout BVENUR{"DBKE.BVENUR", 144, 8, FieldKind::Date};
inline constexpr FieldLayout AVENVL{"DBKE.AVENVL", 152, 1, FieldKind::An};
inline constexpr FieldLayout AVENVGB{"DBKE.AVENVGB", 153, 8, FieldKind::Date};
inline constexpr FieldLayout AVENVG = amount("DBKE.AVENVG", 161, 5, 2);
inline constexpr FieldLayout ABFMONAT{"DBKE.ABFMONAT", 166, 1, FieldKind::Code};
inline constexpr FieldLayout ABFGEZ{"DBKE.ABFGEZ", 167, 1, FieldKind::Code};
inline constexpr FieldLayout BFHG{"DBKE.BFHG", 168, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {
    Kennung,   AVEND,   BVEND,      AVBFR,     AVBFSCHR, AVBFURSP, AVBFABSCHL, VLBAV,       AVBFABVL,  AVBFRL,
    AVKUEAM,   AVUWFWZ, AVUWFWZBEG, AVLETZTRL, AVKUEDU,  AVKUESCH, AVKUEBETR,  AVKUESCHUKL, AVKUEZUST, AVKUEAL,
    AVKUEALAM, AVAMDAT, AVKUEZVB,   SAW,       SAWPRSC,  AGKUEAM,  AGKUEZU,    KF,          KFZE,      KFBZ,
    KA,        KAU,     KAUAUG,     OKGL,      OKGLFG,   AVENLZ,   AVENLZG,    ABF,         ABFHOE,    BETZU,
    BVEGEN,    BVEGENB, AVENUAG,    BVENUR,    AVENVL,   AVENVGB,  AVENVG,     ABFMONAT,    ABFGEZ,    BFHG};
}  // namespace DBKE
inline constexpr RecordLayout kDBKE{"DBKE", 175, DBKE::kFields};

namespace DBKU {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBKU");
inline constexpr FieldLayout AVEND{"DBKU.AVEND", 5, 8, FieldKind::Date};
inline constexpr FieldLayout BVEND{"DBKU.BVEND", 13, 8, FieldKind::Date};
inline constexpr FieldLayout AVBFR{"DBKU.AVBFR", 21, 1, FieldKind::An};
inline constexpr FieldLayout AVBFURSPR{"DBKU.AVBFURSPR", 22, 8, FieldKind::Date};
inline constexpr FieldLayout AVUWFWZ{"DBKU.AVUWFWZ", 30, 1, FieldKind::Code};
inline constexpr FieldLayout AVUWFWZBEG{"DBKU.AVUWFWZBEG", 31, 8, FieldKind::Date};
inline constexpr FieldLayout AVKUEAM{"DBKU.AVKUEAM", 39, 8, FieldKind::Date};
inline constexpr FieldLayout AVKUEDU{"DBKU.AVKUEDU", 47, 1, FieldKind::N};
inline constexpr FieldLayout AVKUEBETR{"DBKU.AVKUEBETR", 48, 1, FieldKind::Code};
inline constexpr FieldLayout AVKUESCHUKL{"DBKU.AVKUESCHUKL", 49, 1, FieldKind::An};
inline constexpr FieldLayout AVKUEAL{"DBKU.AVKUEAL", 50, 1, FieldKind::Code};
inline constexpr FieldLayout AVENLZ{"DBKU.AVENLZ", 51, 1, FieldKind::An};
inline constexpr FieldLayout AVENLZG{"DBKU.AVENLZG", 52, 2, FieldKind::N};
inline constexpr FieldLayout ABF{"DBKU.ABF", 54, 1, FieldKind::An};
inline constexpr FieldLayout ABFHOE = amount("DBKU.ABFHOE", 55, 10, 2);
inline constexpr FieldLayout BETZU{"DBKU.BETZU", 65, 2, FieldKind::N};
inline constexpr FieldLayout BVEGEN{"DBKU.BVEGEN", 67, 1, FieldKind::An};
inline constexpr FieldLayout BVEGENB{"DBKU.BVEGENB", 68, 8, FieldKind::Date};
inline constexpr FieldLayout AVENUAG{"DBKU.AVENUAG", 76, 1, FieldKind::An};
inline constexpr FieldLayout URLTAGEAV{"DBKU.URLTAGEAV", 77, 3, FieldKind::N};
inline constexpr FieldLayout AVENUR{"DBKU.AVENUR", 80, 8, FieldKind::Date};
inline constexpr FieldLayout UAGHOE = amount("DBKU.UAGHOE", 88, 10, 2);
inline constexpr FieldLayout AVVERZ{"DBKU.AVVERZ", 98, 1, FieldKind::N};
inline constexpr FieldLayout KF{"DBKU.KF", 99, 3, FieldKind::N};
inline constexpr FieldLayout KFZE{"DBKU.KFZE", 102, 1, FieldKind::N};
inline constexpr FieldLayout KFBZ{"DBKU.KFBZ", 103, 1, FieldKind::N};
inline constexpr FieldLayout kFields[] = {Kennung, AVEND,   BVEND,     AVBFR,       AVBFURSPR, AVUWFWZ, AVUWFWZBEG,
                                          AVKUEAM, AVKUEDU, AVKUEBETR, AVKUESCHUKL, AVKUEAL,   AVENLZ,  AVENLZG,
                                          ABF,     ABFHOE,  BETZU,     BVEGEN,      BVEGENB,   AVENUAG, URLTAGEAV,
                                          AVENUR,  UAGHOE,  AVVERZ,    KF,          KFZE,      KFBZ};
}  // namespace DBKU
inline constexpr RecordLayout kDBKU{"DBKU", 103, DBKU::kFields};

namespace DBNB {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBNB");
inline constexpr FieldLayout STU1KW = amount("DBNB.STU1KW", 5, 4, 2);
inline constexpr FieldLayout STU2KW = amount("DBNB.STU2KW", 9, 4, 2);
inline constexpr FieldLayout STU3KW = amount("DBNB.STU3KW", 13, 4, 2);
inline constexpr FieldLayout STU4KW = amount("DBNB.STU4KW", 17, 4, 2);
inline constexpr FieldLayout STU5KW = amount("DBNB.STU5KW", 21, 4, 2);
inline constexpr FieldLayout STU6KW = amount("DBNB.STU6KW", 25, 4, 2);
inline constexpr FieldLayout kFields[] = {Kennung, STU1KW, STU2KW, STU3KW, STU4KW, STU5KW, STU6KW};
}  // namespace DBNB
inline constexpr RecordLayout kDBNB{"DBNB", 28, DBNB::kFields};

namespace DBHN {
inline constexpr FieldLayout Kennung = lit("identifier", 1, "DBHN");
inline constexpr FieldLayout HEIMARBAUSG{"DBHN.HEIMARBAUSG", 5, 8, FieldKind::Date};
inline constexpr FieldLayout HEIMARBABL{"DBHN.HEIMARBABL", 13, 8, FieldKind::Date};
inline constexpr FieldLayout kFields[] = {Kennung, HEIMARBAUSG, HEIMARBABL};
}  // namespace DBHN
inline constexpr RecordLayout kDBHN{"DBHN", 20, DBHN::kFields};

// Positions 1-162, the same in the three records.
struct CertificateHead {
    std::string_view id;
    FieldLayout Kennung = lit("identifier", 1, id);
    FieldLayout Version = lit("version", 5, "03");
    FieldLayout Verfahren{"procedure (ALG)", 7, 5, FieldKind::An, "ALG"};
    FieldLayout strBNRAb{"DatensatzData.strBNRAb", 12, 15, FieldKind::Bnr};
    FieldLayout Erstellt{"created (ErstellDatum)", 27, 14, FieldKind::DateTime};
    FieldLayout strMicroseconds{"DatensatzData.strMicroseconds", 41, 6, FieldKind::N};
    FieldLayout Fehlerkennzeichen = lit("error marker", 47, "0");
    FieldLayout Fehleranzahl = lit("number of errors", 48, "0");
    FieldLayout Versicherungsnummer{"Vorgang.Versicherungsnummer", 49, 12, FieldKind::Vsnr};
    FieldLayout Betriebsnummer{"Vorgang.Arbeitgeber.Betriebsnummer", 61, 15, FieldKind::Bnr};
    FieldLayout Aktenzeichen{"Vorgang.Aktenzeichen", 76, 20, FieldKind::An};
    FieldLayout strBNRSt{"DatensatzData.strBNRSt", 96, 15, FieldKind::An};
    FieldLayout strVersion{"DatensatzData.strVersion", 111, 10, FieldKind::An};
    FieldLayout DatensatzNr{"DatensatzNr", 121, 10, FieldKind::N};
    FieldLayout Reserve1{"reserve", 131, 12, FieldKind::An};
    FieldLayout Reserve2{"reserve", 143, 8, FieldKind::An};
    FieldLayout Feld151{"Feld151", 151, 8, FieldKind::N};
    FieldLayout MitDBNA = always(kDBNA, 159);
    FieldLayout MitDBAN = always(kDBAN, 160);
    FieldLayout MitDBAG = always(kDBAG, 161);
    FieldLayout MitDBAB = flag(kDBAB, 162);
    constexpr std::array<FieldLayout, 21> fields() const {
        return {Kennung,           Version,      Verfahren,
                strBNRAb,          Erstellt,     strMicroseconds,
                Fehlerkennzeichen, Fehleranzahl, Versicherungsnummer,
                Betriebsnummer,    Aktenzeichen, strBNRSt,
                strVersion,        DatensatzNr,  Reserve1,
                Reserve2,          Feld151,      MitDBNA,
                MitDBAN,           MitDBAG,      MitDBAB};
    }
};

namespace DSAB {
inline constexpr CertificateHead Head{"DSAB"};
inline constexpr FieldLayout AnzahlDBSE = count(kDBSE, 163, 2);
inline constexpr FieldLayout Reserve{"reserve", 165, 2, FieldKind::N};
inline constexpr FieldLayout MitDBSA = always(kDBSA, 167);
inline constexpr FieldLayout AnzahlDBSB = count(kDBSB, 168, 2);
inline constexpr FieldLayout AnzahlDBAZ = count(kDBAZ, 170, 2);
inline constexpr FieldLayout AnzahlDBEN = count(kDBEN, 172, 2);
inline constexpr FieldLayout AnzahlDBFZ = count(kDBFZ, 174, 2);
inline constexpr FieldLayout MitDBHA = flag(kDBHA, 176);
inline constexpr FieldLayout MitDBKE = always(kDBKE, 177);
inline constexpr std::array kTail{AnzahlDBSE, Reserve,    MitDBSA, AnzahlDBSB, AnzahlDBAZ,
                                  AnzahlDBEN, AnzahlDBFZ, MitDBHA, MitDBKE};
inline constexpr auto kFields = layout::joined(Head.fields(), kTail);
}  // namespace DSAB
inline constexpr RecordLayout kDSAB{"DSAB", 177, DSAB::kFields};

namespace DSEU {
inline constexpr CertificateHead Head{"DSEU"};
inline constexpr FieldLayout AnzahlDBSE = count(kDBSE, 163, 2);
inline constexpr FieldLayout Reserve{"reserve", 165, 2, FieldKind::N};
inline constexpr FieldLayout MitDBSA = always(kDBSA, 167);
inline constexpr FieldLayout AnzahlDBSB = count(kDBSB, 168, 2);
inline constexpr FieldLayout AnzahlDBEZ = count(kDBEZ, 170, 2);
inline constexpr FieldLayout AnzahlDBEE = count(kDBEE, 172, 2);
inline constexpr FieldLayout AnzahlDBFZ = count(kDBFZ, 174, 2);
inline constexpr FieldLayout MitDBKU = always(kDBKU, 176);
inline constexpr std::array kTail{AnzahlDBSE, Reserve,    MitDBSA,    AnzahlDBSB,
                                  AnzahlDBEZ, AnzahlDBEE, AnzahlDBFZ, MitDBKU};
inline constexpr auto kFields = layout::joined(Head.fields(), kTail);
}  // namespace DSEU
inline constexpr RecordLayout kDSEU{"DSEU", 176, DSEU::kFields};

namespace DSNE {
inline constexpr CertificateHead Head{"DSNE"};
inline constexpr FieldLayout MitDBNE = always(kDBNE, 163);
inline constexpr FieldLayout Reserve{"reserve", 164, 2, FieldKind::N};
inline constexpr FieldLayout MitDBSA = always(kDBSA, 166);
inline constexpr FieldLayout MitDBNB = always(kDBNB, 167);
inline constexpr FieldLayout MitDBHN = flag(kDBHN, 168);
inline constexpr std::array kTail{MitDBNE, Reserve, MitDBSA, MitDBNB, MitDBHN};
inline constexpr auto kFields = layout::joined(Head.fields(), kTail);
}  // namespace DSNE
inline constexpr RecordLayout kDSNE{"DSNE", 168, DSNE::kFields};

}  // namespace tamrel::layouts::bea
