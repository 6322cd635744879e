#include "FrameEvents.h"
#include "SampleRegister.h"
#include "ScriptedFilePrompts.h"
#include "ScriptedMessages.h"
#include "TListView.h"
#include "TRadioGroup.h"
#include "TframeListView.h"
#include "Typing.h"

#include <QAction>
#include <QCheckBox>
#include <QRadioButton>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QStringList Captions{QStringLiteral("Nr"), QStringLiteral("Klient"), QStringLiteral("Miasto"),
                           QStringLiteral("Kwota"), QStringLiteral("Data")};

std::vector<QStringList> sampleRows()
{
    return {
        {"00000003", "Trans-Bud", "Kraków", "10", "2024-03-01"},
        {"00000001", "Agromax", "Poznań", "9", ""},
        {"00000004", "Kraków Stal", "Łódź", "", "2023-12-31"},
        {"00000002", "Zakład Mięsny", "Gdańsk", QString("1\u00A0234,50"), "2024-01-15"},
    };
}

QAction *menuItem(QMenu *menu, const QString &submenu, const QString &item)
{
    for (QAction *action : menu->actions()) {
        if (action->text() != submenu || !action->menu())
            continue;
        for (QAction *child : action->menu()->actions()) {
            if (child->text() == item)
                return child;
        }
    }
    ADD_FAILURE() << "no menu item " << submenu.toStdString() << " / " << item.toStdString();
    return nullptr;
}

// The search options are set in the panel's lower part, which the
// options button opens.
void openOptions(TframeListView &frame)
{
    if (!frame.pnlSearch->isExpanded())
        Typing::click(frame.btnOpcje);
    ASSERT_TRUE(frame.pnlSearch->isExpanded());
}

// Clears a search option as a user does: Space on its box.
void untick(TframeListView &frame, QCheckBox *box)
{
    openOptions(frame);
    ASSERT_TRUE(box->isChecked());
    box->setFocus();
    Typing::press(Qt::Key_Space);
}

// Chooses a search option as a user does: Space on its radio button.
void chooseOption(TframeListView &frame, int option)
{
    openOptions(frame);
    QRadioButton *button = frame.rgSearchOptions->button(option);
    button->setFocus();
    Typing::press(Qt::Key_Space);
}

QStringList column(const TListView &list, int column)
{
    QStringList values;
    for (int row = 0; row < list.itemCount(); ++row)
        values << list.text(row, column);
    return values;
}

class LVFrame : public testing::Test
{
protected:
    void SetUp() override
    {
        TframeListView::setSearchColumn(-1);
        form = TfrmRODefault::create<TfrmSampleRegister>(Captions, sampleRows());
        frame = form->frame;
        list = frame->lvMain;
        frame->numericColumns() << QStringLiteral("Kwota");
        frame->dateColumns() << QStringLiteral("Data");
        Typing::activate(form.get());
    }

    void typeSearch(const QString &text) { Typing::into(frame->edSearch, text); }

    std::unique_ptr<TfrmSampleRegister> form;
    TframeListView *frame = nullptr;
    TListView *list = nullptr;
};

} // namespace

TEST_F(LVFrame, SearchWithoutAColumnSortsByTheFirstColumnFirst)
{
    typeSearch(QStringLiteral("00000004"));

    EXPECT_EQ(TframeListView::searchColumn(), 0);
    EXPECT_EQ(list->tag(), 0);
    EXPECT_EQ(list->columnImage(0), 0);
    EXPECT_EQ(column(*list, 0), QStringList({"00000001", "00000002", "00000003", "00000004"}));
    EXPECT_EQ(list->selectedIndex(), 3);
    // A key release in the box puts the button back to its first caption.
    EXPECT_EQ(frame->btnSearch->text(), "&Szukaj");
}

