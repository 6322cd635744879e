#include "ReportLabel.h"

#include "DateTime.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>

ReportLabel::ReportLabel(const QString &name, const QRectF &geometryMm, const QString &text)
    : m_name(name), m_geometry(geometryMm), m_text(text)
{
}

ReportLabel &ReportLabel::setGeometry(const QRectF &geometryMm)
{
    m_geometry = geometryMm;
    return *this;
}

ReportLabel &ReportLabel::setText(const QString &text)
{
    m_text = text;
    return *this;
}

ReportLabel &ReportLabel::setValue(ValueFunction value)
{
    m_value = std::move(value);
    return *this;
}

ReportLabel &ReportLabel::setFormatter(Formatter formatter)
{
    m_formatter = std::move(formatter);
    return *this;
}

ReportLabel &ReportLabel::setPageText(PageTextFunction pageText)
{
    m_pageText = std::move(pageText);
    return *this;
}

ReportLabel &ReportLabel::setAlignment(Qt::Alignment alignment)
{
    // A bare horizontal alignment keeps the text vertically centred.
    if (!(alignment & Qt::AlignVertical_Mask))
        alignment |= Qt::AlignVCenter;
    m_alignment = alignment;
    return *this;
}

ReportLabel &ReportLabel::setFont(const ReportFont &font)
{
    m_font = font;
    return *this;
}

ReportLabel &ReportLabel::setBold(bool bold)
{
    m_font.bold = bold;
    return *this;
}

ReportLabel &ReportLabel::setPointSize(double pointSize)
{
    m_font.pointSize = pointSize;
    return *this;
}

ReportLabel &ReportLabel::setWordWrap(bool wrap)
{
    m_wordWrap = wrap;
    return *this;
}

ReportLabel &ReportLabel::setStretch(bool stretch)
{
    m_stretch = stretch;
    return *this;
}

ReportLabel &ReportLabel::setBottomMargin(double marginMm)
{
    m_bottomMargin = marginMm;
    return *this;
}

ReportLabel &ReportLabel::setFrame(Qt::Edges edges, double widthMm)
{
    m_frame = edges;
    m_frameWidth = widthMm;
    return *this;
}

ReportLabel &ReportLabel::setVisible(bool visible)
{
    m_visible = visible;
    return *this;
}

QString ReportLabel::currentText() const
{
    QString text = m_text;
    if (m_value) {
        const QVariant value = m_value();
        text = m_formatter ? m_formatter(value) : defaultText(value);
    }
    // Texts written for the old printouts break lines with CR LF.
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text;
}

QString ReportLabel::defaultText(const QVariant &value)
{
    if (value.isNull())
        return QString();
    if (value.metaType() == QMetaType::fromType<DateTime>()) {
        const DateTime dateTime = value.value<DateTime>();
        return dateTime.isNull() ? QString()
                                 : dateTime.date().toString(QStringLiteral("yyyy-MM-dd"));
    }
    const QLocale locale;
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return locale.toString(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    case QMetaType::Int:
    case QMetaType::LongLong:
        return locale.toString(value.toLongLong());
    case QMetaType::QDate:
        return value.toDate().toString(QStringLiteral("yyyy-MM-dd"));
    case QMetaType::QDateTime:
        return value.toDateTime().date().toString(QStringLiteral("yyyy-MM-dd"));
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    default:
        break;
    }
    return value.toString();
}
