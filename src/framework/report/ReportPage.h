#pragma once

#include "ReportFont.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <memory>
#include <variant>
#include <vector>

class QPainter;

// The primitives a pre-rendered page is made of. All positions are in
// millimetres from the top left corner of the sheet. A year's statement
// places millions of them, so texts in one font share that font, and a
// label printing the same text as in its previous band shares that text.
struct ReportTextItem
{
    QRectF rectMm;
    QString text;
    std::shared_ptr<const ReportFont> font;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool wordWrap = false;
};

struct ReportLineItem
{
    QPointF fromMm;
    QPointF toMm;
    double widthMm = 0.2;
};

struct ReportBoxItem
{
    QRectF rectMm;
    double widthMm = 0.2;
};

// A picture drawn into its box when the page is painted (a chart), at the
// resolution of the device it is painted on.
class ReportDrawing
{
public:
    virtual ~ReportDrawing() = default;
    // target is in the painter's device coordinates.
    virtual void paint(QPainter &painter, const QRectF &target) const = 0;
    // What it shows, in words: for a text dump of the page and for tests.
    virtual QString description() const = 0;
};

struct ReportDrawingItem
{
    QRectF rectMm;
    std::shared_ptr<const ReportDrawing> drawing;
};

using ReportItem
    = std::variant<ReportTextItem, ReportLineItem, ReportBoxItem, ReportDrawingItem>;

struct ReportPage
{
    int number = 0;
    QSizeF sizeMm;
    std::vector<ReportItem> items;

    // The texts of the page in the order they were placed.
    QStringList texts() const;
    bool containsText(const QString &text) const { return texts().contains(text); }
    // The drawings of the page in the order they were placed.
    std::vector<const ReportDrawingItem *> drawings() const;
};

// One primitive a line, numbers with two decimals: stable enough to be
// compared with a checked-in reference file.
QString dumpPages(const std::vector<ReportPage> &pages);
