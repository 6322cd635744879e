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

int carrierOf(const QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(CarrierOption);
    if (at < 0)
        return 0;
    bool ok = false;
    const int key = arguments.value(at + 1).toInt(&ok);
    if (!ok || key < 1) {
        refuse(QStringLiteral("Identyfikator przewoźnika musi być dodatnią liczbą całkowitą: %1")
                   .arg(arguments.value(at + 1)));
    }
    return key;
}

void print(PdfBook &book, Connection &connection, CarrierInvoiceList::Mode mode,
           const QStringList &arguments)
{
    CarrierInvoiceList list;
    list.mode = mode;
    list.carrier = carrierOf(arguments);
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
