#pragma once

#include "StatementReport.h"
#include "UserCarrierInvoiceStatement.h"

// Carriers' invoices per dispatcher, for one user (its key) or all (0);
// days overdue are counted to the day the statement is printed.
class TfrmPrintObrotyNaUseraFaktObca : public StatementReport
{
public:
    TfrmPrintObrotyNaUseraFaktObca(Connection &connection, const ReportPeriod &period, int user);
};
