#pragma once

#include "Report.h"
#include "TPozycjaZestawienia.h"

#include <vector>

class Connection;

// The statement of issued invoices: the company line and the title, one
// line per invoice with its number, vehicle, net, month of sale, client,
// issue date, stamp fee, VAT, gross and due date, and the four money
// columns totalled. The sums start afresh before every layout, so a
// statement printed from its preview totals the same.
class TfrmZestawienieRachunkow
{
public:
    // Reads the company's data for its header line.
    explicit TfrmZestawienieRachunkow(Connection &connection);

    Report &qrZestawienie() { return m_report; }

    void setTitle(const QString &title) { m_report.setTitle(title); }
    // The records stay the caller's; they must outlive the printing.
    void setRecords(const std::vector<TPozycjaZestawienia> &records) { m_records = &records; }

    bool Preview() { return m_report.preview(); }
    bool Print() { return m_report.print(); }

    // The running sums as the last layout left them.
    double sumNetto() const { return m_netto; }
    double sumBrutto() const { return m_brutto; }
    double sumVat() const { return m_vat; }
    double sumOplataSkarbowa() const { return m_oplataSkarbowa; }

private:
    void FormCreate(Connection &connection);
    void qrZestawienieBeforePrint();
    bool qrZestawienieNeedData();
    void QRBand2BeforePrint();
    void buildHeader();
    void buildDetail();
    void buildSummary();
    const TPozycjaZestawienia &current() const { return m_records->at(m_row - 1); }

    const std::vector<TPozycjaZestawienia> *m_records = nullptr;
    std::size_t m_row = 0;
    double m_netto = 0.0;
    double m_brutto = 0.0;
    double m_vat = 0.0;
    double m_oplataSkarbowa = 0.0;
    QString m_company;
    Report m_report;
};
