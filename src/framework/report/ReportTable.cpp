#include "ReportTable.h"

#include "DateTime.h"
#include "Format.h"
#include "ReportError.h"

#include <QDate>
#include <QSaveFile>

namespace {

QString field(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
        return Format::number(value.toDouble(), u"0.00");
    case QMetaType::Int:
    case QMetaType::LongLong:
        return QString::number(value.toLongLong());
    case QMetaType::QDate:
        return Format::date(value.toDate());
    default:
        break;
    }
    if (value.metaType() == QMetaType::fromType<DateTime>())
        return Format::date(value.value<DateTime>());
    QString text = value.toString();
    if (text.contains(u';') || text.contains(u'"') || text.contains(u'\n')
        || text.contains(u'\r')) {
        text.replace(QStringLiteral("\""), QStringLiteral("\"\""));
        text = u'"' + text + u'"';
    }
    return text;
}

void appendLine(QByteArray &out, const QStringList &fields)
{
    out += fields.join(u';').toUtf8();
    out += "\r\n";
}

} // namespace

QByteArray ReportTable::csv() const
{
    QByteArray out("\xEF\xBB\xBF");
    QStringList fields;
    for (const QString &caption : header)
        fields << field(caption);
    appendLine(out, fields);
    for (const QVariantList &row : rows) {
        fields.clear();
        for (const QVariant &value : row)
            fields << field(value);
        appendLine(out, fields);
    }
    return out;
}

void ReportTable::writeCsv(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(csv()) < 0 || !file.commit())
        throw ReportError(QStringLiteral("Nie można zapisać pliku %1.").arg(path));
}
