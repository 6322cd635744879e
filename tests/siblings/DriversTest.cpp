#include "Drivers.h"
#include "TframeListView.h"
#include "SiblingRun.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SiblingFixture.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TfrmAddEditKierowcy.h"
#include "TfrmKierowcy.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace {

class DriversRegister : public SiblingTest
{
protected:
    DriversRegister()
    {
        grant({QStringLiteral("TfrmKierowcy"), QStringLiteral("TfrmMechanicy")});
        wojcik = addDriver("Marek", "Wójcik", 0, 0);
        nowak = addDriver("Anna", "Nowak", Drivers::MechanicGroup, 0);
        retired = addDriver("Jan", "Emeryt", 0, 1);
    }

    int addDriver(const char *first, const char *surname, int group, int inactive)
    {
        TKierowcyObj driver(db.connection());
        driver.IMIE = QString::fromUtf8(first);
        driver.NAZWISKO = QString::fromUtf8(surname);
        driver.TEL_KOM = QStringLiteral("600 100 200");
        driver.GRUPA_ZASZEREGOWANIA = group;
        driver.NIEAKTYWNY = inactive;
        EXPECT_TRUE(driver.Insert());
        return lastKey(QStringLiteral("KIEROWCY"), QStringLiteral("ID_KIEROWCA"));
    }

    static QStringList surnames(TfrmRegister &form)
    {
        QStringList result;
        const TListView &list = *form.frameListView1->lvMain;
        for (int row = 0; row < list.itemCount(); ++row)
            result << list.caption(row);
        return result;
    }

    // Fills the editor's fields a driver needs and presses OK.
    static int fillAndSave(TfrmAddEditKierowcy &editor, const QString &pesel)
    {
        type(editor.field(QStringLiteral("edImie")), QStringLiteral("Łukasz"));
        type(editor.field(QStringLiteral("edNazwisko")), QStringLiteral("Żółkiewski"));
        type(editor.field(QStringLiteral("edPesel")), pesel);
        type(editor.field(QStringLiteral("edKod")), QStringLiteral("90-001"));
        click(editor.btnOk);
        return editor.result();
    }

    int wojcik = 0, nowak = 0, retired = 0;
};

} // namespace

TEST_F(DriversRegister, ListsEveryDriverAndTheMechanicsAndDeletesOnlyADriverNothingRefersTo)
{
    auto drivers = TfrmRODefault::create<TfrmKierowcy>(nullptr, TfrmRegister::Browse, 0);
    EXPECT_EQ(surnames(*drivers), (QStringList{"Emeryt", "Nowak", "Wójcik"}));
    const TListView &list = *drivers->frameListView1->lvMain;
    EXPECT_EQ(list.items().texts(list.findByKey(nowak)),
              (QStringList{"Nowak", "Anna", "", "600 100 200", "", "mechanik", "tak"}));
    EXPECT_EQ(list.subItem(list.findByKey(retired), 5), "nie");
    EXPECT_EQ(drivers->btnOk->text(), "&Zamknij");
    EXPECT_TRUE(drivers->btnCancel->isHidden());

    auto mechanics = TfrmRODefault::create<TfrmMechanicy>(nullptr, TfrmRegister::Browse, 0);
    EXPECT_EQ(mechanics->windowTitle(), "Mechanicy");
    EXPECT_EQ(surnames(*mechanics), QStringList{"Nowak"});

    // A driver of an order or a vehicle is not deleted; one of neither is.
    db.exec(QStringLiteral("INSERT INTO ZLECENIA_PRZYCH (NUMER, IDKIEROWCY) VALUES (1, %1)")
                .arg(wojcik));
    db.exec(QStringLiteral("INSERT INTO POJAZDY (NR_REJ, DEF_ZMIENNIK) VALUES ('EL 1', %1)")
                .arg(wojcik));
    drivers->frameListView1->lvMain->selectByKey(wojcik);
    scriptedMessages().expect(MessageService::Yes);
    scriptedMessages().expect();
    drivers->acUsun->trigger();
    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_EQ(scriptedMessages().shown()[1].caption, "Usuwanie");
    EXPECT_EQ(scriptedMessages().shown()[1].text,
              "Nie można usunąć wybranej pozycji, ponieważ korzystają z niej: zlecenia "
              "przychodzące (1), pojazdy (jako kierowca lub zmiennik domyślny) (1).\n"
              "Najpierw zmień lub usuń te zapisy. Nic nie zostało usunięte.");
    EXPECT_EQ(db.count(QStringLiteral("KIEROWCY")), 3);
    EXPECT_EQ(drivers->selectedKey(), wojcik);

    scriptedMessages().clear();
    drivers->frameListView1->lvMain->selectByKey(retired);
    scriptedMessages().expect(MessageService::Yes);
    drivers->acUsun->trigger();
    EXPECT_EQ(db.count(QStringLiteral("KIEROWCY"), QStringLiteral("ID_KIEROWCA = %1").arg(retired)),
              0);
    EXPECT_EQ(drivers->frameListView1->lvMain->itemCount(), 2);
}

