#pragma once

#include <QString>

class TListViewModel;

// What the list frame does with the values of a column: add them up and
// write the list to a text file.
namespace ColumnValues {

// A list text that counts as a number: not empty, not a lone separator,
// only digits, ',', '.', '-', blanks and non-breaking spaces, at most one
// decimal separator and a minus sign only in front.
bool isNumeric(const QString &text);
// The text with its non-breaking spaces removed when it counts as a number;
// otherwise the text as it is.
QString exportText(const QString &text);

struct Summary
{
    int rows = 0;
    int numeric = 0;
    int nonNumeric = 0;
    double sum = 0.0;
    double minimum = 0.0;
    double maximum = 0.0;

    double average() const { return numeric > 0 ? sum / numeric : 0.0; }
    // The caption and text of the box that shows the summary.
    QString caption() const;
    QString text() const;
};

Summary summarize(const TListViewModel &model, int column);

enum class WriteResult { Written, OpenFailed, WriteFailed };

// A header line with every column caption, then one line per row: the
// caption and each sub-item, separated by ';', without quoting.
WriteResult writeCsv(const TListViewModel &model, const QString &path);

} // namespace ColumnValues
