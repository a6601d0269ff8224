// The property table of the data object `Meldung` and its parts: each property's name and
// member, in the interface order. Every reader of data objects walks it (the
// JSON readers, the COM server's late-bound reader); the compile-time check
// below holds it to the members.
#pragma once
#include "core/objects_properties.h"
#include "core/property_table.h"
#include "reports/clsGenMeldung/Meldung.h"

namespace tamrel::properties {

template <>
struct Binding<Meldung> {
    using M = Meldung;
    static constexpr auto fields = std::make_tuple(
        field("Laufnummer", &M::Laufnummer), field("Meldegrund", &M::Meldegrund),
        field("MitNamensdaten", &M::MitNamensdaten), field("Personengruppe", &M::Personengruppe),
        field("Zusatzmerkmal", &M::Zusatzmerkmal), field("Ersatzaktenzeichen", &M::Ersatzaktenzeichen),
        field("Zeitpunkt", &M::Zeitpunkt), field("Meldungsart", &M::Meldungsart), field("Storno", &M::Storno),
        field("Meldekennzeichen", &M::Meldekennzeichen), field("Beginn", &M::Beginn), field("Ende", &M::Ende),
        field("Sonderkennzeichen", &M::Sonderkennzeichen), field("Beitragsgruppe1", &M::Beitragsgruppe1),
        field("Beitragsgruppe2", &M::Beitragsgruppe2), field("Beitragsgruppe3", &M::Beitragsgruppe3),
        field("Beitragsgruppe4", &M::Beitragsgruppe4), field("SchluesselAlt1", &M::SchluesselAlt1),
        field("SchluesselAlt2", &M::SchluesselAlt2), field("SchluesselAlt3", &M::SchluesselAlt3),
        field("SchluesselAlt4", &M::SchluesselAlt4), field("SchluesselAlt5", &M::SchluesselAlt5),
        field("SchluesselNeu1", &M::SchluesselNeu1), field("SchluesselNeu2", &M::SchluesselNeu2),
        field("SchluesselNeu3", &M::SchluesselNeu3), field("KsKennzeichen", &M::KsKennzeichen),
        field("Statuskennzeichen", &M::Statuskennzeichen), field("Entgelt", &M::Entgelt), field("KvGrund", &M::KvGrund),
        field("KvBetrag1", &M::KvBetrag1), field("KvBetrag2", &M::KvBetrag2), field("KvBetrag3", &M::KvBetrag3),
        field("KvBetrag4", &M::KvBetrag4), field("KsMerkmal", &M::KsMerkmal), field("KsAngabe1", &M::KsAngabe1),
        field("KsAngabe2", &M::KsAngabe2), field("KsAngabe3", &M::KsAngabe3), field("KsAngabe4", &M::KsAngabe4),
        field("KsSchluessel", &M::KsSchluessel), field("KsDatum", &M::KsDatum), field("KsZeileA", &M::KsZeileA),
        field("KsZeileB", &M::KsZeileB), field("KsZeileC", &M::KsZeileC), field("KsZeileD", &M::KsZeileD),
        field("UvAngabe1", &M::UvAngabe1), field("UvAngabe2", &M::UvAngabe2), field("UvAngabe3", &M::UvAngabe3),
        field("UvAngabe4", &M::UvAngabe4), field("UvAngabe5", &M::UvAngabe5), field("UvAngabe6", &M::UvAngabe6),
        field("KsLetzter", &M::KsLetzter), field("KsErster", &M::KsErster), field("UvLetzter", &M::UvLetzter),
        field("UvErster", &M::UvErster), field("UvEntfaellt", &M::UvEntfaellt), field("Vorgang", &M::Vorgang),
        field("Empfaenger", &M::Empfaenger));

    // An absent bound follows the indices given in its lists.
    template <class V>
    static void finish(Meldung& m, const V& j) {
        auto lower = [](auto... lists) {
            std::int16_t v = 1;
            bool any = false;
            ((lists->empty() ? void()
                             : (v = any ? std::min(v, lists->smallest()) : lists->smallest(), any = true, void())),
             ...);
            return v;
        };
        auto upper = [](auto... lists) {
            std::int16_t v = 0;
            bool any = false;
            ((lists->empty() ? void()
                             : (v = any ? std::max(v, lists->largest()) : lists->largest(), any = true, void())),
             ...);
            return v;
        };
        if (!j.has("KsErster")) m.KsErster = lower(&m.KsZeileA, &m.KsZeileB, &m.KsZeileC, &m.KsZeileD);
        if (!j.has("KsLetzter")) m.KsLetzter = upper(&m.KsZeileA, &m.KsZeileB, &m.KsZeileC, &m.KsZeileD);
        if (!j.has("UvErster"))
            m.UvErster = lower(&m.UvAngabe1, &m.UvAngabe2, &m.UvAngabe3, &m.UvAngabe4, &m.UvAngabe5, &m.UvAngabe6,
                               &m.UvEntfaellt);
        if (!j.has("UvLetzter"))
            m.UvLetzter = upper(&m.UvAngabe1, &m.UvAngabe2, &m.UvAngabe3, &m.UvAngabe4, &m.UvAngabe5, &m.UvAngabe6,
                                &m.UvEntfaellt);
    }
};

static_assert(complete<Meldung>(), "every member of Meldung has its entry");

}  // namespace tamrel::properties
