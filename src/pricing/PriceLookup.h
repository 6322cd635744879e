#pragma once

class Connection;

// The country price list look-up the order editor uses: the amount of a
// price-list group for a distance and a weight.
namespace PriceLookup {

// group: 0 for the main price list. The weight in tonnes is looked up in
// whole kilograms (tonnes x 1000, rounded). Both bounds of a range count.
// A distance or weight outside every range, or an empty cell, gives 0;
// no message is shown then. A database failure throws DbError.
double amount(Connection &connection, int group, int kilometres, double tonnes);

// tonnes x 1000 rounded to the nearest whole kilogram.
int kilograms(double tonnes);

} // namespace PriceLookup
