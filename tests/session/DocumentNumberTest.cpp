#include "DocumentNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

const DateTime March5 = DateTime::fromDate(QDate(2024, 3, 5));
const DateTime November5 = DateTime::fromDate(QDate(2024, 11, 5));

QString number(const char *mask, int value = 42, const QString &text = QStringLiteral("AB"),
               DateTime date = March5)
{
    return DocumentNumber::format(QString::fromUtf8(mask), value, text, date);
}

} // namespace

TEST(DocumentNumber, EachCodeOfTheMaskAndWhatItCannotRead)
{
    EXPECT_EQ(number("FV;/;%####;/;%MM;/;%R"), "FV/0042/03/2024");
    // The "%" counts: a token of five characters gives four digits, and a
    // longer number is never cut.
    EXPECT_EQ(number("%####", 42), "0042");
    EXPECT_EQ(number("%##", 7), "07");
    EXPECT_EQ(number("%#", 7), "7");
    EXPECT_EQ(number("%###", 12345), "12345");

    EXPECT_EQ(number("%m"), "3");
    EXPECT_EQ(number("%mm"), "03");
    EXPECT_EQ(number("%mmm"), "003");
    EXPECT_EQ(number("%m", 1, QString(), November5), "11");
    EXPECT_EQ(number("%mm", 1, QString(), November5), "11");
    EXPECT_EQ(number("%M"), "03");
    EXPECT_EQ(number("%MMMM"), "03");
    EXPECT_EQ(number("%M", 1, QString(), November5), "11");

    EXPECT_EQ(number("%r"), "24");
    EXPECT_EQ(number("%RR"), "2024");
    EXPECT_EQ(number("%d"), "2024-03-05");
    EXPECT_EQ(number("%D"), "2024-03-05");
    EXPECT_EQ(number("A;%s;B;%SSS;C"), "A B C");

    // Text is padded on the left.
    EXPECT_EQ(number("%TTTT", 1, QStringLiteral("AB")), "  AB");
    EXPECT_EQ(number("%tt", 1, QStringLiteral("XYZ")), "XYZ");
    EXPECT_EQ(number("%t", 1, QString()), " ");
    EXPECT_EQ(number("%T", 1, QString()), " ");

    // Unknown codes add nothing, blanks go, 255 characters at most.
    EXPECT_EQ(number("%x;%;%?##"), QString());
    EXPECT_EQ(number(" F V / ; %### ;"), "FV/042");
    EXPECT_EQ(number("A;;B;"), "AB");
    EXPECT_EQ(number(""), QString());
    EXPECT_EQ(number("%T", 1, QString(300, QLatin1Char('x'))).size(), 255);

    for (const double days : {1e300, -9.3e18, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(DocumentNumber::dateText(DateTime(days)), QString()) << days;
        EXPECT_EQ(number("%####;/;%d", 7, QString(), DateTime(days)), "0007/") << days;
    }
}
