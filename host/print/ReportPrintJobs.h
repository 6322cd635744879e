#pragma once

#include <QStringList>

class Connection;
class PdfBook;

// The statements of the reports subsystem as haulix-print writes them.
// Their arguments are the period's days (yyyy-MM-dd) followed by their
// options and switches. A malformed argument throws std::invalid_argument.
namespace ReportPrintJobs {

// The statement of issued invoices: FROM TO [--own].
void issuedInvoices(PdfBook &book, Connection &connection, const QStringList &arguments);
// The partners report: FROM TO [--partner ID] [--domestic|--foreign] [--own|--others].
void partners(PdfBook &book, Connection &connection, const QStringList &arguments);

} // namespace ReportPrintJobs
