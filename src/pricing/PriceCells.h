#pragma once

#include <vector>

class Connection;

// The amounts of a price list: one cell per kilometre range, kilogram
// range and group, kept only for a positive amount. Cells hold range keys,
// not distances or weights. Statements of this file's own throw DbError;
// the table object shows its failures itself.
struct PriceCell
{
    int kilometreRange = 0;
    int kilogramRange = 0;
    double amount = 0.0;
};

namespace PriceCells {

enum class Stored { Nothing, Inserted, Updated, Deleted };

// Every cell of a group (0: the main price list), in no particular order.
std::vector<PriceCell> ofGroup(Connection &connection, int group);

// The amount of one cell; 0 when there is none.
double amountAt(Connection &connection, int group, int kilometreRange, int kilogramRange);

// Writes an amount into a cell: an existing cell is deleted for an amount
// of 0 or less and updated otherwise; a missing one is inserted only for
// an amount above 0.
Stored store(Connection &connection, int group, int kilometreRange, int kilogramRange,
             double amount);

} // namespace PriceCells
