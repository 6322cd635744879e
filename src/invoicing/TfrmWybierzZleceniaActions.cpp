// What the invoicing form does with the checked orders and its last invoice.
#include "TfrmWybierzZlecenia.h"

#include "Configuration.h"
#include "InvoiceDraft.h"
#include "InvoicePrinting.h"
#include "InvoiceRemoval.h"
#include "InvoicingError.h"
#include "MessageService.h"
#include "OrderInvoicing.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TDateEdit.h"
#include "TfrmFakturowanie.h"
#include "TframeListView.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <optional>

namespace {

const QString Caption = QStringLiteral("Fakturowanie");

// Runs database work of invoicing: a stop with a message of its own is
// shown with it, one a table object has shown already is not shown again.
template <class Work>
bool invoicingWork(const QString &whatFailed, Work &&work)
{
    bool done = false;
    reportFailures(whatFailed, [&] {
        try {
            work();
            done = true;
        } catch (const InvoicingError &error) {
            if (!error.shown())
                Messages::inform(Caption, error.message(), MessageService::Icon::Warning);
        }
    });
    return done;
}

} // namespace

void TfrmWybierzZlecenia::btnZafakturujClick()
{
    const std::vector<int> keys = checkedOrders();
    if (keys.empty()) {
        Messages::inform(QStringLiteral("Uwaga"),
                         QStringLiteral("Brak zaznaczonych zleceń do zafakturownia."),
                         MessageService::Icon::Warning);
        return;
    }
    Connection *database = session().Database;
    if (!database)
        return;
    std::optional<InvoiceDraft> draft;
    if (!invoicingWork(QStringLiteral("Nie można odczytać zaznaczonych zleceń"), [&] {
            const Configuration configuration(database);
            const int owner = configuration.GetConfigInt(QStringLiteral("IDWłaściciela"));
            draft = InvoiceDraft::of(*database, keys, owner);
        }))
        return;

    TFakturyObj record(*database);
    if (draft->ownFleet)
        record.NUMER_ROZSZERZONY = QStringLiteral(" ");
    record.OPIS_POZYCJI = draft->serviceName;
    record.ID_KONTRAHENTA = std::max(m_clientKey, 0);
    // The dialog proposes its revenue account from the flag of the
    // previous invoicing; this one's flag is stored only afterwards.
    const auto dialog = TfrmRODefault::create<TfrmFakturowanie>(this, record);
    session().OwnFleet = draft->ownFleet;
    dialog->deDataSprzedazy->setValue(draft->latestDelivery);
    if (dialog->showModal() == mrCancel)
        return;

    OrderInvoicing::Request request{record, keys, draft->netTotal, RbSp->isChecked(),
                                    dialog->remarks(), session().UserID};
    OrderInvoicing::Issued issued;
    if (!invoicingWork(QStringLiteral("Faktury nie wystawiono"), [&] {
            issued = OrderInvoicing::issue(session().transaction(), request);
        }))
        return;

    if (Messages::confirm(Caption, QStringLiteral("Czy wydrukować fakturę teraz?")))
        reportFailures(QStringLiteral("Nie można wydrukować faktury"), [&] {
            InvoicePrinting::showInvoice(*database, issued.key, true);
        });
    showLastInvoice(issued.key, issued.fullNumber);
    LoadLVData();
    if (frameListView1->lvMain->itemCount() == 0)
        done(mrOk);
}

void TfrmWybierzZlecenia::btnDrukujClick(bool preview)
{
    const int key = lastInvoice();
    Connection *database = session().Database;
    if (key < 1 || !database)
        return;
    reportFailures(QStringLiteral("Nie można wydrukować faktury"),
                   [&] { InvoicePrinting::showInvoice(*database, key, preview); });
}

void TfrmWybierzZlecenia::btnUsunClick()
{
    if (!InvoiceRemoval::allowed(session().UserID))
        return;
    const int key = lastInvoice();
    if (key < 1 || !session().Database)
        return;
    if (!Messages::confirm(QStringLiteral("Usuwanie"),
                           QStringLiteral("Czy na pewno usunąć fakturę?")))
        return;
    if (!invoicingWork(QStringLiteral("Faktury nie usunięto"),
                       [&] { InvoiceRemoval::remove(session().transaction(), key); }))
        return;
    showLastInvoice(0, QStringLiteral("Usunięto fakturę"));
    // Its orders are free again.
    LoadLVData();
}
