#pragma once

#include "ReportPeriod.h"
#include "StatementLayout.h"

#include <functional>

class Connection;

// Rate differences ("Faktury przewożnika i własne"): every order invoiced
// in the period (its invoice issued within it), our invoice's net for the
// order against the carrier's invoice for it, the difference and the
// margin on the carrier's amount. The orders the company carried itself
// (the carrier is IDWłaściciela) stand in a part of their own after the
// outside carriers'.
namespace RateDifferenceStatement {

enum Column {
    Order, Carrier, Invoice, Issued, Net, CarrierInvoice, CarrierAmount, Difference, Margin,
    ColumnCount
};

inline const QString OutsideCarriers = QStringLiteral("przewoźnicy obcy");
inline const QString OwnFleet = QStringLiteral("wykonawca własny");

// Told of each order as its line is made: done so far, of how many.
using Progress = std::function<void(int done, int total)>;

StatementLayout layout(const ReportPeriod &period);
// ownCarrier: the company's own contractor. Our net of an order is the net
// of the invoice's positions for that order (as the invoice prints them);
// an invoice of one order whose positions name no order gives it all of
// its net. Throws DbError.
StatementData read(Connection &connection, const ReportPeriod &period, int ownCarrier,
                   const Progress &progress = {});

} // namespace RateDifferenceStatement
