#include "DemoSeeder.h"
#include "Format.h"
#include "PriceLookup.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TListView.h"
#include "TframeListView.h"
#include "TfrmCennikMenu.h"
#include "TfrmCennikWierszeKolumny.h"
#include "TfrmCenniki.h"
#include "TfrmMiasta.h"
#include "TfrmStawkiTaryfowe.h"

#include <QComboBox>

#include <gtest/gtest.h>

// The four registers on the demo company the host program seeds.
class OnTheDemoDatabase : public SessionFixture
{
protected:
    void SetUp() override
    {
        DemoSeeder::Options options;
        options.orders = 20;
        DemoSeeder(db.connection(), options).seed();
    }
};

TEST_F(OnTheDemoDatabase, TheMenuOpensTheGridWhoseCellsTheLookUpFinds)
{
    auto menu = TfrmRODefault::create<TfrmCennikMenu>(nullptr);
    QString shown;
    scriptedModalRunner().expect<TfrmCenniki>([&shown](TfrmCenniki &grid) {
        EXPECT_EQ(grid.RowCount(), 7);
        EXPECT_EQ(grid.ColCount(), 5);
        EXPECT_EQ(grid.cbCennik->count(), 3);   // the blocked demo group is left out
        EXPECT_EQ(grid.Cells(0, 2), "51-100");
        EXPECT_EQ(grid.Cells(4, 0), "12001-24000");
        shown = grid.Cells(4, 2);
        return 2;
    });
    menu->BitBtn1->click();
    EXPECT_TRUE(scriptedModalRunner().allRun());
    EXPECT_TRUE(scriptedMessages().shown().empty());
    const double found = PriceLookup::amount(db.connection(), 0, 100, 12.345);
    EXPECT_GT(found, 0.0);
    EXPECT_EQ(Format::number(found, u"#,##0.00"), shown);
}

TEST_F(OnTheDemoDatabase, TheRegistersListTheDemoRecords)
{
    // The range editor lists every range and the blocked group too.
    auto editor = TfrmRODefault::create<TfrmCennikWierszeKolumny>(nullptr);
    EXPECT_EQ(editor->lvWiersze->itemCount(), 6);
    EXPECT_EQ(editor->lvKolumny->itemCount(), 4);
    EXPECT_EQ(editor->lvGrupy->itemCount(), 3);
    for (const int own : {0, 1}) {
        auto tariffs = TfrmRODefault::create<TfrmStawkiTaryfowe>(nullptr, 0, own);
        const int stored = db.count(QStringLiteral("TARYFYPRZEWOZNIKA"),
                                    QStringLiteral("TARYFAWLASNA = %1").arg(own));
        EXPECT_EQ(tariffs->frameListView1->lvMain->itemCount(), stored) << own;
        EXPECT_GT(stored, 0) << own;
    }
    auto cities = TfrmRODefault::create<TfrmMiasta>(nullptr);
    EXPECT_EQ(cities->CBMiasta->currentText(), "Łódź");
    const int routes = db.count(QStringLiteral("ODLEGLOSCI"),
                                QStringLiteral("IDMIASTAOD = %1").arg(cities->selectedCity()));
    EXPECT_EQ(cities->frameListView1->lvMain->itemCount(), routes);
    EXPECT_GT(routes, 0);
    EXPECT_TRUE(scriptedMessages().shown().empty());
}
