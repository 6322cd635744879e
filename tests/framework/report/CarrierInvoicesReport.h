#pragma once

#include "Report.h"

#include <QString>
#include <QVariant>

#include <vector>

struct CarrierInvoice
{
    QString carrier;
    QString number;
    double amount = 0.0;
};

// `perCarrier` invoices for each of `carriers` carriers, amounts that differ
// from row to row so that a sum over the wrong rows shows.
std::vector<CarrierInvoice> sampleInvoices(int carriers, int perCarrier);

// Amounts with two decimals in the application locale.
QString money(const QVariant &value);

// A report shaped like the carriers' invoice lists: page header, column
// header, a group per carrier with its sum, detail lines fed by a need-data
// counter, a grand total and "Strona N z M" in the page footer.
class CarrierInvoicesReport
{
public:
    explicit CarrierInvoicesReport(std::vector<CarrierInvoice> rows);

    Report &report() { return m_report; }
    ReportGroup &carrierGroup() { return *m_group; }
    const CarrierInvoice &current() const { return m_rows.at(m_index - 1); }

private:
    std::vector<CarrierInvoice> m_rows;
    size_t m_index = 0;
    Report m_report;
    ReportGroup *m_group = nullptr;
};
