#include "ScriptedMessages.h"
#include "SessionContext.h"
#include "SiblingLibrary.h"
#include "TDaneFirmy.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QSettings>

#include <gtest/gtest.h>

#include <functional>

namespace {

// The launchers run against stand-in sibling libraries (TestSibling.cpp)
// that write down every call, load and unload.
class SiblingModulesTest : public testing::Test
{
protected:
    SiblingModulesTest()
    {
        qputenv("HAULIX_TEST_SIBLING_LOG", logPath().toLocal8Bit());
        qunsetenv("HAULIX_TEST_SIBLING_RESULT");
        qunsetenv("HAULIX_TEST_SIBLING_CHOICE");
    }

    ~SiblingModulesTest() override { qunsetenv("HAULIX_TEST_SIBLING_LOG"); }

    QString logPath() const { return db.directory() + QStringLiteral("/sibling.log"); }

    QStringList log() const
    {
        QFile file(logPath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    // A company's own settings file, named on the command line, that points
    // the application directory at appPath.
    TDaneFirmy firmaIn(const QString &appPath) const
    {
        const QString ini = db.directory() + QStringLiteral("/FIRMA.INI");
        QSettings settings(ini, QSettings::IniFormat);
        settings.setValue(QStringLiteral("AppPath"), QString(appPath + QLatin1Char('/')));
        settings.sync();
        const QString nowhere = db.directory() + QStringLiteral("/brak");
        return TDaneFirmy(context, HostEnvironment{{ini}, nowhere, nowhere});
    }

    TDaneFirmy firma() const { return firmaIn(QStringLiteral(HAULIX_TEST_SIBLING_APP_PATH)); }

    QString pointers() const
    {
        return QString::asprintf("database=%p transaction=%p", static_cast<void *>(context.Database),
                                 static_cast<void *>(context.Transaction));
    }

    void expectMissing(const QString &library)
    {
        ASSERT_EQ(scriptedMessages().shown().size(), 1u);
        const ScriptedMessages::Shown &box = scriptedMessages().shown().front();
        EXPECT_EQ(box.caption, QStringLiteral("Błąd"));
        EXPECT_EQ(box.text, QStringLiteral("Nie znaleziono biblioteki: ")
                      + QDir::toNativeSeparators(db.directory() + QStringLiteral("/Library/")
                                                 + library + QStringLiteral(".so")));
        EXPECT_EQ(box.icon, MessageService::Icon::Warning);
        EXPECT_EQ(box.buttons, MessageService::Buttons(MessageService::Ok));
    }

    TestDatabase db;
    Transaction transaction{db.connection()};
    SessionContext context{7, &db.connection(), &transaction};
};

} // namespace

TEST_F(SiblingModulesTest, EachSelectionLoadsItsLibraryPassesTheSessionAndUnloadsIt)
{
    const TDaneFirmy launcher = firma();
    qputenv("HAULIX_TEST_SIBLING_CHOICE", "42");
    int selected = 3;
    EXPECT_EQ(launcher.SelectDriver(12, selected), 1);
    EXPECT_EQ(selected, 42);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    // Reloaded, the library counts its calls from one again.
    launcher.SelectDriver(0, selected);
    const QString call = QStringLiteral(" ") + pointers() + QStringLiteral(" calls=1");
    EXPECT_EQ(log(), (QStringList{QStringLiteral("load Drivers"),
                                  QStringLiteral("Run_WybierzKierowcy user=7 current=12") + call,
                                  QStringLiteral("unload Drivers"), QStringLiteral("load Drivers"),
                                  QStringLiteral("Run_WybierzKierowcy user=7 current=0") + call,
                                  QStringLiteral("unload Drivers")}));

    launcher.SelectPlace(1, selected);
    launcher.SelectCity(2, selected);
    launcher.SelectTrailer(3, selected);
    qputenv("HAULIX_TEST_SIBLING_RESULT", "0");
    selected = 3;
    EXPECT_EQ(launcher.SelectContractor(4, selected), 0);
    EXPECT_EQ(selected, 3);
    QStringList calls;
    for (const QString &line : log().mid(6)) {
        if (line.startsWith(QStringLiteral("Run_")))
            calls << line.section(QLatin1Char(' '), 0, 2);
    }
    EXPECT_EQ(calls, (QStringList{QStringLiteral("Run_WybierzMiejsca user=7 current=1"),
                                  QStringLiteral("Run_WybierzMiasta user=7 current=2"),
                                  QStringLiteral("Run_WybierzNaczepy user=7 current=3"),
                                  QStringLiteral("Run_WybierzKontrahenci user=7 current=4")}));
}

TEST_F(SiblingModulesTest, AMissingLibraryIsNamedWithItsFullPathAndChangesNothing)
{
    const TDaneFirmy launcher = firmaIn(db.directory());
    qputenv("HAULIX_TEST_SIBLING_CHOICE", "42");
    int selected = 3;
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_EQ(launcher.SelectDriver(12, selected), 0);
    EXPECT_EQ(selected, 3);
    expectMissing(QStringLiteral("Drivers"));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);

