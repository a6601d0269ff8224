#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

#include "core/amounts.h"
#include "core/check_length.h"
#include "core/date_fields.h"
#include "core/establishment_number.h"
#include "core/text.h"
#include "core/text_fields.h"
#include "core/writer.h"
#include "core/xml_encoders.h"
#include "test_support.h"
#include "tests/encoder_forms.h"

using namespace tamrel;
using tamrel::testing::expect_error;
using tamrel::testing::RecordingHost;

namespace {

struct TextCase {
    const char* value;
    int width;
    const char* expected;
    bool filled;
};

TEST(TextEncoders, StrToAnCutsPadsAndDropsControlCharacters) {
    const TextCase cases[] = {
        {"M\xC3\xBCller\r\nx", 8, "M\xC3\xBCllerx ", true},
        {"", 5, "     ", false},
        {"   ", 3, "   ", false},
        {"abcdef", 3, "abc", true},
        {"\t\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", 3, "\xC3\xA4\xC3\xB6\xC3\xBC", true},
        {"ab", 0, "", false},
    };
    for (const auto& c : cases) {
        bool filled = false;
        EXPECT_EQ(mlGen::StrToAn(c.value, c.width, filled), c.expected) << c.value;
        EXPECT_EQ(filled, c.filled) << c.value;
    }
}

TEST(TextEncoders, StrToNCutsOnTheLeftWithoutCheckingDigits) {
    const TextCase cases[] = {
        {"1234567", 5, "34567", true},
        {"", 3, "000", false},
        {"ab", 4, "00ab", true},
        {"000", 3, "000", false},
        {"\xC3\xA4"
         "1",
         3,
         "0\xC3\xA4"
         "1",
         true},
        {"12\r", 3, "12\r", true},
    };
    for (const auto& c : cases) {
        bool filled = false;
        EXPECT_EQ(mlGen::StrToN(c.value, c.width, filled), c.expected) << c.value;
        EXPECT_EQ(filled, c.filled) << c.value;
    }
}

TEST(TextEncoders, FilledFlagIsNeverCleared) {
    bool filled = true;
    EXPECT_EQ(mlGen::StrToAn("", 2, filled), "  ");
    EXPECT_EQ(mlGen::StrToN("", 2, filled), "00");
    EXPECT_EQ(mlGen::StrToPB("", 2, 0, filled), "00");
    EXPECT_EQ(mlGen::EnmToJN(0, filled), " ");
    EXPECT_TRUE(filled);
}

TEST(TextEncoders, InvalidUtf8IsRefused) {
    RecordingHost host;
    bool filled = false;
    Error e = expect_error([&] { mlGen::StrToAn("ab\xFF", 5, filled); });
    EXPECT_EQ(e.number(), kErrText);
    EXPECT_EQ(e.source(), "mlGen.StrToAn");
}

// Malformed text must be refused whichever path a value takes.
TEST(TextEncoders, EveryPathRefusesMalformedText) {
    RecordingHost host;
    const std::string values[] = {
        "\xC3",
        "a\x80",
        "\xC0\x80",
        "\xC1\xBF",
        "\xC3\xA4\xC3",
        "abcdefghijklmno\xC3",
        "abcdefg\xC3",
        "abcdefgh\x80"
        "b",
        "\xC3\xC3\xA4",
        "\xE2\x82",
        "\xED\xA0\x80",
        "\xF5\x80\x80\x80",
        "\xFF",
    };
    for (const std::string& v : values) {
        char buf[4 * 40 + mlGen::kPutSlack];
        bool filled = false;
        const Error e = expect_error([&] { mlGen::PutAn(buf, v, 20, filled); });
        EXPECT_EQ(e.number(), kErrText) << v;
    }
}

struct AmountCase {
    const char* value;
    int vor, nach;
    const char* expected;
    bool filled;
};

// The word-at-a-time text helpers against a byte-by-byte reading, for every
// length around their word sizes and every place of the last non-blank.
TEST(TextHelpers, WordAtATimeHelpersReadAsTheBytes) {
    std::mt19937 rng(7);
    const std::string alphabet = " 0a\xC3\xBC";
    for (std::size_t length = 0; length <= 40; ++length) {
        for (int variant = 0; variant < 200; ++variant) {
            std::string s;
            for (std::size_t i = 0; i < length; ++i)
                s += variant % 3 == 0 ? ' ' : variant % 3 == 1 ? '0' : alphabet[rng() % alphabet.size()];
            if (length > 0 && variant % 7 == 3) s[rng() % length] = 'x';  // one other byte anywhere
            std::size_t kept = s.size();
            while (kept > 0 && s[kept - 1] == ' ') --kept;
            EXPECT_EQ(tamrel::text::trim_trailing_blanks(s), s.substr(0, kept)) << '"' << s << '"';
            for (const char c : {' ', '0'})
                EXPECT_EQ(tamrel::text::all_of(s, c), s.find_first_not_of(c) == std::string::npos) << '"' << s << '"';
        }
    }
}

TEST(AmountEncoders, StrToPBLastSeparatorIsTheDecimalOne) {
    const AmountCase cases[] = {
        {"1.234,5", 8, 2, "0000123450", true}, {"1,234.56", 6, 2, "00123456", true}, {"1.234", 3, 3, "001234", true},
        {"+12", 3, 2, "01200", true},          {"", 6, 2, "00000000", false},        {"0,00", 2, 2, "0000", false},
        {"1.2.3,45", 5, 2, "0012345", true},   {"007", 3, 0, "007", true},
    };
    for (const auto& c : cases) {
        bool filled = false;
        EXPECT_EQ(mlGen::StrToPB(c.value, c.vor, c.nach, filled), c.expected) << c.value;
        EXPECT_EQ(filled, c.filled) << c.value;
    }
}

TEST(AmountEncoders, StrToBGKeepsTheLastSign) {
    const AmountCase cases[] = {
        {"-12,5", 7, 2, "-000001250", true}, {"", 5, 2, "+0000000", false}, {"5-", 2, 0, "-05", true},
        {"-+3", 1, 0, "+3", true},           {"-0", 2, 1, "-000", false},
    };
    for (const auto& c : cases) {
        bool filled = false;
        EXPECT_EQ(mlGen::StrToBG(c.value, c.vor, c.nach, filled), c.expected) << c.value;
        EXPECT_EQ(filled, c.filled) << c.value;
    }
}

TEST(AmountEncoders, ErrorsCarryNumberSourceDescriptionAndLogTheRoutes) {
    struct Case {
        const char* value;
        bool signed_;
        int vor, nach;
        const char* source;
        const char* description;
        std::vector<std::string> log;
    };
    const Case cases[] = {
        {"-1",
         false,
         5,
         2,
         "mlGen.StrToPB",
         "Der Betrag darf nicht negativ sein.",
         {"Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 7): mlGen.StrToPB -> Der Betrag darf nicht negativ sein."}},
        {"1 000",
         false,
         5,
         2,
         "mlGen.StrToPB",
         "Der Betrag enth\xC3\xA4lt ung\xC3\xBCltige Zeichen.",
         {"Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 9): mlGen.StrToPB -> Der Betrag enth\xC3\xA4lt "
          "ung\xC3\xBCltige Zeichen."}},
        {"1x",
         true,
         5,
         2,
         "mlGen.StrToBG",
         "Der Betrag enth\xC3\xA4lt ung\xC3\xBCltige Zeichen.",
         {"Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 9): mlGen.StrToBG -> Der Betrag enth\xC3\xA4lt "
          "ung\xC3\xBCltige Zeichen."}},
        {"12,345",
         false,
         5,
         2,
         "mlGen.EnhanceVorNachk",
         "345 enth\xC3\xA4lt mehr Nachkommastellen als 2.",
         {"Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 3): mlGen.EnhanceVorNachk -> 345 enth\xC3\xA4lt mehr "
          "Nachkommastellen als 2.",
          "Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 10): mlGen.StrToPB -> 345 enth\xC3\xA4lt mehr "
          "Nachkommastellen als 2."}},
        {"123456",
         true,
         5,
         0,
         "mlGen.EnhanceVorNachk",
         "123456 enth\xC3\xA4lt mehr Vorkommastellen als 5.",
         {"Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 1): mlGen.EnhanceVorNachk -> 123456 enth\xC3\xA4lt mehr "
          "Vorkommastellen als 5.",
          "Fehler -2147213200 in TamrelFile26 1.0.0 (Zeile 10): mlGen.StrToBG -> 123456 enth\xC3\xA4lt mehr "
          "Vorkommastellen als 5."}},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        bool filled = false;
        Error e = expect_error([&] {
            c.signed_ ? mlGen::StrToBG(c.value, c.vor, c.nach, filled) : mlGen::StrToPB(c.value, c.vor, c.nach, filled);
        });
        EXPECT_EQ(e.number(), -2147213200) << c.value;
        EXPECT_EQ(e.source(), c.source) << c.value;
        EXPECT_EQ(e.description(), c.description) << c.value;
        EXPECT_EQ(host.lines, c.log) << c.value;
    }
}

TEST(Checks, EnmToJNAndCheckLength) {
    bool filled = false;
    EXPECT_EQ(mlGen::EnmToJN(1, filled) + mlGen::EnmToJN(2, filled) + mlGen::EnmToJN(3, filled), "JN ");
    EXPECT_TRUE(filled);

    RecordingHost host;
    EXPECT_NO_THROW(mlGen::CheckLength("M\xC3\xBCller", "6", "DBKA"));
    Error e = expect_error([] { mlGen::CheckLength(std::string(207, ' '), "208", "DBKA"); });
    EXPECT_EQ(e.number(), -2147213203);
    EXPECT_EQ(e.source(), "mlGen.CheckLength");
    EXPECT_EQ(e.description(), "L\xC3\xA4nge DBKA ist nicht korrekt.");
}

TEST(Checks, ConvertBNRStRemovesTheRangeAndAnyPieceOfTheList) {
    const std::pair<const char*, const char*> cases[] = {
        {"10700000", ""},
        {"80000031", ""},
        {"12345678", "12345678"},
        {"8000", ""},
        {"0,8", ""},
        {"", ""},
        {"107", ""},
        {"10600000", ""},
        {"10899999", ""},
        {"10599999", "10599999"},
        {"10900000", "10900000"},
        {"99999994", "99999994"},
    };
    for (const auto& [in, out] : cases) EXPECT_EQ(mlGen::ConvertBNRSt(in), out) << in;
}

TEST(Dates, GetCurrDateTakesTheDayFromTheRightEnd) {
    const Date date{2024, 2, 29, 13, 5, 9};
    struct Case {
        const char* text;
        int format;
        const char* expected;
    };
    const Case cases[] = {
        {"", 0, "20240229"},
        {"", 1, "20240229130509"},
        {"20240229", 2, "29022024"},
        {"20240131", 1, "20240131130509"},
        {"20240131235959", 1, "20240159235959"},
        {"20240131235959", 0, "20240159"},
        {"1234567", 0, "20240229"},
        {"20240131", 3, ""},
    };
    for (const auto& c : cases) EXPECT_EQ(mlGlobal::GetCurrDate(c.text, c.format, date), c.expected) << c.text;
    // Stray continuation bytes make "the last two characters" a long piece; it is kept whole.
    const std::string stray(40, '\xBE');
    EXPECT_EQ(mlGlobal::GetCurrDate("20240131" + stray + "xy", 0, date), "202401" + stray + "xy");
}

// The writer's date stamp (written straight from the date when no text is
// given) is GetCurrDate's text as a numeric field, filled flag included.
TEST(Dates, WriterStampIsGetCurrDateAsANumericField) {
    const Date dates[] = {{2024, 2, 29, 13, 5, 9},
                          {1999, 12, 31, 0, 0, 0},
                          {0, 0, 0, 0, 0, 0},
                          {12345, 1, 2, 3, 4, 5},
                          {2000, 1, 1, 23, 59, 59}};
    for (const Date& date : dates) {
        for (const std::string_view text : {"", "20240131", "20240131235959"}) {
            for (int width : {14, 12, 16}) {
                std::string out;
                int line = 0;
                bool filled = false;
                {
                    Writer w(out, line, filled);
                    const FieldLayout field{"created", 1, static_cast<std::uint16_t>(width), FieldKind::DateTime};
                    w.stamp(field, text, 1, date).end();
                }
                bool expected_filled = false;
                const std::string expected =
                    mlGen::StrToN(mlGlobal::GetCurrDate(text, 1, date), width, expected_filled);
                EXPECT_EQ(out, expected) << text << " width " << width << " year " << date.year;
                EXPECT_EQ(filled, expected_filled) << text << " width " << width << " year " << date.year;
            }
        }
    }
}

TEST(Dates, GetDateReadsTheHostClockForTheEmptyDate) {
    RecordingHost host;
    EXPECT_EQ(mlGen::GetDate(Date{}), host.clock);
    Date given{2020, 1, 2, 3, 4, 5};
    EXPECT_EQ(mlGen::GetDate(given), given);
}

TEST(Dates, ConvertDateAndDateTime) {
    EXPECT_EQ(mlGen::ConvertDate(" 20240131 "), "2024-01-31");
    EXPECT_EQ(mlGen::ConvertDate("2024013"), "2024013");
    EXPECT_EQ(mlGen::ConvertDateTimeToISO("20240131235959123456"), "2024-01-31T23:59:59.123456");
    EXPECT_EQ(mlGen::ConvertDateTimeToISO(" 2024 "), "2024");
    EXPECT_EQ(mlGen::ReplaceSpecialCharText("a\r\nb\tc d"), "abc d");
}

}  // namespace
