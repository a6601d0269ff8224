// The builders write by the declared fields: the declarations' own helpers
// (repeated rows, pieces of a field, one field over several) place what
// they make where the layout table has it, and in a build with assertions
// the writer stops a builder that writes a field out of its declared place.
#include <gtest/gtest.h>

#include <string>

#include "core/layout.h"
#include "core/shared_block_layouts.h"
#include "core/writer.h"
#include "reports/clsGenMeldung/DSME_layout.h"

using namespace tamrel;

namespace {

struct Expected {
    const FieldLayout& field;
    std::string_view name;
    std::uint16_t pos, len;
};

TEST(DeclaredFields, HelpersPlaceTheirFieldsAsTheLayoutTable) {
    using namespace layouts::meldung;
    const auto& rows = DBKSList::kZeilenABC;
    const auto& d = DBKSList::kZeilenD;
    const Expected cases[] = {
        {rows.front(), "KsZeileA(1)", 7, 2},
        {rows[1], "KsZeileB(1)", 9, 9},
        {rows[5], "KsZeileC(2)", 30, 1},
        {rows[33], "KsZeileA(12)", 139, 2},
        {rows.back(), "KsZeileC(12)", 150, 1},
        {d.front(), "KsZeileD(1)", 161, 2},
        {d.back(), "KsZeileD(12)", 183, 2},
        {DBME::SchluesselAlt1, "SchluesselAlt1", 36, 5},
        {DBME::SchluesselAlt2bis5, "SchluesselAlt2-5", 41, 4},
        {DSME::Datenbausteine, "block flags", 171, 10},
        {DSME::BezugLaufnummer, "Laufnummer", 138, 10},
        {DSME::BezugRest, "reserve", 148, 0},
    };
    for (const Expected& e : cases) {
        EXPECT_EQ(e.field.name, e.name);
        EXPECT_EQ(e.field.pos, e.pos) << e.name;
        EXPECT_EQ(e.field.len, e.len) << e.name;
    }
}

#ifndef NDEBUG
// Writes DBNA's identifier, then `next`.
void after_identifier(const FieldLayout& next) {
    std::string out;
    int line = 0;
    Writer w(out, line);
    w.put(layouts::DBNA::Kennung).put(next, "x");
}

TEST(DeclaredFieldsDeathTest, AFieldOutOfItsDeclaredPlaceStopsTheBuilder) {
    after_identifier(layouts::DBNA::Familienname);                             // in its place: no stop
    EXPECT_DEATH(after_identifier(layouts::DBNA::Vorname), "f.pos == next_");  // Familienname skipped
    EXPECT_DEATH(after_identifier(layouts::DBAN::PLZ), "f.pos == next_");      // another block's field
}
#endif

}  // namespace
