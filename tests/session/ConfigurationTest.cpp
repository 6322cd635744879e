#include "Configuration.h"
#include "ErrorLog.h"
#include "TestDatabase.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

class ConfigurationTest : public testing::Test
{
protected:
    void add(const char *pole, const char *typ, const char *values)
    {
        db.exec(QStringLiteral("INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_INT, VALUE_STRING, "
                               "VALUE_FLOAT, VALUE_DATE) VALUES ('%1', '%2', %3)")
                    .arg(QString::fromUtf8(pole), QLatin1String(typ), QString::fromUtf8(values)));
    }

    QByteArray errorLog() const
    {
        QFile log(ErrorLog::HaulixErrors);
        return log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
    }

    TestDatabase db;
    Configuration config{&db.connection()};
};

} // namespace

TEST_F(ConfigurationTest, FloatAndBoolFindAMixedCaseNameByItsUpperCaseAndIntAndStringDoNot)
{
    add("SystemMonitorDelete", "B", "1, NULL, NULL, NULL");
    add("KursDomyslny", "F", "NULL, NULL, 4.25, NULL");

    EXPECT_TRUE(config.GetConfigBool(QStringLiteral("SYSTEMMONITORDELETE")));
    EXPECT_FALSE(config.GetConfigBool(QStringLiteral("SystemMonitorDelete")));
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("SYSTEMMONITORDELETE")), 0);
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("SystemMonitorDelete")), 1);

    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("KURSDOMYSLNY")), 4.25);
    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("KursDomyslny")), 0.0);
    EXPECT_EQ(config.GetConfigString(QStringLiteral("KURSDOMYSLNY")), QString());
    EXPECT_EQ(config.GetConfigString(QStringLiteral("KursDomyslny")), QStringLiteral("4,25"));

    // Polish letters in the name are upper-cased by the database.
    add("IDWłaściciela", "I", "7, NULL, NULL, NULL");
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("IDWłaściciela")), 7);
    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("IDWŁAŚCICIELA")), 7.0);
    EXPECT_TRUE(config.GetConfigBool(QStringLiteral("IDWŁAŚCICIELA")));
}

TEST_F(ConfigurationTest, EachGetterConvertsEveryType)
{
    add("i", "I", "12, '99', 5.0, NULL");
    add("s", "S", "12, ' 123', 5.0, NULL");
    add("s2", "S", "42, 'FV;/;%####', 1.5, NULL");
    add("s3", "S", "3, '7,5', 1.5, NULL");
    add("S4", "S", "3, '7.25', 1.5, NULL");
    add("f1", "F", "12, '99', 2.5, NULL");
    add("f2", "F", "12, '99', 3.5, NULL");
    add("f3", "F", "12, '99', -2.6, NULL");
    add("f4", "F", "42, 'x', 1234.5, NULL");
    add("b", "B", "3, '1', 5.0, NULL");
    add("d", "D", "12, '99', 5.0, '2024-03-05 10:30'");
    add("Z", "I", "0, '1', 1.5, NULL");

    EXPECT_EQ(config.GetConfigInt(QStringLiteral("i")), 12);
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("s")), 123);
    // Halves go to the even integer.
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("f1")), 2);
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("f2")), 4);
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("f3")), -3);
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("b")), 3);
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("d")), 0);

    EXPECT_EQ(config.GetConfigString(QStringLiteral("i")), QStringLiteral("12"));
    EXPECT_EQ(config.GetConfigString(QStringLiteral("s2")), QStringLiteral("FV;/;%####"));
    EXPECT_EQ(config.GetConfigString(QStringLiteral("d")), QStringLiteral("2024-03-05"));
    EXPECT_EQ(config.GetConfigString(QStringLiteral("f4")), QStringLiteral("1234,5"));
    EXPECT_EQ(config.GetConfigString(QStringLiteral("b")), QString());

    // Float and bool look the name up upper-cased.
    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("I")), 12.0);
    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("S3")), 7.5);
    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("S4")), 7.25);
    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("B")), 0.0);
    EXPECT_TRUE(config.GetConfigBool(QStringLiteral("I")));
    EXPECT_TRUE(config.GetConfigBool(QStringLiteral("B")));
    EXPECT_FALSE(config.GetConfigBool(QStringLiteral("Z")));
    EXPECT_FALSE(config.GetConfigBool(QStringLiteral("S3")));
    EXPECT_FALSE(config.GetConfigBool(QStringLiteral("F1")));
}

TEST_F(ConfigurationTest, AMissingRowGivesTheDefaults)
{
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("Brak")), 0);
    EXPECT_EQ(config.GetConfigString(QStringLiteral("Brak")), QString());
    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("BRAK")), 0.0);
    EXPECT_FALSE(config.GetConfigBool(QStringLiteral("BRAK")));
    EXPECT_TRUE(errorLog().isEmpty());
}

// Two errors logged within one second share a line, so each is looked for
// right after it happened.
TEST_F(ConfigurationTest, AValueThatDoesNotConvertOrADatabaseErrorGivesTheDefaultAndIsLogged)
{
    add("Zly", "S", "1, 'dwanaście', 1.5, NULL");
    add("OGROMNY", "F", "1, 'x', 1e12, NULL");
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("Zly")), 0);
    EXPECT_TRUE(errorLog().contains("GetConfigInt(Zly)"));
    EXPECT_DOUBLE_EQ(config.GetConfigFloat(QStringLiteral("ZLY")), 0.0);
    EXPECT_TRUE(errorLog().contains("GetConfigFloat(ZLY)"));
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("OGROMNY")), 0);
    EXPECT_TRUE(errorLog().contains("GetConfigInt(OGROMNY)"));
    // A quote in a name breaks the statement text the name is written into.
    EXPECT_EQ(config.GetConfigInt(QStringLiteral("O'Brien")), 0);
    EXPECT_TRUE(errorLog().contains("GetConfigInt(O'Brien)"));
    EXPECT_EQ(Configuration(nullptr).GetConfigString(QStringLiteral("Cokolwiek")), QString());
    EXPECT_TRUE(errorLog().contains("GetConfigString(Cokolwiek)"));
    EXPECT_FALSE(Configuration(nullptr).GetConfigBool(QStringLiteral("COKOLWIEK")));
    EXPECT_TRUE(errorLog().contains("GetConfigBool(COKOLWIEK)"));
}
