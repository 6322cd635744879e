#include "DemoSeeder.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDaneFirmy.h"
#include "TestDatabase.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmAddEditZleceniaZbiorcze.h"
#include "Transaction.h"
#include "WindowScript.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLibrary>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSettings>
#include <QTreeView>

#include <gtest/gtest.h>

namespace {

// The built sibling libraries, loaded by the module's own launchers from
// Library/ below the application directory, on a demo company. What they
// show runs on their own modal loops: a WindowScript plays the user there.
class SiblingLibraries : public testing::Test
{
protected:
    SiblingLibraries()
    {
        DemoSeeder::Options options;
        options.orders = 8;
        DemoSeeder(db.connection(), options).seed();
        setSession(1, &db.connection(), &transaction);
    }
    ~SiblingLibraries() override { setSession(0, nullptr, nullptr); }

    TDaneFirmy firma() const
    {
        const QString ini = db.directory() + QStringLiteral("/FIRMA.INI");
        QSettings settings(ini, QSettings::IniFormat);
        settings.setValue(QStringLiteral("AppPath"), QStringLiteral(HAULIX_APP_PATH "/"));
        settings.sync();
        return TDaneFirmy(session(), HostEnvironment{{ini}, db.directory(), db.directory()});
    }

    int key(const QString &sql) { return db.scalar(sql).toInt(); }

    // Editors ask the launcher of their own session, which finds the
    // libraries through Haulix.ini beside the program; one is written
    // there for the test when there is none.
    static auto settingsBesideProgram()
    {
        const QString ini = QCoreApplication::applicationDirPath() + QStringLiteral("/Haulix.ini");
        const bool existed = QFile::exists(ini);
        if (!existed) {
            QSettings settings(ini, QSettings::IniFormat);
            settings.setValue(QStringLiteral("AppPath"), QStringLiteral(HAULIX_APP_PATH "/"));
        }
        return qScopeGuard([ini, existed] {
            if (!existed)
                QFile::remove(ini);
        });
    }

    // Finds a record by typing into the search box, then chooses it.
    static std::function<void(QWidget &)> choose(const QString &search)
    {
        return [search](QWidget &window) {
            WindowScript::type(window, QStringLiteral("edSearch"), search);
            WindowScript::click(window, QStringLiteral("btnOk"));
        };
    }

    TestDatabase db;
    Transaction transaction{db.connection()};
};

} // namespace

TEST_F(SiblingLibraries, EveryLibraryExportsEveryEntryOfItsRow)
{
    const std::pair<const char *, QStringList> rows[] = {
        {"Drivers",
         {"Run_Kierowcy", "Run_Mechanicy", "Run_WybierzKierowcy", "Run_WybierzMechanicy"}},
        {"Places", {"Run_Miejsca", "Run_WybierzMiejsca"}},
        {"Cities", {"Run_Miasta", "Run_WybierzMiasta"}},
        {"Vehicles", {"Run_Pojazdy", "Run_WybierzPojazd"}},
        {"Trailers", {"Run_Naczepy", "Run_WybierzNaczepy"}},
        {"Contractors",
         {"Run_Kontrahenci", "Run_WybierzKontrahenci", "Run_AddKontrahenci",
          "Run_EditKontrahenci"}},
        {"RoadCards", {"Run_EdytujKarte", "Run_GenerujKarte", "Run_KartyDrogowe"}},
        {"Scheduler", {"Run_Terminarz", "Run_PokazTerminy"}},
    };
    for (const auto &[name, entries] : rows) {
        QLibrary library(QStringLiteral(HAULIX_APP_PATH "/Library/") + QLatin1String(name));
        ASSERT_TRUE(library.load()) << library.errorString().toStdString();
        for (const QString &entry : entries)
            EXPECT_NE(library.resolve(entry.toLatin1().constData()), nullptr)
                << name << " " << entry.toStdString();
        // Nothing but the entry points leaves a library.
        EXPECT_EQ(library.resolve("_ZN12TfrmRegister14acDodajExecuteEv"), nullptr) << name;
    }
}

