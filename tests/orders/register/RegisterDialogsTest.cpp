// The register opening the order's own dialogs: editor, goods, places and
// the day for the templates.
#include "OrderListColumns.h"
#include "RegisterFixture.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TMiejsca_zlecObj.h"
#include "TframeListView.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmAdresy.h"
#include "TfrmDataWzorca.h"
#include "TfrmTowaryNaZleceniu.h"
#include "Typing.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

namespace {

using Col = OrderListColumns::Column;
using Editor = TfrmAddEditZlecenia_Przych;

int selectedKey(const TfrmZlecPrzychodzace &form)
{
    const TListView *list = form.frameListView1->lvMain;
    const int row = list->selectedIndex();
    return row < 0 ? 0 : list->key(row);
}

} // namespace

class RegisterDialogs : public RegisterFixture
{
protected:
    int templateCount()
    {
        return db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                        QStringLiteral("DATA IS NULL AND PALETYPLAN<>0"));
    }

    int ordersOn(const QDate &day)
    {
        return db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                        QStringLiteral("DATA = '%1'").arg(day.toString(Qt::ISODate)));
    }

    // The day prompt answers OK with the day.
    static void promptAnswers(const QDate &day)
    {
        scriptedModalRunner().expect<TfrmDataWzorca>([day](TfrmDataWzorca &prompt) {
            Typing::activate(&prompt);
            Typing::into(prompt.deData, day.toString(Qt::ISODate));
            Typing::accelerator(Qt::Key_Z);
            return prompt.result();
        });
    }
};

TEST_F(RegisterDialogs, AddOpensAnEmptyEditorAndSelectsTheSavedOrderACancelledAddNothing)
{
    const int key = addOrder();
    const auto form = openRegister();
    select(*form, key);
    const int rows = form->frameListView1->lvMain->itemCount();
    const int orders = orderCount();
    const int addedMeanwhile = addOrder();
    scriptedModalRunner().expect<Editor>([](Editor &editor) {
        Typing::activate(&editor);
        Typing::into(editor.edPojazd, QStringLiteral("WX 7070"));
        Typing::accelerator(Qt::Key_A);   // "Anuluj"
        return editor.result();
    });
    form->acDodaj->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(orderCount(), orders + 1);
    EXPECT_FALSE(listed(*form, addedMeanwhile));   // not reloaded
    EXPECT_EQ(selectedKey(*form), key);

    ASSERT_TRUE(form->frameListView1->BitBtn5->isVisibleTo(form.get()));
    scriptedModalRunner().expect<Editor>([&](Editor &editor) {
        EXPECT_EQ(editor.mode(), Editor::Add);
        EXPECT_EQ(editor.orderKey(), 0);
        EXPECT_EQ(editor.parentWidget(), form.get());
        Typing::activate(&editor);
        choose(editor.cbKlient, 2);
        Typing::into(editor.deAwizo, QDate::currentDate().toString(Qt::ISODate));
        Typing::into(editor.edPojazd, QStringLiteral("WX 7070"));
        Typing::accelerator(Qt::Key_Z);
        // Another workstation adds an order right after.
        Connection elsewhere;
        elsewhere.open(db.path());
        TZlecenia_przychObj theirs(elsewhere);
        theirs.DATA = DateTime::today();
        theirs.Insert();
        return editor.result();
    });

    form->frameListView1->BitBtn5->click();

    EXPECT_TRUE(scriptedModalRunner().allRun());
    ASSERT_EQ(orderCount(), orders + 3);
    const int added = db.scalar(QStringLiteral("SELECT ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH "
                                               "WHERE POJAZD='WX 7070'"))
                          .toInt();
    // Reloaded: the order added meanwhile and the other workstation's too.
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(), rows + 3);
    EXPECT_EQ(selectedKey(*form), added);
    EXPECT_EQ(cell(*form, added, Col::NrRej), "WX 7070");
    EXPECT_TRUE(form->acPopraw->isEnabled());
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(RegisterDialogs, EditOpensTheSelectedOrderAndShowsItAgainAfterOkAsADoubleClickDoes)
{
    const int key = addOrder([](TZlecenia_przychObj &o) { o.POJAZD = QStringLiteral("EL 1"); });
    const auto form = openRegister();
    form->show();
    select(*form, key);
    ASSERT_TRUE(form->frameListView1->BitBtn4->isVisibleTo(form.get()));
    scriptedModalRunner().expect<Editor>([&](Editor &editor) {
        EXPECT_EQ(editor.mode(), Editor::Edit);
        EXPECT_EQ(editor.orderKey(), key);
        EXPECT_EQ(editor.edPojazd->text(), "EL 1");
        Typing::activate(&editor);
        Typing::into(editor.edPojazd, QStringLiteral("EL 2"));
        Typing::accelerator(Qt::Key_Z);
        return editor.result();
    });

    form->frameListView1->BitBtn4->click();

    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(order(key).POJAZD, "EL 2");
    EXPECT_EQ(cell(*form, key, Col::NrRej), "EL 2");
    EXPECT_EQ(selectedKey(*form), key);

    TListView *list = form->frameListView1->lvMain;
    const QModelIndex index = list->model()->index(list->findByKey(key), 0);
    int opened = 0;
    scriptedModalRunner().expect<Editor>([&](Editor &editor) {
        opened = editor.orderKey();
        EXPECT_EQ(editor.mode(), Editor::Edit);
        return 2;
    });
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(opened, key);
}

