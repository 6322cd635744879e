#pragma once

#include <QString>

#include <vector>

class Connection;

// The named price lists (groups). The main price list has no group record:
// its cells carry group key 0. Failures of the table object are shown by
// it; the statements of this file's own throw DbError.
struct PriceGroup
{
    int key = 0;
    QString name;
    bool blocked = false;
};

namespace PriceGroups {

// The caption of the main price list in the grid's and viewer's list.
inline const QString MainPriceList = QStringLiteral(" --- GŁÓWNY ---");

// Every group by name, as the range and group editor lists them.
std::vector<PriceGroup> list(Connection &connection);
// The groups that are not blocked, through the table object.
std::vector<PriceGroup> unblocked(Connection &connection);
PriceGroup load(Connection &connection, int key);

// Returns the new group's key, 0 when the insert failed.
int add(Connection &connection, const QString &name, bool blocked);
void change(Connection &connection, int key, const QString &name, bool blocked);
void remove(Connection &connection, int key);

// How many price-list cells use the group, by the suite's own statement,
// which names the column IDGRUPY although the cells keep their group in
// GRUPA: on a database whose CENNIKI_KRAJ has no IDGRUPY the statement
// fails with DbError, and a group is then never deleted.
int usage(Connection &connection, int key);

} // namespace PriceGroups
