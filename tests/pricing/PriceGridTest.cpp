#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TLimitedFloatEdit.h"
#include "TListView.h"
#include "TestData.h"
#include "Typing.h"
#include "TframeListView.h"
#include "TfrmAddEditCenniki.h"
#include "TfrmCennikMenu.h"
#include "TfrmCennikWierszeKolumny.h"
#include "TfrmCenniki.h"
#include "TfrmCennikiKontrahenci.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace TestData;

class PriceGrid : public SessionFixture
{
protected:

    // Two kilometre and two kilogram ranges, the main price list with one
    // cell, one open and one blocked group with a cell each.
    void seedGrid()
    {
        Connection &c = db.connection();
        near = addKilometreRange(c, 0, 100);
        far = addKilometreRange(c, 101, 300);
        light = addKilogramRange(c, 0, 1000);
        heavy = addKilogramRange(c, 1001, 24000);
        open = addGroup(c, QStringLiteral("Klienci kluczowi"));
        blocked = addGroup(c, QStringLiteral("Stary cennik"), true);
        addCell(c, {.group = 0, .row = far, .column = heavy, .amount = 1234.5});
        addCell(c, {.group = open, .row = near, .column = light, .amount = 99.0});
        addCell(c, {.group = blocked, .row = near, .column = light, .amount = 77.0});
    }

    std::unique_ptr<TfrmCenniki> openGrid()
    {
        return TfrmRODefault::create<TfrmCenniki>(nullptr);
    }

    // Puts the grid's cursor on a cell (column and row counted with the
    // fixed ones) with the arrow keys.
    static void moveTo(TfrmCenniki &grid, int column, int row)
    {
        Typing::activate(&grid);
        grid.sgCennik->setFocus();
        Typing::press(Qt::Key_Home, Qt::ControlModifier);
        for (int down = 1; down < row; ++down)
            Typing::press(Qt::Key_Down);
        for (int right = 1; right < column; ++right)
            Typing::press(Qt::Key_Right);
    }
    // Chooses a price list of the grid's combo with the arrow keys.
    static void choose(TfrmCenniki &grid, Qt::Key arrow)
    {
        Typing::activate(&grid);
        grid.cbCennik->setFocus();
        Typing::press(arrow);
    }

    // Opens a cell with Enter, lets the caller look at its dialog, types the
    // amount and leaves the dialog with the accelerator: Alt+Z saves, Alt+A
    // cancels.
    using Look = std::function<void(TfrmAddEditCenniki &)>;
    void editCell(TfrmCenniki &grid, int column, int row, const QString &amount,
                  const Look &look = {}, Qt::Key leaveWith = Qt::Key_Z)
    {
        scriptedModalRunner().expect<TfrmAddEditCenniki>([=](TfrmAddEditCenniki &d) {
            Typing::activate(&d);
            if (look)
                look(d);
            Typing::into(d.edStawka, amount);
            Typing::accelerator(leaveWith);
            EXPECT_TRUE(Typing::closes(&d));
            return d.result();
        });
        moveTo(grid, column, row);
        Typing::press(Qt::Key_Return);
        EXPECT_TRUE(scriptedModalRunner().allRun());
    }

    int cells(const QString &where)
    {
        return db.count(QStringLiteral("CENNIKI_KRAJ"), where);
    }

    int near = 0, far = 0, light = 0, heavy = 0, open = 0, blocked = 0;
};

const QString Nbsp = QStringLiteral("\u00a0");

} // namespace

TEST_F(PriceGrid, TheMenuAsksForRangesWhileThereAreFewerThanTwoOnBothAxesTogether)
{
    auto menu = TfrmRODefault::create<TfrmCennikMenu>(nullptr);
    EXPECT_FALSE(menu->BitBtn2->isVisibleTo(menu.get()));

    scriptedMessages().expect(MessageService::No);
    menu->BitBtn1->click();
    const auto question = scriptedMessages().shown().back();
    EXPECT_EQ(question.caption, "Cenniki");
    EXPECT_EQ(question.text, "Musisz zdefiniować najpierw przedziały kilometrowe i wagowe. "
                             "Chcesz to zrobić teraz?");
    EXPECT_EQ(question.icon, MessageService::Icon::Question);
    EXPECT_TRUE(scriptedModalRunner().ran().empty());

    addKilometreRange(db.connection(), 0, 100);
    scriptedMessages().expect(MessageService::Yes);
    scriptedModalRunner().expect<TfrmCennikWierszeKolumny>([](TfrmCennikWierszeKolumny &) {
        return 2;
    });
    menu->BitBtn1->click();
    EXPECT_TRUE(scriptedModalRunner().allRun());

    addKilometreRange(db.connection(), 101, 200);
    scriptedMessages().clear();
    scriptedModalRunner().expect<TfrmCenniki>([](TfrmCenniki &grid) {
        EXPECT_EQ(grid.RowCount(), 3);
        EXPECT_EQ(grid.ColCount(), 1);
        return 2;
    });
    menu->BitBtn1->click();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_TRUE(scriptedMessages().shown().empty());
}

