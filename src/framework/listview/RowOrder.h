#pragma once

#include <QString>

#include <stdexcept>
#include <vector>

class TListViewModel;

// How the values of a column compare when a list is sorted by it.
enum class SortKind {
    Text,      // locale-aware, letter case ignored
    Number,    // floating-point numbers
    Currency,  // numbers of the first column: the upper value is rounded to a whole number
    Date,      // yyyy-MM-dd with an optional time
};

// A value of a typed column that is neither empty nor of the column's type.
class SortConversionError : public std::runtime_error
{
public:
    SortConversionError(const QString &value, SortKind kind);
    const QString &value() const { return m_value; }
    SortKind kind() const { return m_kind; }
    // The Polish message for the user.
    QString message() const;

private:
    QString m_value;
    SortKind m_kind;
};

// The positions of the model's rows in ascending order of the column, for
// TListViewModel::reorder. The comparison only ever says whether the upper
// row's value is greater than the lower one's; rows that are not greater
// keep their order (the sort is stable), and empty values of typed columns
// come first. Throws SortConversionError and sorts nothing when a typed
// column holds a value of another kind.
std::vector<int> sortedRows(const TListViewModel &model, int column, SortKind kind);
