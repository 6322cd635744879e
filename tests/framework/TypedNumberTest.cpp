#include "Format.h"
#include "TypedNumber.h"

#include <gtest/gtest.h>

namespace {

using TypedNumber::Limits;

constexpr Limits Distance{0, 0.0, 99999.0};
constexpr Limits Amount{2, 0.0, 99999.0};
constexpr Limits Balance{2, -1000.0, 1000.0};

QString polish(const char *text)
{
    return QString::fromUtf8(text).replace(u'_', Format::ThousandSeparator);
}

} // namespace

TEST(TypedNumber, CharactersThatCannotBelongToTheNumberAreRefused)
{
    EXPECT_TRUE(TypedNumber::fits(u"1500", Amount));
    EXPECT_TRUE(TypedNumber::fits(u"1 500,5", Amount));
    EXPECT_TRUE(TypedNumber::fits(u"1500.25", Amount));
    EXPECT_TRUE(TypedNumber::fits(u"12,", Amount));
    EXPECT_TRUE(TypedNumber::fits(u"", Amount));
    EXPECT_FALSE(TypedNumber::fits(u"1O00", Amount));       // letter O
    EXPECT_FALSE(TypedNumber::fits(u"12abc", Amount));
    EXPECT_FALSE(TypedNumber::fits(u"1e5", Amount));
    EXPECT_FALSE(TypedNumber::fits(u"1,5,0", Amount));      // a second decimal point
    EXPECT_FALSE(TypedNumber::fits(u"12,505", Amount));     // a third decimal
    EXPECT_FALSE(TypedNumber::fits(u"12,5 0", Amount));
    EXPECT_FALSE(TypedNumber::fits(u"12,5", Distance));     // whole kilometres
    EXPECT_FALSE(TypedNumber::fits(u"-5", Distance));       // no negative distance
    EXPECT_TRUE(TypedNumber::fits(u"-5", Balance));
    EXPECT_FALSE(TypedNumber::fits(u"5-", Balance));
    EXPECT_FALSE(TypedNumber::fits(u"+5", Balance));
}

TEST(TypedNumber, ReadsWhatWasTypedAndNothingElse)
{
    EXPECT_EQ(TypedNumber::read(u"1500"), 1500.0);
    EXPECT_EQ(TypedNumber::read(u" 1 500,50 "), 1500.5);
    EXPECT_EQ(TypedNumber::read(polish("1_500,5")), 1500.5);
    EXPECT_EQ(TypedNumber::read(u"12,"), 12.0);
    EXPECT_EQ(TypedNumber::read(u",5"), 0.5);
    EXPECT_EQ(TypedNumber::read(u"-12.25"), -12.25);
    EXPECT_EQ(TypedNumber::read(u""), 0.0);
    EXPECT_EQ(TypedNumber::read(u"-"), std::nullopt);
    EXPECT_EQ(TypedNumber::read(u","), std::nullopt);
}

TEST(TypedNumber, AValueOutsideTheRangeIsNamedNotClipped)
{
    EXPECT_EQ(TypedNumber::problem(u"1 500,5", Amount), "");
    EXPECT_EQ(TypedNumber::problem(u"99999", Distance), "");
    EXPECT_EQ(TypedNumber::problem(u"150000", Distance),
              polish("„150000” jest poza zakresem. Wpisz liczbę od 0 do 99_999."));
    EXPECT_EQ(TypedNumber::problem(u"-1000,01", Balance),
              polish("„-1000,01” jest poza zakresem. Wpisz liczbę od -1_000 do 1_000."));
    EXPECT_EQ(TypedNumber::problem(u"-", Balance),
              polish("„-” nie jest liczbą. Wpisz liczbę od -1_000 do 1_000."));
    EXPECT_EQ(TypedNumber::problem(u"1O00", Distance),
              polish("„1O00” nie jest liczbą. Wpisz liczbę od 0 do 99_999."));
    EXPECT_EQ(TypedNumber::problem(u"1000", Limits{3, 0.0, 999.999}),
              "„1000” jest poza zakresem. Wpisz liczbę od 0 do 999,999.");
}

TEST(TypedNumber, RoundsToTheFieldsDecimalsAndWritesThePlainNumber)
{
    EXPECT_EQ(TypedNumber::rounded(2.675, 2), 2.68);
    EXPECT_EQ(TypedNumber::rounded(-2.5, 0), -3.0);
    EXPECT_EQ(TypedNumber::rounded(1.23456, 4), 1.2346);
    EXPECT_EQ(TypedNumber::editable(1500.0, 2), "1500");
    EXPECT_EQ(TypedNumber::editable(12345.5, 2), "12345,5");
    EXPECT_EQ(TypedNumber::editable(0.0, 3), "0");
}
