#include "DemoSeeder.h"
#include "ModuleEntryPoints.h"
#include "RunZlecPrzychodzace.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SessionContext.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TframeListView.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmZlecPrzychodzace.h"

#include <QAction>
#include <QApplication>
#include <QLibrary>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

namespace {

class Module : public SessionFixture
{
protected:
    void SetUp() override
    {
        DemoSeeder::Options options;
        options.orders = 10;
        DemoSeeder(db.connection(), options).seed();
    }
};

} // namespace

TEST_F(Module, TheLibraryExportsTheEntryPointAndTheCloseBoxReturnsCancel)
{
    QLibrary library(QStringLiteral(HAULIX_MODULE_PATH));
    ASSERT_TRUE(library.load()) << library.errorString().toStdString();
    const auto entry
        = reinterpret_cast<ModuleEntry>(library.resolve(ModuleEntryPoints::IncomingOrders));
    ASSERT_NE(entry, nullptr);

    // The module runs its window with its own modal loop; the close box
    // ends it, as a user would.
    QString shownClass;
    int listed = -1;
    QTimer closer;
    closer.setInterval(20);
    QObject::connect(&closer, &QTimer::timeout, [&] {
        QWidget *window = QApplication::activeModalWidget();
        if (!window)
            return;
        shownClass = QString::fromLatin1(window->metaObject()->className());
        // The module's classes are its own; Qt's are shared.
        if (const auto *list = window->findChild<QTreeView *>(QStringLiteral("lvMain")))
            listed = list->model()->rowCount();
        window->close();
    });
    closer.start();
    const std::int32_t result = entry(1, &db.connection(), &transaction);
    closer.stop();

    EXPECT_EQ(result, 2);
    EXPECT_EQ(shownClass, "TfrmZlecPrzychodzace");
    const QDate today = QDate::currentDate();
    EXPECT_EQ(listed, db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                               QStringLiteral("DATA BETWEEN '%1' AND '%2' OR DATA IS NULL")
                                   .arg(today.addMonths(-1).toString(Qt::ISODate),
                                        today.addMonths(1).toString(Qt::ISODate))));
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
                editor.deAwizo->setValue(DateTime::today());
                editor.btnOk->click();
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
