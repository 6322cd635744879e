#include "InvoiceTotals.h"

#include "InvoiceLine.h"

namespace {

void addTo(VatAmounts &amounts, const InvoiceLine &line)
{
    amounts.net += line.netValue;
    amounts.vat += line.vatValue;
    amounts.gross += line.grossValue;
}

} // namespace

void InvoiceTotals::add(const InvoiceLine &line)
{
    if (line.textOnly)
        return;
    addTo(m_invoice, line);
    if (const std::optional<int> group = VatGroups::groupOf(line.rateKey))
        addTo(m_groups[*group], line);
}
