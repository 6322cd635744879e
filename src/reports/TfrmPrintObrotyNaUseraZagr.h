#pragma once

#include "UserTurnoverStatement.h"
#include "StatementReport.h"

// Turnover per dispatcher by rate, for one user (its key) or all (0).
class TfrmPrintObrotyNaUseraZagr : public StatementReport
{
public:
    TfrmPrintObrotyNaUseraZagr(Connection &connection, const ReportPeriod &period, int user);
};
