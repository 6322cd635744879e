#include "OrdersFixture.h"

#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TNumberEdit.h"
#include "TframeListView.h"
#include "TfrmAddEditTowaryNaZleceniu.h"
#include "TfrmTowaryNaZleceniu.h"
#include "Typing.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

namespace {

using GoodsEditor = TfrmAddEditTowaryNaZleceniu;

class Goods : public OrdersFixture
{
protected:
    void SetUp() override
    {
        tonne = TestData::addUnit(db.connection(), QStringLiteral("tona"));
        pallet = TestData::addUnit(db.connection(), QStringLiteral("paleta"));
        addGoods(OrderKey, QStringLiteral("Jabłka"), 2.5, pallet);
        addGoods(OrderKey, QStringLiteral("Cement"), 24.0, tonne);
        addGoods(OtherOrder, QStringLiteral("Węgiel"), 20.0, tonne);
    }

    void addGoods(int order, const QString &name, double quantity, int unit)
    {
        TTowaryObj goods(db.connection());
        goods.ID_ZLECENIA = order;
        goods.NAZWA = name;
        goods.NUMER1 = QStringLiteral("UN 1202");
        goods.NUMER2 = QStringLiteral("opis ") + name;
        goods.ILOSC = quantity;
        goods.ILOSC_DEKLAROWANA = quantity + 1000.0;
        goods.ID_JEDNOSTKI_MIARY = unit;
        goods.LP = 4;
        goods.Insert();
    }

    TTowaryObj goodsNamed(const QString &name)
    {
        const auto found
            = TTowaryObj(db.connection()).SelectWhere(QStringLiteral("NAZWA"), opEqual, name);
        return found.empty() ? TTowaryObj(db.connection()) : found.front();
    }

    int rowOf(const TfrmTowaryNaZleceniu &form, const QString &name)
    {
        const TListView *list = form.frameListView1->lvMain;
        for (int row = 0; row < list->itemCount(); ++row) {
            if (list->caption(row) == name)
                return row;
        }
        return -1;
    }

    static constexpr int OrderKey = 31;
    static constexpr int OtherOrder = 32;
    int tonne = 0;
    int pallet = 0;
};

} // namespace

TEST_F(Goods, TheListShowsTheOrdersGoodsInItsColumns)
{
    auto form = TfrmRODefault::create<TfrmTowaryNaZleceniu>(nullptr, OrderKey);
    const TListView *list = form->frameListView1->lvMain;
    ASSERT_EQ(list->columnCount(), 5);
    ASSERT_EQ(list->itemCount(), 2);
    const int row = rowOf(*form, QStringLiteral("Cement"));
    ASSERT_GE(row, 0);
    EXPECT_EQ(list->text(row, 1), "UN 1202");
    EXPECT_EQ(list->text(row, 2), QStringLiteral("1\u00A0024,00"));
    EXPECT_EQ(list->text(row, 3), "24,00");
    EXPECT_EQ(list->text(row, 4), "opis Cement");
    EXPECT_EQ(list->key(row), goodsNamed(QStringLiteral("Cement")).ID_TOWARU);
}

TEST_F(Goods, CorrectingAndDeletingNeedASelectedRowAndDeletingAsksNothing)
{
    auto empty = TfrmRODefault::create<TfrmTowaryNaZleceniu>(nullptr, 4711);
    EXPECT_EQ(empty->frameListView1->lvMain->itemCount(), 0);
    EXPECT_TRUE(empty->acAdd->isEnabled());
    EXPECT_FALSE(empty->acPopraw->isEnabled());
    EXPECT_FALSE(empty->acDelete->isEnabled());
    empty->acDelete->trigger();
    empty->acPopraw->trigger();
    EXPECT_EQ(db.count(QStringLiteral("TOWARY")), 3);

    auto form = TfrmRODefault::create<TfrmTowaryNaZleceniu>(nullptr, OrderKey);
    form->frameListView1->lvMain->setSelectedIndex(rowOf(*form, QStringLiteral("Jabłka")));
    form->frameListView1->Refresh();
    EXPECT_TRUE(form->acPopraw->isEnabled());
    EXPECT_TRUE(form->acDelete->isEnabled());
    form->acDelete->trigger();
    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_EQ(db.count(QStringLiteral("TOWARY"), QStringLiteral("NAZWA = 'Jabłka'")), 0);
    EXPECT_EQ(db.count(QStringLiteral("TOWARY")), 2);
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(), 1);
}