TEST_F(PriceGrid, RangesHeadTheGridWhichShowsTheChosenOpenGroupsCells)
{
    seedGrid();
    addCell(db.connection(), {.group = 0, .row = 9999, .column = light, .amount = 55.0});
    auto grid = openGrid();
    EXPECT_EQ(grid->lblHeaderDescription->text(), "Edycja cennika");
    ASSERT_EQ(grid->RowCount(), 3);
    ASSERT_EQ(grid->ColCount(), 3);
    EXPECT_EQ(grid->Cells(0, 1), "0-100");
    EXPECT_EQ(grid->Cells(0, 2), "101-300");
    EXPECT_EQ(grid->Cells(1, 0), "0-1000");
    EXPECT_EQ(grid->Cells(2, 0), "1001-24000");
    EXPECT_EQ(grid->Cells(2, 2), "1" + Nbsp + "234,50");
    EXPECT_EQ(grid->Cells(1, 1), "");
    // A cell of a deleted range is skipped.
    for (int column = 1; column < grid->ColCount(); ++column) {
        for (int row = 1; row < grid->RowCount(); ++row)
            EXPECT_NE(grid->Cells(column, row), "55,00");
    }

    // A blocked group is not offered but keeps its cells.
    ASSERT_EQ(grid->cbCennik->count(), 2);
    EXPECT_EQ(grid->cbCennik->itemText(0), " --- GŁÓWNY ---");
    EXPECT_EQ(grid->cbCennik->currentIndex(), 0);
    EXPECT_EQ(grid->cbCennik->itemText(1), "Klienci kluczowi");
    EXPECT_EQ(cells(QStringLiteral("GRUPA = %1").arg(blocked)), 1);
    choose(*grid, Qt::Key_Down);
    EXPECT_EQ(grid->Cells(1, 1), "99,00");
    EXPECT_EQ(grid->Cells(2, 2), "");
}

TEST_F(PriceGrid, AFilledCellIsUpdatedOrDeletedByZeroAndAnEmptyOneFilledOnlyByAnAmount)
{
    seedGrid();
    auto grid = openGrid();
    choose(*grid, Qt::Key_Down);
    editCell(*grid, 1, 1, QStringLiteral("105,5"), [](TfrmAddEditCenniki &d) {
        EXPECT_EQ(d.lblKg->text(), "0-1000");
        EXPECT_EQ(d.lblKm->text(), "0-100");
        EXPECT_DOUBLE_EQ(d.amount(), 99.0);
    });
    EXPECT_EQ(cells(QStringLiteral("GRUPA = %1 AND KWOTA = 105.5").arg(open)), 1);
    EXPECT_EQ(grid->Cells(1, 1), "105,50");

    // Cancelled, even zero changes nothing.
    editCell(*grid, 1, 1, QStringLiteral("0"), {}, Qt::Key_A);
    EXPECT_EQ(cells(QStringLiteral("GRUPA = %1 AND KWOTA = 105.5").arg(open)), 1);

    editCell(*grid, 1, 1, QStringLiteral("-3"));
    EXPECT_EQ(cells(QStringLiteral("GRUPA = %1").arg(open)), 0);
    EXPECT_EQ(grid->Cells(1, 1), "");
    EXPECT_EQ(cells(QStringLiteral("GRUPA = %1").arg(blocked)), 1);

    // In an empty cell of the main list zero stores nothing, an amount is stored.
    choose(*grid, Qt::Key_Up);
    double shown = -1.0;
    editCell(*grid, 1, 2, QStringLiteral("0"),
             [&shown](TfrmAddEditCenniki &d) { shown = d.amount(); });
    EXPECT_DOUBLE_EQ(shown, 0.0);
    EXPECT_EQ(grid->windowTitle(), "1,2");
    EXPECT_EQ(cells(QStringLiteral("GRUPA = 0")), 1);

    editCell(*grid, 1, 2, QStringLiteral("450"));
    EXPECT_EQ(cells(QStringLiteral("GRUPA = 0 AND KILOMETRY = %1 AND KILOGRAMY = %2 AND "
                                   "KWOTA = 450")
                        .arg(far)
                        .arg(light)),
              1);
    EXPECT_EQ(grid->Cells(1, 2), "450,00");
}

