#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TfrmRODefault.h"
#include "TfrmWaitPlease.h"
#include "Typing.h"

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Flags
{
    bool ignoreShortcuts = false;
    bool closeOnEsc = false;
    bool showHeader = true;
    bool sortListView = false;
    bool autoUpdate = false;
};

// A small editor: two edits, an editable city combo, a plain list and two
// buttons whose accelerators are both D.
class SampleEditor : public TfrmRODefault
{
public:
    explicit SampleEditor(Flags flags)
    {
        setObjectName(QStringLiteral("frmSampleEditor"));
        edFirst = addEdit(QStringLiteral("edFirst"));
        edSecond = addEdit(QStringLiteral("edSecond"));
        cbMiasto = new QComboBox(pnlClient);
        cbMiasto->setObjectName(QStringLiteral("cbMiasto"));
        cbMiasto->setEditable(true);
        cbMiasto->lineEdit()->setMaxLength(40);
        cbMiasto->addItems(
            {QStringLiteral("Gdańsk"), QStringLiteral("Kraków"), QStringLiteral("Krosno")});
        cbMiasto->setCurrentIndex(-1);
        lvLista = new TListView(pnlClient);
        lvLista->setObjectName(QStringLiteral("lvLista"));
        lvLista->addColumn(QStringLiteral("Nazwa"));
        btnDodaj = new QPushButton(QStringLiteral("&Dodaj"), pnlClient);
        btnDrukuj = new QPushButton(QStringLiteral("&Drukuj"), pnlClient);
        auto *layout = new QVBoxLayout(pnlClient);
        const std::initializer_list<QWidget *> controls{edFirst, edSecond, cbMiasto,
                                                        lvLista, btnDodaj, btnDrukuj};
        for (QWidget *widget : controls)
            layout->addWidget(widget);
        setROIgnoreShortcutChecking(flags.ignoreShortcuts);
        setROCloseOnESC(flags.closeOnEsc);
        setROShowHeader(flags.showHeader);
        setROSortListView(flags.sortListView);
        setROAutoListViewUpdate(flags.autoUpdate);
    }

    QLineEdit *edFirst;
    QLineEdit *edSecond;
    QComboBox *cbMiasto;
    TListView *lvLista;
    QPushButton *btnDodaj;
    QPushButton *btnDrukuj;
    int loads = 0;
    int updates = 0;

protected:
    void LoadLVData() override
    {
        ++loads;
        lvLista->clear();
        for (const char *name : {"beta", "Alfa", "gamma"})
            lvLista->addItem(QString::fromUtf8(name));
    }
    void UpdateControls() override { ++updates; }

private:
    QLineEdit *addEdit(const QString &name)
    {
        auto *edit = new QLineEdit(pnlClient);
        edit->setObjectName(name);
        edit->setMaxLength(20);
        return edit;
    }
};

std::unique_ptr<SampleEditor> createEditor(Flags flags)
{
    scriptedMessages().expect(MessageService::Ok);   // the doubled D, unless ignored
    auto form = TfrmRODefault::create<SampleEditor>(flags);
    scriptedMessages().clear();
    return form;
}

void showActive(QWidget &form)
{
    form.show();
    QApplication::setActiveWindow(&form);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
}

} // namespace

TEST(DefaultWindow, DoubledAcceleratorIsReportedOnceUnlessSwitchedOffHiddenOrOnABitButton)
{
    scriptedMessages().expect(MessageService::Ok);
    auto form = TfrmRODefault::create<SampleEditor>(Flags{});
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Zdublowany shortcut dla litery \"D\"");

    auto unchecked = TfrmRODefault::create<SampleEditor>(Flags{.ignoreShortcuts = true});
    SampleEditor hidden(Flags{});
    hidden.btnDrukuj->hide();
    (void)new TBitBtn(QStringLiteral("&Dalej"), hidden.pnlClient);
    hidden.ensureCreated();
    EXPECT_EQ(scriptedMessages().shown().size(), 1u);
}

TEST(DefaultWindow, FieldsWithoutLimitsWarnTheAuthorAFixedListComboNeedsNone)
{
    SampleEditor form(Flags{.ignoreShortcuts = true});
    (new QComboBox(form.pnlClient))->setObjectName(QStringLiteral("cbRodzaj"));
    form.edSecond->setMaxLength(32767);
    form.cbMiasto->lineEdit()->setMaxLength(32767);
    auto *spin = new QSpinBox(form.pnlClient);
    spin->setObjectName(QStringLiteral("seIlosc"));
    spin->setMaximum(0);
    for (int i = 0; i < 3; ++i)
        scriptedMessages().expect(MessageService::Ok);
    form.ensureCreated();

    const auto &shown = scriptedMessages().shown();
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[0].caption, "frmSampleEditor");
    EXPECT_EQ(shown[0].text, "Ustal długość Edita : edSecond");
    EXPECT_EQ(shown[0].icon, MessageService::Icon::Warning);
    EXPECT_EQ(shown[1].text, "Ustal długość ComboBoxa : cbMiasto");
    EXPECT_EQ(shown[2].text, "Ustal max RxSpinEdita : seIlosc");
}

