#pragma once

#include "DateTime.h"

#include <QString>

#include <vector>

class Connection;

// What the chosen orders give their invoice before its header is filled
// in: the net total, the date of sale, whether the company carried one of
// them itself, and the name of the service on the invoice's one position.
struct InvoiceDraft
{
    std::vector<int> orderKeys;
    double netTotal = 0.0;
    // The latest delivery date among the orders; null when none has one.
    DateTime latestDelivery;
    bool ownFleet = false;
    QString serviceName;

    // The orders by key; ownerKey is the company's own key as a carrier.
    // InvoicingError when an order is no longer there; DbError.
    static InvoiceDraft of(Connection &connection, const std::vector<int> &orderKeys,
                           int ownerKey);

    // An order's agreed rate when it has one, else its amount.
    static double netAmount(double stawkaRazem, double kwota);
    // The position's text for orderCount orders; the cities are those of
    // the only order, the via city left out when blank.
    static QString serviceNameOf(int orderCount, const QString &from, const QString &via,
                               const QString &to);
};
