// The consignments on a vehicle: the load against its capacity, taking an
// order off and putting free orders on.
#include "CollectiveFixture.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TDateEdit.h"
#include "TfrmListaPrzesylekNaSamochod.h"
#include "TfrmWybierzPrzesylki.h"
#include "TframeListView.h"
#include "Typing.h"

#include <QLineEdit>
#include <QTest>

namespace {

class ConsignmentLists : public CollectiveFixture
{
protected:
    std::unique_ptr<TfrmListaPrzesylekNaSamochod> open(int collectiveKey)
    {
        auto form = TfrmRODefault::create<TfrmListaPrzesylekNaSamochod>(nullptr, collectiveKey);
        Typing::activate(form.get());
        return form;
    }

    // Orders of these planned pallets on a new collective order of vehicle
    // 1; their keys go to orders.
    int loaded(std::initializer_list<int> pallets, std::vector<int> *orders = nullptr)
    {
        const int key = addCollective();
        for (const int planned : pallets) {
            const int added = addOrder([&](TZlecenia_przychObj &o) {
                o.IDZLECENIAZBIOR = key;
                o.PALETYPLAN = planned;
            });
            if (orders)
                orders->push_back(added);
        }
        return key;
    }

    // Selects the order's row and presses Space, as a person checks it.
    static void check(TListView &list, int orderKey)
    {
        const int row = list.findByKey(orderKey);
        ASSERT_GE(row, 0);
        list.setFocus();
        list.setSelectedIndex(row);
        QTest::keyClick(&list, Qt::Key_Space);
    }

    bool assigned(int orderKey, int collectiveKey)
    {
        return order(orderKey).IDZLECENIAZBIOR == collectiveKey;
    }
    bool linkIsNull(int orderKey)
    {
        return db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                        QStringLiteral("ID_ZLECENIA_PRZYCH = %1 AND IDZLECENIAZBIOR IS NULL")
                            .arg(orderKey))
               == 1;
    }
};

} // namespace

TEST_F(ConsignmentLists, MorePlannedPalletsThanTheVehicleTakesShowRed)
{
    const auto over = open(loaded({20, 14}));
    EXPECT_EQ(over->edPojazd->text(), "EL 1000");
    EXPECT_EQ(over->edKierowca->text(), "Jan Żak");
    EXPECT_EQ(over->edLadownosc->text(), "33");
    EXPECT_EQ(over->edZaladowano->text(), "34");
    EXPECT_TRUE(over->overloadShown());
    EXPECT_EQ(over->edZaladowano->palette().color(QPalette::Base), QColor(Qt::red));

    const auto full = open(loaded({20, 13}));
    EXPECT_EQ(full->edZaladowano->text(), "33");
    EXPECT_FALSE(full->overloadShown());
    EXPECT_EQ(full->edZaladowano->palette().color(QPalette::Base),
              full->palette().color(QPalette::ToolTipBase));

    const auto empty = open(addCollective());
    EXPECT_EQ(empty->edZaladowano->text(), "0");
    EXPECT_FALSE(empty->overloadShown());
}

TEST_F(ConsignmentLists, ARowShowsTheOrdersPalletsAdviceAndCrew)
{
    const int key = addCollective();
    addOrder([&](TZlecenia_przychObj &o) {
        o.IDZLECENIAZBIOR = key;
        o.PALETYPLAN = 20;
        o.PALETYILOSC = 8;
        o.NRRAMPY = 4;
        o.ZWROTY = 2;
        o.AWIZO = DateTime::fromDateTime(QDateTime(QDate(2026, 5, 6), QTime(9, 45), Qt::UTC));
        o.KIEROWCA = QStringLiteral("Ewa Łoś");
        o.POJAZD = QStringLiteral("EL 2000");
        o.LADOWNOSCPALET = 18;
        o.TELEFON = QStringLiteral("601 200 300");
    });
    const auto form = open(key);
    const TListView &list = *form->frameListView1->lvMain;
    ASSERT_EQ(list.itemCount(), 1);
    const QStringList expected{"K",  "KLIENT", "20", "8",       "12",      "4", "2",
                               "09:45", "Ewa Łoś", "EL 2000", "18", "601 200 300"};
    ASSERT_EQ(list.columnCount(), expected.size());
    for (int column = 0; column < expected.size(); ++column)
        EXPECT_EQ(list.text(0, column), expected[column])
            << list.columnCaption(column).toStdString();
}

