#include "TfrmPrintObrotyNaUseraZagr.h"

TfrmPrintObrotyNaUseraZagr::TfrmPrintObrotyNaUseraZagr(Connection &connection,
                                                       const ReportPeriod &period, int user)
    : StatementReport(connection, UserTurnoverStatement::layout(period),
                      [&connection, period, user] {
                          return UserTurnoverStatement::read(connection, period, user);
                      })
{
}