TEST(DefaultWindow, EnterMovesToTheNextField)
{
    auto form = createEditor(Flags{});
    showActive(*form);
    form->edFirst->setFocus();
    QTest::keyClick(form->edFirst, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), form->edSecond);
    EXPECT_TRUE(form->isVisible());

    // Enter elsewhere presses no default button.
    form->btnOk->setDefault(true);
    form->lvLista->setFocus();
    QTest::keyClick(form->lvLista, Qt::Key_Return);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->result(), 0);
}

TEST(DefaultWindow, EscClosesWithCancelOnlyWhenAllowed)
{
    auto staying = createEditor(Flags{});
    showActive(*staying);
    QTest::keyClick(staying->edFirst, Qt::Key_Escape);
    EXPECT_TRUE(staying->isVisible());

    auto closing = createEditor(Flags{.closeOnEsc = true});
    showActive(*closing);
    QTest::keyClick(closing->edFirst, Qt::Key_Escape);
    EXPECT_FALSE(closing->isVisible());
    EXPECT_EQ(closing->result(), TfrmRODefault::mrCancel);
}

TEST(DefaultWindow, ButtonsAndCloseBoxSetTheModalResult)
{
    auto form = createEditor(Flags{});
    const std::pair<void (*)(SampleEditor &), int> cases[] = {
        {[](SampleEditor &e) { Typing::click(e.btnOk); }, TfrmRODefault::mrOk},
        {[](SampleEditor &e) { e.close(); }, TfrmRODefault::mrCancel},
        {[](SampleEditor &e) { Typing::click(e.btnCancel); }, TfrmRODefault::mrCancel}};
    for (const auto &[act, result] : cases) {
        scriptedModalRunner().expect<SampleEditor>([act](SampleEditor &editor) {
            act(editor);
            return editor.result();
        });
        EXPECT_EQ(form->showModal(), result);
    }
    EXPECT_TRUE(scriptedModalRunner().allRun());
}

TEST(DefaultWindow, TypeAheadCompletesAndBackspaceDoesNot)
{
    auto form = createEditor(Flags{});
    showActive(*form);
    QLineEdit *edit = form->cbMiasto->lineEdit();
    form->cbMiasto->setFocus();

    QTest::keyClicks(form->cbMiasto, QStringLiteral("K"));
    EXPECT_EQ(edit->text(), "Kraków");
    QTest::keyClicks(form->cbMiasto, QStringLiteral("r"));
    EXPECT_EQ(edit->text(), "Kraków");
    EXPECT_EQ(edit->selectedText(), "aków");

    QTest::keyClick(form->cbMiasto, Qt::Key_Backspace);
    EXPECT_EQ(edit->text(), "Kr");
    EXPECT_EQ(edit->selectedText(), "");

    QTest::keyClicks(form->cbMiasto, QStringLiteral("o"));
    EXPECT_EQ(edit->text(), "Krosno");
    EXPECT_EQ(edit->selectedText(), "sno");
}

TEST(DefaultWindow, HeaderHeightFollowsTheDescriptionAndTheHeaderCanBeLeftOut)
{
    auto form = createEditor(Flags{});
    form->show();
    EXPECT_EQ(form->lblHeader->height(), 48);
    form->hide();
    form->lblHeaderDescription->setText(QStringLiteral("Opis"));
    form->show();
    EXPECT_EQ(form->lblHeader->height(), 20);

    auto bare = createEditor(Flags{.showHeader = false});
    bare->show();
    EXPECT_EQ(bare->pnlHeader, nullptr);
    EXPECT_EQ(bare->findChild<QLabel *>(QStringLiteral("lblHeader")), nullptr);
}

TEST(DefaultWindow, AutomaticUpdateLoadsDuringCreationAndPlainListsSortByAClickedColumn)
{
    auto form = createEditor(Flags{.sortListView = true, .autoUpdate = true});
    EXPECT_EQ(form->loads, 1);
    EXPECT_EQ(form->lvLista->itemCount(), 3);
    EXPECT_EQ(form->lvLista->tag(), -1);
    form->show();
    QTest::mouseClick(form->lvLista->header()->viewport(), Qt::LeftButton, {},
                      QPoint(form->lvLista->header()->sectionPosition(0) + 5, 5));
    EXPECT_EQ(form->lvLista->tag(), 0);
    EXPECT_EQ(form->lvLista->caption(0), "Alfa");
    EXPECT_EQ(form->lvLista->caption(2), "gamma");
}

TEST(WaitPlease, OneWindowWhileARoutineRuns)
{
    EXPECT_EQ(frmWaitPlease(), nullptr);
    {
        WaitPleaseScope wait(3);
        ASSERT_EQ(frmWaitPlease(), &wait.window());
        EXPECT_EQ(wait.window().windowTitle(), "Pobieranie danych");
        EXPECT_TRUE(wait.window().isVisible());
        EXPECT_TRUE(wait.window().windowFlags() & Qt::WindowStaysOnTopHint);
        for (int i = 0; i < 4; ++i)
            wait.window().advance();
        EXPECT_EQ(wait.window().ProgressBar1->value(), 3);
    }
    EXPECT_EQ(frmWaitPlease(), nullptr);
}