TEST_F(SiblingLibraries, EachSelectionWindowHandsBackTheRecordTheUserFoundOrNoneOnCancel)
{
    const TDaneFirmy launcher = firma();
    struct Case
    {
        const char *window;
        QString search;
        const char *keyOfFound;
        int (TDaneFirmy::*select)(int, int &) const;
    };
    const Case cases[] = {
        {"TfrmKierowcy", QStringLiteral("Lewan"),
         "ID_KIEROWCA FROM KIEROWCY WHERE NAZWISKO = 'Lewandowski'", &TDaneFirmy::SelectDriver},
        {"TfrmMiejsca", QStringLiteral("Błonie"),
         "ID_MIEJSCA FROM MIEJSCA WHERE NAZWA LIKE '%Błonie'", &TDaneFirmy::SelectPlace},
        {"TfrmMiejscowosci", QStringLiteral("Kielce"),
         "ID_MIASTA FROM MIASTA WHERE NAZWA = 'Kielce'", &TDaneFirmy::SelectCity},
        {"TfrmPojazdy", QStringLiteral("EL 4523K"),
         "ID_POJAZDU FROM POJAZDY WHERE NR_REJ = 'EL 4523K'", &TDaneFirmy::SelectVehicle},
        {"TfrmNaczepy", QStringLiteral("EL 7N22"),
         "ID_NACZEPY FROM NACZEPY WHERE NR_REJ = 'EL 7N22'", &TDaneFirmy::SelectTrailer},
        {"TfrmKontrahenci", QStringLiteral("BUDMAT"),
         "ID_KONTRAHENTA FROM KONTRAHENCI WHERE SKROT = 'BUDMAT'", &TDaneFirmy::SelectContractor},
    };
    for (const Case &c : cases) {
        const int expected = key(QStringLiteral("SELECT ") + QString::fromUtf8(c.keyOfFound));
        ASSERT_NE(expected, 0) << c.window;
        WindowScript script;
        script.then(QLatin1String(c.window), choose(c.search));
        int selected = 0;
        EXPECT_EQ((launcher.*c.select)(0, selected), 1) << c.window;
        EXPECT_EQ(selected, expected) << c.window;
        EXPECT_TRUE(script.finished()) << c.window;
    }

    // Cancelled, the caller's key stays.
    WindowScript script;
    script.then(QStringLiteral("TfrmKierowcy"), [](QWidget &window) {
        WindowScript::type(window, QStringLiteral("edSearch"), QStringLiteral("Lewan"));
        WindowScript::click(window, QStringLiteral("btnCancel"));
    });
    int selected = 5;
    EXPECT_EQ(launcher.SelectDriver(5, selected), 0);
    EXPECT_EQ(selected, 5);
    EXPECT_TRUE(script.finished());
}

TEST_F(SiblingLibraries, TheOrderEditorsPickersFillTheirFieldsFromTheSiblings)
{
    const auto settings = settingsBesideProgram();
    auto editor = TfrmRODefault::create<TfrmAddEditZlecenia_Przych>(
        nullptr, 0, TfrmAddEditZlecenia_Przych::Add);
    WindowScript script;
    script.then(QStringLiteral("TfrmKierowcy"), choose(QStringLiteral("Lewan")));
    editor->acKierowca->trigger();
    EXPECT_EQ(editor->ceKierowca->text(), "Paweł Lewandowski");

    // A vehicle brings its own driver and trailer; a trailer can be changed.
    script.then(QStringLiteral("TfrmPojazdy"), choose(QStringLiteral("EL 4521K")));
    editor->acPojazd->trigger();
    EXPECT_EQ(editor->edPojazd->text(), "EL 4521K");
    EXPECT_EQ(editor->ceKierowca->text(), "Marek Wójcik");
    EXPECT_EQ(editor->driverKey(),
              key(QStringLiteral("SELECT ID_KIEROWCA FROM KIEROWCY WHERE NAZWISKO = 'Wójcik'")));
    EXPECT_EQ(editor->edNaczepa->text(), "EL 7N21");
    script.then(QStringLiteral("TfrmNaczepy"), choose(QStringLiteral("EL 7N24")));
    editor->acNaczepa->trigger();
    EXPECT_EQ(editor->edNaczepa->text(), "EL 7N24");

    // "Więcej..." by the client: a new client added in the contractors'
    // register is chosen at once.
    const int contractors = db.count(QStringLiteral("KONTRAHENCI"));
    script.then(QStringLiteral("TfrmKontrahenci"), [](QWidget &window) {
        WindowScript::click(window, QStringLiteral("BitBtn5"));
        WindowScript::click(window, QStringLiteral("btnOk"));
    });
    script.then(QStringLiteral("TfrmAddEditKontrahenci"), [](QWidget &window) {
        WindowScript::type(window, QStringLiteral("edSkrot"), QStringLiteral("NOWY KLIENT"));
        WindowScript::type(window, QStringLiteral("edNazwa"), QStringLiteral("Nowy Klient S.A."));
        WindowScript::click(window, QStringLiteral("btnOk"));
    });
    editor->btnKlientMore->click();
    EXPECT_TRUE(script.finished()) << script.seen().join(u' ').toStdString();
    EXPECT_EQ(editor->cbKlient->currentText(), "NOWY KLIENT");
    EXPECT_EQ(db.count(QStringLiteral("KONTRAHENCI")), contractors + 1);
}

