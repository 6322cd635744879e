#include "TfrmZestawienieKontrahenta.h"

TfrmZestawienieKontrahenta::TfrmZestawienieKontrahenta(Connection &connection,
                                                       const ReportPeriod &period, int client)
    : StatementReport(connection, ClientProfitStatement::layout(period),
                      [&connection, period, client] {
                          return ClientProfitStatement::read(connection, period, client);
                      })
{
}
