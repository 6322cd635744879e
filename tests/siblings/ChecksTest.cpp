#include "BankAccount.h"
#include "Nip.h"
#include "Pesel.h"
#include "PostalCode.h"

#include <gtest/gtest.h>

TEST(Nip, AcceptsTheWaysPeopleWriteAValidNumber)
{
    for (const char *written : {"813-300-16-17", "8133001617", "813 300 16 17", "PL8133001617",
                                "pl 813-300-16-17", " 725-400-01-02 "})
        EXPECT_TRUE(Nip::isValid(QString::fromUtf8(written))) << written;
    EXPECT_EQ(Nip::digits(QStringLiteral("PL 813-300-16-17")), "8133001617");
    EXPECT_TRUE(Nip::problem(QStringLiteral("813-300-16-17")).isEmpty());
}

TEST(Nip, RefusesAWrongCheckDigitALengthOrAStrayCharacter)
{
    // Remainder 10 has no check digit at all.
    EXPECT_FALSE(Nip::isValid(QStringLiteral("725-100-20-30")));
    for (const char *written : {"813-300-16-18", "813-300-16-1", "813-300-16-170", "813/300/16/17",
                                "81330O1617", ""})
        EXPECT_FALSE(Nip::isValid(QString::fromUtf8(written))) << written;
    EXPECT_EQ(Nip::digits(QStringLiteral("813/300/16/17")), "");
    const QString message = Nip::problem(QStringLiteral("813-300-16-18"));
    EXPECT_TRUE(message.startsWith("Nieprawidłowy numer NIP: 813-300-16-18."))
        << message.toStdString();
}

TEST(Pesel, ChecksTheDigitAndTheDateOfBirthWithItsCentury)
{
    EXPECT_TRUE(Pesel::isValid(QStringLiteral("44051401359")));
    EXPECT_EQ(Pesel::birthDate(QStringLiteral("44051401359")), QDate(1944, 5, 14));
    // Month + 20: born in 2002.
    EXPECT_EQ(Pesel::birthDate(QStringLiteral("02270803624")), QDate(2002, 7, 8));
    EXPECT_EQ(Pesel::birthDate(QStringLiteral("92123101234")), QDate(1992, 12, 31));

    // A wrong check digit, ten digits, a letter; 31 February carries a
    // right check digit and is still no date.
    for (const char *wrong : {"44051401358", "4405140135", "4405140135a", "92023101231"})
        EXPECT_FALSE(Pesel::isValid(QString::fromUtf8(wrong))) << wrong;
    EXPECT_FALSE(Pesel::birthDate(QStringLiteral("44051401358")).isValid());
    EXPECT_TRUE(Pesel::problem(QStringLiteral("44051401358")).startsWith(
        "Nieprawidłowy numer PESEL: 44051401358."));
}

TEST(PostalCode, FollowsTheCountrysMask)
{
    EXPECT_TRUE(PostalCode::matches(QStringLiteral("90-001"), PostalCode::PolishMask));
    for (const char *code : {"90001", "90-0011", "9O-001", "90 001", "90-00", ""})
        EXPECT_FALSE(PostalCode::matches(QString::fromUtf8(code), PostalCode::PolishMask)) << code;
    EXPECT_TRUE(PostalCode::matches(QStringLiteral("3011 AA"), QStringLiteral("9999 AA")));
    EXPECT_FALSE(PostalCode::matches(QStringLiteral("3011 A1"), QStringLiteral("9999 AA")));
    EXPECT_TRUE(PostalCode::matches(QStringLiteral("LT-01100"), QStringLiteral("LT-99999")));
    EXPECT_TRUE(PostalCode::matches(QStringLiteral("anything"), QString()));

    EXPECT_EQ(PostalCode::problem(QStringLiteral("90001"), PostalCode::PolishMask,
                                  QStringLiteral("Polska")),
              "Nieprawidłowy kod pocztowy: 90001.\nKod pocztowy (Polska) ma postać NN-NNN, "
              "gdzie N to cyfra.");
    EXPECT_TRUE(PostalCode::problem(QStringLiteral("3011 A1"), QStringLiteral("9999 AA"),
                                    QStringLiteral("Holandia"))
                    .endsWith("ma postać NNNN LL, gdzie N to cyfra, a L litera."));
}

TEST(BankAccount, ChecksTheDigitsOfAPolishNumberAndAnIban)
{
    for (const char *valid : {"61 1090 1014 0000 0712 1981 2874", "61109010140000071219812874",
                              "PL61 1090 1014 0000 0712 1981 2874", "DE89 3704 0044 0532 0130 00"})
        EXPECT_TRUE(BankAccount::isValid(QString::fromUtf8(valid))) << valid;
    for (const char *wrong : {"61 1090 1014 0000 0712 1981 2875", "61 1090 1014 0000 0712 1981 287",
                              "DE89 3704 0044 0532 0130 01", "konto w banku"})
        EXPECT_FALSE(BankAccount::isValid(QString::fromUtf8(wrong))) << wrong;
    EXPECT_FALSE(BankAccount::problem(QStringLiteral("12 3")).isEmpty());
}
