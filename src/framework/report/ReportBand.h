#pragma once

#include "ReportLabel.h"
#include "ReportPage.h"

#include <QString>

#include <deque>
#include <functional>
#include <vector>

enum class BandType {
    Title,
    PageHeader,
    ColumnHeader,
    GroupHeader,
    Detail,
    GroupFooter,
    Summary,
    PageFooter,
};

// A horizontal strip of a report printed as a whole: its labels and the
// lines and boxes drawn on it, in millimetres from its top left corner.
class ReportBand
{
public:
    // Runs each time just before the band prints; it may change labels or
    // clear printBand to leave the band out this time.
    using BeforePrint = std::function<void(ReportBand &band, bool &printBand)>;

    ReportBand(BandType type, const QString &name, double heightMm);
    ReportBand(const ReportBand &) = delete;
    ReportBand &operator=(const ReportBand &) = delete;

    BandType type() const { return m_type; }
    const QString &name() const { return m_name; }

    double height() const { return m_height; }
    void setHeight(double heightMm) { m_height = heightMm; }

    // References stay valid for the band's lifetime.
    ReportLabel &addLabel(const QString &name, const QRectF &geometryMm,
                          const QString &text = QString());
    // Throws std::invalid_argument for a name the band does not have.
    ReportLabel &label(const QString &name);
    const std::deque<ReportLabel> &labels() const { return m_labels; }

    // A drawing asked for each time the band prints; none when it answers null.
    using DrawingFunction = std::function<std::shared_ptr<const ReportDrawing>()>;
    void addDrawing(const QRectF &rectMm, DrawingFunction drawing);
    struct Drawing
    {
        QRectF rectMm;
        DrawingFunction drawing;
    };
    const std::vector<Drawing> &drawings() const { return m_drawings; }

    void addLine(const QPointF &fromMm, const QPointF &toMm, double widthMm = 0.2);
    void addBox(const QRectF &rectMm, double widthMm = 0.2);
    const std::vector<ReportLineItem> &lines() const { return m_lines; }
    const std::vector<ReportBoxItem> &boxes() const { return m_boxes; }

    void setBeforePrint(BeforePrint beforePrint) { m_beforePrint = std::move(beforePrint); }
    // False when the band is disabled or its before-print callback said no.
    bool runBeforePrint();

    // A disabled band never prints.
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }

    // The band starts a new page unless the page holds nothing but headers.
    bool forceNewPage() const { return m_forceNewPage; }
    void setForceNewPage(bool force) { m_forceNewPage = force; }

    // Page headers honour the first-page flag, page footers both flags.
    bool printOnFirstPage() const { return m_printOnFirstPage; }
    void setPrintOnFirstPage(bool print) { m_printOnFirstPage = print; }
    bool printOnLastPage() const { return m_printOnLastPage; }
    void setPrintOnLastPage(bool print) { m_printOnLastPage = print; }

private:
    BandType m_type;
    QString m_name;
    double m_height;
    std::deque<ReportLabel> m_labels;
    std::vector<ReportLineItem> m_lines;
    std::vector<ReportBoxItem> m_boxes;
    std::vector<Drawing> m_drawings;
    BeforePrint m_beforePrint;
    bool m_enabled = true;
    bool m_forceNewPage = false;
    bool m_printOnFirstPage = true;
    bool m_printOnLastPage = true;
};
