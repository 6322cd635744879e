#include "DocumentNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

const DateTime March5 = DateTime::fromDate(QDate(2024, 3, 5));
const DateTime November5 = DateTime::fromDate(QDate(2024, 11, 5));

QString number(const QString &mask, int value = 42, const QString &text = QStringLiteral("AB"),
               DateTime date = March5)
{
    return DocumentNumber::format(mask, value, text, date);
}

} // namespace

TEST(DocumentNumber, BuildsATypicalInvoiceNumber)
{
    EXPECT_EQ(number(QStringLiteral("FV;/;%####;/;%MM;/;%R")), QStringLiteral("FV/0042/03/2024"));
}

TEST(DocumentNumber, PadsTheNumberToTheTokenLengthAndNeverCutsIt)
{
    // The "%" counts: a token of five characters gives four digits.
    EXPECT_EQ(number(QStringLiteral("%####"), 42), QStringLiteral("0042"));
    EXPECT_EQ(number(QStringLiteral("%##"), 7), QStringLiteral("07"));
    EXPECT_EQ(number(QStringLiteral("%#"), 7), QStringLiteral("7"));
    EXPECT_EQ(number(QStringLiteral("%###"), 12345), QStringLiteral("12345"));
}

TEST(DocumentNumber, MonthCodes)
{
    EXPECT_EQ(number(QStringLiteral("%m")), QStringLiteral("3"));
    EXPECT_EQ(number(QStringLiteral("%mm")), QStringLiteral("03"));
    EXPECT_EQ(number(QStringLiteral("%mmm")), QStringLiteral("003"));
    EXPECT_EQ(number(QStringLiteral("%m"), 1, QString(), November5), QStringLiteral("11"));
    EXPECT_EQ(number(QStringLiteral("%mm"), 1, QString(), November5), QStringLiteral("11"));
    EXPECT_EQ(number(QStringLiteral("%M")), QStringLiteral("03"));
    EXPECT_EQ(number(QStringLiteral("%MMMM")), QStringLiteral("03"));
    EXPECT_EQ(number(QStringLiteral("%M"), 1, QString(), November5), QStringLiteral("11"));
}

TEST(DocumentNumber, YearDateAndBlankCodes)
{
    EXPECT_EQ(number(QStringLiteral("%r")), QStringLiteral("24"));
    EXPECT_EQ(number(QStringLiteral("%RR")), QStringLiteral("2024"));
    EXPECT_EQ(number(QStringLiteral("%d")), QStringLiteral("2024-03-05"));
    EXPECT_EQ(number(QStringLiteral("%D")), QStringLiteral("2024-03-05"));
    EXPECT_EQ(number(QStringLiteral("A;%s;B;%SSS;C")), QStringLiteral("A B C"));
}

TEST(DocumentNumber, TextIsPaddedOnTheLeft)
{
    EXPECT_EQ(number(QStringLiteral("%TTTT"), 1, QStringLiteral("AB")), QStringLiteral("  AB"));
    EXPECT_EQ(number(QStringLiteral("%tt"), 1, QStringLiteral("XYZ")), QStringLiteral("XYZ"));
    EXPECT_EQ(number(QStringLiteral("%t"), 1, QString()), QStringLiteral(" "));
    EXPECT_EQ(number(QStringLiteral("%T"), 1, QString()), QStringLiteral(" "));
}

TEST(DocumentNumber, UnknownCodesAddNothingAndBlanksAreRemoved)
{
    EXPECT_EQ(number(QStringLiteral("%x;%;%?##")), QString());
    EXPECT_EQ(number(QStringLiteral(" F V / ; %### ;")), QStringLiteral("FV/042"));
    EXPECT_EQ(number(QStringLiteral("A;;B;")), QStringLiteral("AB"));
    EXPECT_EQ(number(QString()), QString());
}

TEST(DocumentNumber, IsAtMost255Characters)
{
    EXPECT_EQ(number(QStringLiteral("%T"), 1, QString(300, QLatin1Char('x'))).size(), 255);
}

TEST(DocumentNumber, ADateNoCalendarHoldsGivesAnEmptyDate)
{
    for (const double days : {1e300, -9.3e18, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(DocumentNumber::dateText(DateTime(days)), QString()) << days;
        EXPECT_EQ(number(QStringLiteral("%####;/;%d"), 7, QString(), DateTime(days)),
                  QStringLiteral("0007/"))
            << days;
    }
}
