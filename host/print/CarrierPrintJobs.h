#pragma once

#include <QStringList>

class Connection;
class PdfBook;

// The carriers' invoice lists as haulix-print writes them. Their arguments
// are the period's days (yyyy-MM-dd) where the list has one, followed by
// "--carrier ID" when one carrier's invoices are wanted. A malformed
// argument throws std::invalid_argument.
namespace CarrierPrintJobs {

void unpaid(PdfBook &book, Connection &connection, const QStringList &arguments);
void paid(PdfBook &book, Connection &connection, const QStringList &arguments);
void issued(PdfBook &book, Connection &connection, const QStringList &arguments);
void payments(PdfBook &book, Connection &connection, const QStringList &arguments);

} // namespace CarrierPrintJobs