TEST_F(Goods, CorrectingLoadsTheRowAndUpdatesOnlyTheEditedColumns)
{
    auto form = TfrmRODefault::create<TfrmTowaryNaZleceniu>(nullptr, OrderKey);
    form->frameListView1->lvMain->setSelectedIndex(rowOf(*form, QStringLiteral("Jabłka")));
    scriptedModalRunner().expect<GoodsEditor>([&](GoodsEditor &e) {
        EXPECT_EQ(e.windowTitle(), "Edycja danych");
        EXPECT_EQ(e.cbNazwa->currentText(), "Jabłka");
        EXPECT_EQ(e.edDodatkowyOpis->text(), "opis Jabłka");
        EXPECT_EQ(e.cbJM->currentData().toInt(), pallet);
        EXPECT_DOUBLE_EQ(e.edIloscRzecz->value(), 2.5);
        Typing::activate(&e);
        Typing::into(e.edIloscRzecz, QStringLiteral("3"));
        Typing::accelerator(Qt::Key_Z);
        return e.result();
    });
    form->acPopraw->trigger();
    const TTowaryObj changed = goodsNamed(QStringLiteral("Jabłka"));
    EXPECT_DOUBLE_EQ(changed.ILOSC, 3.0);
    EXPECT_EQ(changed.LP, 4);
    EXPECT_EQ(db.count(QStringLiteral("TOWARY")), 3);
}

TEST_F(Goods, AUnitThatIsGoneShowsTheFirstUnitAndCancelWritesNothing)
{
    TTowaryObj goods = goodsNamed(QStringLiteral("Cement"));
    goods.ID_JEDNOSTKI_MIARY = 999;
    goods.Update();
    auto editor = TfrmRODefault::create<GoodsEditor>(nullptr, goods, GoodsEditor::Edit);
    scriptedModalRunner().expect<GoodsEditor>([&](GoodsEditor &e) {
        EXPECT_EQ(e.cbJM->currentIndex(), 0);
        Typing::activate(&e);
        Typing::into(e.edADR, QStringLiteral("zmiana"));
        Typing::accelerator(Qt::Key_A);   // "Anuluj"
        return e.result();
    });
    EXPECT_EQ(editor->showModal(), TfrmRODefault::mrCancel);
    EXPECT_EQ(goodsNamed(QStringLiteral("Cement")).NUMER1, "UN 1202");
}

TEST_F(Goods, AddingIsTypedIntoAnEmptyEditorWhereEnterSavesNoEmptyRowAndTheNameStopsAt35)
{
    auto form = TfrmRODefault::create<TfrmTowaryNaZleceniu>(nullptr, OrderKey);
    Typing::activate(form.get());
    const QString longName = QStringLiteral("Konstrukcje stalowe ocynkowane ogniowo 1");
    int unit = 0;
    scriptedModalRunner().expect<GoodsEditor>([&](GoodsEditor &e) {
        Typing::activate(&e);
        // Names of earlier goods are offered, in Polish order.
        EXPECT_EQ(e.cbNazwa->itemText(0), "Cement");
        EXPECT_EQ(e.cbNazwa->itemText(1), "Jabłka");
        EXPECT_EQ(e.cbNazwa->itemText(2), "Węgiel");
        EXPECT_EQ(QApplication::focusWidget(), e.cbNazwa);
        Typing::press(Qt::Key_Return);
        EXPECT_TRUE(e.isVisible());
        EXPECT_EQ(QApplication::focusWidget(), e.edADR);
        Typing::press(Qt::Key_Backtab, Qt::ShiftModifier);
        Typing::keys(longName + QStringLiteral("\nUN 3077\nworki\n12,3456\n3"));
        EXPECT_EQ(QApplication::focusWidget(), e.edIloscRzecz);
        Typing::press(Qt::Key_Tab);
        Typing::press(Qt::Key_Down);
        unit = e.cbJM->currentData().toInt();
        EXPECT_NE(unit, e.cbJM->itemData(0).toInt());
        Typing::accelerator(Qt::Key_Z);
        return e.result();
    });
    Typing::click(form->frameListView1->BitBtn5);   // "Dodaj"
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(db.count(QStringLiteral("TOWARY")), 4);
    EXPECT_EQ(form->frameListView1->lvMain->itemCount(), 3);
    const TTowaryObj added = goodsNamed(longName.left(35));
    EXPECT_EQ(added.ID_ZLECENIA, OrderKey);
    EXPECT_EQ(added.NUMER1, "UN 3077");
    EXPECT_EQ(added.NUMER2, "worki");
    EXPECT_DOUBLE_EQ(added.ILOSC_DEKLAROWANA, 12.3456);
    EXPECT_DOUBLE_EQ(added.ILOSC, 3.0);
    EXPECT_EQ(added.ID_JEDNOSTKI_MIARY, unit);
}
