// GenData of every procedure on a typical report, and a protocol line.
#include <benchmark/benchmark.h>

#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "protocol/clsProtoEntry.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"
#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "reports/clsGenErst/clsGenErst.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "reports/clsGenZahl/clsGenZahl.h"
#include "xml/clsGenAsyl/Asyl.h"
#include "xml/clsGenAsyl/clsGenAsyl.h"

using namespace tamrel;

namespace {

const Date kDate{2024, 3, 1, 10, 11, 12};

Host quiet_host() {
    return Host{[](std::string_view) {}, [] { return kDate; }, {}};
}

Vorgang person() {
    Vorgang v;
    v.Versicherungsnummer = "65170839J003";
    v.Aktenzeichen = "P-0001";
    v.Familienname = "M\xC3\xBCller";
    v.Vorname = "J\xC3\xBCrgen";
    v.Geburtsdatum = "19830917";
    v.Geschlecht = "M";
    v.Geburtsort = "K\xC3\xB6ln";
    v.Strasse =
        "Hauptstra\xC3\x9F"
        "e";
    v.Hausnummer = "5";
    v.PLZ = "50667";
    v.Ort = "K\xC3\xB6ln";
    v.Arbeitgeber.Betriebsnummer = "98765432";
    v.Arbeitgeber.Name1 = "Muster GmbH";
    v.Arbeitgeber.PLZ = "10115";
    v.Arbeitgeber.Ort = "Berlin";
    return v;
}

DatensatzData datensatz() { return {"98765432", "", "TAMREL", "000001", "TAMREL1", "MOD0001", "bild.png"}; }

template <class Gen, class Obj>
void run(benchmark::State& state, const Obj& obj) {
    Gen gen(quiet_host());
    DatensatzData dd = datensatz();
    for (auto _ : state) benchmark::DoNotOptimize(gen.GenData(obj, dd, kDate));
    state.SetItemsProcessed(state.iterations());
}

}  // namespace

// The target case: a reason-10 registration with DBME, DBNA, DBGB, DBAN and DBKS.
static void BM_Meldung_Registration(benchmark::State& state) {
    Meldung m;
    m.Laufnummer = 1;
    m.Meldegrund = "10";
    m.Meldungsart = 1;
    m.Personengruppe = "101";
    m.Beitragsgruppe1 = m.Beitragsgruppe2 = m.Beitragsgruppe3 = m.Beitragsgruppe4 = "1";
    m.Beginn = "20240301";
    m.SchluesselNeu1 = "43112";
    m.SchluesselNeu2 = "1";
    m.SchluesselNeu3 = "14";
    m.KsDatum = "20240301";
    m.KsZeileA.set(1, "DE");
    m.KsErster = 1;
    m.KsLetzter = 12;
    m.Vorgang = person();
    m.Empfaenger.Betriebsnummer = "12345678";
    clsGenMeldung gen(quiet_host());
    DatensatzData dd = datensatz();
    for (auto _ : state) benchmark::DoNotOptimize(gen.GenData(m, dd, vmNormal, kDate));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Meldung_Registration);

static void BM_BeitrNachw(benchmark::State& state) {
    BeitrNachw b;
    b.Nachweisart = 1;
    b.Betrag01 = "1234,56";
    b.Betrag02 = "98,10";
    b.Betrag27 = "1332,66";
    b.Arbeitgeber = person().Arbeitgeber;
    b.Empfaenger.Betriebsnummer = "12345678";
    clsGenBeitrNachw gen(quiet_host());
    for (auto _ : state) benchmark::DoNotOptimize(gen.GenData(b, "98765432", "", "TAMREL", "1", kDate));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_BeitrNachw);

static void BM_BeitrErh(benchmark::State& state) {
    BeitrErh b;
    b.Betrag2 = "123,45";
    b.Betrag6 = "99,99";
    b.Vorgang = person();
    run<clsGenBeitrErh>(state, b);
}
BENCHMARK(BM_BeitrErh);

static void BM_Erst(benchmark::State& state) {
    Erst e;
    e.Erstattungsgrund = 11;
    e.Entgelt1 = "3200,00";
    e.Betrag1 = "1234,56";
    e.Vorgang = person();
    run<clsGenErst>(state, e);
}
BENCHMARK(BM_Erst);

static void BM_Zahl(benchmark::State& state) {
    Zahl z;
    z.ZKBetrag2 = "14814,72";
    z.Vorgang = person();
    run<clsGenZahl>(state, z);
}
BENCHMARK(BM_Zahl);

static void BM_Betrieb(benchmark::State& state) {
    Betrieb b;
    b.Arbeitgeber = person().Arbeitgeber;
    b.DbkaOrt = "Hamburg";
    run<clsGenBetrieb>(state, b);
}
BENCHMARK(BM_Betrieb);

static void BM_AbfrVers(benchmark::State& state) {
    AbfrVers a;
    a.Vorgang = person();
    run<clsGenAbfrVers>(state, a);
}
BENCHMARK(BM_AbfrVers);

static void BM_AbfrStammdatenUV(benchmark::State& state) {
    AbfrStammdatenUV a;
    a.ApName = "Erika Beispiel";
    a.Arbeitgeber = person().Arbeitgeber;
    run<clsGenAbfrStammdatenUV>(state, a);
}
BENCHMARK(BM_AbfrStammdatenUV);

static void BM_Lohnnachweis(benchmark::State& state) {
    Lohnnachweis l;
    l.ApName = "Erika Beispiel";
    l.Positionen = {{"GEFAHRTARIF 1", "0100", "12500000", "12", "3"}, {"GEFAHRTARIF 2", "0200", "4200000", "4", "1"}};
    l.AnzahlPositionen = 2;
    l.Arbeitgeber = person().Arbeitgeber;
    run<clsGenLohnnachweis>(state, l);
}
BENCHMARK(BM_Lohnnachweis);

static void BM_ArbeitsBesch(benchmark::State& state) {
    ArbeitsBesch a;
    a.Verfahren = 15;
    a.Vorgang = person();
    a.DBEN.resize(2);
    a.AnzahlDBEN = 2;
    run<clsGenArbeitsBesch>(state, a);
}
BENCHMARK(BM_ArbeitsBesch);

static void BM_Entgelt(benchmark::State& state) {
    Entgelt e;
    e.Vorgang = person();
    e.DBAE.BRUTTO1 = "3200,00";
    e.DBHE.EELNETTO = "64,50";
    run<clsGenEntgelt>(state, e);
}
BENCHMARK(BM_Entgelt);

static void BM_Asyl(benchmark::State& state) {
    Asyl a;
    a.Mgd.Fmna = "M\xC3\xBCller";
    a.Mgd.Vona = "J\xC3\xBCrgen";
    a.ApName = "Erika Beispiel";
    run<clsGenAsyl>(state, a);
}
BENCHMARK(BM_Asyl);

static void BM_CreateProtoMeld(benchmark::State& state) {
    Meldung m;
    m.Meldegrund = "10";
    m.Vorgang = person();
    clsProtoEntry proto(quiet_host());
    for (auto _ : state) benchmark::DoNotOptimize(proto.CreateProtoMeld(m, false, ""));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CreateProtoMeld);
