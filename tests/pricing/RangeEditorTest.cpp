#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TLimitedSpinEdit.h"
#include "TListView.h"
#include "TestData.h"
#include "TfrmAddEditCennikWierszeKolumny.h"
#include "TfrmAddEditGrupy.h"
#include "TfrmCennikWierszeKolumny.h"
#include "Typing.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using namespace TestData;

class RangeEditor : public SessionFixture
{
protected:

    std::unique_ptr<TfrmCennikWierszeKolumny> open()
    {
        return TfrmRODefault::create<TfrmCennikWierszeKolumny>(nullptr);
    }

    // The dialog answers with the bound; a refused bound cancels it.
    static void enter(int bound)
    {
        scriptedModalRunner().expect<TfrmAddEditCennikWierszeKolumny>(
            [bound](TfrmAddEditCennikWierszeKolumny &d) {
                Typing::activate(&d);
                Typing::into(d.edWartosc, QString::number(bound));
                Typing::accelerator(Qt::Key_Z);
                if (d.isVisible())
                    Typing::accelerator(Qt::Key_A);
                return d.result();
            });
    }

    // "from-to" of every kilometre range, in the database's order.
    QStringList kilometres()
    {
        QStringList result;
        Statement st(db.connection());
        st.add(QStringLiteral("SELECT ZAKRES_WOD, ZAKRES_WDO FROM CENNIKI_KRAJ_WIERSZE "
                              "ORDER BY ZAKRES_WDO"));
        for (st.exec(); !st.atEnd(); st.next())
            result << QStringLiteral("%1-%2").arg(st.integer(0)).arg(st.integer(1));
        return result;
    }
    static QStringList shown(const TListView &list)
    {
        QStringList result;
        for (int row = 0; row < list.itemCount(); ++row)
            result << list.text(row, 0) + u'-' + list.text(row, 1);
        return result;
    }
    static void select(TListView &list, const QString &upperBound)
    {
        for (int row = 0; row < list.itemCount(); ++row) {
            if (list.text(row, 1) == upperBound)
                list.setSelectedIndex(row);
        }
    }
};

const QStringList ThreeRanges{"0-50", "51-100", "101-200"};

} // namespace

TEST_F(RangeEditor, ADuplicateUpperBoundIsRefusedAndADoubleClickCorrectsARange)
{
    addKilogramRange(db.connection(), 0, 1000);
    auto form = open();
    scriptedMessages().expect();
    scriptedModalRunner().expect<TfrmAddEditCennikWierszeKolumny>(
        [](TfrmAddEditCennikWierszeKolumny &d) {
            Typing::activate(&d);
            // The dialog shows the unit of its axis once the field is left.
            Typing::into(d.edWartosc, QStringLiteral("12000"));
            Typing::press(Qt::Key_Tab);
            EXPECT_EQ(d.edWartosc->text(), QStringLiteral("12\u00a0000 kg"));
            EXPECT_EQ(d.windowTitle(), "Edycja");
            Typing::into(d.edWartosc, QStringLiteral("1000"));
            Typing::accelerator(Qt::Key_Z);
            EXPECT_TRUE(d.isVisible());
            Typing::accelerator(Qt::Key_A);
            EXPECT_TRUE(Typing::closes(&d));
            return d.result();
        });
    form->btnDodajKolumne->click();
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    const auto &box = scriptedMessages().shown().front();
    EXPECT_EQ(box.caption, "Edycja");
    EXPECT_EQ(box.text, "Pozycja z taką wartością już istnieje! Zapis do bazy niemożliwy.");
    EXPECT_EQ(box.icon, MessageService::Icon::None);
    EXPECT_EQ(db.count(QStringLiteral("CENNIKI_KRAJ_KOLUMNY")), 1);

    // A double click on the range opens it for correction.
    form->show();
    form->PageControl1->setCurrentWidget(form->tsKilogramy);
    TListView &list = *form->lvKolumny;
    list.setSelectedIndex(0);
    scriptedModalRunner().expect<TfrmAddEditCennikWierszeKolumny>(
        [](TfrmAddEditCennikWierszeKolumny &d) {
            EXPECT_EQ(d.value(), 1000);
            return 2;
        });
    const QRect row = list.visualRect(list.model()->index(0, 0));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_TRUE(scriptedModalRunner().allRun());
}

