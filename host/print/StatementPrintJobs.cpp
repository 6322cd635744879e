#include "StatementPrintJobs.h"

#include "Format.h"
#include "IssuedInvoices.h"
#include "JobArguments.h"
#include "PdfBook.h"
#include "TfrmPrintObrotyNaUseraFakt.h"
#include "TfrmPrintObrotyNaUseraFaktObca.h"
#include "TfrmPrintObrotyNaUseraZagr.h"
#include "TfrmRepWspolnicy.h"
#include "TfrmZestawienieKontrahenta.h"
#include "TfrmZestawieniePrzewoznika.h"
#include "TfrmZestawienieRachunkow.h"
#include "TfrmZestawienieRoznicStawek2.h"

#include <tuple>

using namespace JobArguments;

namespace {

const QString User = QStringLiteral("Identyfikator użytkownika");

void refuseBoth(const QStringList &arguments, const char *one, const char *other)
{
    if (arguments.contains(QLatin1String(one)) && arguments.contains(QLatin1String(other)))
        refuse(QStringLiteral("%1 i %2 wykluczają się.").arg(QLatin1String(one),
                                                              QLatin1String(other)));
}

ReportPeriod reportPeriodOf(const QStringList &arguments)
{
    ReportPeriod period;
    std::tie(period.from, period.to) = periodOf(arguments.at(0), arguments.at(1));
    return period;
}

template <class Printout>
void print(PdfBook &book, Connection &connection, const QStringList &arguments,
           const QString &option, const QString &subject)
{
    Printout printout(connection, reportPeriodOf(arguments),
                      optionKey(arguments, option, subject));
    book.add(printout.report());
}

} // namespace

void StatementPrintJobs::issuedInvoices(PdfBook &book, Connection &connection,
                                        const QStringList &arguments)
{
    const auto [from, to] = periodOf(arguments.at(0), arguments.at(1));
    IssuedInvoices invoices(connection, from, to, arguments.contains(QStringLiteral("--own")));
    invoices.read();
    const std::vector<TPozycjaZestawienia> records = invoices.build();
    TfrmZestawienieRachunkow printout(connection);
    printout.setTitle(invoices.title());
    printout.setRecords(records);
    book.add(printout.qrZestawienie());
}

void StatementPrintJobs::partners(PdfBook &book, Connection &connection,
                                  const QStringList &arguments)
{
    refuseBoth(arguments, "--domestic", "--foreign");
    refuseBoth(arguments, "--own", "--others");
    PartnersSelection selection;
    std::tie(selection.from, selection.to) = periodOf(arguments.at(0), arguments.at(1));
    selection.fromText = Format::date(selection.from);
    selection.toText = Format::date(selection.to);
    if (arguments.contains(QStringLiteral("--domestic")))
        selection.region = PartnersSelection::Domestic;
    else if (arguments.contains(QStringLiteral("--foreign")))
        selection.region = PartnersSelection::Foreign;
    if (arguments.contains(QStringLiteral("--own")))
        selection.executor = PartnersSelection::OwnCompany;
    else if (arguments.contains(QStringLiteral("--others")))
        selection.executor = PartnersSelection::OtherCarriers;
    // Without a partner the report lists them all, as "Pokaż wszystkie"
    // with none chosen does.
    selection.showAll = true;
    const qsizetype at = arguments.indexOf(QStringLiteral("--partner"));
    if (at >= 0) {
        // A partner's key may be 0, so this is not optionKey's positive key.
        bool ok = false;
        const int key = arguments.value(at + 1).toInt(&ok);
        if (!ok || key < 0) {
            refuse(QStringLiteral("Identyfikator spedytora musi być liczbą całkowitą "
                                  "nieujemną: %1")
                       .arg(arguments.value(at + 1)));
        }
        selection.partner = key;
        selection.showAll = false;
        for (const PartnersSelection::Partner &partner : PartnersSelection::partners(connection)) {
            if (partner.key == key)
                selection.partnerText = partner.text;
        }
    }
    TfrmRepWspolnicy printout(connection);
    printout.select(selection);
    book.add(printout.QuickRep1());
}

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
    TfrmZestawienieRoznicStawek2 printout(connection, reportPeriodOf(arguments));
    book.add(printout.report());
}
