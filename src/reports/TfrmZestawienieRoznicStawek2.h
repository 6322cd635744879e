#pragma once

#include "RateDifferenceStatement.h"
#include "StatementReport.h"

// Rate differences, "Faktury przewożnika i własne": the company's own
// contractor (IDWłaściciela) tells its own fleet's orders apart; the
// wait window moves while the lines are made.
class TfrmZestawienieRoznicStawek2 : public StatementReport
{
public:
    TfrmZestawienieRoznicStawek2(Connection &connection, const ReportPeriod &period);
};
