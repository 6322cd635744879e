#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TLimitedSpinEdit.h"
#include "TListView.h"
#include "TestData.h"
#include "TframeListView.h"
#include "TfrmAddEditMiasta.h"
#include "TfrmMiasta.h"
#include "Typing.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using namespace TestData;

class DistanceRegister : public SessionFixture
{
protected:
    void SetUp() override
    {
        Connection &c = db.connection();
        krakow = addCity(c, {.name = QStringLiteral("Kraków"),
                             .postcode = QStringLiteral("30-001")});
        lodz = addCity(c, {.name = QStringLiteral("Łódź"),
                           .postcode = QStringLiteral("90-001")});
        gdansk = addCity(c, {.name = QStringLiteral("Gdańsk"),
                             .postcode = QStringLiteral("80-001")});
        toKrakow = addRoute(c, {.from = lodz, .to = krakow, .kilometres = 270});
        toGdansk = addRoute(c, {.from = lodz, .to = gdansk, .kilometres = 340});
        addRoute(c, {.from = krakow, .via = lodz, .to = gdansk, .kilometres = 610});
        addSetting(c, {.name = QStringLiteral("MiastoDomowe"), .type = 'S',
                       .text = QStringLiteral("ŁÓDŹ")});
        db.exec(QStringLiteral("INSERT INTO FORMS (ID_FORMATKI, NAZWA) VALUES (41, 'TfrmMiasta')"));
    }

    std::unique_ptr<TfrmMiasta> open() { return TfrmRODefault::create<TfrmMiasta>(nullptr); }
    static TListView &list(TfrmMiasta &form) { return *form.frameListView1->lvMain; }
    static QStringList destinations(TfrmMiasta &form)
    {
        QStringList result;
        for (int row = 0; row < list(form).itemCount(); ++row)
            result << list(form).subItem(row, 0);
        result.sort();
        return result;
    }
    // Types the city's name into the combo, after the pause that ends the
    // name typed before.
    static void choose(TfrmMiasta &form, const QString &city)
    {
        Typing::activate(&form);
        form.CBMiasta->setFocus();
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        Typing::keys(city);
        ASSERT_EQ(form.CBMiasta->currentText(), city);
    }

    int krakow = 0, lodz = 0, gdansk = 0, toKrakow = 0, toGdansk = 0;
};

} // namespace

TEST_F(DistanceRegister, OpensOnTheHomeCityWhateverItsLetterCaseAndListsRoutesByStart)
{
    auto form = open();
    EXPECT_EQ(form->CBMiasta->itemText(0), "---");
    EXPECT_EQ(form->CBMiasta->count(), 4);
    EXPECT_EQ(form->CBMiasta->currentText(), "Łódź");
    EXPECT_EQ(form->selectedCity(), lodz);
    EXPECT_EQ(destinations(*form), (QStringList{"Gdańsk", "Kraków"}));
    const int row = list(*form).findByKey(toKrakow);
    EXPECT_EQ(list(*form).items().texts(row),
              (QStringList{QString::number(krakow), "Kraków", "30-001", "270"}));
    // Only edit and delete remain of the frame's buttons.
    TframeListView &frame = *form->frameListView1;
    for (TBitBtn *hidden : {frame.BitBtn1, frame.BitBtn2, frame.BitBtn5, frame.BitBtn7})
        EXPECT_FALSE(hidden->isVisibleTo(form.get())) << hidden->objectName().toStdString();
    EXPECT_TRUE(frame.BitBtn4->isVisibleTo(form.get()));
    EXPECT_TRUE(frame.BitBtn6->isVisibleTo(form.get()));

    // No city lists no routes, and a route is listed under its start only.
    choose(*form, QStringLiteral("---"));
    EXPECT_EQ(list(*form).itemCount(), 0);
    choose(*form, QStringLiteral("Gdańsk"));
    EXPECT_EQ(list(*form).itemCount(), 0);
    choose(*form, QStringLiteral("Kraków"));
    EXPECT_EQ(destinations(*form), QStringList{"Gdańsk"});
}

