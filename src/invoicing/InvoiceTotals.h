#pragma once

#include "VatGroups.h"

#include <array>

struct InvoiceLine;

struct VatAmounts
{
    double net = 0.0;
    double vat = 0.0;
    double gross = 0.0;
};

// The running totals of an invoice: the whole invoice and each VAT group of
// the summary. Lines are added as they print.
class InvoiceTotals
{
public:
    void add(const InvoiceLine &line);

    const VatAmounts &invoice() const { return m_invoice; }
    // index as VatGroups::groupOf gives it.
    const VatAmounts &group(int index) const { return m_groups.at(index); }

private:
    VatAmounts m_invoice;
    std::array<VatAmounts, VatGroups::Count> m_groups;
};
