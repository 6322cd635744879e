// Invoicing of orders as a dispatcher does it: checking orders, the
// header dialog, printing and removing the last invoice.
#include "OrderInvoicingFixture.h"
#include "PdfFileReportOutput.h"
#include "ReportOutput.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TFakturyObj.h"
#include "TfrmFakturowanie.h"
#include "TfrmWybierzZlecenia.h"
#include "TframeListView.h"
#include "Typing.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>

class InvoicingForms : public OrderInvoicingFixture
{
protected:
    // An order of client A loaded days from today.
    int orderOn(int days, const std::function<void(TZlecenia_przychObj &)> &change = {})
    {
        return addOrder([&](TZlecenia_przychObj &o) {
            o.DATA = DateTime::fromDate(QDate::currentDate().addDays(days));
            if (change)
                change(o);
        });
    }

    std::unique_ptr<TfrmWybierzZlecenia> openSelection(int client = ClientA, int order = 0)
    {
        auto form = TfrmRODefault::create<TfrmWybierzZlecenia>(nullptr, client, order);
        Typing::activate(form.get());
        return form;
    }

    static TListView &list(TfrmWybierzZlecenia &form) { return *form.frameListView1->lvMain; }

    // Checks the order's row as a person does: selects it, presses Space.
    static void check(TfrmWybierzZlecenia &form, int orderKey)
    {
        TListView &rows = list(form);
        const int row = rows.findByKey(orderKey);
        ASSERT_GE(row, 0);
        rows.setFocus();
        rows.setSelectedIndex(row);
        QTest::keyClick(&rows, Qt::Key_Space);
    }

    // The header dialog answered as typed by the handler.
    void expectHeader(std::function<void(TfrmFakturowanie &)> handler)
    {
        scriptedModalRunner().expect<TfrmFakturowanie>([handler](TfrmFakturowanie &dialog) {
            handler(dialog);
            return dialog.result();
        });
    }

    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
};

TEST_F(InvoicingForms, ListsTheFreeOrdersOfTheRangeChecksThemAsAskedNoneIsSaid)
{
    const int today = orderOn(0, [](auto &o) { o.IDMIASTO_VIA = Warszawa; o.NR_KARTY = 12; });
    const int lastMonth = orderOn(-20);
    const int beforeRange = orderOn(-40);
    const int otherClient = orderOn(0, [](auto &o) { o.IDKONTRAHENTA = ClientB; });
    const int invoiced = orderOn(0, [](auto &o) { o.IDFAKTURY = 99; });
    const auto form = openSelection();
    TListView &rows = list(*form);
    EXPECT_EQ(rows.itemCount(), 2);
    for (int hidden : {beforeRange, otherClient, invoiced})
        EXPECT_LT(rows.findByKey(hidden), 0);
    const int row = rows.findByKey(today);
    ASSERT_GE(row, 0);
    EXPECT_EQ(rows.text(row, 0), "00000100");
    EXPECT_EQ(rows.text(row, 5), "Łódź-Warszawa-Kraków");
    EXPECT_EQ(rows.text(row, 6), "00012");

    // Typed range, then "Odśwież".
    Typing::into(form->deOd, QDate::currentDate().addDays(-45).toString(Qt::ISODate));
    Typing::click(form->btnOdswiez);
    EXPECT_EQ(rows.itemCount(), 3);

    check(*form, lastMonth);
    EXPECT_EQ(form->checkedOrders(), std::vector<int>{lastMonth});
    Typing::click(form->btnOdwrocZaznaczenie);
    EXPECT_EQ(form->checkedOrders().size(), 2u);
    Typing::click(form->btnZaznaczWszystko);
    EXPECT_EQ(form->checkedOrders().size(), 3u);
    Typing::click(form->btnOdznaczWszystko);
    EXPECT_TRUE(form->checkedOrders().empty());

    // Nothing checked is said and nothing opens.
    scriptedMessages().expect();
    Typing::accelerator(Qt::Key_Z);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Uwaga");
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Brak zaznaczonych zleceń do zafakturownia.");
    EXPECT_EQ(scriptedMessages().shown()[0].icon, MessageService::Icon::Warning);
    EXPECT_TRUE(scriptedModalRunner().ran().empty());
}