TEST_F(DriversRegister, ADriverTypedIntoTheEditorIsCheckedFieldByFieldThenSavedAndSelected)
{
    auto form = TfrmRODefault::create<TfrmKierowcy>(nullptr, TfrmRegister::Browse, 0);
    scriptedModalRunner().expect<TfrmAddEditKierowcy>([&](TfrmAddEditKierowcy &e) {
        scriptedMessages().expect();
        type(e.field(QStringLiteral("edImie")), QStringLiteral("Jan"));
        click(e.btnOk);
        EXPECT_EQ(e.focusWidget(), e.field(QStringLiteral("edNazwisko")));
        scriptedMessages().expect();
        fillAndSave(e, QStringLiteral("92123101235"));
        EXPECT_EQ(db.count(QStringLiteral("KIEROWCY")), 3);
        EXPECT_EQ(e.focusWidget(), e.field(QStringLiteral("edPesel")));
        EXPECT_EQ(shown(e.field(QStringLiteral("edNazwisko"))), "Żółkiewski");
        // One digit put right, and it goes through.
        type(e.field(QStringLiteral("edPesel")), QStringLiteral("92123101234"));
        click(e.btnOk);
        return e.result();
    });
    form->acDodaj->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Uzupełnij pole Nazwisko.");
    EXPECT_EQ(scriptedMessages().shown()[1].caption, "Nieprawidłowe dane");
    EXPECT_TRUE(scriptedMessages().shown()[1].text.startsWith(
        "Nieprawidłowy numer PESEL: 92123101235."));

    const int added = lastKey(QStringLiteral("KIEROWCY"), QStringLiteral("ID_KIEROWCA"));
    const TKierowcyObj driver = TKierowcyObj(db.connection()).SelectById(added);
    EXPECT_EQ(Drivers::displayName(driver), "Łukasz Żółkiewski");
    EXPECT_EQ(driver.KOD, "90-001");
    EXPECT_EQ(driver.NIEAKTYWNY, 0);
    // The date of birth comes from the PESEL when none was typed.
    EXPECT_EQ(driver.DATA_UR.date(), QDate(1992, 12, 31));
    EXPECT_EQ(form->selectedKey(), added);
}

