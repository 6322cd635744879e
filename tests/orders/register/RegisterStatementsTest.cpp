// The register's statements of issued invoices and its hidden partners report.
#include "PdfFileReportOutput.h"
#include "RegisterFixture.h"
#include "ReportOutput.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TfrmWybierzDatyAndKontrahenta.h"
#include "TfrmWyborWspolnika.h"

#include <QAction>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>

namespace {

QAction *entry(TfrmZlecPrzychodzace &form, const QString &caption)
{
    for (QAction *action : form.pmZestaw->actions()) {
        if (action->text() == caption)
            return action;
    }
    ADD_FAILURE() << "no entry " << caption.toStdString();
    return nullptr;
}

} // namespace

class RegisterStatements : public RegisterFixture
{
protected:
    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
};

TEST_F(RegisterStatements, IssuedInvoicesAskForThePeriodAndPreviewTheStatement)
{
    auto form = openRegister();
    QAction *issued = entry(*form, QStringLiteral("Wystawione faktury"));
    ASSERT_NE(issued, nullptr);
    EXPECT_EQ(form->pmZestaw->actions().indexOf(issued), 0);
    EXPECT_TRUE(issued->isVisible());
    scriptedModalRunner().expect<TfrmWybierzDatyAndKontrahenta>(
        [](TfrmWybierzDatyAndKontrahenta &dialog) {
            QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
            return dialog.result();
        });
    issued->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    ASSERT_EQ(files->deliveries().size(), 1u);
    EXPECT_TRUE(files->deliveries()[0].title.startsWith(
        QStringLiteral("ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA OBCY) OD ")));
}

TEST_F(RegisterStatements, TheHiddenEntryOpensThePartnersReport)
{
    auto form = openRegister();
    QAction *partners = entry(*form, QStringLiteral("Zlecenia w/g spedytora kraj-zagranica"));
    ASSERT_NE(partners, nullptr);
    EXPECT_FALSE(partners->isVisible());
    scriptedModalRunner().expect<TfrmWyborWspolnika>([](TfrmWyborWspolnika &dialog) {
        QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
        return dialog.result();
    });
    partners->trigger();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    ASSERT_EQ(files->deliveries().size(), 1u);
    EXPECT_EQ(files->deliveries()[0].title, "Zestawienie zleceń w podziale na kontrahenta");
}
