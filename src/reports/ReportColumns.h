#pragma once

#include "ReportBand.h"

#include <QString>

#include <functional>
#include <span>

// The shape the statements share: a row of column heads over a rule,
// detail cells under their heads, totals under some of them.
namespace ReportColumns {

inline constexpr double Line = 4.5;

struct Column
{
    const char *name;      // the detail label's name, e.g. "qrKwota"
    const char *caption;   // the column head as printed
    double x;              // left edge in millimetres
    double width;
    Qt::Alignment alignment = Qt::AlignLeft;
};

using Text = std::function<QString()>;

// The heads of the columns, each label named "lbl" + the detail label's
// name without its "qr", with a rule under them across widthMm.
void addHeads(ReportBand &band, std::span<const Column> columns, double widthMm);
// A value asked for each time the band prints, inside its column.
ReportLabel &addCell(ReportBand &band, const Column &column, Text text);
// A fixed caption, bold.
ReportLabel &addCaption(ReportBand &band, const QString &name, const QRectF &boxMm,
                        const QString &text);

} // namespace ReportColumns
