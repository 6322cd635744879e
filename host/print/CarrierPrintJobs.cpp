#include "CarrierPrintJobs.h"

#include "CarrierInvoiceList.h"
#include "PdfBook.h"
#include "PrintArguments.h"
#include "TFrmNiezaplaconeList.h"
#include "TFrmNiezaplaconePrzewoz.h"

namespace {

const QString CarrierOption = QStringLiteral("--carrier");

void print(PdfBook &book, Connection &connection, CarrierInvoiceList::Mode mode,
           const QStringList &arguments)
{
    CarrierInvoiceList list;
    list.mode = mode;
    list.carrier = PrintArguments::optionKey(arguments, CarrierOption,
                                             QStringLiteral("Identyfikator przewoźnika"));
    if (mode != CarrierInvoiceList::Unpaid) {
        list.from = PrintArguments::day(arguments.at(0));
        list.to = PrintArguments::day(arguments.at(1));
        if (list.from > list.to)
            PrintArguments::refuse(
                QStringLiteral("Początek okresu jest późniejszy niż jego koniec."));
    }
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
