#include "AdminRun.h"
#include "DemoSeeder.h"
#include "StoppedSeed.h"
#include "TestDatabase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString Host = QStringLiteral(HAULIX_HOST_PATH);

QProcessEnvironment display(bool offscreen)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    if (offscreen)
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return environment;
}

AdminRun runHost(const QStringList &arguments, const QString &program = Host)
{
    return AdminRun::of(program, arguments, display(true));
}

void seedSmallDemo(TestDatabase &db)
{
    DemoSeeder::Options options;
    options.orders = 5;
    DemoSeeder(db.connection(), options).seed();
}

} // namespace

TEST(Host, WhatItCannotRunIsRefusedWithTheReason)
{
    TestDatabase db;
    seedSmallDemo(db);
    const std::pair<QStringList, QStringList> cases[] = {
        {{"--db", "/nie/ma/baza.fdb"},
         {"Nie można otworzyć bazy danych /nie/ma/baza.fdb: plik nie istnieje."}},
        {{"--db", db.path(), "--user", "99"}, {"Nieznany użytkownik 99 w bazie " + db.path()}},
        {{"--uzytkownik", "1"}, {"Nieznany argument: --uzytkownik", "Użycie: haulix"}},
        {{"--module", "Kierowcy"},
         {"Nieznany moduł: Kierowcy\nModuły: Drivers, Places, Cities, Vehicles, Trailers, "
          "Contractors, RoadCards, Scheduler"}},
    };
    for (const auto &[arguments, said] : cases) {
        const AdminRun run = runHost(arguments);
        EXPECT_EQ(run.exitCode, 1) << arguments.join(u' ').toStdString();
        for (const QString &sentence : said)
            EXPECT_TRUE(run.errors.contains(sentence)) << run.errors.toStdString();
    }

    // Without a display it says how to run headless.
    const AdminRun headless = AdminRun::of(Host, {}, display(false));
    EXPECT_EQ(headless.exitCode, 1);
    EXPECT_TRUE(headless.errors.contains("Brak ekranu")) << headless.errors.toStdString();
    EXPECT_TRUE(headless.errors.contains("xvfb-run haulix"));
}

TEST(Host, HelpIsPrintedOnTheConsoleWithOrWithoutADisplay)
{
    for (const bool offscreen : {false, true}) {
        for (const QString &asked : {QStringLiteral("--help"), QStringLiteral("-h")}) {
            const AdminRun run = AdminRun::of(Host, {QStringLiteral("--user"), QStringLiteral("2"),
                                                     asked}, display(offscreen));
            EXPECT_EQ(run.exitCode, 0) << asked.toStdString();
            EXPECT_TRUE(run.output.startsWith("Użycie: haulix [--db")) << run.output.toStdString();
            for (const char *option : {"--db", "--user", "--report", "--module", "RoadCards"})
                EXPECT_TRUE(run.output.contains(QLatin1String(option))) << option;
            EXPECT_FALSE(run.errors.contains("Nieznany"));
        }
    }
}

TEST(Host, AModuleIsLoadedFromTheLibraryFolderAndASiblingsRegisterStaysOpen)
{
    TestDatabase db;
    seedSmallDemo(db);
    // The program alone, without the Library folder beside it: the module's
    // own file is named, the incoming orders' or a sibling's.
    QTemporaryDir alone;
    const QString copy = alone.filePath(QStringLiteral("haulix"));
    ASSERT_TRUE(QFile::copy(Host, copy));
    const std::pair<QStringList, QString> modules[] = {{{}, QStringLiteral("IncomingOrders")},
                                                       {{"--module", "vehicles"}, "Vehicles"}};
    for (const auto &[more, module] : modules) {
        const AdminRun missing = runHost(QStringList{QStringLiteral("--db"), db.path()} + more,
                                         copy);
        EXPECT_EQ(missing.exitCode, 1);
        EXPECT_TRUE(missing.errors.contains("Nie można załadować modułu "
                                            + QDir(alone.path()).filePath("Library/")
                                            + module))
            << missing.errors.toStdString();
    }

    // With it, the register stays open until it is closed (here: ended, which
    // the host, as for the incoming orders, reports as not closed with OK).
    QProcess host;
    host.setProcessEnvironment(display(true));
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

    const AdminRun refused = AdminRun::of(
        QStringLiteral(HAULIX_ADMIN_PATH),
        {QStringLiteral("seed"), path, QStringLiteral("--orders"), QStringLiteral("5")});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.errors.contains(DemoSeeder::describe(DemoSeeder::Contents::SeedLeftovers)))
        << refused.errors.toStdString();
    EXPECT_FALSE(refused.errors.contains(QStringLiteral("nie jest pusta")));
    for (const QString &said : QStringList{"usuń plik bazy", "haulix-admin create " + path,
                                           "haulix-admin seed " + path + " --orders 5"})
        EXPECT_TRUE(refused.errors.contains(said)) << refused.errors.toStdString();
}