TEST_F(ConsignmentLists, RemovingAsksTakesTheOrderOffAndLeavesTheSumUntilRefreshed)
{
    std::vector<int> orders;
    const int key = loaded({20, 14}, &orders);
    const auto form = open(key);
    TListView &list = *form->frameListView1->lvMain;
    list.setFocus();
    list.setSelectedIndex(list.findByKey(orders[1]));

    scriptedMessages().expect(MessageService::No);
    Typing::click(form->frameListView1->BitBtn6);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Usuwanie");
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Usunąć wybraną pozycję");
    EXPECT_EQ(scriptedMessages().shown()[0].icon, MessageService::Icon::Question);
    EXPECT_EQ(list.itemCount(), 2);
    EXPECT_TRUE(assigned(orders[1], key));

    scriptedMessages().expect(MessageService::Yes);
    Typing::click(form->frameListView1->BitBtn6);
    EXPECT_EQ(list.itemCount(), 1);
    EXPECT_LT(list.findByKey(orders[1]), 0);
    EXPECT_TRUE(linkIsNull(orders[1]));
    EXPECT_TRUE(assigned(orders[0], key));
    // The load is the one read last, until the list is read again.
    EXPECT_EQ(form->edZaladowano->text(), "34");
    EXPECT_TRUE(form->overloadShown());
    Typing::click(form->frameListView1->BitBtn7);
    EXPECT_EQ(form->edZaladowano->text(), "20");
    EXPECT_FALSE(form->overloadShown());
}

TEST_F(ConsignmentLists, OnlyDatedFreeOrdersAreOfferedAndTheCheckedOnesArePutOn)
{
    std::vector<int> orders;
    const int key = loaded({20}, &orders);
    const int other = addCollective();
    const QDate today = QDate::currentDate();
    const int free = addOrder([](TZlecenia_przychObj &o) { o.PALETYPLAN = 6; });
    const int unlinked = addOrder([&](TZlecenia_przychObj &o) {
        o.DATA = DateTime::fromDate(today.addDays(-7));
    });
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDZLECENIAZBIOR = NULL "
                           "WHERE ID_ZLECENIA_PRZYCH = %1").arg(unlinked));
    const int elsewhere = addOrder([&](TZlecenia_przychObj &o) { o.IDZLECENIAZBIOR = other; });
    const int undated = addOrder([](TZlecenia_przychObj &o) { o.DATA = DateTime(); });
    const int later = addOrder([&](TZlecenia_przychObj &o) {
        o.DATA = DateTime::fromDate(today.addDays(8));
    });

    const auto form = open(key);
    scriptedModalRunner().expect<TfrmWybierzPrzesylki>([&](TfrmWybierzPrzesylki &dialog) {
        Typing::activate(&dialog);
        EXPECT_EQ(dialog.deOd->date(), today.addDays(-7));
        EXPECT_EQ(dialog.deDo->date(), today.addDays(7));
        TListView &list = *dialog.frameListView1->lvMain;
        EXPECT_EQ(list.itemCount(), 2);
        EXPECT_GE(list.findByKey(free), 0);
        EXPECT_GE(list.findByKey(unlinked), 0);
        for (const int hidden : {orders[0], elsewhere, undated, later})
            EXPECT_LT(list.findByKey(hidden), 0);

        Typing::into(dialog.deDo, today.addDays(10).toString(Qt::ISODate));
        Typing::click(dialog.btnOdswiez);
        EXPECT_EQ(list.itemCount(), 3);
        check(list, free);
        check(list, later);
        Typing::click(dialog.btnOk);
        return dialog.result();
    });
    Typing::click(form->frameListView1->BitBtn5);
    EXPECT_TRUE(scriptedModalRunner().allRun());

    EXPECT_TRUE(assigned(free, key));
    EXPECT_TRUE(assigned(later, key));
    EXPECT_TRUE(linkIsNull(unlinked));
    EXPECT_TRUE(assigned(elsewhere, other));
    const TListView &list = *form->frameListView1->lvMain;
    EXPECT_EQ(list.itemCount(), 3);
    EXPECT_EQ(form->edZaladowano->text(), "36");
    EXPECT_TRUE(form->overloadShown());
}