TEST_F(RegisterDialogs, AddAndEditNeedTheirRightsNotTheRightToDelete)
{
    const int key = addOrder();
    setUser(3);   // may only run the register
    auto form = openRegister();
    select(*form, key);
    for (int i = 0; i < 3; ++i)
        scriptedMessages().expect();

    form->frameListView1->BitBtn5->click();
    form->frameListView1->BitBtn4->click();
    Q_EMIT form->frameListView1->lvMain->dblClick();

    expectRefusals(3);
    EXPECT_TRUE(scriptedModalRunner().ran().empty());

    scriptedMessages().clear();
    setUser(2);   // everything but deleting
    form = openRegister();
    select(*form, key);
    for (int i = 0; i < 2; ++i)
        scriptedModalRunner().expect<Editor>([](Editor &editor) { return editor.result(); });
    form->acDodaj->trigger();
    form->acPopraw->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(RegisterDialogs, TemplatesGoOnAnEmptyDayWithoutAQuestionAndOnlyOnce)
{
    const QDate day = QDate::currentDate().addYears(3);
    const int templates = templateCount();
    ASSERT_GT(templates, 0);
    const int orders = orderCount();
    const auto form = openRegister();
    const int rows = form->frameListView1->lvMain->itemCount();

    // The prompt proposes today; cancelled, it inserts nothing.
    scriptedModalRunner().expect<TfrmDataWzorca>([](TfrmDataWzorca &prompt) {
        EXPECT_EQ(prompt.date(), QDate::currentDate());
        prompt.btnCancel->click();
        return prompt.result();
    });
    form->acWzor->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(orderCount(), orders);

    promptAnswers(day);
    form->acWzor->trigger();
    EXPECT_EQ(ordersOn(day), templates);
    EXPECT_EQ(templateCount(), 0);
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(), rows);   // not reloaded

    promptAnswers(day.addDays(1));
    form->BitBtn5->click();
    EXPECT_EQ(ordersOn(day.addDays(1)), 0);
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(RegisterDialogs, TemplatesOnADayWithOrdersAskFirst)
{
    const QDate day = QDate::currentDate();
    addOrder();
    const int before = ordersOn(day);
    const int templates = templateCount();
    const auto form = openRegister();

    promptAnswers(day);
    scriptedMessages().expect(MessageService::No);
    form->acWzor->trigger();
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    const ScriptedMessages::Shown &question = scriptedMessages().shown()[0];
    EXPECT_EQ(question.caption, "Wzorzec");
    EXPECT_EQ(question.text, "Są już wysyłki na wybrany dzień. Dodać wysyłki wzorcowe?");
    EXPECT_EQ(question.icon, MessageService::Icon::Question);
    EXPECT_EQ(ordersOn(day), before);
    EXPECT_EQ(templateCount(), templates);

    promptAnswers(day);
    scriptedMessages().expect(MessageService::Yes);
    form->acWzor->trigger();
    EXPECT_EQ(ordersOn(day), before + templates);
    EXPECT_EQ(templateCount(), 0);
}

TEST_F(RegisterDialogs, GoodsOpenForTheSelectedOrderFromTheButtonAndTheLoadsAction)
{
    const int key = addOrder();
    const auto form = openRegister();
    select(*form, key);
    std::vector<int> opened;
    for (int i = 0; i < 2; ++i)
        scriptedModalRunner().expect<TfrmTowaryNaZleceniu>([&](TfrmTowaryNaZleceniu &goods) {
            opened.push_back(goods.orderKey());
            EXPECT_EQ(goods.parentWidget(), form.get());
            return 1;
        });

    form->BitBtn12->click();
    form->acAddLadunki->trigger();

    EXPECT_EQ(opened, (std::vector<int>{key, key}));
}

TEST_F(RegisterDialogs, ALoadingPlaceIsMadeWhenMissingAndAnUnloadingPlaceOpensTheExistingOne)
{
    const int key = addOrder();
    const int unloading = addPlace(key, 2, QStringLiteral("Rozładunek"));
    const auto form = openRegister();
    select(*form, key);
    const QString ofOrder = QStringLiteral("ID_ZLECENIA = %1 AND ID_ZRP = 1").arg(key);
    ASSERT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC"), ofOrder), 0);
    scriptedModalRunner().expect<TfrmAdresy>([&](TfrmAdresy &places) {
        EXPECT_EQ(places.place().ID_ZLECENIA, key);
        EXPECT_EQ(places.place().ID_ZRP, 1);
        EXPECT_NE(places.place().ID_MIEJSCA_ZLEC, 0);
        Typing::activate(&places);
        Typing::into(places.edUlica[0], QStringLiteral("Portowa 5"));
        Typing::accelerator(Qt::Key_Z);
        return places.result();
    });
    form->BitBtn13->click();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC"), ofOrder), 1);
    EXPECT_EQ(db.scalar("SELECT ADRES1 FROM MIEJSCA_ZLEC WHERE " + ofOrder), "Portowa 5");

    const int places = db.count(QStringLiteral("MIEJSCA_ZLEC"));
    scriptedModalRunner().expect<TfrmAdresy>([&](TfrmAdresy &dialog) {
        EXPECT_EQ(dialog.place().ID_MIEJSCA_ZLEC, unloading);
        EXPECT_EQ(dialog.edUlica[0]->text(), "Rozładunek");
        return 2;
    });
    form->BitBtn4->click();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC")), places);
}
