#include "ReportPrintJobs.h"

#include "Format.h"
#include "IssuedInvoices.h"
#include "PdfBook.h"
#include "TfrmRepWspolnicy.h"
#include "TfrmZestawienieRachunkow.h"

#include <stdexcept>

namespace {

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

std::pair<QDate, QDate> periodOf(const QStringList &arguments)
{
    const QDate from = dayOf(arguments.at(0));
    const QDate to = dayOf(arguments.at(1));
    if (from > to)
        refuse(QStringLiteral("Początek okresu jest późniejszy niż jego koniec."));
    return {from, to};
}

void refuseBoth(const QStringList &arguments, const char *one, const char *other)
{
    if (arguments.contains(QLatin1String(one)) && arguments.contains(QLatin1String(other)))
        refuse(QStringLiteral("%1 i %2 wykluczają się.").arg(QLatin1String(one),
                                                              QLatin1String(other)));
}

} // namespace

void ReportPrintJobs::issuedInvoices(PdfBook &book, Connection &connection,
                                     const QStringList &arguments)
{
    const auto [from, to] = periodOf(arguments);
    IssuedInvoices invoices(connection, from, to, arguments.contains(QStringLiteral("--own")));
    invoices.read();
    const std::vector<TPozycjaZestawienia> records = invoices.build();
    TfrmZestawienieRachunkow printout(connection);
    printout.setTitle(invoices.title());
    printout.setRecords(records);
    book.add(printout.qrZestawienie());
}

void ReportPrintJobs::partners(PdfBook &book, Connection &connection,
                               const QStringList &arguments)
{
    refuseBoth(arguments, "--domestic", "--foreign");
    refuseBoth(arguments, "--own", "--others");
    PartnersSelection selection;
    std::tie(selection.from, selection.to) = periodOf(arguments);
    selection.fromText = Format::date(selection.from);
    selection.toText = Format::date(selection.to);
    selection.region = arguments.contains(QStringLiteral("--domestic")) ? PartnersSelection::Domestic
        : arguments.contains(QStringLiteral("--foreign"))              ? PartnersSelection::Foreign
                                                                       : PartnersSelection::AllRegions;
    selection.executor = arguments.contains(QStringLiteral("--own")) ? PartnersSelection::OwnCompany
        : arguments.contains(QStringLiteral("--others"))             ? PartnersSelection::OtherCarriers
                                                                     : PartnersSelection::AnyExecutor;
    // Without a partner the report lists them all, as "Pokaż wszystkie"
    // with none chosen does.
    selection.showAll = true;
    const qsizetype at = arguments.indexOf(QStringLiteral("--partner"));
    if (at >= 0) {
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
