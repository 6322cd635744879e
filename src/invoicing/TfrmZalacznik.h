#pragma once

#include "AttachmentRows.h"
#include "Report.h"

class Connection;

// The attachment of an invoice: one line per order the invoice covers with
// its number, vehicle, amount, quantities and rates, places and dates,
// goods, delivery note, stamp fee and line total, the totals, a legend and
// the signature fields. Lying A4; the data is read afresh for each layout.
class TfrmZalacznik
{
public:
    TfrmZalacznik(Connection &connection, int invoiceKey);

    Report &qrZalacznik() { return m_report; }
    // What the last layout printed.
    const AttachmentRows &rows() const { return m_rows; }

    bool Preview() { return m_report.preview(); }
    bool Print() { return m_report.print(); }

private:
    void qrZalacznikBeforePrint();
    void buildTitle();
    void buildColumnHeader();
    void buildDetail();
    void buildSummary();
    void buildPageFooter();
    const AttachmentRow &row() const { return m_rows.rows.at(m_row - 1); }

    Connection &m_connection;
    int m_invoiceKey;
    AttachmentRows m_rows;
    std::size_t m_row = 0;
    Report m_report;
};
