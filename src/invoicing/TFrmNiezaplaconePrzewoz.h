#pragma once

#include "CarrierInvoiceList.h"
#include "Report.h"

class Connection;

// The carriers' invoices of one list (unpaid, paid in a period, issued in
// a period), grouped by carrier with each carrier's total and the grand
// total, under the company's name and the list's title. The rows are read
// afresh for each layout.
class TFrmNiezaplaconePrzewoz
{
public:
    TFrmNiezaplaconePrzewoz(Connection &connection, const CarrierInvoiceList &list);

    Report &qrNiezaplacone() { return m_report; }
    // What the last layout printed.
    const std::vector<CarrierInvoiceRow> &rows() const { return m_rows; }

    bool Preview() { return m_report.preview(); }
    bool Print() { return m_report.print(); }

private:
    void qrNiezaplaconeBeforePrint();
    void buildGroup();
    void buildDetail();
    void buildSummary();
    const CarrierInvoiceRow &row() const { return m_rows.at(m_row - 1); }

    Connection &m_connection;
    CarrierInvoiceList m_list;
    QString m_company;
    std::vector<CarrierInvoiceRow> m_rows;
    std::size_t m_row = 0;
    Report m_report;
};
