#pragma once

#include "ReportBand.h"

#include <QRectF>
#include <QString>

#include <functional>

// The few ways the module's printouts place things on a band, so that the
// invoice, its attachment and the transport order look alike.
namespace PrintoutLayout {

using Text = std::function<QString()>;

// An upright A4 sheet inside its margins: two blocks side by side, rows of
// one line.
inline constexpr double Half = 93.0;
inline constexpr double Right = 97.0;
inline constexpr double Row = 5.0;

// A column of a ruled table: left edge and width in millimetres.
struct ColumnSpan
{
    double x;
    double width;
    QRectF box(double height) const { return QRectF(x, 0, width, height); }
};

// A need-data callback over a list: each call moves row on to the next
// record (1 for the first) and says whether there was one.
template <class Rows>
std::function<bool()> rowsOf(const Rows &rows, std::size_t &row)
{
    return [&rows, &row] {
        if (row >= rows.size())
            return false;
        ++row;
        return true;
    };
}

// A fixed caption in bold.
ReportLabel &caption(ReportBand &band, const QString &name, const QRectF &boxMm,
                     const QString &text);
// A text asked for each time the band prints.
ReportLabel &value(ReportBand &band, const QString &name, const QRectF &boxMm, Text text);
// A cell of a ruled table: the frame grows with the row, the text sits a
// little inside it. Returns the text's label.
ReportLabel &cell(ReportBand &band, const QString &name, const QRectF &boxMm, Text text,
                  Qt::Alignment alignment = Qt::AlignLeft);
// A ruled header cell with a bold caption, centred and wrapped.
ReportLabel &headerCell(ReportBand &band, const QString &name, const QRectF &boxMm,
                        const QString &text);
// A dotted line to sign on with its caption under it; the name of whoever
// signs, when given, stands above the line.
void signature(ReportBand &band, const QString &name, const QRectF &boxMm,
               const QString &caption, Text signer = {});

} // namespace PrintoutLayout