TEST_F(InvoicingForms, CheckedOrdersBecomeOneInvoiceShownAsTheLastAndRemovedAgain)
{
    const QDate delivered = QDate::currentDate().addDays(2);
    const int a = orderOn(0, [&](auto &o) { o.DOSTARCZENIE = DateTime::fromDate(delivered); });
    const int b = orderOn(1, [](auto &o) { o.STAWKA_RAZEM = 0; o.KWOTA = 250; });
    const int left = orderOn(1);
    const auto form = openSelection(ClientA, b);
    check(*form, a);
    check(*form, b);
    expectHeader([&](TfrmFakturowanie &dialog) {
        EXPECT_EQ(dialog.cbKontrahenci->currentData().toInt(), int(ClientA));
        EXPECT_EQ(dialog.deDataSprzedazy->date(), delivered);
        EXPECT_EQ(dialog.edOpisPozycji->text(), "Przewóz towaru wg załącznika");
        EXPECT_EQ(dialog.CBKsiegowe->currentText(), "700-12 Przychody - spedycja krajowa");
        Typing::into(dialog.edOdebral, QStringLiteral("Jan Źdźbło"));
        Typing::into(dialog.memUwagi, QStringLiteral("Termin zgodnie z umową"));
        Typing::click(dialog.btnOk);
    });
    scriptedMessages().expect(MessageService::No);
    Typing::accelerator(Qt::Key_Z);

    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Czy wydrukować fakturę teraz?");
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Fakturowanie");
    const int key = form->lastInvoice();
    ASSERT_GT(key, 0);
    EXPECT_EQ(form->Label6->text(), QStringLiteral("001/%1/%2")
                                        .arg(QDate::currentDate().month(), 2, 10, QLatin1Char('0'))
                                        .arg(QDate::currentDate().year()));
    const TFakturyObj f = TFakturyObj(db.connection()).SelectById(key);
    EXPECT_EQ(f.ODEBRAL, "Jan Źdźbło");
    EXPECT_EQ(f.OPIS_POZYCJI, "Termin zgodnie z umową");
    EXPECT_EQ(f.ID_WYSTAWIL, UserKey);
    EXPECT_EQ(invoiceOf(a), key);
    EXPECT_EQ(invoiceOf(b), key);
    EXPECT_EQ(list(*form).itemCount(), 1);
    EXPECT_TRUE(form->isVisible());

    // Preview: the invoice, then its attachment.
    Typing::click(form->btnPodglad);
    ASSERT_EQ(files->deliveries().size(), 2u);
    EXPECT_EQ(files->deliveries()[0].title, "Faktura VAT Nr " + form->Label6->text());
    EXPECT_EQ(files->deliveries()[1].kind, PdfFileReportOutput::Kind::Preview);

    // Invoices are removed by user 1 only.
    setUser(1);
    scriptedMessages().expect(MessageService::Yes);
    Typing::click(form->btnUsun);
    EXPECT_EQ(scriptedMessages().shown().back().text, "Czy na pewno usunąć fakturę?");
    EXPECT_EQ(form->Label6->text(), "Usunięto fakturę");
    EXPECT_EQ(form->lastInvoice(), 0);
    EXPECT_EQ(invoiceOf(a), 0);
    EXPECT_EQ(invoiceOf(b), 0);
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY")), 0);
    EXPECT_EQ(list(*form).itemCount(), 3);
    EXPECT_GE(list(*form).findByKey(left), 0);
}

TEST_F(InvoicingForms, CancelInTheHeaderWritesNothing)
{
    const int order = orderOn(0);
    const auto form = openSelection();
    check(*form, order);
    expectHeader([](TfrmFakturowanie &dialog) {
        Typing::into(dialog.EdPkwiu, QStringLiteral("52.29"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Typing::accelerator(Qt::Key_Z);
    EXPECT_TRUE(scriptedModalRunner().allRun());
    expectNothingInvoiced();
    EXPECT_EQ(form->Label6->text(), "-----------");
    EXPECT_EQ(InvoiceHeader::storedPkwiu(db.connection()), "49.41.19");
}

TEST_F(InvoicingForms, AMissingClientIsSaidAfterThePkwiuCodeIsStored)
{
    TFakturyObj record(db.connection());
    const auto dialog = TfrmRODefault::create<TfrmFakturowanie>(nullptr, record);
    Typing::activate(dialog.get());
    EXPECT_EQ(dialog->cbKontrahenci->currentIndex(), -1);
    EXPECT_EQ(dialog->cbDokument->currentText(), "Faktura VAT");
    EXPECT_EQ(dialog->cbSposobZaplaty->currentText(), "przelew");
    EXPECT_EQ(dialog->cbKonto->currentData().toInt(), DefaultAccount);
    Typing::into(dialog->EdPkwiu, QStringLiteral("52.29.C"));
    scriptedMessages().expect();
    Typing::click(dialog->btnOk);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text, "Uzupełnij pole Kontrahent.");
    EXPECT_EQ(dialog->result(), 0);
    EXPECT_EQ(record.ID_RODZAJ_DOK, 0);
    EXPECT_EQ(InvoiceHeader::storedPkwiu(db.connection()), "52.29.C");

    // Chosen with the keyboard, the header goes into the record.
    dialog->cbKontrahenci->setFocus();
    QTest::keyClick(dialog->cbKontrahenci, Qt::Key_Down);
    Typing::click(dialog->btnOk);
    EXPECT_EQ(dialog->result(), int(TfrmRODefault::mrOk));
    EXPECT_EQ(record.ID_KONTRAHENTA, dialog->cbKontrahenci->currentData().toInt());
    EXPECT_EQ(record.DZIAL, 2);
}
