// The classes of TamrelObj26 and their names: one for each data object of
// the procedures and the two structures, and one for each kind of
// sub-object and repeating group's item they hold, named after the property
// that holds it ("Vorgang", "DBSE"). Where one name would stand for two
// kinds (a certificate's DBEE block and another certificate's DBEE items),
// each takes its owner's name in front ("ArbeitsBeschDBEE", "EntgeltDBEE").
#pragma once
#include <algorithm>
#include <string>
#include <tuple>
#include <typeinfo>
#include <vector>

#include "certificates/clsGenArbeitsBesch/ArbeitsBesch_properties.h"
#include "certificates/clsGenEntgelt/Entgelt_properties.h"
#include "com/object_members.h"
#include "core/objects_properties.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV_properties.h"
#include "queries/clsGenAbfrVers/AbfrVers_properties.h"
#include "queries/clsGenBetrieb/Betrieb_properties.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis_properties.h"
#include "reports/clsGenBeitrErh/BeitrErh_properties.h"
#include "reports/clsGenBeitrNachw/BeitrNachw_properties.h"
#include "reports/clsGenErst/Erst_properties.h"
#include "reports/clsGenMeldung/Meldung_properties.h"
#include "reports/clsGenZahl/Zahl_properties.h"
#include "xml/clsGenAsyl/Asyl_properties.h"

namespace tamrel::com::members {

// The data objects of the procedures, then the shared ones and the
// structures, as the type library lists them.
template <class T>
struct Top {
    using type = T;
    const char* name;
    const char* clsid;  // fixed for good: hosts create the class by it
};
inline constexpr auto kTopClasses =
    std::make_tuple(Top<Meldung>{"Meldung", "A1716087-283D-4BD2-B3E8-1AFA745EB66C"},
                    Top<BeitrNachw>{"BeitrNachw", "D17C2879-CCD9-477A-8D15-352681967CB8"},
                    Top<BeitrErh>{"BeitrErh", "1F564837-2CEA-4AEF-8B03-2C7E66CE6C87"},
                    Top<Erst>{"Erst", "292217DB-6918-4F93-B5C3-5A1DF7B46986"},
                    Top<Zahl>{"Zahl", "BBBA7B32-AE73-44F2-8F0F-0A551ACFC746"},
                    Top<Betrieb>{"Betrieb", "5662D5EE-5E17-4EB5-99D8-3A68048499A8"},
                    Top<ArbeitsBesch>{"ArbeitsBesch", "4003543F-500F-4054-97F7-B95ADC467069"},
                    Top<Entgelt>{"Entgelt", "03D87012-38DB-41BD-B83B-B5196E4E78EA"},
                    Top<AbfrVers>{"AbfrVers", "2CDC5C2B-8585-4335-95C8-E5D35C0715D3"},
                    Top<AbfrStammdatenUV>{"AbfrStammdatenUV", "D5AB7AD8-5B11-4482-AC5C-4E153F1510E3"},
                    Top<Lohnnachweis>{"Lohnnachweis", "0A9B1033-6CA5-4DC7-9472-08630322BE74"},
                    Top<Asyl>{"Asyl", "4BDABC4B-10A5-4B33-BE4E-943786FABDF2"},
                    Top<Vorgang>{"Vorgang", "BF22618A-D809-49B2-B0F5-422DCEBB0E84"},
                    Top<Arbeitgeber>{"Arbeitgeber", "E5808C89-3153-42FC-B5C8-4BABEF8DEEFB"},
                    Top<Empfaenger>{"Empfaenger", "974E0947-2718-4F87-A17E-671870ED9BD7"},
                    Top<DSKOData>{"DSKOData", "492EB28F-2B0B-45C0-91ED-DB27F1698AC1"},
                    Top<DatensatzData>{"DatensatzData", "9C4DE04A-D4AF-49C8-8C11-4004E01B10F0"});

// The data object type of an entry of kTopClasses.
template <class Entry>
using TypeOf = typename std::remove_cvref_t<Entry>::type;

template <class M>
struct HeldBy {
    using type = M;
};
template <class M>
struct HeldBy<std::vector<M>> {
    using type = M;
};

// Calls `f.template operator()<Held>(property)` for each kind of sub-object
// or item that T holds, with the name of the property that holds it.
template <class T, class F>
void each_held(F&& f) {
    auto one = [&](const auto& e) {
        if constexpr (requires { e.name; }) {
            using M = std::remove_cvref_t<decltype(std::declval<T&>().*(e.member))>;
            using Held = typename HeldBy<M>::type;
            if constexpr (properties::Bound<Held>) f.template operator()<Held>(e.name);
        }
    };
    std::apply([&](const auto&... e) { (one(e), ...); }, properties::Binding<T>::fields);
}

namespace detail {

struct Found {
    const std::type_info* type;
    std::string name, owner;
};
inline bool known(const std::vector<const std::type_info*>& seen, const std::type_info& t) {
    return std::any_of(seen.begin(), seen.end(), [&](const std::type_info* s) { return *s == t; });
}

// Every kind below a top class, once, with its property's name and the top
// class it was first met under.
struct Collect {
    std::vector<Found>& found;
    std::vector<const std::type_info*>& seen;
    std::string owner;
    template <class H>
    void operator()(std::string_view property) {
        if (known(seen, typeid(H))) return;
        seen.push_back(&typeid(H));
        found.push_back({&typeid(H), std::string(property), owner});
        each_held<H>(*this);
    }
};

template <class Visit, class Name>
struct Announce {
    Visit& visit;
    const Name& name_of;
    std::vector<const std::type_info*>& seen;
    template <class H>
    void operator()(std::string_view) {
        if (known(seen, typeid(H))) return;
        seen.push_back(&typeid(H));
        visit.template operator()<H>(name_of(typeid(H)), nullptr);
        each_held<H>(*this);
    }
};

}  // namespace detail

// Calls `visit.template operator()<T>(name, clsid)` once for every class:
// the top classes with their fixed class ids, then the kinds they hold in
// the order first met (clsid nullptr: made from the name).
template <class Visit>
void each_class(Visit&& visit) {
    std::vector<detail::Found> found;
    std::vector<const std::type_info*> seen;
    std::apply(
        [&](const auto&... t) {
            ((seen.push_back(&typeid(TypeOf<decltype(t)>)), found.push_back({seen.back(), t.name, ""})), ...);
            (each_held<TypeOf<decltype(t)>>(detail::Collect{found, seen, t.name}), ...);
        },
        kTopClasses);
    auto name_of = [&](const std::type_info& type) {
        for (const detail::Found& f : found) {
            if (*f.type != type) continue;
            const bool shared = std::any_of(found.begin(), found.end(), [&](const detail::Found& o) {
                return o.name == f.name && *o.type != type;
            });
            return shared && !f.owner.empty() ? f.owner + f.name : f.name;
        }
        return std::string();
    };
    seen.clear();
    std::apply(
        [&](const auto&... t) {
            ((seen.push_back(&typeid(TypeOf<decltype(t)>)),
              visit.template operator()<TypeOf<decltype(t)>>(std::string(t.name), t.clsid)),
             ...);
            (each_held<TypeOf<decltype(t)>>(
                 detail::Announce<std::remove_reference_t<Visit>, decltype(name_of)>{visit, name_of, seen}),
             ...);
        },
        kTopClasses);
}

}  // namespace tamrel::com::members
