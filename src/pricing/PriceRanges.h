#pragma once

#include <QString>

#include <vector>

class Connection;

// The two axes of the country price lists: kilometre ranges (the rows of
// every price list) and kilogram ranges (its columns). The ranges of an
// axis are contiguous: the user gives only the upper bound, and after every
// change the lower bounds are worked out again from the upper ones.
// Failures of the table objects are shown by them; the statements of their
// own throw DbError.
enum class RangeAxis { Kilometres, Kilograms };

struct PriceRange
{
    int key = 0;
    int from = 0;
    int to = 0;
};

namespace PriceRanges {

// " km" or " kg": how the editor shows a bound.
QString unit(RangeAxis axis);

// The statements that list an axis by upper bound: the range editor's and
// the price grid's.
QString editorListing(RangeAxis axis);
QString gridListing(RangeAxis axis);
// The ranges a listing statement gives, in its order. Throws DbError.
std::vector<PriceRange> list(Connection &connection, RangeAxis axis, const QString &listing);

// The statement that tells whether an upper bound exists already, with the
// parameter :wartosc; for an edit (exceptKey > 0) the range itself does not
// count.
QString duplicateTest(RangeAxis axis, int exceptKey = 0);
// Runs such a test for the value; true when it finds a range.
bool exists(Connection &connection, const QString &duplicateTest, int upperBound);

// One range by key, through the table object; key 0 when there is none.
PriceRange load(Connection &connection, RangeAxis axis, int key);

// Kilometre and kilogram ranges together, as the price-list menu counts
// them before it opens the grid. Throws DbError.
int totalCount(Connection &connection);

// Stores a new range and renumbers the axis; returns its key (0 when the
// insert failed).
int add(Connection &connection, RangeAxis axis, int upperBound);
void change(Connection &connection, RangeAxis axis, int key, int upperBound);
// How many price-list cells use the range.
int usage(Connection &connection, RangeAxis axis, int key);
void remove(Connection &connection, RangeAxis axis, int key);

// Walks the axis by upper bound: the first range starts at 0, each next
// one at the previous upper bound + 1.
void recomputeLowerBounds(Connection &connection, RangeAxis axis);

} // namespace PriceRanges