TEST_F(PriceGrid, AtTheKeyboardEnterEditsTheCellUnderTheCursorWhichStaysThere)
{
    seedGrid();
    auto grid = openGrid();
    Typing::activate(grid.get());
    grid->sgCennik->setFocus();
    const auto typeAmount = [this](const QString &amount, double *shown = nullptr) {
        scriptedModalRunner().expect<TfrmAddEditCenniki>([=](TfrmAddEditCenniki &d) {
            Typing::activate(&d);
            if (shown)
                *shown = d.amount();
            Typing::into(d.edStawka, amount);
            Typing::accelerator(Qt::Key_Z);
            EXPECT_TRUE(Typing::closes(&d));
            return d.result();
        });
        Typing::press(Qt::Key_Return);
        EXPECT_TRUE(scriptedModalRunner().allRun());
    };
    // Down the first column to the far range, across to the heavy one.
    Typing::press(Qt::Key_Home, Qt::ControlModifier);
    Typing::press(Qt::Key_Down);
    Typing::press(Qt::Key_Right);
    double shown = 0.0;
    typeAmount(QStringLiteral("1300"), &shown);
    EXPECT_DOUBLE_EQ(shown, 1234.5);
    EXPECT_TRUE(grid->isVisible());
    EXPECT_EQ(grid->Cells(2, 2), "1" + Nbsp + "300,00");

    // The refilled grid keeps the cursor: one to the left is the light range.
    Typing::activate(grid.get());
    EXPECT_EQ(QApplication::focusWidget(), grid->sgCennik);
    Typing::press(Qt::Key_Left);
    typeAmount(QStringLiteral("450"));
    EXPECT_EQ(cells(QStringLiteral("GRUPA = 0 AND KILOMETRY = %1 AND KILOGRAMY = %2 AND "
                                   "KWOTA = 450")
                        .arg(far)
                        .arg(light)),
              1);
    EXPECT_EQ(cells(QStringLiteral("GRUPA = 0 AND KWOTA = 1300 AND KILOGRAMY = %1").arg(heavy)),
              1);
}

TEST_F(PriceGrid, TheClientViewerListsClientsOfThePriceList)
{
    seedGrid();
    db.exec(QStringLiteral("INSERT INTO KONTRAHENCI (ID_KONTRAHENTA, NAZWA, ADRES, KOD, "
                           "MIEJSCOWOSC) VALUES (501, 'Alfa', 'Polna 1', '90-001', 'Łódź')"));
    db.exec(QStringLiteral("INSERT INTO KONTRAHENCI (ID_KONTRAHENTA, NAZWA) VALUES (502, 'Beta')"));
    db.exec(QStringLiteral("INSERT INTO CENNIKI_KRAJ_KONTRAHENCI (IDKONTRAHENT, IDGRUPY) "
                           "VALUES (502, %1)")
                .arg(open));
    auto viewer = TfrmRODefault::create<TfrmCennikiKontrahenci>(nullptr);
    TListView &list = *viewer->frameListView1->lvMain;
    EXPECT_FALSE(viewer->frameListView1->BitBtn5->isVisibleTo(viewer.get()));
    ASSERT_EQ(list.itemCount(), 1);
    EXPECT_EQ(list.key(0), 501);
    EXPECT_EQ(list.items().texts(0), (QStringList{"Alfa", "Polna 1", "90-001", "Łódź"}));

    Typing::activate(viewer.get());
    viewer->cbCennik->setFocus();
    Typing::press(Qt::Key_Down);
    ASSERT_EQ(list.itemCount(), 1);
    EXPECT_EQ(list.key(0), 502);
    EXPECT_EQ(list.caption(0), "Beta");
}

TEST_F(PriceGrid, DoubleClickingACellOfTheGridEditsIt)
{
    seedGrid();
    auto grid = openGrid();
    grid->show();
    QTableWidget &table = *grid->sgCennik;
    const QRect cell = table.visualRect(table.model()->index(0, 1));
    scriptedModalRunner().expect<TfrmAddEditCenniki>([](TfrmAddEditCenniki &d) {
        EXPECT_EQ(d.lblKg->text(), "1001-24000");
        EXPECT_EQ(d.lblKm->text(), "0-100");
        return 2;
    });
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(grid->windowTitle(), "2,1");
}