TEST_F(LVFrame, NextContinuesAfterTheSelectionAndDoesNotWrap)
{
    TframeListView::setSearchColumn(1);
    untick(*frame, frame->cbSearchOnKey);
    list->setSelectedIndex(0);
    typeSearch(QStringLiteral("a"));

    QTest::keyClick(frame->edSearch, Qt::Key_Return);
    EXPECT_EQ(list->selectedIndex(), 1);   // "Agromax", the row after the selected one
    EXPECT_EQ(frame->btnSearch->text(), "&Dalej");

    // Typing a new text goes back to the first row; the search starts after it.
    typeSearch(QStringLiteral("Trans"));
    EXPECT_EQ(list->selectedIndex(), 0);
    list->setSelectedIndex(1);
    Typing::click(frame->btnSearch);
    // Only row 0 holds "Trans", and the search does not wrap back to it.
    EXPECT_EQ(list->selectedIndex(), 1);
}

TEST_F(LVFrame, SearchOnKeyStaysOnTheMatchWhileTypingAndMindsCaseOnlyWhenAsked)
{
    TframeListView::setSearchColumn(1);
    typeSearch(QStringLiteral("a"));
    EXPECT_EQ(list->selectedIndex(), 0);   // "Trans-Bud"
    Typing::keys(QStringLiteral("g"));
    EXPECT_EQ(list->selectedIndex(), 1);   // "Agromax"
    Typing::keys(QStringLiteral("r"));
    EXPECT_EQ(list->selectedIndex(), 1);

    // No row holds any part of these capitals as typed.
    typeSearch(QStringLiteral("ŁAD"));
    EXPECT_EQ(list->selectedIndex(), 3);   // "Zakład Mięsny"
    list->setSelectedIndex(0);
    untick(*frame, frame->cbCaseSensitive);
    EXPECT_FALSE(frame->acCaseSensitive->isChecked());
    typeSearch(QStringLiteral("ŁAD"));
    EXPECT_EQ(list->selectedIndex(), 0);
}

TEST_F(LVFrame, EqualNeedsTheWholeTextInTheFirstColumnOnlyElsewhereItMeansContains)
{
    untick(*frame, frame->cbSearchOnKey);
    TframeListView::setSearchColumn(0);
    chooseOption(*frame, TframeListView::Equals);
    list->setSelectedIndex(0);
    typeSearch(QStringLiteral("0000000"));
    Typing::click(frame->btnSearch);
    EXPECT_EQ(list->selectedIndex(), 0);
    typeSearch(QStringLiteral("00000004"));
    Typing::click(frame->btnSearch);
    EXPECT_EQ(list->selectedIndex(), 2);
    EXPECT_EQ(frame->rgSearchOptions->itemIndex(), TframeListView::Equals);

    TframeListView::setSearchColumn(2);
    list->setSelectedIndex(0);
    typeSearch(QStringLiteral("dań"));
    Typing::click(frame->btnSearch);
    EXPECT_EQ(list->text(list->selectedIndex(), 2), "Gdańsk");
    EXPECT_EQ(frame->rgSearchOptions->itemIndex(), TframeListView::Contains);
}