TEST_F(SiblingLibraries, TheSchedulerButtonsAndTheRoadCardEditorOpenTheirWindows)
{
    const TDaneFirmy launcher = firma();
    WindowScript script;
    int due = -1;
    script.then(QStringLiteral("TfrmTerminarz"),
                [](QWidget &window) { WindowScript::click(window, QStringLiteral("btnOk")); });
    script.then(QStringLiteral("TfrmPokazTerminy"), [&](QWidget &window) {
        due = window.findChild<QTreeView *>(QStringLiteral("lvMain"))->model()->rowCount();
        WindowScript::click(window, QStringLiteral("btnOk"));
    });
    EXPECT_TRUE(launcher.ShowScheduler());
    EXPECT_TRUE(launcher.ShowAppointments());
    // The demo user has one overdue reminder and two of today.
    EXPECT_EQ(due, 3);

    script.then(QStringLiteral("TfrmAddEditKartyDrogowe"),
                [](QWidget &window) { WindowScript::click(window, QStringLiteral("btnOk")); });
    const int firstCard = key(QStringLiteral("SELECT MIN(ID_KARTY_DR) FROM KARTY_DR"));
    EXPECT_TRUE(launcher.EditRoadCard(firstCard));
    EXPECT_TRUE(script.finished()) << script.seen().join(u' ').toStdString();
}

TEST_F(SiblingLibraries, TheCollectiveOrderEditorsPickersFillTheCarrierAndCrew)
{
    const auto settings = settingsBesideProgram();
    const int run = key(QStringLiteral("SELECT ID_ZLECENIA_ZBIOR FROM ZLECENIA_ZBIOR WHERE NUMER = 1"));
    auto editor = TfrmRODefault::create<TfrmAddEditZleceniaZbiorcze>(
        nullptr, run, TfrmAddEditZleceniaZbiorcze::Edit);
    WindowScript script;
    // A vehicle brings its default driver, who can then be changed.
    script.then(QStringLiteral("TfrmPojazdy"), choose(QStringLiteral("EL 4521K")));
    editor->acPojazdObcy->trigger();
    EXPECT_EQ(editor->cePojazdObcy->text(), "EL 4521K");
    EXPECT_EQ(editor->ceKierowcaObcy->text(), "Marek Wójcik");
    script.then(QStringLiteral("TfrmKierowcy"), choose(QStringLiteral("Lewan")));
    editor->acKierowcaObcy->trigger();
    EXPECT_EQ(editor->ceKierowcaObcy->text(), "Paweł Lewandowski");
    // "Więcej..." offers every contractor; one that has not carried yet
    // joins the list of carriers.
    script.then(QStringLiteral("TfrmKontrahenci"), choose(QStringLiteral("BUDMAT")));
    editor->btnMore->click();
    EXPECT_EQ(editor->cbWykonawca->currentText(), "BUDMAT");
    EXPECT_TRUE(script.finished()) << script.seen().join(u' ').toStdString();

    editor->btnOk->click();
    EXPECT_EQ(editor->result(), TfrmRODefault::mrOk);
    const QString saved = QStringLiteral("SELECT %1 FROM ZLECENIA_ZBIOR WHERE ID_ZLECENIA_ZBIOR = %2");
    EXPECT_EQ(key(saved.arg(QStringLiteral("IDPOJAZDU")).arg(run)),
              key(QStringLiteral("SELECT ID_POJAZDU FROM POJAZDY WHERE NR_REJ = 'EL 4521K'")));
    EXPECT_EQ(key(saved.arg(QStringLiteral("IDKIEROWCY")).arg(run)),
              key(QStringLiteral("SELECT ID_KIEROWCA FROM KIEROWCY WHERE NAZWISKO = 'Lewandowski'")));
    EXPECT_EQ(key(saved.arg(QStringLiteral("IDPRZEWOZNIK")).arg(run)),
              key(QStringLiteral("SELECT ID_KONTRAHENTA FROM KONTRAHENCI WHERE SKROT = 'BUDMAT'")));
}
