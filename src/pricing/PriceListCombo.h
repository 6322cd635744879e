#pragma once

class Connection;
class QComboBox;

// Fills a drop-down with the price lists a user may pick: the main price
// list (key 0) first, then the groups that are not blocked, by name; each
// entry carries its group key as item data. The first entry is selected.
// A database failure is shown and leaves only the main price list.
void fillPriceListCombo(QComboBox *combo, Connection *connection);

// The group key of the selected entry; 0 when nothing is selected.
int selectedPriceList(const QComboBox *combo);
