// The log lines of failing routines: the last one names the public method
// with its arguments (only the fixed texts that name another class, or the
// employment certificate's "GetData", stand alone), and a routine's
// statement numbers do not grow with the passes of its list loops.
#include <gtest/gtest.h>

#include <functional>

#include "certificates/clsGenArbeitsBesch/ArbeitsBesch.h"
#include "certificates/clsGenArbeitsBesch/clsGenArbeitsBesch.h"
#include "certificates/clsGenEntgelt/Entgelt.h"
#include "certificates/clsGenEntgelt/clsGenEntgelt.h"
#include "queries/clsGenAbfrStammdatenUV/AbfrStammdatenUV.h"
#include "queries/clsGenAbfrStammdatenUV/clsGenAbfrStammdatenUV.h"
#include "queries/clsGenAbfrVers/AbfrVers.h"
#include "queries/clsGenAbfrVers/clsGenAbfrVers.h"
#include "queries/clsGenBetrieb/clsGenBetrieb.h"
#include "queries/clsGenLohnnachweis/Lohnnachweis.h"
#include "queries/clsGenLohnnachweis/clsGenLohnnachweis.h"
#include "reports/clsGenBeitrErh/BeitrErh.h"
#include "reports/clsGenBeitrErh/clsGenBeitrErh.h"
#include "reports/clsGenBeitrNachw/BeitrNachw.h"
#include "reports/clsGenBeitrNachw/clsGenBeitrNachw.h"
#include "reports/clsGenErst/clsGenErst.h"
#include "reports/clsGenMeldung/Meldung.h"
#include "reports/clsGenMeldung/clsGenMeldung.h"
#include "reports/clsGenZahl/clsGenZahl.h"
#include "test_support.h"

using namespace tamrel;
using namespace tamrel::testing;

