#pragma once

#include <QString>

#include <vector>

class Connection;
class QComboBox;

// Drop-down lists whose items carry the key of the record they name.
namespace KeyedLists {

struct Entry
{
    QString text;
    int key = 0;
};

// Replaces the items with the entries in Polish alphabetical order.
void fillSorted(QComboBox *combo, std::vector<Entry> entries);

// The key of the chosen item; 0 when nothing is chosen.
int currentKey(const QComboBox *combo);

// The key of the chosen item; the fallback when nothing is chosen, which a
// drop-down list only shows for a key that was not among its items.
int currentKeyOr(const QComboBox *combo, int fallback);

// Chooses the item carrying the key; nothing is chosen when none does.
// Returns whether an item was found.
bool selectKey(QComboBox *combo, int key);

// Contractors by their short names, cities by name (with an empty first
// entry of key 0, for a route without that city), the values of the
// incoming orders' first filter after "---" (key 0), units of measure.
std::vector<Entry> contractors(Connection &connection);
void fillCities(QComboBox *combo, Connection &connection);
void fillFilters(QComboBox *combo, Connection &connection);
void fillUnits(QComboBox *combo, Connection &connection);

} // namespace KeyedLists
