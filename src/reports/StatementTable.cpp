#include "StatementTable.h"

#include "Format.h"

namespace {

double numberAt(const StatementLine &line, int column)
{
    return column >= 0 && column < line.values.size() ? line.values.at(column).toDouble() : 0.0;
}

std::optional<double> lineMargin(const StatementColumn &column, const StatementLine &line)
{
    return StatementTable::margin(numberAt(line, column.profit), numberAt(line, column.base));
}

} // namespace

std::optional<double> StatementTable::margin(double profit, double base)
{
    if (base == 0.0)
        return std::nullopt;
    return profit / base * 100.0;
}

QString StatementTable::marginText(std::optional<double> margin)
{
    if (!margin)
        return QStringLiteral("-");
    return Format::number(*margin, u"#,##0.0") + QStringLiteral(" %");
}

StatementTable::Totals StatementTable::totals(const std::vector<StatementColumn> &columns,
                                              const std::vector<StatementLine> &lines,
                                              std::size_t first, std::size_t last)
{
    Totals totals;
    totals.sums.assign(columns.size(), 0.0);
    for (std::size_t i = first; i < last && i < lines.size(); ++i) {
        ++totals.count;
        for (std::size_t c = 0; c < columns.size(); ++c) {
            if (columns[c].kind == StatementColumn::Money
                || columns[c].kind == StatementColumn::Count)
                totals.sums[c] += numberAt(lines[i], int(c));
        }
    }
    return totals;
}

QString StatementTable::cellText(const std::vector<StatementColumn> &columns,
                                 const StatementLine &line, int column)
{
    const StatementColumn &c = columns.at(std::size_t(column));
    if (c.kind == StatementColumn::Margin)
        return marginText(lineMargin(c, line));
    return cellText(c, line.values.value(column));
}

QString StatementTable::cellText(const StatementColumn &column, const QVariant &value)
{
    // An amount that is not there (no invoice) prints as nothing, not 0.
    if (value.isNull())
        return QString();
    switch (column.kind) {
    case StatementColumn::Money:
        return Format::number(value.toDouble(), u"#,##0.00");
    case StatementColumn::Count:
        return QString::number(qRound64(value.toDouble()));
    case StatementColumn::Margin:
    case StatementColumn::Text:
        break;
    }
    return value.toString();
}

QVariantList StatementTable::tableRow(const std::vector<StatementColumn> &columns,
                                      const StatementLine &line)
{
    QVariantList row{line.group};
    for (std::size_t c = 0; c < columns.size(); ++c) {
        const StatementColumn &column = columns[c];
        if (column.kind == StatementColumn::Margin) {
            const std::optional<double> margin = lineMargin(column, line);
            row << (margin ? QVariant(*margin) : QVariant(QString()));
        } else {
            row << line.values.value(int(c));
        }
    }
    return row;
}