TEST_F(RangeEditor, EditingKeepsAnUnchangedBoundRefusesAnotherRangesAndRenumbers)
{
    for (auto [from, to] : {std::pair{0, 50}, {51, 100}, {101, 200}})
        addKilometreRange(db.connection(), from, to);
    auto form = open();

    select(*form->lvWiersze, QStringLiteral("100"));
    enter(100);
    form->btnPoprawWiersz->click();
    EXPECT_EQ(kilometres(), ThreeRanges);

    scriptedMessages().expect();
    enter(50);
    form->btnPoprawWiersz->click();
    EXPECT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(kilometres(), ThreeRanges);

    enter(150);
    form->btnPoprawWiersz->click();
    EXPECT_EQ(kilometres(), (QStringList{"0-50", "51-150", "151-200"}));
    EXPECT_EQ(form->lvWiersze->text(form->lvWiersze->selectedIndex(), 1), "150");
}

TEST_F(RangeEditor, ARangeUsedByACellStaysAnUnusedOneIsDeletedAfterAskingAndRenumbers)
{
    addKilometreRange(db.connection(), 0, 50);
    const int used = addKilometreRange(db.connection(), 51, 100);
    addKilometreRange(db.connection(), 101, 200);
    const int column = addKilogramRange(db.connection(), 0, 1000);
    addCell(db.connection(), {.group = 0, .row = used, .column = column, .amount = 120.0});
    auto form = open();

    select(*form->lvWiersze, QStringLiteral("100"));
    scriptedMessages().expect();
    form->btnUsunWiersz->click();
    const auto refusal = scriptedMessages().shown().back();
    EXPECT_EQ(refusal.caption, "Usuwanie");
    EXPECT_EQ(refusal.text, "Nie można usunąć pozycji, gdyż jest ona używana w cennikach! ");
    EXPECT_EQ(refusal.icon, MessageService::Icon::Information);
    EXPECT_EQ(kilometres(), ThreeRanges);
    select(*form->lvKolumny, QStringLiteral("1000"));
    scriptedMessages().expect();
    form->btnUsunKolumne->click();
    EXPECT_EQ(db.count(QStringLiteral("CENNIKI_KRAJ_KOLUMNY")), 1);

    select(*form->lvWiersze, QStringLiteral("50"));
    scriptedMessages().expect(MessageService::No);
    form->btnUsunWiersz->click();
    EXPECT_EQ(scriptedMessages().shown().back().text, "Czy na pewno usunąć pozycję?");
    EXPECT_EQ(kilometres(), ThreeRanges);
    scriptedMessages().expect(MessageService::Yes);
    form->btnUsunWiersz->click();
    EXPECT_EQ(kilometres(), (QStringList{"0-100", "101-200"}));
    EXPECT_EQ(shown(*form->lvWiersze), (QStringList{"0-100", "101-200"}));
}

TEST_F(RangeEditor, AUsedGroupIsKeptAnUnusedOneDeletedAfterAsking)
{
    const int used = addGroup(db.connection(), QStringLiteral("Chłodnie"));
    addCell(db.connection(), {.group = used,
                              .row = addKilometreRange(db.connection(), 0, 50),
                              .column = addKilogramRange(db.connection(), 0, 1000),
                              .amount = 300.0});
    addGroup(db.connection(), QStringLiteral("Pusta"));
    auto form = open();
    const auto select = [&](const QString &name) {
        for (int row = 0; row < form->lvGrupy->itemCount(); ++row) {
            if (form->lvGrupy->text(row, 0) == name)
                form->lvGrupy->setSelectedIndex(row);
        }
    };

    select(QStringLiteral("Chłodnie"));
    scriptedMessages().expect();
    form->btnUsunGrupe->click();
    EXPECT_EQ(scriptedMessages().shown().back().caption, "Usuwanie");
    EXPECT_EQ(scriptedMessages().shown().back().text,
              "Nie można usunąć grupy, gdyż jest ona używana w cennikach! ");
    EXPECT_EQ(db.count(QStringLiteral("CENNIKI_KRAJ_GRUPY")), 2);

    select(QStringLiteral("Pusta"));
    scriptedMessages().expect(MessageService::Yes);
    form->btnUsunGrupe->click();
    EXPECT_EQ(scriptedMessages().shown().back().text, "Czy na pewno usunąć grupę?");
    EXPECT_EQ(db.count(QStringLiteral("CENNIKI_KRAJ_GRUPY")), 1);
    EXPECT_EQ(db.count(QStringLiteral("CENNIKI_KRAJ_GRUPY"), QStringLiteral("NAZWA = 'Chłodnie'")), 1);
}

