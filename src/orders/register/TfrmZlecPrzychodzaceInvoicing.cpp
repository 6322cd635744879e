// Invoicing from the register and removing the selected order's invoice.
#include "TfrmZlecPrzychodzace.h"

#include "InvoiceRemoval.h"
#include "InvoicingError.h"
#include "MessageService.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TVzlecenia_przychObj.h"
#include "TZlecenia_przychObj.h"
#include "TfrmWyborKontrahenta.h"
#include "TframeListView.h"

void TfrmZlecPrzychodzace::acFakturaExecute()
{
    const int order = selectedOrder();
    int client = 0;
    if (order > 0)
        client = TVzlecenia_przychObj(*session().Database).SelectById(order).IDKONTRAHENT;
    const auto dialog = TfrmRODefault::create<TfrmWyborKontrahenta>(this, client, order);
    dialog->showModal();
    frameListView1->Refresh();
}

void TfrmZlecPrzychodzace::BitBtn11Click()
{
    if (!InvoiceRemoval::allowed(session().UserID))
        return;
    const int order = selectedOrder();
    if (order == 0)
        return;
    const int invoice = TZlecenia_przychObj(*session().Database).SelectById(order).IDFAKTURY;
    if (invoice < 1)
        return;
    if (Messages::confirm(QStringLiteral("Usuwanie"),
                          QStringLiteral("Czy na pewno usunąć fakturę?"))) {
        reportFailures(QStringLiteral("Faktury nie usunięto"), [&] {
            try {
                InvoiceRemoval::remove(session().transaction(), invoice);
            } catch (const InvoicingError &) {
                // Its table object has said why.
            }
        });
    }
    frameListView1->Refresh();
}
