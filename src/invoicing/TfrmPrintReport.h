#pragma once

#include "Report.h"
#include "TransportOrder.h"

class Connection;

// The order printout: the transport order of one incoming order, as the
// forwarder sends it to the carrier. Upright A4; the data is read afresh
// for each layout.
class TfrmPrintReport
{
public:
    TfrmPrintReport(Connection &connection, int orderKey);

    Report &qrZlecenie() { return m_report; }
    // What the last layout printed.
    const TransportOrder &order() const { return m_order; }

    bool Preview() { return m_report.preview(); }
    bool Print() { return m_report.print(); }

private:
    void qrZlecenieBeforePrint();
    void buildHeader();
    void buildParties();
    void buildPlaces();
    void buildVehicle();
    void buildGoods();
    void buildFreight();
    void buildRemarks();
    void buildConditions();
    void buildSignatures();
    const OrderGoodsItem &goods() const { return m_order.goods.at(m_goods - 1); }

    Connection &m_connection;
    int m_orderKey;
    TransportOrder m_order;
    std::size_t m_goods = 0;
    Report m_report;
};
