#pragma once

#include "ClientProfitStatement.h"
#include "StatementReport.h"

// Revenue and profit per client, for one client (its key) or all (0).
class TfrmZestawienieKontrahenta : public StatementReport
{
public:
    TfrmZestawienieKontrahenta(Connection &connection, const ReportPeriod &period, int client);
};
