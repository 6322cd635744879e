// Invoicing from the register and removing the selected order's invoice.
#include "RegisterFixture.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TframeListView.h"
#include "TfrmWybierzZlecenia.h"
#include "TfrmWyborKontrahenta.h"
#include "Typing.h"

#include <QComboBox>
#include <QTest>

class RegisterInvoicing : public RegisterFixture
{
protected:
    // Answers the client choice with what it proposed, and cancels.
    int proposedClient()
    {
        int proposed = -1;
        scriptedModalRunner().expect<TfrmWyborKontrahenta>([&](TfrmWyborKontrahenta &dialog) {
            proposed = dialog.client();
            return int(TfrmRODefault::mrCancel);
        });
        Typing::click(form->BitBtn2);
        EXPECT_TRUE(scriptedModalRunner().allRun());
        return proposed;
    }

    std::unique_ptr<TfrmZlecPrzychodzace> form;
};

TEST_F(RegisterInvoicing, FakturujProposesTheSelectedOrdersClientOrAll)
{
    const int order = addOrder([](TZlecenia_przychObj &o) { o.IDKONTRAHENTA = 3; });
    form = openRegister();
    select(*form, order);
    EXPECT_EQ(proposedClient(), 3);
    form->frameListView1->lvMain->setSelectedIndex(-1);
    EXPECT_EQ(proposedClient(), 0);
}

TEST_F(RegisterInvoicing, DalejOpensTheOrdersOfTheChosenClientAndTheRegisterReloads)
{
    const int order = addOrder([](TZlecenia_przychObj &o) { o.IDKONTRAHENTA = 3; });
    form = openRegister();
    select(*form, order);
    scriptedModalRunner().expect<TfrmWyborKontrahenta>([](TfrmWyborKontrahenta &dialog) {
        Typing::click(dialog.btnOk);
        return dialog.result();
    });
    int listed = -1;
    scriptedModalRunner().expect<TfrmWybierzZlecenia>([&](TfrmWybierzZlecenia &selection) {
        listed = selection.frameListView1->lvMain->findByKey(order);
        db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET NUMER=4242 WHERE ID_ZLECENIA_PRZYCH=%1")
                    .arg(order));
        return int(TfrmRODefault::mrCancel);
    });
    Typing::click(form->BitBtn2);
    EXPECT_GE(listed, 0);
    EXPECT_EQ(cell(*form, order, 0), "00004242");
}

TEST_F(RegisterInvoicing, OnlyUserOneRemovesAnInvoiceAndEveryOrderOfItIsFreed)
{
    const int selected = addOrder();
    const int sibling = addOrder();
    const int invoice = invoiceOf({selected, sibling});
    form = openRegister();
    EXPECT_FALSE(form->BitBtn11->isEnabled());
    Typing::activate(form.get());
    Typing::press(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(form->BitBtn11->isEnabled());
    select(*form, selected);

    setUser(2);
    scriptedMessages().expect();
    Typing::click(form->BitBtn11);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Brak uprawnień do usuwania ");
    EXPECT_EQ(order(sibling).IDFAKTURY, invoice);

    setUser(1);
    scriptedMessages().clear();
    scriptedMessages().expect(MessageService::Yes);
    Typing::click(form->BitBtn11);
    EXPECT_EQ(scriptedMessages().shown().at(0).caption, "Usuwanie");
    EXPECT_EQ(order(selected).IDFAKTURY, 0);
    EXPECT_EQ(order(sibling).IDFAKTURY, 0);
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY"), QStringLiteral("ID_FAKTURY=%1").arg(invoice)),
              0);
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY_POZYCJE"),
                       QStringLiteral("ID_FAKTURY=%1").arg(invoice)),
              0);
    EXPECT_EQ(cell(*form, sibling, 7), "-");
}
