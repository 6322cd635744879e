#include "TfrmPrintObrotyNaUseraFakt.h"

TfrmPrintObrotyNaUseraFakt::TfrmPrintObrotyNaUseraFakt(Connection &connection,
                                                       const ReportPeriod &period, int user)
    : StatementReport(connection, UserInvoiceStatement::layout(period),
                      [&connection, period, user] {
                          return UserInvoiceStatement::read(connection, period, user);
                      })
{
}
