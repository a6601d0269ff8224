#include <gtest/gtest.h>

#include "protocol/proto_fields.h"

using namespace tamrel::proto;

TEST(ProtocolFields, FieldsFlagsAndErrorTexts) {
    EXPECT_EQ(GetProtField("Meier", true, false, false), ";\"Meier\"");
    EXPECT_EQ(GetProtField("", true, false, false), ";\"\"");
    EXPECT_EQ(GetProtField("+1.5", false, true, true), "1,5");
    EXPECT_EQ(GetProtField("a\";b", true, true, false), "\"a\";b\"");
    EXPECT_EQ(GetProtFieldJaNein(0) + GetProtFieldJaNein(1) + GetProtFieldJaNein(2), ";\"\";\"J\";\"N\"");
    EXPECT_EQ(CorrectErrText("A\r\nB\"C\nD\rE"), "A;B;C;D\rE");
}

TEST(ProtocolFields, LineEndsWithMarkerAndTheFirst255Characters) {
    std::string text(300, 'x');
    text[0] = '"';
    std::string line = Line().first("J").q("a").amount("+1.50").raw("20240101").finish(true, text);
    EXPECT_EQ(line, "\"J\";\"a\";\"1,50\";20240101;1;\";" + std::string(254, 'x') + "\"");
    EXPECT_EQ(Line().q("a").finish(false, ""), ";\"a\";0;\"\"");
}
