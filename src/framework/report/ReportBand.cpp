#include "ReportBand.h"

#include <stdexcept>

ReportBand::ReportBand(BandType type, const QString &name, double heightMm)
    : m_type(type), m_name(name), m_height(heightMm)
{
}

ReportLabel &ReportBand::addLabel(const QString &name, const QRectF &geometryMm,
                                  const QString &text)
{
    return m_labels.emplace_back(name, geometryMm, text);
}

ReportLabel &ReportBand::label(const QString &name)
{
    for (ReportLabel &label : m_labels) {
        if (label.name() == name)
            return label;
    }
    throw std::invalid_argument(
        QStringLiteral("Sekcja %1 nie ma etykiety %2").arg(m_name, name).toStdString());
}

void ReportBand::addLine(const QPointF &fromMm, const QPointF &toMm, double widthMm)
{
    m_lines.push_back(ReportLineItem{fromMm, toMm, widthMm});
}

void ReportBand::addBox(const QRectF &rectMm, double widthMm)
{
    m_boxes.push_back(ReportBoxItem{rectMm, widthMm});
}

bool ReportBand::runBeforePrint()
{
    if (!m_enabled)
        return false;
    bool print = true;
    if (m_beforePrint)
        m_beforePrint(*this, print);
    return print;
}

void ReportBand::addDrawing(const QRectF &rectMm, DrawingFunction drawing)
{
    m_drawings.push_back({rectMm, std::move(drawing)});
}