    for (const auto &[library, run] :
         {std::pair<QString, std::function<bool()>>{QStringLiteral("Scheduler"),
                                                     [&] { return launcher.ShowScheduler(); }},
          {QStringLiteral("RoadCards"), [&] { return launcher.EditRoadCard(1); }}}) {
        scriptedMessages().clear();
        scriptedMessages().expect(MessageService::Ok);
        EXPECT_FALSE(run());
        expectMissing(library);
    }
}

TEST_F(SiblingModulesTest, TheSchedulerButtonsAndTheRoadCardEditorPassTheirArguments)
{
    const TDaneFirmy launcher = firma();
    EXPECT_TRUE(launcher.ShowScheduler());
    EXPECT_TRUE(launcher.ShowAppointments());
    const QString arguments = QStringLiteral(" user=7 ") + pointers() + QStringLiteral(" reserved=0");
    EXPECT_EQ(log(), (QStringList{QStringLiteral("load Scheduler"),
                                  QStringLiteral("Run_Terminarz") + arguments,
                                  QStringLiteral("unload Scheduler"),
                                  QStringLiteral("load Scheduler"),
                                  QStringLiteral("Run_PokazTerminy") + arguments,
                                  QStringLiteral("unload Scheduler")}));

    EXPECT_TRUE(launcher.EditRoadCard(55));
    qputenv("HAULIX_TEST_SIBLING_RESULT", "0");
    EXPECT_FALSE(launcher.EditRoadCard(56));
    const QStringList lines = log();
    EXPECT_TRUE(lines.contains(QStringLiteral("Run_EdytujKarte card=55 ") + pointers()));
    EXPECT_TRUE(lines.contains(QStringLiteral("Run_EdytujKarte card=56 ") + pointers()));
    EXPECT_EQ(lines.count(QStringLiteral("unload RoadCards")), 2);
}

TEST_F(SiblingModulesTest, EveryEntryOfTheRowIsResolvedAndAMissingOneLeftEmpty)
{
    const QString appPath = QStringLiteral(HAULIX_TEST_SIBLING_APP_PATH);
    SiblingLibrary drivers(appPath, QStringLiteral("Drivers"),
                           {QStringLiteral("Run_Kierowcy"), QStringLiteral("Run_Mechanicy"),
                            QStringLiteral("Run_WybierzKierowcy"),
                            QStringLiteral("Run_WybierzMechanicy")});
    ASSERT_TRUE(drivers.load());
    EXPECT_NE(drivers.entry(QStringLiteral("Run_Kierowcy")), nullptr);
    EXPECT_NE(drivers.entry(QStringLiteral("Run_WybierzMechanicy")), nullptr);

    // This stand-in exports the selection but not the register window.
    SiblingLibrary places(appPath, QStringLiteral("Places"),
                          {QStringLiteral("Run_Miejsca"), QStringLiteral("Run_WybierzMiejsca")});
    ASSERT_TRUE(places.load());
    EXPECT_EQ(places.entry(QStringLiteral("Run_Miejsca")), nullptr);
    EXPECT_NE(places.entry(QStringLiteral("Run_WybierzMiejsca")), nullptr);
    places.unload();
    EXPECT_FALSE(places.isLoaded());
    EXPECT_EQ(places.entry(QStringLiteral("Run_WybierzMiejsca")), nullptr);
}

TEST_F(SiblingModulesTest, ALibraryWithoutTheSelectionEntryIsReportedNotCalled)
{
    int selected = 3;
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_EQ(firma().SelectVehicle(1, selected), 0);
    EXPECT_EQ(selected, 3);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_TRUE(scriptedMessages().shown().front().text.endsWith(
        QStringLiteral("nie udostępnia funkcji Run_WybierzPojazd")));
    EXPECT_EQ(log(),
              (QStringList{QStringLiteral("load Vehicles"), QStringLiteral("unload Vehicles")}));
}
