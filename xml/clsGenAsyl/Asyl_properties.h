// The property table of the data object `Asyl` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "xml/clsGenAsyl/Asyl.h"

namespace tamrel::properties {

template <>
struct Binding<AsylPerson> {
    using P = AsylPerson;
    static constexpr auto fields =
        std::make_tuple(field("Vsnr", &P::Vsnr), field("Kvnr", &P::Kvnr), field("Sasc", &P::Sasc),
                        field("Aktenzeichen", &P::Aktenzeichen), field("Fmna", &P::Fmna), field("Vosa", &P::Vosa),
                        field("Nazu", &P::Nazu), field("Titel", &P::Titel), field("Vona", &P::Vona),
                        field("Gbdt", &P::Gbdt), field("Ge", &P::Ge), field("Gbot", &P::Gbot), field("Gbld", &P::Gbld),
                        field("Gbna", &P::Gbna), field("Gbvosa", &P::Gbvosa), field("Gbnazu", &P::Gbnazu),
                        field("Str", &P::Str), field("Nr", &P::Nr), field("Adrzu", &P::Adrzu), field("Plz", &P::Plz),
                        field("Ort", &P::Ort), field("Tel", &P::Tel), field("Email", &P::Email));
};
template <>
struct Binding<AsylAddress> {
    using A = AsylAddress;
    static constexpr auto fields =
        std::make_tuple(field("Fmna", &A::Fmna), field("Vosa", &A::Vosa), field("Nazu", &A::Nazu),
                        field("Titel", &A::Titel), field("Vona", &A::Vona), field("Ge", &A::Ge), field("Str", &A::Str),
                        field("Nr", &A::Nr), field("Adrzu", &A::Adrzu), field("Plz", &A::Plz), field("Ort", &A::Ort));
};
template <>
struct Binding<Asyl> {
    using A = Asyl;
    static constexpr auto fields =
        std::make_tuple(field("DatensatzNr", &A::DatensatzNr), field("Gd", &A::Gd), field("Rg", &A::Rg),
                        field("ZrBeginn", &A::ZrBeginn), field("ZrEnde", &A::ZrEnde), field("BbnrVu", &A::BbnrVu),
                        field("Ikko", &A::Ikko), field("ApAnrede", &A::ApAnrede), field("ApName", &A::ApName),
                        field("ApTel", &A::ApTel), field("ApFax", &A::ApFax), field("ApEmail", &A::ApEmail),
                        prefixed("Mgd", &A::Mgd), field("AngArt", &A::AngArt), prefixed("Ang", &A::Ang),
                        prefixed("Btr", &A::Btr), prefixed("Zgk", &A::Zgk), field("Bilddatei", &A::Bilddatei),
                        field("ErstellDatum", &A::ErstellDatum), field("Empfaenger", &A::Empfaenger));
};

static_assert(complete<AsylPerson>(), "every member of AsylPerson has its entry");
static_assert(complete<AsylAddress>(), "every member of AsylAddress has its entry");
static_assert(complete<Asyl>(), "every member of Asyl has its entry");

}  // namespace tamrel::properties
