#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "SessionFixture.h"
#include "TBitBtn.h"
#include "TestData.h"
#include "TfrmAdvancedEdit.h"
#include "Typing.h"

#include <QComboBox>
#include <QLabel>

#include <gtest/gtest.h>

namespace {

class AdvancedEdit : public SessionFixture
{
protected:
    void SetUp() override
    {
        kowalski = addUser(QStringLiteral("jkowalski"), QStringLiteral("Jan"),
                           QStringLiteral("Kowalski"));
        nowak = addUser(QStringLiteral("anowak"), QStringLiteral("Anna"), QStringLiteral("Nowak"));
        adamczyk = addUser(QStringLiteral("padamczyk"), QStringLiteral("Piotr"),
                           QStringLiteral("Adamczyk"));
        TZlecenia_przychObj order(db.connection());
        order.NUMER = 15;
        order.IDUSER = kowalski;
        order.KWOTA = 1250.0;
        order.Insert();
        orderKey = order.GetMaxId();
    }

    int addUser(const QString &login, const QString &firstName, const QString &surname)
    {
        return TestData::addUser(db.connection(), {login, firstName, surname});
    }

    int issuingUser()
    {
        return db
            .scalar(
                QStringLiteral("SELECT IDUSER FROM ZLECENIA_PRZYCH WHERE ID_ZLECENIA_PRZYCH = %1")
                    .arg(orderKey))
            .toInt();
    }

    int kowalski = 0;
    int nowak = 0;
    int adamczyk = 0;
    int orderKey = 0;
};

} // namespace

TEST_F(AdvancedEdit, ListsUsersBySurnameAndShowsTheOrdersIssuer)
{
    auto form = TfrmRODefault::create<TfrmAdvancedEdit>(nullptr, orderKey);
    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_FALSE(form->lblKategoria->isVisibleTo(form.get()));
    ASSERT_EQ(form->cbWypisal->count(), 3);
    EXPECT_EQ(form->cbWypisal->itemText(0), "Piotr Adamczyk");
    EXPECT_EQ(form->cbWypisal->itemText(1), "Jan Kowalski");
    EXPECT_EQ(form->cbWypisal->itemText(2), "Anna Nowak");
    // Saving a choice goes through the key behind the name.
    EXPECT_EQ(form->cbWypisal->itemData(2).toInt(), nowak);

    scriptedModalRunner().expect<TfrmAdvancedEdit>([](TfrmAdvancedEdit &edit) {
        EXPECT_EQ(edit.cbWypisal->currentText(), "Jan Kowalski");
        return 2;
    });
    form->showModal();
}

TEST_F(AdvancedEdit, EscLeavesTheOrderAlone)
{
    auto form = TfrmRODefault::create<TfrmAdvancedEdit>(nullptr, orderKey);
    scriptedModalRunner().expect<TfrmAdvancedEdit>([](TfrmAdvancedEdit &edit) {
        Typing::activate(&edit);
        edit.cbWypisal->setFocus();
        Typing::keys(QStringLiteral("Piotr"));
        EXPECT_EQ(edit.cbWypisal->currentText(), "Piotr Adamczyk");
        Typing::press(Qt::Key_Escape);
        return edit.result();
    });
    EXPECT_EQ(form->showModal(), TfrmRODefault::mrCancel);
    EXPECT_EQ(issuingUser(), kowalski);
}

TEST_F(AdvancedEdit, AnIssuerThatIsNoUserLeavesNothingChosenAndSaveKeepsIt)
{
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDUSER = 999"));
    auto form = TfrmRODefault::create<TfrmAdvancedEdit>(nullptr, orderKey);
    scriptedModalRunner().expect<TfrmAdvancedEdit>([](TfrmAdvancedEdit &edit) {
        EXPECT_EQ(edit.cbWypisal->currentIndex(), -1);
        edit.btnOk->click();
        return edit.result();
    });
    EXPECT_EQ(form->showModal(), TfrmRODefault::mrOk);
    EXPECT_EQ(issuingUser(), 999);
    // Only the issuer is written.
    const TZlecenia_przychObj kept = TZlecenia_przychObj(db.connection()).SelectById(orderKey);
    EXPECT_EQ(kept.NUMER, 15);
    EXPECT_DOUBLE_EQ(kept.KWOTA, 1250.0);
}
