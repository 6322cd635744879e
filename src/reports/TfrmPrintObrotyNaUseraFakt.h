#pragma once

#include "UserInvoiceStatement.h"
#include "StatementReport.h"

// Invoiced turnover per dispatcher (mode 1: the domestic VAT invoices),
// for one user (its key) or all (0).
class TfrmPrintObrotyNaUseraFakt : public StatementReport
{
public:
    TfrmPrintObrotyNaUseraFakt(Connection &connection, const ReportPeriod &period, int user);
};
