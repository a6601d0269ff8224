#pragma once
#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "component/shared_bindings.h"

namespace tamrel::json_binding {

TAMREL_LIST_BINDING(bea::DBSE, TAMREL_BEA_DBSE);
TAMREL_LIST_BINDING(bea::DBSB, TAMREL_BEA_DBSB);
TAMREL_LIST_BINDING(bea::DBAZ, TAMREL_BEA_DBAZ);
TAMREL_LIST_BINDING(bea::DBEN, TAMREL_BEA_DBEN);
TAMREL_LIST_BINDING(bea::DBEZ, TAMREL_BEA_DBEZ);
TAMREL_LIST_BINDING(bea::DBEE, TAMREL_BEA_DBEE);
TAMREL_LIST_BINDING(bea::DBFZ, TAMREL_BEA_DBFZ);
TAMREL_LIST_BINDING(bea::DBAG, TAMREL_BEA_DBAG);
TAMREL_LIST_BINDING(bea::DBAB, TAMREL_BEA_DBAB);
TAMREL_LIST_BINDING(bea::DBNE, TAMREL_BEA_DBNE);
TAMREL_LIST_BINDING(bea::DBSA, TAMREL_BEA_DBSA);
TAMREL_LIST_BINDING(bea::DBHA, TAMREL_BEA_DBHA);
TAMREL_LIST_BINDING(bea::DBKE, TAMREL_BEA_DBKE);
TAMREL_LIST_BINDING(bea::DBKU, TAMREL_BEA_DBKU);
TAMREL_LIST_BINDING(bea::DBNB, TAMREL_BEA_DBNB);
TAMREL_LIST_BINDING(bea::DBHN, TAMREL_BEA_DBHN);

template <>
struct Binding<ArbeitsBesch> {
    using A = ArbeitsBesch;
    static constexpr auto fields = std::make_tuple(
        field("DatensatzNr", &A::DatensatzNr), field("Feld151", &A::Feld151), field("ErstellDatum", &A::ErstellDatum),
        field("Verfahren", &A::Verfahren), field("KENNZAB", &A::KENNZAB), field("DBAG", &A::DBAG),
        field("DBAB", &A::DBAB), field("DBNE", &A::DBNE), field("DBSA", &A::DBSA), field("DBHA", &A::DBHA),
        field("DBKE", &A::DBKE), field("DBKU", &A::DBKU), field("DBNB", &A::DBNB), field("DBHN", &A::DBHN),
        field("DBSB", &A::DBSB), field("AnzahlDBSB", &A::AnzahlDBSB), field("DBSE", &A::DBSE),
        field("AnzahlDBSE", &A::AnzahlDBSE), field("DBAZ", &A::DBAZ), field("AnzahlDBAZ", &A::AnzahlDBAZ),
        field("DBEN", &A::DBEN), field("AnzahlDBEN", &A::AnzahlDBEN), field("DBEZ", &A::DBEZ),
        field("AnzahlDBEZ", &A::AnzahlDBEZ), field("DBEE", &A::DBEE), field("AnzahlDBEE", &A::AnzahlDBEE),
        field("DBFZ", &A::DBFZ), field("AnzahlDBFZ", &A::AnzahlDBFZ), field("Vorgang", &A::Vorgang));

    // An absent count is the number of items given.
    template <class V>
    static void finish(ArbeitsBesch& a, const V& j) {
        auto count = [&](const char* name, std::size_t size, std::int16_t& out) {
            if (j.has(name)) return;
            if (size > 32767) fail(name, "more than 32767 items");
            out = static_cast<std::int16_t>(size);
        };
        count("AnzahlDBSB", a.DBSB.size(), a.AnzahlDBSB);
        count("AnzahlDBSE", a.DBSE.size(), a.AnzahlDBSE);
        count("AnzahlDBAZ", a.DBAZ.size(), a.AnzahlDBAZ);
        count("AnzahlDBEN", a.DBEN.size(), a.AnzahlDBEN);
        count("AnzahlDBEZ", a.DBEZ.size(), a.AnzahlDBEZ);
        count("AnzahlDBEE", a.DBEE.size(), a.AnzahlDBEE);
        count("AnzahlDBFZ", a.DBFZ.size(), a.AnzahlDBFZ);
    }
};

TAMREL_LIST_BINDING(eel::DBAL, TAMREL_EEL_DBAL);
TAMREL_LIST_BINDING(eel::DBAE, TAMREL_EEL_DBAE);
TAMREL_LIST_BINDING(eel::DBZA, TAMREL_EEL_DBZA);
TAMREL_LIST_BINDING(eel::DBEE, TAMREL_EEL_DBEE);
TAMREL_LIST_BINDING(eel::DBAW, TAMREL_EEL_DBAW);
TAMREL_LIST_BINDING(eel::DBFR, TAMREL_EEL_DBFR);
TAMREL_LIST_BINDING(eel::DBUN, TAMREL_EEL_DBUN);
TAMREL_LIST_BINDING(eel::DBMU, TAMREL_EEL_DBMU);
TAMREL_LIST_BINDING(eel::Vorerkrankung, TAMREL_EEL_VORERKRANKUNG);
TAMREL_LIST_BINDING(eel::DBHE, TAMREL_EEL_DBHE);
TAMREL_LIST_BINDING(eel::DBBE, TAMREL_EEL_DBBE);
TAMREL_LIST_BINDING(eel::DBLT, TAMREL_EEL_DBLT);
TAMREL_LIST_BINDING(eel::DBSF, TAMREL_EEL_DBSF);
TAMREL_LIST_BINDING(eel::DBTK, TAMREL_EEL_DBTK);

template <>
struct Binding<eel::DBVO> {
    using Self = eel::DBVO;
    static constexpr auto fields =
        std::tuple_cat(TAMREL_EEL_DBVO(TAMREL_BIND_FIELD) std::make_tuple(field("Vorerkrankungen", &Self::Vorerkrankungen)));
};

template <>
struct Binding<Entgelt> {
    using E = Entgelt;
    static constexpr auto fields = std::make_tuple(
        field("DatensatzNr", &E::DatensatzNr), field("ErstellDatum", &E::ErstellDatum),
        field("RUECKMELDUNGEEL", &E::RUECKMELDUNGEEL), field("ABGABEGRUND", &E::ABGABEGRUND),
        field("KENNZSTORNO", &E::KENNZSTORNO), field("BBNRKK", &E::BBNRKK), field("KENNZAB", &E::KENNZAB),
        field("AZSV", &E::AZSV), field("ApAnrede", &E::ApAnrede), field("ApName", &E::ApName),
        field("ApTel", &E::ApTel), field("ApFax", &E::ApFax), field("ApEmail", &E::ApEmail), field("DBAL", &E::DBAL),
        field("DBAE", &E::DBAE), field("DBZA", &E::DBZA), field("DBEE", &E::DBEE), field("DBAW", &E::DBAW),
        field("DBFR", &E::DBFR), field("DBUN", &E::DBUN), field("DBMU", &E::DBMU), field("DBVO", &E::DBVO),
        field("DBHE", &E::DBHE), field("DBBE", &E::DBBE), field("DBLT", &E::DBLT), field("DBSF", &E::DBSF),
        field("DBTK", &E::DBTK), field("Vorgang", &E::Vorgang), field("Empfaenger", &E::Empfaenger));
};

}  // namespace tamrel::json_binding
