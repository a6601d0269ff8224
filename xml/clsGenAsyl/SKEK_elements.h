// The XML report's elements that carry a property of the data object, in
// the order they are written: one table a block or family, which the
// builder writes (GenSKEK.cpp) and the reader reads back. The elements
// around them (fixed texts, the record identification, the time stamp and
// the image's length) are written by the builder itself.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "xml/clsGenAsyl/Asyl.h"

namespace tamrel::layouts::asyl {

// How an element writes its property: as it stands (also the numeric
// ones), or a date yyyymmdd as yyyy-mm-dd.
enum class XmlKind : std::uint8_t { An, Date };

template <class O>
struct Element {
    std::string_view name;
    XmlKind kind;
    std::string O::*member;
};

using enum XmlKind;
using P = AsylPerson;
using A = AsylAddress;

// SKEK, between the time stamp and the record ID.
inline constexpr Element<Asyl> kSKEK[] = {
    {"bbnrvu", An, &Asyl::BbnrVu}, {"ikko", An, &Asyl::Ikko}, {"gd", An, &Asyl::Gd}, {"rg", An, &Asyl::Rg}};

// A person: BMGD (the person concerned), and BANG (the applicant) after its "angart".
inline constexpr Element<Asyl> kBANG[] = {{"angart", An, &Asyl::AngArt}};
inline constexpr Element<AsylPerson> kPerson[] = {{"fmna", An, &P::Fmna},     {"vona", An, &P::Vona},
                                                  {"vosa", An, &P::Vosa},     {"nazu", An, &P::Nazu},
                                                  {"titel", An, &P::Titel},   {"plz", An, &P::Plz},
                                                  {"ort", An, &P::Ort},       {"str", An, &P::Str},
                                                  {"nr", An, &P::Nr},         {"adrzu", An, &P::Adrzu},
                                                  {"tel", An, &P::Tel},       {"email", An, &P::Email},
                                                  {"gbna", An, &P::Gbna},     {"gbvosa", An, &P::Gbvosa},
                                                  {"gbnazu", An, &P::Gbnazu}, {"gbdt", Date, &P::Gbdt},
                                                  {"ge", An, &P::Ge},         {"gbot", An, &P::Gbot},
                                                  {"gbld", An, &P::Gbld},     {"aktenzeichen", An, &P::Aktenzeichen},
                                                  {"kvnr", An, &P::Kvnr},     {"vsnr", An, &P::Vsnr},
                                                  {"sasc", An, &P::Sasc}};

inline constexpr Element<Asyl> kBZRM[] = {{"zrbg", Date, &Asyl::ZrBeginn}, {"zren", Date, &Asyl::ZrEnde}};

// An address: BBTR (the supervisor) and BZGK (the authorised recipient).
inline constexpr Element<AsylAddress> kAddress[] = {
    {"fmna", An, &A::Fmna},   {"vona", An, &A::Vona},   {"vosa", An, &A::Vosa}, {"nazu", An, &A::Nazu},
    {"titel", An, &A::Titel}, {"plz", An, &A::Plz},     {"ort", An, &A::Ort},   {"str", An, &A::Str},
    {"nr", An, &A::Nr},       {"adrzu", An, &A::Adrzu}, {"ge", An, &A::Ge}};

inline constexpr Element<Asyl> kBAPK[] = {{"anr-ap", An, &Asyl::ApAnrede},
                                          {"name-ap", An, &Asyl::ApName},
                                          {"tel-ap", An, &Asyl::ApTel},
                                          {"fax-ap", An, &Asyl::ApFax},
                                          {"email-ap", An, &Asyl::ApEmail}};

// BIMG, after the file name.
inline constexpr Element<Asyl> kBIMG[] = {{"bilddatei", An, &Asyl::Bilddatei}};

}  // namespace tamrel::layouts::asyl
