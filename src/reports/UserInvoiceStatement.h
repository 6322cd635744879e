#pragma once

#include "ReportPeriod.h"
#include "StatementLayout.h"

class Connection;

// Invoiced turnover per dispatcher: the domestic VAT invoices (document
// kind 1) issued in the period, grouped by the user who issued them
// (ID_WYSTAWIL), each with its net, VAT and gross worked out from its
// positions exactly as the invoice prints them.
namespace UserInvoiceStatement {

enum Column { Number, Issued, Client, Net, Vat, Gross, ColumnCount };

// The kind of document the statement of mode 1 lists.
inline constexpr int DomesticInvoice = 1;

StatementLayout layout(const ReportPeriod &period);
// user: the user's key, 0 for every user. Throws DbError.
StatementData read(Connection &connection, const ReportPeriod &period, int user);

} // namespace UserInvoiceStatement