TEST_F(DriversRegister, TheChecksOfADriverNameTheFieldAtFault)
{
    TKierowcyObj driver(db.connection());
    driver.IMIE = QStringLiteral("Jan");
    driver.NAZWISKO = QStringLiteral("Nowak");
    EXPECT_FALSE(Drivers::check(driver));

    driver.PESEL = QStringLiteral("44051401359");
    driver.DATA_UR = DateTime::fromDate(QDate(1944, 5, 15));
    ASSERT_TRUE(Drivers::check(driver));
    EXPECT_EQ(Drivers::check(driver)->field, "deDataUr");
    EXPECT_EQ(Drivers::check(driver)->message,
              "Data urodzenia 1944-05-15 nie zgadza się z numerem PESEL 44051401359, według "
              "którego kierowca urodził się 1944-05-14.");
    driver.DATA_UR = DateTime::fromDate(QDate(1944, 5, 14));
    EXPECT_FALSE(Drivers::check(driver));

    driver.NIP = QStringLiteral("725-100-20-30");
    EXPECT_EQ(Drivers::check(driver)->field, "edNip");
    driver.NIP = QStringLiteral("725-400-01-02");
    driver.KOD = QStringLiteral("90001");
    EXPECT_EQ(Drivers::check(driver)->field, "edKod");
}

TEST_F(DriversRegister, WithoutTheRightsNothingIsAddedOrDeleted)
{
    grant({QStringLiteral("TfrmKierowcy")}, 2, false, true, false);
    setSession(2, &db.connection(), &transaction);
    auto form = TfrmRODefault::create<TfrmKierowcy>(nullptr, TfrmRegister::Browse, 0);
    scriptedMessages().expect();
    form->acDodaj->trigger();   // no editor is expected
    form->frameListView1->lvMain->selectByKey(retired);
    scriptedMessages().expect();
    form->acUsun->trigger();
    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    for (const ScriptedMessages::Shown &shown : scriptedMessages().shown())
        EXPECT_EQ(shown.caption, "Uprawnienia");
    EXPECT_EQ(db.count(QStringLiteral("KIEROWCY")), 3);
}

TEST_F(DriversRegister, TheSelectionWindowStartsOnTheCurrentDriverAndHandsBackTheChosenOne)
{
    int shownRows = 0;
    scriptedModalRunner().expect<TfrmKierowcy>([&](TfrmKierowcy &form) {
        // Inactive drivers are not offered, unless the caller shows one.
        shownRows = form.frameListView1->lvMain->itemCount();
        EXPECT_EQ(form.selectedKey(), retired);
        EXPECT_EQ(form.btnOk->text(), "&Wybierz");
        form.frameListView1->lvMain->selectByKey(nowak);
        click(form.btnOk);
        return form.result();
    });
    std::int32_t chosen = -1;
    EXPECT_EQ(SiblingRun::select<TfrmKierowcy>(1, retired, &db.connection(), &transaction,
                                               &chosen),
              1);
    EXPECT_EQ(chosen, nowak);
    EXPECT_EQ(shownRows, 3);

    scriptedModalRunner().expect<TfrmKierowcy>([&](TfrmKierowcy &form) {
        shownRows = form.frameListView1->lvMain->itemCount();
        click(form.btnCancel);
        return form.result();
    });
    chosen = -1;
    EXPECT_EQ(SiblingRun::select<TfrmKierowcy>(1, 0, &db.connection(), &transaction, &chosen),
              0);
    EXPECT_EQ(chosen, -1);
    EXPECT_EQ(shownRows, 2);
}

TEST_F(DriversRegister, AMechanicAddedInTheirRegisterIsAMechanic)
{
    scriptedModalRunner().expect<TfrmMechanicy>([](TfrmMechanicy &form) {
        scriptedModalRunner().expect<TfrmAddEditKierowcy>([](TfrmAddEditKierowcy &editor) {
            EXPECT_EQ(shown(editor.field(QStringLiteral("cbStanowisko"))), "mechanik");
            return fillAndSave(editor, QString());
        });
        form.acDodaj->trigger();
        EXPECT_EQ(form.frameListView1->lvMain->itemCount(), 2);
        click(form.btnOk);
        return form.result();
    });
    EXPECT_EQ(SiblingRun::window<TfrmMechanicy>(1, &db.connection(), &transaction), 1);
    EXPECT_EQ(db.count(QStringLiteral("KIEROWCY"), QStringLiteral("GRUPA_ZASZEREGOWANIA = 1")), 2);
}
