#pragma once

#include <QStringList>

class Connection;
class PdfBook;

// The statements of the register's statements menu as haulix-print writes
// them. Their arguments are the period's days (yyyy-MM-dd), followed by
// "--client ID", "--carrier ID" or "--user ID" for one party's statement.
// A malformed argument throws std::invalid_argument.
namespace StatementPrintJobs {

void clients(PdfBook &book, Connection &connection, const QStringList &arguments);
void carriers(PdfBook &book, Connection &connection, const QStringList &arguments);
void userRates(PdfBook &book, Connection &connection, const QStringList &arguments);
void userInvoices(PdfBook &book, Connection &connection, const QStringList &arguments);
void rateDifferences(PdfBook &book, Connection &connection, const QStringList &arguments);
void userCarrierInvoices(PdfBook &book, Connection &connection, const QStringList &arguments);

} // namespace StatementPrintJobs
