#pragma once

#include "OrderGoods.h"

#include <QString>

#include <vector>

class Connection;

// The transport order a forwarder sends the carrier for one incoming order:
// who orders and who carries, where and when to load and unload, the route,
// the goods, the vehicle and driver, the agreed freight and its payment
// term, the client's order number and the remarks. Plain texts, ready to
// place; several lines of a block are joined by "\n".
struct TransportOrder
{
    QString title;            // "Zlecenie transportowe nr " + the 8-digit number
    QString dated;            // "z dnia " + the order's date
    QString orderer;          // the company itself
    QString carrier;
    QString loading;          // addresses, then the loading time
    QString unloading;        // addresses, then the delivery and unloading times
    QString route;
    QString distance;
    QString vehicle;
    QString trailer;
    QString driver;
    QString phone;
    std::vector<OrderGoodsItem> goods;
    QString pallets;
    QString weight;
    QString freight;          // the carrier's freight, net
    QString freightInWords;
    QString paymentTerm;
    QString clientOrderNumber;
    QString remarks;
    QString issuedBy;         // the user who took the order

    // The fixed terms printed on every transport order.
    static const QStringList &conditions();

    // Throws PrintoutError for an order that is not there, DbError when the
    // database fails.
    static TransportOrder load(Connection &connection, int orderKey);
};
