#include "TfrmZestawieniePrzewoznika.h"

TfrmZestawieniePrzewoznika::TfrmZestawieniePrzewoznika(Connection &connection,
                                                       const ReportPeriod &period, int carrier)
    : StatementReport(connection, CarrierCostStatement::layout(period),
                      [&connection, period, carrier] {
                          return CarrierCostStatement::read(connection, period, carrier);
                      })
{
}
