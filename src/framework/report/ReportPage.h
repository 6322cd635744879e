#pragma once

#include "ReportFont.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

// The primitives a pre-rendered page is made of. All positions are in
// millimetres from the top left corner of the sheet.
struct ReportTextItem
{
    QRectF rectMm;
    QString text;
    ReportFont font;
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

using ReportItem = std::variant<ReportTextItem, ReportLineItem, ReportBoxItem>;

struct ReportPage
{
    int number = 0;
    QSizeF sizeMm;
    std::vector<ReportItem> items;

    // The texts of the page in the order they were placed.
    QStringList texts() const;
    bool containsText(const QString &text) const { return texts().contains(text); }
};

// One primitive a line, numbers with two decimals: stable enough to be
// compared with a checked-in reference file.
QString dumpPages(const std::vector<ReportPage> &pages);
