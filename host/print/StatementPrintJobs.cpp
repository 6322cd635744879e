#include "StatementPrintJobs.h"

#include "PdfBook.h"
#include "PrintArguments.h"
#include "TfrmPrintObrotyNaUseraFakt.h"
#include "TfrmPrintObrotyNaUseraFaktObca.h"
#include "TfrmPrintObrotyNaUseraZagr.h"
#include "TfrmZestawienieKontrahenta.h"
#include "TfrmZestawieniePrzewoznika.h"
#include "TfrmZestawienieRoznicStawek2.h"

namespace {

const QString User = QStringLiteral("Identyfikator użytkownika");

ReportPeriod periodOf(const QStringList &arguments)
{
    const ReportPeriod period{PrintArguments::day(arguments.at(0)),
                              PrintArguments::day(arguments.at(1))};
    if (period.from > period.to)
        PrintArguments::refuse(QStringLiteral("Początek okresu jest późniejszy niż jego koniec."));
    return period;
}

template <class Printout>
void print(PdfBook &book, Connection &connection, const QStringList &arguments,
           const QString &option, const QString &subject)
{
    Printout printout(connection, periodOf(arguments),
                      PrintArguments::optionKey(arguments, option, subject));
    book.add(printout.report());
}

} // namespace

void StatementPrintJobs::clients(PdfBook &book, Connection &connection,
                                 const QStringList &arguments)
{
    print<TfrmZestawienieKontrahenta>(book, connection, arguments, QStringLiteral("--client"),
                                      QStringLiteral("Identyfikator kontrahenta"));
}

void StatementPrintJobs::carriers(PdfBook &book, Connection &connection,
                                  const QStringList &arguments)
{
    print<TfrmZestawieniePrzewoznika>(book, connection, arguments, QStringLiteral("--carrier"),
                                      QStringLiteral("Identyfikator przewoźnika"));
}

void StatementPrintJobs::userRates(PdfBook &book, Connection &connection,
                                   const QStringList &arguments)
{
    print<TfrmPrintObrotyNaUseraZagr>(book, connection, arguments, QStringLiteral("--user"), User);
}

void StatementPrintJobs::userInvoices(PdfBook &book, Connection &connection,
                                      const QStringList &arguments)
{
    print<TfrmPrintObrotyNaUseraFakt>(book, connection, arguments, QStringLiteral("--user"), User);
}

void StatementPrintJobs::userCarrierInvoices(PdfBook &book, Connection &connection,
                                             const QStringList &arguments)
{
    print<TfrmPrintObrotyNaUseraFaktObca>(book, connection, arguments,
                                          QStringLiteral("--user"), User);
}

void StatementPrintJobs::rateDifferences(PdfBook &book, Connection &connection,
                                         const QStringList &arguments)
{
    TfrmZestawienieRoznicStawek2 printout(connection, periodOf(arguments));
    book.add(printout.report());
}
