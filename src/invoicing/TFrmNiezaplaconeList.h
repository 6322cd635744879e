#pragma once

#include "CarrierInvoiceRow.h"
#include "Report.h"

class Connection;

// The payment list of carriers' invoices: every unpaid one by its payment
// date, with what has been paid on it and what remains, and the total of
// the amounts. Lying A4; the rows are read afresh for each layout.
class TFrmNiezaplaconeList
{
public:
    explicit TFrmNiezaplaconeList(Connection &connection);

    Report &qrNiezaplaconeList() { return m_report; }
    const std::vector<CarrierInvoiceRow> &rows() const { return m_rows; }

    bool Preview() { return m_report.preview(); }
    bool Print() { return m_report.print(); }

private:
    void qrNiezaplaconeListBeforePrint();
    void buildDetail();
    void buildSummary();
    const CarrierInvoiceRow &row() const { return m_rows.at(m_row - 1); }

    Connection &m_connection;
    QString m_company;
    std::vector<CarrierInvoiceRow> m_rows;
    std::size_t m_row = 0;
    Report m_report;
};
