#include "ErrorLog.h"
#include "ErrorLogs.h"
#include "Report.h"
#include "ScriptedMessages.h"
#include "Statement.h"
#include "StatementCursor.h"
#include "TestDatabase.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace {

QString amount(const QVariant &value)
{
    return QLocale().toString(value.toDouble(), 'f', 2);
}

void insertRate(TestDatabase &db, const QString &name, int number, const QString &amountSql)
{
    db.exec(
        QStringLiteral("INSERT INTO TARYFYPRZEWOZNIKA (NAZWA_STAWKI, NUMER_STAWKI, KWOTA_ZA_KM) "
                       "VALUES ('%1', %2, %3)")
            .arg(name)
            .arg(number)
            .arg(amountSql));
}

// Rates grouped by their number, each group with its sum, and a total.
class RatesReport
{
public:
    explicit RatesReport(Connection &connection) : m_statement(connection)
    {
        m_statement.add(QStringLiteral("SELECT NAZWA_STAWKI, NUMER_STAWKI, KWOTA_ZA_KM"))
            .add(QStringLiteral("FROM TARYFYPRZEWOZNIKA"))
            .add(QStringLiteral("WHERE KWOTA_ZA_KM >= :aValue"))
            .add(QStringLiteral("ORDER BY NUMER_STAWKI, ID_TARYFYPRZEWOZNIKA"));
        m_statement.bind(QStringLiteral("aValue"), 0.0);
        StatementCursor &cursor = m_report.setCursor(m_statement);

        ReportGroup &group = m_report.addGroup(QStringLiteral("grupa"),
                                               cursor.field(QStringLiteral("NUMER_STAWKI")));
        group.addHeader(QStringLiteral("naglowek"), 5)
            .addLabel(QStringLiteral("numer"), QRectF(0, 0, 40, 5))
            .setValue(cursor.field(QStringLiteral("NUMER_STAWKI")));
        ReportBand &detail = m_report.addBand(BandType::Detail, QStringLiteral("wiersz"), 5);
        detail.addLabel(QStringLiteral("nazwa"), QRectF(0, 0, 80, 5))
            .setValue(cursor.field(QStringLiteral("NAZWA_STAWKI")));
        detail.addLabel(QStringLiteral("kwota"), QRectF(80, 0, 40, 5))
            .setValue(cursor.field(QStringLiteral("KWOTA_ZA_KM")))
            .setFormatter(amount);
        const auto rate
            = [&cursor] { return cursor.value(QStringLiteral("KWOTA_ZA_KM")).toDouble(); };
        const ReportSum &groupSum = m_report.addSum(QStringLiteral("suma"), rate, &group);
        group.addFooter(QStringLiteral("stopka"), 5)
            .addLabel(QStringLiteral("suma"), QRectF(80, 0, 40, 5))
            .setValue(groupSum.valueFunction())
            .setFormatter(amount);
        const ReportSum &total = m_report.addSum(QStringLiteral("razem"), rate);
        ReportBand &summary
            = m_report.addBand(BandType::Summary, QStringLiteral("podsumowanie"), 5);
        summary.addLabel(QStringLiteral("razem"), QRectF(0, 0, 80, 5), QStringLiteral("Razem:"));
        summary.addLabel(QStringLiteral("kwota"), QRectF(80, 0, 40, 5))
            .setValue(total.valueFunction())
            .setFormatter(amount);
    }

    Report &report() { return m_report; }
    Statement &statement() { return m_statement; }

private:
    Statement m_statement;
    Report m_report;
};

} // namespace

TEST(ReportCursor, QueryRowsDriveDetailGroupsAndSums)
{
    TestDatabase db;
    insertRate(db, QStringLiteral("Łódź chłodnia"), 2, QStringLiteral("2.5"));
    insertRate(db, QStringLiteral("Gdańsk plandeka"), 1, QStringLiteral("1.25"));
    insertRate(db, QStringLiteral("Kraków wywrotka"), 2, QStringLiteral("3"));
    RatesReport rates(db.connection());
    const std::vector<ReportPage> &pages = rates.report().prepare();
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(pages[0].texts(),
              (QStringList{QStringLiteral("1"), QStringLiteral("Gdańsk plandeka"), amount(1.25),
                           amount(1.25), QStringLiteral("2"), QStringLiteral("Łódź chłodnia"),
                           amount(2.5), QStringLiteral("Kraków wywrotka"), amount(3.0), amount(5.5),
                           QStringLiteral("Razem:"), amount(6.75)}));
}