TEST_F(DistanceRegister, DeletingAsksAndWritesTheHistoryOnlyWithTheMonitorFlag)
{
    addSetting(db.connection(),
               {.name = QStringLiteral("SystemMonitorDelete"), .type = 'B', .number = 0});
    auto form = open();
    list(*form).setSelectedIndex(list(*form).findByKey(toGdansk));
    scriptedMessages().expect(MessageService::Yes);
    form->frameListView1->BitBtn6->click();
    EXPECT_EQ(db.count(QStringLiteral("ODLEGLOSCI")), 2);
    EXPECT_EQ(db.count(QStringLiteral("HISTORY")), 0);

    db.exec(QStringLiteral("UPDATE KONFIGURACJA SET VALUE_INT = 1 "
                           "WHERE POLE = 'SystemMonitorDelete'"));
    list(*form).setSelectedIndex(list(*form).findByKey(toKrakow));
    scriptedMessages().expect(MessageService::No);
    form->frameListView1->BitBtn6->click();
    EXPECT_EQ(db.count(QStringLiteral("ODLEGLOSCI")), 2);
    scriptedMessages().expect(MessageService::Yes);
    form->frameListView1->BitBtn6->click();
    const auto &asked = scriptedMessages().shown().back();
    EXPECT_EQ(asked.caption, "Usuwanie");
    EXPECT_EQ(asked.text, "Usunąć wybraną pozycję");
    EXPECT_EQ(db.count(QStringLiteral("ODLEGLOSCI")), 1);
    EXPECT_EQ(list(*form).itemCount(), 0);
    EXPECT_EQ(db.count(QStringLiteral("HISTORY"),
                       QStringLiteral("OPERACJA = 3 AND GRUPA = 41 AND USERID = 1 AND "
                                      "HISTORY_PARAMS = '%1'")
                           .arg(toKrakow)),
              1);
}

TEST_F(DistanceRegister, EnterEditsTheRouteTypedDistanceSavedByAltZEscSavesNothing)
{
    auto form = open();
    Typing::activate(form.get());
    list(*form).setFocus();
    // Esc leaves the editor without saving what was typed.
    scriptedModalRunner().expect<TfrmAddEditMiasta>([](TfrmAddEditMiasta &d) {
        Typing::activate(&d);
        Typing::keys(QStringLiteral("999"));
        Typing::press(Qt::Key_Escape);
        EXPECT_FALSE(d.isVisible());
        return d.result();
    });
    list(*form).setSelectedIndex(list(*form).findByKey(toKrakow));
    Typing::press(Qt::Key_Return);   // the list's Enter edits the selected route
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT ODLEGLOSC FROM ODLEGLOSCI WHERE ID_ODLEGLOSCI = %1")
                            .arg(toKrakow)),
              "270");

    scriptedModalRunner().expect<TfrmAddEditMiasta>([](TfrmAddEditMiasta &d) {
        Typing::activate(&d);
        // The cities only show the route; the distance is what is typed.
        EXPECT_EQ(d.edMiastoOd->text(), "Łódź");
        EXPECT_EQ(d.edMiastoDo->text(), "Gdańsk");
        EXPECT_TRUE(d.edMiastoOd->isReadOnly());
        EXPECT_EQ(d.edOdleglosc->value(), 340);
        EXPECT_EQ(QApplication::focusWidget(), d.edOdleglosc);
        Typing::keys(QStringLiteral("-3abc15"));
        EXPECT_EQ(d.edOdleglosc->text(), "315");
        Typing::press(Qt::Key_Return);
        EXPECT_TRUE(d.isVisible());
        Typing::accelerator(Qt::Key_Z);
        EXPECT_TRUE(Typing::closes(&d));
        return d.result();
    });
    Typing::activate(form.get());
    EXPECT_EQ(QApplication::focusWidget(), &list(*form));
    const int row = list(*form).findByKey(toGdansk);
    list(*form).setSelectedIndex(row);
    Typing::press(Qt::Key_Return);
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT ODLEGLOSC || '/' || IDMIASTAOD || '/' || IDMIASTADO "
                                       "FROM ODLEGLOSCI WHERE ID_ODLEGLOSCI = %1")
                            .arg(toGdansk)),
              QStringLiteral("315/%1/%2").arg(lodz).arg(gdansk));
    EXPECT_EQ(list(*form).selectedIndex(), row);
    EXPECT_EQ(list(*form).text(row, 3), "315");

    // Esc closes the register too.
    Typing::activate(form.get());
    list(*form).setFocus();
    Typing::press(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), TfrmRODefault::mrCancel);
}
