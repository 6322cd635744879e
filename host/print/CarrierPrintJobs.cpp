#include "CarrierPrintJobs.h"

#include "CarrierInvoiceList.h"
#include "PdfBook.h"
#include "TFrmNiezaplaconeList.h"
#include "TFrmNiezaplaconePrzewoz.h"

#include <stdexcept>

namespace {

const QString CarrierOption = QStringLiteral("--carrier");

[[noreturn]] void refuse(const QString &text)
{
    throw std::invalid_argument(text.toStdString());
}

QDate dayOf(const QString &argument)
{
    const QDate day = QDate::fromString(argument, Qt::ISODate);
    if (!day.isValid() || argument.size() != 10)
        refuse(QStringLiteral("Data musi mieć postać rrrr-mm-dd: %1").arg(argument));
    return day;
}

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
    if (mode != CarrierInvoiceList::Unpaid) {
        list.from = dayOf(arguments.at(0));
        list.to = dayOf(arguments.at(1));
        if (list.from > list.to)
            refuse(QStringLiteral("Początek okresu jest późniejszy niż jego koniec."));
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