TEST_F(LVFrame, CtrlDigitSkipsHiddenColumnsAndTheSearchColumnIsDrawnBold)
{
    list->setColumnWidth(1, 0);
    QTest::keyClick(frame->edSearch, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(TframeListView::searchColumn(), 2);

    QTest::keyClick(frame->edSearch, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(TframeListView::searchColumn(), 0);
    // Four columns are visible: Ctrl+5 means nothing.
    QTest::keyClick(frame->edSearch, Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(TframeListView::searchColumn(), 0);

    TframeListView::setSearchColumn(2);
    const QModelIndex bold = list->items().index(0, 2);
    const QModelIndex plain = list->items().index(0, 1);
    EXPECT_TRUE(bold.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(plain.data(Qt::FontRole).isValid());
    menuItem(frame->pmMain, "Szukaj według kolumny", "[Brak]")->trigger();
    EXPECT_EQ(TframeListView::searchColumn(), -1);
    EXPECT_FALSE(bold.data(Qt::FontRole).isValid());
}

TEST_F(LVFrame, HeaderClickSortsTypedColumnsAscending)
{
    frame->sortByColumnClick(3);
    EXPECT_EQ(column(*list, 3), QStringList({"", "9", "10", QString("1\u00A0234,50")}));
    EXPECT_EQ(TframeListView::searchColumn(), 3);
    EXPECT_EQ(list->columnImage(3), 0);

    // A second click sorts the same way again.
    frame->sortByColumnClick(3);
    EXPECT_EQ(column(*list, 3), QStringList({"", "9", "10", QString("1\u00A0234,50")}));

    frame->sortByColumnClick(4);
    EXPECT_EQ(column(*list, 4), QStringList({"", "2023-12-31", "2024-01-15", "2024-03-01"}));
    EXPECT_EQ(list->columnImage(3), -1);

    frame->sortByColumnClick(2);
    EXPECT_EQ(column(*list, 2), QStringList({"Gdańsk", "Kraków", "Łódź", "Poznań"}));
}

TEST_F(LVFrame, WrongValueInATypedColumnIsReportedAndLeavesTheOrder)
{
    form->rows[1][3] = QStringLiteral("dużo");
    frame->Refresh();
    const QStringList before = column(*list, 0);
    scriptedMessages().expect(MessageService::Ok);
    frame->sortByColumnClick(3);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text, "'dużo' nie jest poprawną wartością liczbową.");
    EXPECT_EQ(column(*list, 0), before);
}

TEST_F(LVFrame, SortMenuAndNoSortReloadInLoadOrder)
{
    menuItem(frame->pmMain, "Sortuj", "Miasto")->trigger();
    EXPECT_EQ(list->tag(), 2);
    EXPECT_EQ(column(*list, 2), QStringList({"Gdańsk", "Kraków", "Łódź", "Poznań"}));
    const int loads = form->loads;
    menuItem(frame->pmMain, "Sortuj", "[Brak]")->trigger();
    EXPECT_EQ(list->tag(), -1);
    EXPECT_EQ(form->loads, loads + 1);
    EXPECT_EQ(column(*list, 2), QStringList({"Kraków", "Poznań", "Łódź", "Gdańsk"}));
    EXPECT_EQ(list->columnImage(2), -1);
}

TEST_F(LVFrame, HideAndShowColumns)
{
    QAction *hideClient = menuItem(frame->pmMain, "Ukryj kolumny", "Klient");
    hideClient->trigger();
    EXPECT_TRUE(hideClient->isChecked());
    EXPECT_EQ(list->columnWidth(1), 0);
    EXPECT_EQ(list->columnTag(1), 120);
    hideClient->trigger();
    EXPECT_EQ(list->columnWidth(1), 120);

    hideClient->trigger();
    list->setColumnTag(1, 0);
    menuItem(frame->pmMain, "Ukryj kolumny", "[Brak]")->trigger();
    EXPECT_FALSE(hideClient->isChecked());
    EXPECT_EQ(list->columnWidth(1), 100);
    EXPECT_EQ(list->columnWidth(0), 120);
}

TEST_F(LVFrame, SearchOptionsMenuSetsTheRadioGroup)
{
    menuItem(frame->pmMain, "Opcje szukania", "Wartość w kolumnie zaczyna się od szukanej")
        ->trigger();
    EXPECT_EQ(frame->rgSearchOptions->itemIndex(), TframeListView::StartsWith);
    QAction *contains
        = menuItem(frame->pmMain, "Opcje szukania", "Wartość w kolumnie zawiera szukaną");
    frame->rgSearchOptions->button(TframeListView::Equals)->click();
    EXPECT_TRUE(contains->isChecked());
    EXPECT_EQ(frame->rgSearchOptions->itemIndex(), TframeListView::Equals);
}

TEST_F(LVFrame, RefreshReloadsAndKeepsSortAndSelectedPosition)
{
    frame->sortByColumnClick(2);
    list->setSelectedIndex(2);
    const int loads = form->loads;
    const int updates = form->updates;
    form->rows.push_back({"00000005", "Baltic", "Bydgoszcz", "1", ""});

    frame->Refresh();

    EXPECT_EQ(form->loads, loads + 1);
    EXPECT_GT(form->updates, updates);
    EXPECT_EQ(column(*list, 2), QStringList({"Bydgoszcz", "Gdańsk", "Kraków", "Łódź", "Poznań"}));
    EXPECT_EQ(list->selectedIndex(), 2);
}

TEST_F(LVFrame, F5AndAutomaticUpdateReloadAndEnterOpensTheRow)
{
    int opened = 0;
    QObject::connect(list, &TListView::dblClick, [&] { ++opened; });
    const int loads = form->loads;
    QTest::keyClick(list, Qt::Key_F5);
    EXPECT_EQ(form->loads, loads + 1);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(form->isVisible());

    frame->setRORefreshTime(30);
    frame->setROAutoListViewUpdate(true);
    EXPECT_EQ(form->loads, loads + 2);
    frame->setROAutoListViewUpdate(false);
    EXPECT_EQ(form->loads, loads + 3);
}

TEST_F(LVFrame, SelectionChangesReachTheOwner)
{
    const int updates = form->updates;
    list->setSelectedIndex(3);
    EXPECT_GT(form->updates, updates);
    EXPECT_EQ(list->key(list->selectedIndex()), 103);
    EXPECT_TRUE(list->selectByKey(101));
    EXPECT_EQ(list->selectedIndex(), 1);
    EXPECT_FALSE(list->selectByKey(999));
}

TEST_F(LVFrame, SumOfTheSearchColumnNeedsAColumnAndRows)
{
    const auto &shown = scriptedMessages().shown();
    scriptedMessages().expect(MessageService::Ok);
    frame->BitBtn1->click();
    EXPECT_EQ(shown.at(0).caption, "Nie wybrano kolumny");
    EXPECT_EQ(shown.at(0).text, "Wybierz kolumnę, w której wartość ma być sumowana.");
    EXPECT_EQ(shown.at(0).icon, MessageService::Icon::Warning);

    TframeListView::setSearchColumn(3);
    scriptedMessages().expect(MessageService::Ok);
    frame->BitBtn1->click();
    EXPECT_EQ(shown.at(1).caption, "Sumowanych pozycji: 3 z 4");
    EXPECT_TRUE(shown.at(1).text.startsWith(QString("Suma kolumny: 1\u00A0253,50\n")));
    EXPECT_EQ(shown.at(1).icon, MessageService::Icon::Information);

    form->rows.clear();
    frame->Refresh();
    scriptedMessages().expect(MessageService::Ok);
    frame->BitBtn1->click();
    EXPECT_EQ(shown.at(2).text, "Brak danych!");
    EXPECT_EQ(shown.size(), 3u);
}

TEST_F(LVFrame, ExportWritesTheListAndSaysSo)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("zlecenia.csv"));
    scriptedFilePrompts().answer(path);
    scriptedMessages().expect(MessageService::Ok);
    frame->BitBtn2->click();

    EXPECT_EQ(scriptedMessages().shown().at(0).text, "Operacja zakończona.");
    ASSERT_EQ(scriptedFilePrompts().asked().size(), 1u);
    EXPECT_EQ(scriptedFilePrompts().asked()[0].filter, "Pliki CSV|*.csv|Wszystkie pliki|*.*");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"));
    EXPECT_EQ(lines.value(0), "Nr;Klient;Miasto;Kwota;Data");
    EXPECT_EQ(lines.value(4), "00000002;Zakład Mięsny;Gdańsk;1234,50;2024-01-15");
}

TEST_F(LVFrame, ExportMessages)
{
    scriptedFilePrompts().answer(QStringLiteral("/nonexistent/dir/zlecenia.csv"));
    scriptedMessages().expect(MessageService::Ok);
    frame->exportToFile();
    EXPECT_EQ(scriptedMessages().shown().at(0).text,
              "Błąd otwarcia pliku (/nonexistent/dir/zlecenia.csv)");

    // A cancelled dialog writes nothing and says nothing.
    scriptedFilePrompts().answer(QString());
    frame->exportToFile();
    EXPECT_EQ(scriptedMessages().shown().size(), 1u);

    form->rows.clear();
    frame->Refresh();
    scriptedMessages().expect(MessageService::Ok);
    frame->exportToFile();
    EXPECT_EQ(scriptedMessages().shown().at(1).text, "Brak danych!");
}

TEST(LVFrameWithoutColumns, ExportSaysThereAreNoColumns)
{
    TfrmSampleRegister form({}, {});
    scriptedMessages().expect(MessageService::Ok);
    form.frame->exportToFile();
    EXPECT_EQ(scriptedMessages().shown().at(0).text, "Brak kolumn!");
}

TEST_F(LVFrame, SystemInformationCanBeCopied)
{
    scriptedMessages().expect(MessageService::Yes);
    frame->BitBtn3->click();
    const auto &box = scriptedMessages().shown().at(0);
    EXPECT_EQ(box.caption, "Informacja systemowa.");
    EXPECT_EQ(box.buttons, MessageService::Yes | MessageService::No);
    const QStringList lines = box.text.split(u'\n');
    ASSERT_EQ(lines.size(), 6);
    EXPECT_TRUE(lines[0].startsWith("Aplikacja: ") && lines[0].endsWith(" ver: -"));
    EXPECT_TRUE(lines[1].startsWith("Moduł: ") && lines[1].endsWith(" ver:0.1.0.0"));
    EXPECT_EQ(lines[2], "Okno: TfrmSampleRegister");
    EXPECT_TRUE(lines[4].startsWith("Zajęte: ") && lines[4].endsWith(" blokach."));
    EXPECT_EQ(lines[5], "Czy skopiować informacje do schowka?");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), box.text);
}

