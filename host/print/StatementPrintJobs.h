#pragma once

#include <QStringList>

class Connection;
class PdfBook;

// The statements and the partners report as haulix-print writes them.
// Their arguments are the period's days (yyyy-MM-dd), followed by their
// options ("--client ID", "--carrier ID", "--user ID" for one party's
// statement) and switches. A malformed argument throws std::invalid_argument.
namespace StatementPrintJobs {

// The statement of issued invoices: FROM TO [--own].
void issuedInvoices(PdfBook &book, Connection &connection, const QStringList &arguments);
// The partners report: FROM TO [--partner ID] [--domestic|--foreign] [--own|--others].
void partners(PdfBook &book, Connection &connection, const QStringList &arguments);

void clients(PdfBook &book, Connection &connection, const QStringList &arguments);
void carriers(PdfBook &book, Connection &connection, const QStringList &arguments);
void userRates(PdfBook &book, Connection &connection, const QStringList &arguments);
void userInvoices(PdfBook &book, Connection &connection, const QStringList &arguments);
void rateDifferences(PdfBook &book, Connection &connection, const QStringList &arguments);
void userCarrierInvoices(PdfBook &book, Connection &connection, const QStringList &arguments);

} // namespace StatementPrintJobs
