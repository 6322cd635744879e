#include "TframeListView.h"
#include "PdfFileReportOutput.h"
#include "PopplerText.h"
#include "RegisterFixture.h"
#include "ReportOutput.h"
#include "ScriptedMessages.h"
#include "TBitBtn.h"

#include <QAction>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Kind = PdfFileReportOutput::Kind;

} // namespace

class RegisterPrintouts : public RegisterFixture
{
protected:
    // An order priced per laden kilometre, listed in the register.
    int kilometreOrder(int number)
    {
        return addOrder([number](TZlecenia_przychObj &o) {
            o.NUMER = number;
            o.IDTARYFY = 1;
            o.KM_LADOWNE = 200;
            o.STAWKA_KMLAD = 3.5;
        });
    }

    // Opens the register on the order and clicks "Drukuj fakturę".
    void pressPrintInvoice(int orderKey)
    {
        form = openRegister();
        select(*form, orderKey);
        QTest::mouseClick(form->BitBtn10, Qt::LeftButton);
    }

    void expectAsked(std::size_t index, const QString &caption, const QString &text,
                     MessageService::Icon icon)
    {
        ASSERT_GT(scriptedMessages().shown().size(), index);
        const ScriptedMessages::Shown &box = scriptedMessages().shown()[index];
        EXPECT_EQ(box.caption, caption);
        EXPECT_EQ(box.text, text);
        EXPECT_EQ(box.icon, icon);
    }

    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
    std::unique_ptr<TfrmZlecPrzychodzace> form;
};

TEST_F(RegisterPrintouts, WithoutASelectionOrAnInvoiceOrWhenCancelledNothingPrints)
{
    const int uninvoiced = addOrder();
    const int invoiced = addOrder();
    invoiceOf({invoiced});
    form = openRegister();
    form->frameListView1->lvMain->setSelectedIndex(-1);
    EXPECT_TRUE(form->acPrintFra->isEnabled());
    EXPECT_TRUE(form->acDrukuj->isEnabled());
    QTest::mouseClick(form->BitBtn10, Qt::LeftButton);
    QTest::mouseClick(form->BitBtn1, Qt::LeftButton);

    select(*form, uninvoiced);
    QTest::mouseClick(form->BitBtn10, Qt::LeftButton);
    EXPECT_TRUE(scriptedMessages().shown().empty());

    scriptedMessages().expect(MessageService::Cancel);
    select(*form, invoiced);
    QTest::mouseClick(form->BitBtn10, Qt::LeftButton);
    EXPECT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_TRUE(files->deliveries().empty());
}

TEST_F(RegisterPrintouts, YesPreviewsTheInvoiceAndThenItsAttachment)
{
    // Two orders on the invoice: the kilometre wording is not asked for.
    const int order = kilometreOrder(9101);
    invoiceOf({order, kilometreOrder(9102)});
    scriptedMessages().expect(MessageService::Yes);
    pressPrintInvoice(order);

    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    expectAsked(0, "Wydruk faktury", "Czy wyświetlić podgląd wydruku?",
                MessageService::Icon::Question);
    EXPECT_EQ(scriptedMessages().shown()[0].buttons,
              MessageService::Yes | MessageService::No | MessageService::Cancel);
    const auto &delivered = files->deliveries();
    ASSERT_EQ(delivered.size(), 2u);
    EXPECT_EQ(delivered[0].kind, Kind::Preview);
    EXPECT_EQ(delivered[0].title, "Faktura VAT Nr 501/07/2026");
    EXPECT_EQ(delivered[1].kind, Kind::Preview);
    EXPECT_EQ(delivered[1].title, "Załącznik do faktury 501/07/2026");
    EXPECT_TRUE(Poppler::text(delivered[0].path).contains(" w/g załącznika do faktury"));
    EXPECT_TRUE(Poppler::text(delivered[1].path).contains("9102"));
}

TEST_F(RegisterPrintouts, OneKilometreOrderAsksForTheWordingAndNoPrintsDirectly)
{
    const int order = kilometreOrder(9103);
    invoiceOf({order});
    scriptedMessages().expect(MessageService::Yes);
    scriptedMessages().expect(MessageService::No);
    pressPrintInvoice(order);

    ASSERT_EQ(scriptedMessages().shown().size(), 2u);
    expectAsked(0, "Napis na fakturze", "Czy stawka za każdy kilometr (nie za kilometr ładowny)?",
                MessageService::Icon::None);
    EXPECT_EQ(scriptedMessages().shown()[0].buttons, MessageService::Yes | MessageService::No);
    expectAsked(1, "Wydruk faktury", "Czy wyświetlić podgląd wydruku?",
                MessageService::Icon::Question);
    const auto &delivered = files->deliveries();
    ASSERT_EQ(delivered.size(), 2u);
    EXPECT_EQ(delivered[0].kind, Kind::Print);
    EXPECT_EQ(delivered[1].kind, Kind::Print);
    EXPECT_TRUE(Poppler::text(delivered[0].path).contains("3,50 PLN za każdy kilometr"));
}

TEST_F(RegisterPrintouts, AltRPreviewsTheTransportOrderOfTheSelectedOrder)
{
    const int order = addOrder([](TZlecenia_przychObj &o) { o.NUMER = 9104; });
    form = openRegister();
    showActive(*form);
    select(*form, order);
    QTest::keyClick(form->frameListView1->lvMain, Qt::Key_R, Qt::AltModifier);
    // A button's accelerator clicks it a moment later, as a person sees it go down.
    const auto &delivered = files->deliveries();
    EXPECT_TRUE(QTest::qWaitFor([&delivered] { return !delivered.empty(); }));
    ASSERT_EQ(delivered.size(), 1u);
    EXPECT_EQ(delivered[0].kind, Kind::Preview);
    EXPECT_EQ(delivered[0].title, "Zlecenie transportowe nr 00009104");
    EXPECT_TRUE(Poppler::text(delivered[0].path).contains("Zlecenie transportowe nr 00009104"));
}
