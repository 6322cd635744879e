#pragma once

#include "CarrierInvoiceRow.h"
#include "PrintoutLayout.h"
#include "Report.h"

#include <QString>

#include <functional>

class DateTime;

// What the carriers' invoice lists share: the heading with the company's
// name and the list's title, ruled column heads, plain detail cells, totals
// under the amount column and the page numbers.
namespace CarrierListLayout {

inline constexpr double Line = 4.5;

struct Column
{
    const char *name;      // the label's name, e.g. "qrNumer"
    const char *caption;   // the column head
    PrintoutLayout::ColumnSpan span;
    Qt::Alignment alignment = Qt::AlignLeft;
};

// The first page's heading: the company's name and the day of printing,
// then the report's title as it stands when the page is laid out.
void addHeading(Report &report, std::function<QString()> companyName, double widthMm);
void addColumnHeader(Report &report, const Column *columns, int count);
// A detail cell of a column: the text sits inside the column's span.
ReportLabel &addCell(ReportBand &band, const Column &column, PrintoutLayout::Text text);
// The cells every list starts its line with, from its first five columns:
// the order's number, the invoice's number, its receipt, issue and due dates.
void addInvoiceCells(ReportBand &band, const Column *columns,
                     std::function<const CarrierInvoiceRow &()> row);
// A total: the caption ends where the amount column starts.
void addTotal(ReportBand &band, const QString &name, const QString &caption,
              const Column &amountColumn, std::function<QString()> amount);
void addPageFooter(Report &report, double widthMm);

QString money(double amount);
QString date(DateTime value);

} // namespace CarrierListLayout
