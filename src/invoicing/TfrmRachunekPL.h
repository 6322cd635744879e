#pragma once

#include "InvoicePrintout.h"
#include "Report.h"

class Connection;

// The invoice printout: one sales invoice (FAKTURY with its positions) with
// the order block, one detail line per position, the VAT summary, the
// amount due in figures and in words, and the signatures. The data is read
// afresh each time the report is laid out.
class TfrmRachunekPL
{
public:
    // perKilometre chooses the wording "za każdy kilometr" for the order's
    // kilometres instead of per laden kilometre.
    TfrmRachunekPL(Connection &connection, int invoiceKey, bool perKilometre = false);

    Report &qrRachunekPL() { return m_report; }
    // What the last layout printed.
    const InvoicePrintout &printout() const { return m_printout; }

    // Through the installed report output; false when it could not be laid out.
    bool Preview() { return m_report.preview(); }
    bool Print() { return m_report.print(); }

private:
    void qrRachunekPLBeforePrint();
    void buildTitle();
    void buildParties(ReportBand &band);
    void buildOrderBlock();
    void buildColumnHeader();
    void buildDetail();
    void buildSummary();
    void buildPageFooter();
    const InvoiceLine &line() const { return m_printout.lines.at(m_line - 1); }

    Connection &m_connection;
    int m_invoiceKey;
    bool m_perKilometre;
    InvoicePrintout m_printout;
    std::size_t m_line = 0;
    Report m_report;
};
