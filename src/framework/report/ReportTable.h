#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <vector>

// The rows of a report as a plain table, for a spreadsheet: one header row
// of captions, then one row per line of the report.
struct ReportTable
{
    QStringList header;
    std::vector<QVariantList> rows;

    // UTF-8 with a byte order mark (so that a spreadsheet knows the
    // encoding without asking), fields separated by ';', lines ended by
    // CR LF. Numbers are written with a decimal comma and no grouping, two
    // decimals for fractions, as a Polish spreadsheet reads them; dates as
    // yyyy-MM-dd; a text holding ';', a quote or a line break is quoted.
    QByteArray csv() const;
    // Throws ReportError when the file cannot be written.
    void writeCsv(const QString &path) const;
};