TEST_F(LVFrame, SearchPanelOpensAndCloses)
{
    EXPECT_EQ(frame->pnlSearch->height(), 40);
    frame->btnOpcje->click();
    EXPECT_EQ(frame->pnlSearch->height(), 100);
    frame->btnOpcje->click();
    EXPECT_EQ(frame->pnlSearch->height(), 40);
}

TEST(LVFrameSettings, SurviveClosingAndReopeningTheForm)
{
    TframeListView::setSearchColumn(-1);
    {
        auto form = TfrmRODefault::create<TfrmSampleRegister>(Captions, sampleRows(), 42);
        TframeListView *frame = form->frame;
        menuItem(frame->pmMain, "Ukryj kolumny", "Miasto")->trigger();
        frame->lvMain->setColumnWidth(0, 150);
        Typing::activate(form.get());
        untick(*frame, frame->cbSearchOnKey);
        untick(*frame, frame->cbCaseSensitive);
        chooseOption(*frame, TframeListView::StartsWith);
        EXPECT_EQ(frame->settingsGroup(), "42/TfrmSampleRegister/frameListView1");
    }
    auto form = TfrmRODefault::create<TfrmSampleRegister>(Captions, sampleRows(), 42);
    TframeListView *frame = form->frame;
    EXPECT_EQ(frame->lvMain->columnWidth(0), 150);
    EXPECT_EQ(frame->lvMain->columnWidth(2), 0);
    EXPECT_TRUE(menuItem(frame->pmMain, "Ukryj kolumny", "Miasto")->isChecked());
    EXPECT_FALSE(frame->acSearchOnKey->isChecked());
    EXPECT_FALSE(frame->cbCaseSensitive->isChecked());
    EXPECT_EQ(frame->rgSearchOptions->itemIndex(), TframeListView::StartsWith);

    // Another user starts from the layout's defaults.
    auto other = TfrmRODefault::create<TfrmSampleRegister>(Captions, sampleRows(), 43);
    EXPECT_EQ(other->frame->lvMain->columnWidth(2), 120);
    EXPECT_TRUE(other->frame->acSearchOnKey->isChecked());
}