namespace {

const Date kMidnight{2024, 3, 1, 0, 0, 0};
const Date kMorning{2024, 3, 1, 10, 11, 12};
constexpr const char* kBad = "\xFF";

DSKOData bad_dsko() {
    DSKOData d;
    d.strName1 = kBad;
    return d;
}

DatensatzData bad_dd() {
    DatensatzData d;
    d.strBNRAb = kBad;
    return d;
}

// The context of the last log line: between "): " and " -> ".
std::string last_context(const std::vector<std::string>& lines) {
    if (lines.empty()) return "(no log line)";
    const std::string& l = lines.back();
    const auto from = l.find("): ") + 3;
    return l.substr(from, l.find(" -> ") - from);
}

template <class Gen>
std::function<void(const Host&)> dsko(const Date& date) {
    return [date](const Host& h) {
        DSKOData d = bad_dsko();
        Gen(h).GenDSKO(d, date);
    };
}

template <class Gen, class Obj>
std::function<void(const Host&)> data() {
    return [](const Host& h) {
        DatensatzData dd = bad_dd();
        Gen(h).GenData(Obj{}, dd, kMorning);
    };
}

TEST(ContextTexts, EveryPublicMethodNamesItsArguments) {
    const std::pair<std::function<void(const Host&)>, const char*> cases[] = {
        {dsko<clsGenMeldung>(kMidnight), "clsGenMeldung.GenDSKO(<udtDSKOData>, 2024-03-01)"},
        {dsko<clsGenBeitrErh>(kMorning), "clsGenBeitrErh.GenDSKO(<udtDSKOData>, 2024-03-01 10:11:12)"},
        {[](const Host& h) {
             DSKOData d = bad_dsko();
             clsGenBeitrNachw(h).GenDSKO(d, 4);
         },
         "clsGenBeitrNachw.GenDSKO(<udtDSKOData>, 4, 00:00:00)"},
        {dsko<clsGenErst>(kMidnight), "clsGenErst.GenDSKO(<udtDSKOData>, 2024-03-01)"},
        {dsko<clsGenZahl>(kMidnight), "clsGenZahl.GenDSKO(<udtDSKOData>, 2024-03-01)"},
        {dsko<clsGenBetrieb>(kMidnight), "clsGenBetrieb.GenDSKO(<udtDSKOData>, 2024-03-01)"},
        {dsko<clsGenAbfrVers>(kMidnight), "clsGenAbfrVers.GenDSKO(<udtDSKOData>, 2024-03-01)"},
        {dsko<clsGenAbfrStammdatenUV>(kMidnight), "clsGenAbfrStammdatenUV.GenDSKO(<udtDSKOData>, 2024-03-01)"},
        {dsko<clsGenLohnnachweis>(kMidnight), "clsGenLohnnachweis.GenDSKO(<udtDSKOData>, 2024-03-01)"},
        // Fixed texts that name another class stay as they are.
        {dsko<clsGenArbeitsBesch>(kMidnight), "clsGenErst.GenDSKO"},
        {dsko<clsGenEntgelt>(kMidnight), "clsGenErst.GenDSKO"},
        {data<clsGenBeitrErh, BeitrErh>(),
         "clsGenBeitrErh.GenData(<objBeitrErh>, <udtDatensatzData>, 2024-03-01 10:11:12)"},
        {[](const Host& h) {
             BeitrNachw b;
             b.Arbeitgeber.Name1 = kBad;
             clsGenBeitrNachw(h).GenData(b, "12345678", "87654321", "V1", "000001", kMidnight);
         },
         "clsGenBeitrNachw.GenData(<objBeitrNachw>, 12345678, 87654321, V1, 000001, 2024-03-01)"},
        {data<clsGenEntgelt, Entgelt>(),
         "clsGenEntgelt.GenData(<objEntgelt>, <udtDatensatzData>, 2024-03-01 10:11:12)"},
        {data<clsGenAbfrVers, AbfrVers>(),
         "clsGenAbfrVers.GenData(<objAbfrVers>, <udtDatensatzData>, 2024-03-01 10:11:12)"},
        {data<clsGenAbfrStammdatenUV, AbfrStammdatenUV>(),
         "clsGenAbfrStammdatenUV.GenData(<objAbfrStammdatenUV>, <udtDatensatzData>, 2024-03-01 10:11:12)"},
        {data<clsGenLohnnachweis, Lohnnachweis>(),
         "clsGenLohnnachweis.GenData(<objLohnnachweis>, <udtDatensatzData>, 2024-03-01 10:11:12)"},
        {[](const Host& h) {
             ArbeitsBesch a;
             a.Verfahren = 15;
             DatensatzData dd = bad_dd();
             clsGenArbeitsBesch(h).GenData(a, dd, kMorning);
         },
         "clsGenArbeitsBesch.GetData"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        expect_error([&] { c.first(host.host); });
        EXPECT_EQ(last_context(host.lines), c.second);
    }
}

// The statement number of the line that names `routine`.
int line_of(const std::vector<std::string>& lines, std::string_view routine) {
    for (const std::string& l : lines)
        if (l.find("): " + std::string(routine) + " -> ") != std::string::npos)
            return std::stoi(l.substr(l.find("(Zeile ") + 7));
    return -1;
}

Lohnnachweis wage_statement(std::int16_t positions) {
    Lohnnachweis l;
    l.AnzahlPositionen = positions;
    return l;
}

// Whatever the number of passes, a loop's statements keep their numbers:
// the length check after DSLN's positions is statement 42 (the overflow of
// its 16-bit length), the last position field 41 (where the counter steps
// past 32767); DBVO's check is 15, and DBUV's entry whose length overflows
// ends at its seventh field, statement 10.
TEST(StatementNumbers, ListLoopsDoNotCountTheirPasses) {
    auto uv_entries = [](std::int16_t last) {
        return [last](const Host&) {
            Meldung m;
            m.UvErster = 1;
            m.UvLetzter = last;
            bool produced = false;
            std::string out;
            clsGenMeldung::AppendDBUV(out, m, produced);
        };
    };
    auto illnesses = [](std::size_t count) {
        return [count](const Host& h) {
            Entgelt e;
            e.DBVO.Vorerkrankungen.resize(count);
            DatensatzData dd;
            clsGenEntgelt(h).GenData(e, dd, kMorning);
        };
    };
    auto positions = [](std::int16_t count) {
        return [count](const Host& h) {
            DatensatzData dd;
            clsGenLohnnachweis(h).GenData(wage_statement(count), dd, kMorning);
        };
    };
    struct Case {
        std::function<void(const Host&)> run;
        const char* routine;
        int line;
    };
    const Case cases[] = {
        {positions(548), "clsGenLohnnachweis.GenDSLN", 42},
        {positions(600), "clsGenLohnnachweis.GenDSLN", 42},
        {positions(1000), "clsGenLohnnachweis.GenDSLN", 42},
        {positions(32767), "clsGenLohnnachweis.GenDSLN", 41},
        {positions(-1), "mlGen.CheckLength", 1},
        {positions(-1), "clsGenLohnnachweis.GenDSLN", 42},
        {illnesses(656), "clsGenEntgelt.GenDBVO", 15},
        {illnesses(1000), "clsGenEntgelt.GenDBVO", 15},
        {uv_entries(462), "clsGenMeldung.GenDBUV", 10},
        {uv_entries(32767), "clsGenMeldung.GenDBUV", 10},
    };
    for (const Case& c : cases) {
        RecordingHost host;
        expect_error([&] { c.run(host.host); });
        EXPECT_EQ(line_of(host.lines, c.routine), c.line) << c.routine;
    }
}

// DBKS lists: the fields after each loop keep their numbers, so a list
// whose length is wrong fails the check at the same statement however long
// it is (three fields before, three in the first loop, two between, one in
// the second, one after: the check is 11).
TEST(StatementNumbers, DbksCheckKeepsItsNumber) {
    for (std::int16_t last : {1, 11, 13, 400}) {
        RecordingHost host;
        Meldung m;
        m.Meldungsart = 1;
        m.KsErster = 1;
        m.KsLetzter = last;
        std::string out;
        expect_error([&] { clsGenMeldung::GenDBKS(out, m); });
        EXPECT_EQ(line_of(host.lines, "clsGenMeldung.GenDBKS"), 11) << last;
    }
}

}  // namespace
