// The register's printouts of the selected order.
#include "TfrmZlecPrzychodzace.h"

#include "ReportFailures.h"

#include "InvoicePrinting.h"
#include "SessionContext.h"
#include "TfrmPrintReport.h"

void TfrmZlecPrzychodzace::acPrintFraExecute()
{
    const int key = selectedOrder();
    if (key == 0)
        return;
    reportFailures(QStringLiteral("Nie można wydrukować faktury"),
                   [key] { InvoicePrinting::printInvoiceOfOrder(*session().Database, key); });
}

void TfrmZlecPrzychodzace::acDrukujExecute()
{
    const int key = selectedOrder();
    if (key == 0)
        return;
    TfrmPrintReport printout(*session().Database, key);
    printout.Preview();
}
