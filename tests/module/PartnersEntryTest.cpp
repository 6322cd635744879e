// The second entry point: the partners report.
#include "DemoSeeder.h"
#include "ModuleEntryPoints.h"
#include "PdfFileReportOutput.h"
#include "RunRepWspolnicy.h"
#include "ScriptedModalRunner.h"
#include "SessionContext.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TfrmWyborWspolnika.h"

#include <QApplication>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class PartnersEntry : public SessionFixture
{
protected:
    void SetUp() override
    {
        DemoSeeder::Options options;
        options.orders = 40;
        DemoSeeder(db.connection(), options).seed();
    }

    QTemporaryDir dir;
};

} // namespace

TEST_F(PartnersEntry, TheLoadedLibraryAsksThenPreviewsAndReturnsOneEitherWay)
{
    QLibrary library(QStringLiteral(HAULIX_MODULE_PATH));
    ASSERT_TRUE(library.load()) << library.errorString().toStdString();
    const auto entry
        = reinterpret_cast<ModuleEntry>(library.resolve(ModuleEntryPoints::PartnersReport));
    ASSERT_NE(entry, nullptr);

    // The library's windows run their own modal loops: the user confirms
    // the dialog with Enter on "Dalej >>>", then closes the preview; or
    // closes the dialog.
    for (const bool confirm : {true, false}) {
        QStringList shown;
        QTimer user;
        user.setInterval(20);
        QObject::connect(&user, &QTimer::timeout, [&] {
            QWidget *window = QApplication::activeModalWidget();
            if (!window)
                return;
            shown << QString::fromLatin1(window->metaObject()->className());
            if (confirm && shown.size() == 1) {
                auto *ok = window->findChild<QPushButton *>(QStringLiteral("btnOk"));
                ASSERT_NE(ok, nullptr);
                ok->click();
            } else {
                window->close();
            }
        });
        user.start();
        const std::int32_t result = entry(1, &db.connection(), &transaction);
        user.stop();

        EXPECT_EQ(result, 1);
        ASSERT_FALSE(shown.isEmpty());
        EXPECT_EQ(shown.first(), "TfrmWyborWspolnika");
        if (confirm)
            EXPECT_EQ(shown.value(1), "QPrintPreviewDialog");
        else
            EXPECT_EQ(shown.size(), 1);
    }
}

TEST_F(PartnersEntry, TheEntryStoresTheSessionAndPreviewsTheConfirmedSelection)
{
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
    scriptedModalRunner().expect<TfrmWyborWspolnika>([](TfrmWyborWspolnika &dialog) {
        QTest::mouseClick(dialog.btnOk, Qt::LeftButton);
        return dialog.result();
    });
    EXPECT_EQ(runRepWspolnicy(3, &db.connection(), &transaction), 1);
    EXPECT_EQ(session().UserID, 3);
    EXPECT_EQ(session().Database, &db.connection());
    EXPECT_EQ(session().Transaction, &transaction);
    ASSERT_EQ(files->deliveries().size(), 1u);
    EXPECT_EQ(files->deliveries()[0].kind, PdfFileReportOutput::Kind::Preview);
    EXPECT_EQ(files->deliveries()[0].title, "Zestawienie zleceń w podziale na kontrahenta");
}
