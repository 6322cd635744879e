#pragma once

#include "OrderInvoicing.h"

#include <QDate>

#include <optional>
#include <vector>

class Connection;

// The month-end invoicing of a regular client without a screen: every
// order of the client loaded in a period that has no invoice yet goes
// onto one invoice, with the header the dialog would propose and through
// the same writing as the dispatcher's invoicing.
namespace BatchInvoicing {

struct Options
{
    int client = 0;
    QDate from;
    QDate to;                  // the whole day counts
    bool bySaleDate = false;   // the numbering's month from the date of sale
    QDate issued;              // the date of issue
    int userId = 1;
};

// The orders to invoice, by loading date.
std::vector<int> ordersToInvoice(Connection &connection, const Options &options);

// The header's date of sale: the latest delivery of the orders, or the
// latest loading when none of them has a delivery date.
DateTime saleDate(Connection &connection, const std::vector<int> &orderKeys,
                  DateTime latestDelivery);

// Nothing when the client has no order to invoice in the period. Throws
// InvoicingError or DbError, leaving nothing behind. The session's
// own-fleet flag is read and set as the dialog's invoicing does.
std::optional<OrderInvoicing::Issued> run(Transaction &transaction, const Options &options);

} // namespace BatchInvoicing
