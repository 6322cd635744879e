#pragma once

#include "MonthlyFigures.h"

#include <QString>
#include <QVariantList>

#include <optional>

#include <vector>

// A column of a statement: a text, a count or an amount that are added up
// in the group and grand totals, or a margin worked out from two amount columns
// (on the lines and on the totals alike, never added up).
struct StatementColumn
{
    enum Kind { Text, Count, Money, Margin };

    const char *caption;
    double width;              // millimetres
    Kind kind = Text;
    int profit = -1;           // Margin: the columns it divides, profit / base
    int base = -1;
};

// One line of a statement: the group it belongs to (its title, as the
// group's heading prints it) and a value per column: a text for the text
// columns, a number for the amounts; a margin's value is left empty.
struct StatementLine
{
    QString group;
    QVariantList values;
    int groupKey = 0;   // tells apart groups of the same title
};

// What a statement prints: its lines, grouped and in order, and, for the
// statements with a chart, the months of the period.
struct StatementData
{
    std::vector<StatementLine> lines;
    std::vector<MonthFigures> months;
};

namespace StatementTable {

// The group of the lines that name no user.
inline const QString NoUser = QStringLiteral("(bez użytkownika)");

// profit / base in per cent; nothing when the base is 0.
std::optional<double> margin(double profit, double base);
// "12,5 %", or "-" without a base.
QString marginText(std::optional<double> margin);

// The sums of the count and amount columns over the lines [first, last) (0 for the
// other columns) and the number of lines.
struct Totals
{
    std::vector<double> sums;
    int count = 0;
};
Totals totals(const std::vector<StatementColumn> &columns, const std::vector<StatementLine> &lines,
              std::size_t first, std::size_t last);

// The cell of a line as it prints: amounts "#,##0.00", margins worked out.
QString cellText(const StatementColumn &column, const QVariant &value);
QString cellText(const std::vector<StatementColumn> &columns, const StatementLine &line,
                 int column);

// The lines as a spreadsheet takes them: the group first, then every
// column, margins as numbers.
QVariantList tableRow(const std::vector<StatementColumn> &columns, const StatementLine &line);

} // namespace StatementTable
