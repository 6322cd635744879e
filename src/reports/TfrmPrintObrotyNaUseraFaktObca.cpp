#include "TfrmPrintObrotyNaUseraFaktObca.h"

TfrmPrintObrotyNaUseraFaktObca::TfrmPrintObrotyNaUseraFaktObca(Connection &connection,
                                                               const ReportPeriod &period, int user)
    : StatementReport(connection, UserCarrierInvoiceStatement::layout(period),
                      [&connection, period, user] {
                          return UserCarrierInvoiceStatement::read(connection, period, user,
                                                                   QDate::currentDate());
                      })
{
}
