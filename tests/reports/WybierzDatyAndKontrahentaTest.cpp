// The period dialog of the statements of invoices.
#include "ScriptedMessages.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TfrmWybierzDatyAndKontrahenta.h"
#include "Typing.h"

#include <QApplication>
#include <QCheckBox>
#include <QTest>

#include <gtest/gtest.h>

namespace {

std::unique_ptr<TfrmWybierzDatyAndKontrahenta> open()
{
    auto dialog = TfrmRODefault::create<TfrmWybierzDatyAndKontrahenta>();
    dialog->show();
    dialog->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    return dialog;
}

// The box's accelerator clicks it a moment later, as a person sees it.
void pressAlt(Qt::Key key, QCheckBox *box)
{
    const bool before = box->isChecked();
    QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([box, before] { return box->isChecked() != before; }))
        << box->text().toStdString();
}

} // namespace

TEST(WybierzDatyAndKontrahenta, StartsOnTheCurrentMonthWithPreviewTypedChoicesComeBackWithOk)
{
    const auto dialog = open();
    const QDate today = QDate::currentDate();
    EXPECT_EQ(dialog->from(), QDate(today.year(), today.month(), 1));
    EXPECT_EQ(dialog->to(), QDate(today.year(), today.month(), today.daysInMonth()));
    EXPECT_FALSE(dialog->ownExecutor());
    EXPECT_TRUE(dialog->previewFirst());

    Typing::into(dialog->deOd, QStringLiteral("2024-03-01"));
    Typing::into(dialog->deDo, QStringLiteral("2024-03-31"));
    pressAlt(Qt::Key_W, dialog->cbWlasny);
    pressAlt(Qt::Key_P, dialog->cbPodglad);
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);

    EXPECT_EQ(dialog->result(), TfrmRODefault::mrOk);
    EXPECT_EQ(dialog->from(), QDate(2024, 3, 1));
    EXPECT_EQ(dialog->to(), QDate(2024, 3, 31));
    EXPECT_TRUE(dialog->ownExecutor());
    EXPECT_FALSE(dialog->previewFirst());
}

TEST(WybierzDatyAndKontrahenta, APeriodEndingBeforeItStartsIsRefusedAndEscCancels)
{
    const auto dialog = open();
    Typing::into(dialog->deOd, QStringLiteral("2024-05-02"));
    Typing::into(dialog->deDo, QStringLiteral("2024-05-01"));
    scriptedMessages().expect();
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Zestawienie");
    EXPECT_TRUE(scriptedMessages().shown()[0].text.contains("przed swoim początkiem"));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), 0);
    EXPECT_EQ(dialog->from(), QDate(2024, 5, 2));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(dialog->result(), TfrmRODefault::mrCancel);
}
