#pragma once

#include "ReportFont.h"

#include <QRectF>
#include <QString>
#include <QVariant>

#include <functional>

// A text box of a band: a fixed caption, or a value asked for each time the
// band prints and turned into text by an optional formatter. Geometry is in
// millimetres from the band's top left corner.
class ReportLabel
{
public:
    using ValueFunction = std::function<QVariant()>;
    // A lambda joining texts with + must say "-> QString": with
    // QT_USE_QSTRINGBUILDER it would otherwise return a builder that points
    // at temporaries gone by the time the text is read.
    using Formatter = std::function<QString(const QVariant &)>;
    // Page numbers are known only once the whole report is laid out.
    using PageTextFunction = std::function<QString(int page, int pageCount)>;

    ReportLabel(const QString &name, const QRectF &geometryMm, const QString &text = QString());

    const QString &name() const { return m_name; }

    const QRectF &geometry() const { return m_geometry; }
    ReportLabel &setGeometry(const QRectF &geometryMm);

    // The caption; a before-print callback may change it at any time.
    const QString &text() const { return m_text; }
    ReportLabel &setText(const QString &text);

    ReportLabel &setValue(ValueFunction value);
    bool hasValue() const { return static_cast<bool>(m_value); }
    ReportLabel &setFormatter(Formatter formatter);
    ReportLabel &setPageText(PageTextFunction pageText);
    const PageTextFunction &pageText() const { return m_pageText; }

    Qt::Alignment alignment() const { return m_alignment; }
    ReportLabel &setAlignment(Qt::Alignment alignment);

    const ReportFont &font() const { return m_font; }
    ReportLabel &setFont(const ReportFont &font);
    ReportLabel &setBold(bool bold);
    ReportLabel &setPointSize(double pointSize);

    bool wordWrap() const { return m_wordWrap; }
    ReportLabel &setWordWrap(bool wrap);
    // The band grows so that the whole text fits below the label's top.
    bool stretch() const { return m_stretch; }
    ReportLabel &setStretch(bool stretch);
    // Room a stretching label keeps under its text, so that a ruled row
    // does not end on the last line's descenders.
    double bottomMargin() const { return m_bottomMargin; }
    ReportLabel &setBottomMargin(double marginMm);

    Qt::Edges frame() const { return m_frame; }
    double frameWidth() const { return m_frameWidth; }
    ReportLabel &setFrame(Qt::Edges edges, double widthMm = 0.2);

    bool isVisible() const { return m_visible; }
    ReportLabel &setVisible(bool visible);

    // The text to print now: the formatted value, or the caption.
    QString currentText() const;

    // Plain conversion used when no formatter is given: numbers in the
    // application locale, dates as "yyyy-MM-dd".
    static QString defaultText(const QVariant &value);

private:
    QString m_name;
    QRectF m_geometry;
    QString m_text;
    ValueFunction m_value;
    Formatter m_formatter;
    PageTextFunction m_pageText;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
    ReportFont m_font;
    bool m_wordWrap = false;
    bool m_stretch = false;
    double m_bottomMargin = 0.0;
    Qt::Edges m_frame;
    double m_frameWidth = 0.2;
    bool m_visible = true;
};
