#include "CarrierPrintJobs.h"

#include "CarrierInvoiceList.h"
#include "JobArguments.h"
#include "PdfBook.h"
#include "TFrmNiezaplaconeList.h"
#include "TFrmNiezaplaconePrzewoz.h"

#include <tuple>

using namespace JobArguments;

namespace {

const QString CarrierOption = QStringLiteral("--carrier");

void print(PdfBook &book, Connection &connection, CarrierInvoiceList::Mode mode,
           const QStringList &arguments)
{
    CarrierInvoiceList list;
    list.mode = mode;
    list.carrier =
        optionKey(arguments, CarrierOption, QStringLiteral("Identyfikator przewoźnika"));
    if (mode != CarrierInvoiceList::Unpaid)
        std::tie(list.from, list.to) = periodOf(arguments.at(0), arguments.at(1));
    TFrmNiezaplaconePrzewoz printout(connection, list);
    book.add(printout.qrNiezaplacone());
}

} // namespace

void CarrierPrintJobs::unpaid(PdfBook &book, Connection &connection, const QStringList &arguments)
{
    print(book, connection, CarrierInvoiceList::Unpaid, arguments);
}

void CarrierPrintJobs::paid(PdfBook &book, Connection &connection, const QStringList &arguments)
{
    print(book, connection, CarrierInvoiceList::Paid, arguments);
}

void CarrierPrintJobs::issued(PdfBook &book, Connection &connection, const QStringList &arguments)
{
    print(book, connection, CarrierInvoiceList::Issued, arguments);
}

void CarrierPrintJobs::payments(PdfBook &book, Connection &connection, const QStringList &)
{
    TFrmNiezaplaconeList printout(connection);
    book.add(printout.qrNiezaplaconeList());
}