TEST(ReportCursor, EveryRunReadsTheDataAgainAndAnEmptyQueryStillPrintsTheSummary)
{
    TestDatabase db;
    RatesReport rates(db.connection());
    const std::vector<ReportPage> &pages = rates.report().prepare();
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(pages[0].texts(), (QStringList{QStringLiteral("Razem:"), amount(0)}));
    insertRate(db, QStringLiteral("Opole"), 1, QStringLiteral("1"));
    EXPECT_TRUE(rates.report().prepare()[0].containsText(amount(1.0)));
    insertRate(db, QStringLiteral("Poznań"), 1, QStringLiteral("4"));
    rates.statement().bind(QStringLiteral("aValue"), 2.0);
    const QStringList texts = rates.report().prepare()[0].texts();
    EXPECT_FALSE(texts.contains(QStringLiteral("Opole")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Poznań")));
    EXPECT_EQ(texts.last(), amount(4.0));
}

TEST(ReportCursor, NullColumnsPrintEmptyAndSumAsZero)
{
    TestDatabase db;
    db.exec(
        QStringLiteral("INSERT INTO TARYFYPRZEWOZNIKA (NAZWA_STAWKI, NUMER_STAWKI, KWOTA_ZA_KM) "
                       "VALUES ('Bez numeru', NULL, NULL)"));
    RatesReport rates(db.connection());
    rates.statement().clear();
    rates.statement().add(QStringLiteral("SELECT NAZWA_STAWKI, NUMER_STAWKI, KWOTA_ZA_KM"))
        .add(QStringLiteral("FROM TARYFYPRZEWOZNIKA"));
    // The group header shows the bare value; the amount goes through its formatter.
    EXPECT_EQ(rates.report().prepare()[0].texts(),
              (QStringList{QString(), QStringLiteral("Bez numeru"), amount(0), amount(0),
                           QStringLiteral("Razem:"), amount(0)}));
}

TEST(ReportCursor, FailingQueryOrUnknownColumnIsReportedAndLeavesNoPages)
{
    TestDatabase db;
    RatesReport rates(db.connection());
    rates.statement().clear();
    rates.statement().add(QStringLiteral("SELECT * FROM NIEMA"));
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_FALSE(rates.report().prepareShowingErrors());
    EXPECT_TRUE(rates.report().pages().empty());
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    const ScriptedMessages::Shown &box = scriptedMessages().shown().front();
    EXPECT_EQ(box.caption, QStringLiteral("Błąd"));
    EXPECT_TRUE(box.text.startsWith(QStringLiteral("Nie można przygotować wydruku")))
        << box.text.toStdString();
    EXPECT_FALSE(box.text.contains(QStringLiteral("NIEMA"))) << box.text.toStdString();
    const QStringList logged = loggedToday(ErrorLog::SqlErrors);
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.front().contains(QStringLiteral("Table unknown - NIEMA")));

    insertRate(db, QStringLiteral("Opole"), 1, QStringLiteral("1"));
    RatesReport unknown(db.connection());
    StatementCursor &cursor = *dynamic_cast<StatementCursor *>(unknown.report().dataSource());
    unknown.report()
        .band(QStringLiteral("wiersz"))
        .addLabel(QStringLiteral("zla"), QRectF(0, 0, 10, 5))
        .setValue(cursor.field(QStringLiteral("KWOTA_NIEMA")));
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_FALSE(unknown.report().prepareShowingErrors());
    EXPECT_TRUE(unknown.report().pages().empty());
    EXPECT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_TRUE(loggedToday(ErrorLog::SqlErrors).join(u'\n').contains(u"KWOTA_NIEMA"));
}
