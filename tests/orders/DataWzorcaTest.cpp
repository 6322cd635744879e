#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TfrmDataWzorca.h"

#include <QLabel>

#include <gtest/gtest.h>

TEST(DataWzorca, ReturnsOkAndTheChosenDay)
{
    auto form = TfrmRODefault::create<TfrmDataWzorca>();
    EXPECT_EQ(form->windowTitle(), "Data kopiowania z wzorca");
    EXPECT_EQ(form->lblData->text(), "Data");
    EXPECT_EQ(form->date(), QDate::currentDate());
    scriptedModalRunner().expect<TfrmDataWzorca>([](TfrmDataWzorca &f) {
        f.deData->setDate(QDate(2024, 12, 24));
        f.btnOk->click();
        return f.result();
    });
    EXPECT_EQ(form->showModal(), TfrmRODefault::mrOk);
    EXPECT_EQ(form->date(), QDate(2024, 12, 24));
}

TEST(DataWzorca, CancelReturnsTwo)
{
    auto form = TfrmRODefault::create<TfrmDataWzorca>();
    scriptedModalRunner().expect<TfrmDataWzorca>([](TfrmDataWzorca &f) {
        f.btnCancel->click();
        return f.result();
    });
    EXPECT_EQ(form->showModal(), TfrmRODefault::mrCancel);
}
