#pragma once

#include "CarrierCostStatement.h"
#include "StatementReport.h"

// Cost per carrier, for one carrier (its key) or all (0).
class TfrmZestawieniePrzewoznika : public StatementReport
{
public:
    TfrmZestawieniePrzewoznika(Connection &connection, const ReportPeriod &period, int carrier);
};
