#include "ColumnValues.h"

#include "Format.h"
#include "TListViewModel.h"

#include <QFile>

#include <algorithm>

namespace ColumnValues {

namespace {

constexpr QStringView NumericCharacters = u"0123456789,.- \u00A0";
constexpr int FlushBytes = 1 << 20;

QString withoutNonBreakingSpaces(const QString &text)
{
    QString plain = text;
    plain.remove(Format::ThousandSeparator);
    return plain;
}

} // namespace

bool isNumeric(const QString &text)
{
    if (text.isEmpty() || text == u"." || text == u",")
        return false;
    int separators = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (!NumericCharacters.contains(c))
            return false;
        if (c == u',' || c == u'.')
            ++separators;
        if (c == u'-' && i > 0)
            return false;
    }
    return separators <= 1;
}

QString exportText(const QString &text)
{
    return isNumeric(text) ? withoutNonBreakingSpaces(text) : text;
}

QString Summary::caption() const
{
    return QStringLiteral("Sumowanych pozycji: ") + QString::number(numeric) + QStringLiteral(" z ")
        + QString::number(rows);
}

QString Summary::text() const
{
    if (numeric == 0)
        return QStringLiteral("Kolumna nie zawierała wartości liczbowych.");
    const QString money = QStringLiteral("#,##0.00");
    return QStringLiteral("Suma kolumny: ") + Format::number(sum, money) + u'\n'
        + QString(43, u'_') + u'\n'
        + QStringLiteral("Wartość średnia: ") + Format::number(average(), money) + u'\n'
        + QStringLiteral("Wartość minimalna: ") + Format::number(minimum, money) + u'\n'
        + QStringLiteral("Wartość maksymalna: ") + Format::number(maximum, money) + u'\n'
        + QStringLiteral("Wartości nie-numeryczne: ")
        + Format::number(nonNumeric, QStringLiteral("#,##0"));
}

Summary summarize(const TListViewModel &model, int column)
{
    Summary summary;
    summary.rows = model.rows();
    for (int row = 0; row < model.rows(); ++row) {
        const QString text = model.text(row, column);
        // A lone "-" passes the character test but is no number.
        const auto value = isNumeric(text) ? Format::parseNumber(text) : std::nullopt;
        if (!value) {
            ++summary.nonNumeric;
            continue;
        }
        summary.minimum = summary.numeric == 0 ? *value : std::min(summary.minimum, *value);
        summary.maximum = summary.numeric == 0 ? *value : std::max(summary.maximum, *value);
        summary.sum += *value;
        ++summary.numeric;
    }
    return summary;
}

WriteResult writeCsv(const TListViewModel &model, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return WriteResult::OpenFailed;

    QString line;
    QByteArray buffer;
    const auto flush = [&](bool always) {
        if ((always || buffer.size() >= FlushBytes) && !buffer.isEmpty()) {
            if (file.write(buffer) != buffer.size())
                return false;
            buffer.clear();
        }
        return true;
    };

    for (int column = 0; column < model.columns(); ++column) {
        if (column > 0)
            line += u';';
        line += model.columnCaption(column);
    }
    buffer += line.toUtf8() + "\r\n";
    for (int row = 0; row < model.rows(); ++row) {
        line.clear();
        for (int column = 0; column < model.cells(row); ++column) {
            if (column > 0)
                line += u';';
            line += exportText(model.text(row, column));
        }
        buffer += line.toUtf8();
        buffer += "\r\n";
        if (!flush(false))
            return WriteResult::WriteFailed;
    }
    if (!flush(true) || !file.flush())
        return WriteResult::WriteFailed;
    return WriteResult::Written;
}

} // namespace ColumnValues