TEST_F(RangeEditor, UpperBoundsTypedInAnyOrderBecomeContiguousRangesEnterSavesNothing)
{
    auto form = open();
    EXPECT_TRUE(scriptedMessages().shown().empty());
    Typing::activate(form.get());
    for (const char *bound : {"100", "50", "200"}) {
        scriptedModalRunner().expect<TfrmAddEditCennikWierszeKolumny>(
            [bound](TfrmAddEditCennikWierszeKolumny &d) {
                Typing::activate(&d);
                EXPECT_EQ(QApplication::focusWidget(), d.edWartosc);
                Typing::press(Qt::Key_Return);
                EXPECT_TRUE(d.isVisible());
                Typing::keys(QString::fromLatin1(bound));
                Typing::accelerator(Qt::Key_Z);
                return d.result();
            });
        Typing::click(form->btnDodajWiersz);
    }
    EXPECT_EQ(kilometres(), ThreeRanges);
    EXPECT_EQ(shown(*form->lvWiersze), ThreeRanges);
    // The last one added is selected.
    EXPECT_EQ(form->lvWiersze->text(form->lvWiersze->selectedIndex(), 1), "200");
}

TEST_F(RangeEditor, AGroupTypedIsSavedWithAltZNotWithAltMAndCorrectedWithItsBlockedFlag)
{
    auto form = open();
    Typing::activate(form.get());
    const auto typeName = [](const QString &name, Qt::Key accelerator) {
        scriptedModalRunner().expect<TfrmAddEditGrupy>([=](TfrmAddEditGrupy &d) {
            Typing::activate(&d);
            EXPECT_EQ(d.edNazwa->maxLength(), 50);
            // One button per accelerator letter, or Alt+Z would only move
            // the focus between the two.
            QSet<QChar> letters;
            for (const QAbstractButton *button : d.findChildren<QAbstractButton *>()) {
                const qsizetype ampersand = button->text().indexOf(u'&');
                if (!button->isVisible() || ampersand < 0)
                    continue;
                const QChar letter = button->text().at(ampersand + 1).toUpper();
                EXPECT_FALSE(letters.contains(letter)) << button->text().toStdString();
                letters.insert(letter);
            }
            Typing::keys(name);
            Typing::accelerator(accelerator);
            EXPECT_TRUE(Typing::closes(&d));
            return d.result();
        });
    };
    typeName(QStringLiteral("Chłodnie"), Qt::Key_Z);
    Typing::click(form->btnDodajGrupe);
    typeName(QStringLiteral("Plandeki"), Qt::Key_M);
    Typing::click(form->btnDodajGrupe);
    EXPECT_EQ(db.count(QStringLiteral("CENNIKI_KRAJ_GRUPY")), 1);
    ASSERT_EQ(form->lvGrupy->itemCount(), 1);
    EXPECT_EQ(form->lvGrupy->selectedIndex(), 0);
    EXPECT_EQ(form->lvGrupy->text(0, 0), "Chłodnie");
    EXPECT_EQ(form->lvGrupy->text(0, 1), "");

    scriptedModalRunner().expect<TfrmAddEditGrupy>([](TfrmAddEditGrupy &d) {
        EXPECT_EQ(d.edNazwa->text(), "Chłodnie");
        EXPECT_FALSE(d.cbBlokada->isChecked());
        Typing::into(d.edNazwa, QStringLiteral("Chłodnie 2024"));
        // On the box itself: the check box is wider than its text.
        QTest::mouseClick(d.cbBlokada, Qt::LeftButton, {}, QPoint(6, d.cbBlokada->height() / 2));
        Typing::click(d.btnOk);
        return d.result();
    });
    Typing::click(form->btnPoprawGrupe);
    EXPECT_EQ(form->lvGrupy->text(0, 0), "Chłodnie 2024");
    EXPECT_EQ(form->lvGrupy->text(0, 1), "T");
    EXPECT_EQ(db.count(QStringLiteral("CENNIKI_KRAJ_GRUPY"),
                       QStringLiteral("NAZWA = 'Chłodnie 2024' AND BLOKADA = 1")),
              1);
}
