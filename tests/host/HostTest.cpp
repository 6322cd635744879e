#include "DemoSeeder.h"
#include "StoppedSeed.h"
#include "TestDatabase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct HostRun
{
    int exitCode = -1;
    QString errors;
};

// Runs the host offscreen and waits for it to end.
HostRun runHost(const QString &program, const QStringList &arguments)
{
    QProcess host;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    host.setProcessEnvironment(env);
    host.start(program, arguments);
    EXPECT_TRUE(host.waitForFinished(60000)) << "the host did not end";
    return {host.exitCode(), QString::fromUtf8(host.readAllStandardError())};
}

const QString Host = QStringLiteral(HAULIX_HOST_PATH);
const QString Admin = QStringLiteral(HAULIX_ADMIN_PATH);

HostRun runAdmin(const QStringList &arguments)
{
    QProcess admin;
    admin.start(Admin, arguments);
    EXPECT_TRUE(admin.waitForFinished(60000)) << "haulix-admin did not end";
    return {admin.exitCode(), QString::fromUtf8(admin.readAllStandardError())};
}

void seedSmallDemo(TestDatabase &db)
{
    DemoSeeder::Options options;
    options.orders = 5;
    DemoSeeder(db.connection(), options).seed();
}

} // namespace

TEST(Host, ADatabaseThatCannotBeOpenedIsNamedWithTheReason)
{
    const HostRun run = runHost(Host, {QStringLiteral("--db"), QStringLiteral("/nie/ma/baza.fdb")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(
        "Nie można otworzyć bazy danych /nie/ma/baza.fdb: plik nie istnieje."))
        << run.errors.toStdString();
}

TEST(Host, AnUnknownUserIsRefused)
{
    TestDatabase db;
    seedSmallDemo(db);
    const HostRun run = runHost(Host, {QStringLiteral("--db"), db.path(), QStringLiteral("--user"),
                                   QStringLiteral("99")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("Nieznany użytkownik 99 w bazie " + db.path()))
        << run.errors.toStdString();
}

TEST(Host, AWrongArgumentShowsTheUsage)
{
    const HostRun run = runHost(Host, {QStringLiteral("--uzytkownik"), QStringLiteral("1")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("Nieznany argument: --uzytkownik"));
    EXPECT_TRUE(run.errors.contains("Użycie: haulix"));
}

TEST(Host, AMissingModuleIsNamedWithItsFullPath)
{
    TestDatabase db;
    seedSmallDemo(db);
    // The program alone, without the Library folder beside it.
    QTemporaryDir alone;
    const QString copy = alone.filePath(QStringLiteral("haulix"));
    ASSERT_TRUE(QFile::copy(Host, copy));
    const HostRun run = runHost(copy, {QStringLiteral("--db"), db.path()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("Nie można załadować modułu "
                                    + QDir(alone.path()).filePath("Library/IncomingOrders")))
        << run.errors.toStdString();
}

TEST(Host, WithoutADisplayItSaysHowToRunHeadless)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(Host, {});
    ASSERT_TRUE(host.waitForFinished(60000));
    const QString errors = QString::fromUtf8(host.readAllStandardError());
    EXPECT_EQ(host.exitCode(), 1);
    EXPECT_TRUE(errors.contains("Brak ekranu")) << errors.toStdString();
    EXPECT_TRUE(errors.contains("xvfb-run haulix"));
}

TEST(Host, HelpIsPrintedOnTheConsoleWithOrWithoutADisplay)
{
    QProcessEnvironment headless = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        headless.remove(QString::fromLatin1(name));
    QProcessEnvironment offscreen = QProcessEnvironment::systemEnvironment();
    offscreen.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (const QProcessEnvironment &environment : {headless, offscreen}) {
        for (const QString &asked : {QStringLiteral("--help"), QStringLiteral("-h")}) {
            QProcess host;
            host.setProcessEnvironment(environment);
            host.start(Host, {QStringLiteral("--user"), QStringLiteral("2"), asked});
            ASSERT_TRUE(host.waitForFinished(60000));
            const QString usage = QString::fromUtf8(host.readAllStandardOutput());
            EXPECT_EQ(host.exitCode(), 0) << asked.toStdString();
            EXPECT_TRUE(usage.startsWith("Użycie: haulix [--db")) << usage.toStdString();
            for (const char *option : {"--db", "--user", "--report", "--module", "RoadCards"})
                EXPECT_TRUE(usage.contains(QLatin1String(option))) << option;
            EXPECT_FALSE(host.readAllStandardError().contains("Nieznany"));
        }
    }
}

TEST(Host, AModuleItDoesNotKnowIsRefusedWithTheOnesItKnows)
{
    const HostRun run = runHost(Host, {QStringLiteral("--module"), QStringLiteral("Kierowcy")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains("Nieznany moduł: Kierowcy\nModuły: Drivers, Places, Cities, "
                                    "Vehicles, Trailers, Contractors, RoadCards, Scheduler"))
        << run.errors.toStdString();
}

TEST(Host, ASiblingModuleOpensItsRegisterUntilTheUserEndsIt)
{
    TestDatabase db;
    seedSmallDemo(db);
    // Without the Library folder the sibling's own file is named.
    QTemporaryDir alone;
    const QString copy = alone.filePath(QStringLiteral("haulix"));
    ASSERT_TRUE(QFile::copy(Host, copy));
    const HostRun missing = runHost(copy, {QStringLiteral("--db"), db.path(),
                                           QStringLiteral("--module"), QStringLiteral("vehicles")});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(missing.errors.contains("Nie można załadować modułu "
                                        + QDir(alone.path()).filePath("Library/Vehicles")))
        << missing.errors.toStdString();

    // With it, the register stays open until it is closed (here: ended, which
    // the host, as for the incoming orders, reports as not closed with OK).
    QProcess host;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    host.setProcessEnvironment(env);
    host.start(Host, {QStringLiteral("--db"), db.path(), QStringLiteral("--module"),
                      QStringLiteral("Vehicles")});
    ASSERT_TRUE(host.waitForStarted());
    EXPECT_FALSE(host.waitForFinished(3000)) << host.readAllStandardError().toStdString();
    host.terminate();
    ASSERT_TRUE(host.waitForFinished(30000));
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    const QString errors = QString::fromUtf8(host.readAllStandardError());
    EXPECT_FALSE(errors.contains(QStringLiteral("moduł"), Qt::CaseInsensitive))
        << errors.toStdString();
}

TEST(Admin, SeedingOverAStoppedSeedSaysWhatIsLeftAndHowToStartAgain)
{
    TestDatabase db;
    ASSERT_TRUE(stopSeedHalfWay(db));
    db.connection().close();
    const QString path = db.path();

    const HostRun refused = runAdmin(
        {QStringLiteral("seed"), path, QStringLiteral("--orders"), QStringLiteral("5")});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.errors.contains(DemoSeeder::describe(DemoSeeder::Contents::SeedLeftovers)))
        << refused.errors.toStdString();
    EXPECT_FALSE(refused.errors.contains(QStringLiteral("nie jest pusta")));
    EXPECT_TRUE(refused.errors.contains(QStringLiteral("usuń plik bazy")));
    EXPECT_TRUE(refused.errors.contains(QStringLiteral("haulix-admin create ") + path));
    EXPECT_TRUE(refused.errors.contains(QStringLiteral("haulix-admin seed ") + path
                                        + QStringLiteral(" --orders 5")))
        << refused.errors.toStdString();
}
