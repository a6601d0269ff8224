#pragma once
#include "component/shared_bindings.h"
#include "xml/clsGenAsyl/Asyl.h"

namespace tamrel::json_binding {

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

}  // namespace tamrel::json_binding
