#include "ErrorLog.h"
#include "ErrorLogs.h"
#include "ReportFailures.h"
#include "ScriptedMessages.h"
#include "Statement.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

TEST(ReportFailures, AFailedStatementIsLoggedAndShownOnceAndCountsAsNotDone)
{
    TestDatabase db;
    bool after = false;
    scriptedMessages().expect();
    const bool done = reportFailures(QStringLiteral("Nie można odczytać cennika"), [&] {
        Statement st(db.connection());
        st.add(QStringLiteral("SELECT * FROM NIEMA"));
        st.exec();
        after = true;
    });
    EXPECT_FALSE(done);
    EXPECT_FALSE(after);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    const ScriptedMessages::Shown &box = scriptedMessages().shown().front();
    EXPECT_EQ(box.caption, QStringLiteral("Błąd"));
    EXPECT_EQ(box.icon, MessageService::Icon::Warning);
    const QStringList logged = loggedToday(ErrorLog::SqlErrors);
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.front().contains(QStringLiteral("Table unknown - NIEMA")))
        << logged.front().toStdString();
    EXPECT_EQ(box.text, QStringLiteral("Nie można odczytać cennika: ") + logged.front());
    EXPECT_TRUE(loggedToday(ErrorLog::HaulixErrors).isEmpty());
}

TEST(ReportFailures, WorkThatSucceedsShowsAndLogsNothing)
{
    TestDatabase db;
    int kilometres = 0;
    EXPECT_TRUE(reportFailures(QStringLiteral("Nie można odczytać odległości"), [&] {
        Statement st(db.connection());
        st.add(QStringLiteral("SELECT 120 AS KM FROM RDB$DATABASE"));
        st.exec();
        kilometres = st.integer(0);
    }));
    EXPECT_EQ(kilometres, 120);
    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_TRUE(loggedToday(ErrorLog::SqlErrors).isEmpty());
}

TEST(ReportFailures, OtherExceptionsAreReportedToo)
{
    TestDatabase db;
    scriptedMessages().expect();
    EXPECT_FALSE(reportFailures(QStringLiteral("Nie można zapisać zlecenia"),
                                [] { throw std::runtime_error("brak pamięci"); }));
    EXPECT_EQ(scriptedMessages().shown().front().text,
              QStringLiteral("Nie można zapisać zlecenia: brak pamięci"));
}

TEST(ErrorLog, LineBreaksBecomeBlanks)
{
    EXPECT_EQ(ErrorLog::oneLine(QStringLiteral("a\r\nb\nc")), QStringLiteral("a b c"));
}
