// The module's two entry points: the incoming orders and the partners report.
#include "DemoSeeder.h"
#include "ModuleEntryPoints.h"
#include "PdfFileReportOutput.h"
#include "RunRepWspolnicy.h"
#include "RunZlecPrzychodzace.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SessionContext.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TframeListView.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmWyborWspolnika.h"
#include "TfrmZlecPrzychodzace.h"
#include "Typing.h"

#include <QAction>
#include <QApplication>
#include <QDate>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

#include <functional>

namespace {

class Module : public SessionFixture
{
protected:
    void SetUp() override
    {
        DemoSeeder::Options options;
        options.orders = 40;
        DemoSeeder(db.connection(), options).seed();
    }

    // Runs an entry point of the built library as the host does. Its windows
    // run their own modal loops: the user acts on the active one every 20 ms.
    std::int32_t runLoaded(const char *name, const std::function<void(QWidget &)> &user)
    {
        QLibrary library(QStringLiteral(HAULIX_MODULE_PATH));
        if (!library.load()) {
            ADD_FAILURE() << library.errorString().toStdString();
            return -1;
        }
        const auto entry = reinterpret_cast<ModuleEntry>(library.resolve(name));
        if (!entry) {
            ADD_FAILURE() << "no entry " << name;
            return -1;
        }
        QTimer timer;
        timer.setInterval(20);
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (QWidget *window = QApplication::activeModalWidget())
                user(*window);
        });
        timer.start();
        return entry(1, &db.connection(), &transaction);
    }
};

} // namespace

TEST_F(Module, TheLibrarysOrdersEntryShowsTheRegisterAndTheCloseBoxReturnsCancel)
{
    QString shownClass;
    int listed = -1;
    EXPECT_EQ(runLoaded(ModuleEntryPoints::IncomingOrders,
                        [&](QWidget &window) {
                            shownClass = QString::fromLatin1(window.metaObject()->className());
                            // The module's classes are its own; Qt's are shared.
                            if (const auto *list = window.findChild<QTreeView *>(
                                    QStringLiteral("lvMain")))
                                listed = list->model()->rowCount();
                            window.close();
                        }),
              2);
    EXPECT_EQ(shownClass, "TfrmZlecPrzychodzace");
    const QDate today = QDate::currentDate();
    EXPECT_EQ(listed, db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                               QStringLiteral("DATA BETWEEN '%1' AND '%2' OR DATA IS NULL")
                                   .arg(today.addMonths(-1).toString(Qt::ISODate),
                                        today.addMonths(1).toString(Qt::ISODate))));
}

TEST_F(Module, TheLibrarysPartnersEntryAsksThenPreviewsAndReturnsOneEitherWay)
{
    // The user confirms the dialog on "Dalej >>>", then closes the preview;
    // or closes the dialog.
    for (const bool confirm : {true, false}) {
        QStringList shown;
        EXPECT_EQ(runLoaded(ModuleEntryPoints::PartnersReport,
                            [&](QWidget &window) {
                                shown << QString::fromLatin1(window.metaObject()->className());
                                auto *ok = window.findChild<QPushButton *>(QStringLiteral("btnOk"));
                                if (confirm && shown.size() == 1 && ok)
                                    ok->click();
                                else
                                    window.close();
                            }),
                  1);
        ASSERT_FALSE(shown.isEmpty());
        EXPECT_EQ(shown.first(), "TfrmWyborWspolnika");
        if (confirm)
            EXPECT_EQ(shown.value(1), "QPrintPreviewDialog");
        else
            EXPECT_EQ(shown.size(), 1);
    }
}

TEST_F(Module, ThePartnersEntryStoresTheSessionAndPreviewsTheConfirmedSelection)
{
    QTemporaryDir dir;
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

TEST_F(Module, ASecondCallWorksForItsOwnUser)
{
    scriptedModalRunner().expect<TfrmZlecPrzychodzace>([](TfrmZlecPrzychodzace &form) {
        form.frameListView1->lvMain->setSelectedIndex(0);
        scriptedMessages().expect(MessageService::No);
        form.acDelete->trigger();   // user 1 may delete: asked
        return 2;
    });
    EXPECT_EQ(runZlecPrzychodzace(1, &db.connection(), &transaction), 2);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Usuwanie");

    scriptedMessages().clear();
    scriptedModalRunner().expect<TfrmZlecPrzychodzace>([](TfrmZlecPrzychodzace &form) {
        form.frameListView1->lvMain->setSelectedIndex(0);
        scriptedMessages().expect();
        form.acDelete->trigger();   // user 2 may not: refused
        return 2;
    });
    EXPECT_EQ(runZlecPrzychodzace(2, &db.connection(), &transaction), 2);
    EXPECT_EQ(session().UserID, 2);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Uprawnienia");
}

TEST_F(Module, AnOrderAddedFromTheRegisterIsSavedAndSelectedAndTheCloseButtonReturnsOk)
{
    const int orders = db.count(QStringLiteral("ZLECENIA_PRZYCH"));
    int selected = 0;
    scriptedModalRunner().expect<TfrmZlecPrzychodzace>([&](TfrmZlecPrzychodzace &form) {
        scriptedModalRunner().expect<TfrmAddEditZlecenia_Przych>(
            [](TfrmAddEditZlecenia_Przych &editor) {
                Typing::activate(&editor);
                Typing::into(editor.deAwizo,
                             QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy")));
                Typing::accelerator(Qt::Key_Z);
                return editor.result();
            });
        form.frameListView1->BitBtn5->click();
        const TListView *list = form.frameListView1->lvMain;
        selected = list->key(list->selectedIndex());
        form.btnOk->click();
        return form.result();
    });
    EXPECT_EQ(runZlecPrzychodzace(1, &db.connection(), &transaction), 1);
    EXPECT_EQ(session().Database, &db.connection());
    EXPECT_EQ(session().Transaction, &transaction);
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), orders + 1);
    const QString newest = QStringLiteral("SELECT MAX(ID_ZLECENIA_PRZYCH) FROM ZLECENIA_PRZYCH");
    EXPECT_EQ(selected, db.scalar(newest).toInt());
}
