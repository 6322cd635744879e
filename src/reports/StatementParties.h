#pragma once

#include <QString>

#include <vector>

class Connection;

// Whom a statement can be made for, as its dialog offers them.
namespace StatementParties {

struct Party
{
    int key = 0;
    QString name;
};

// Every contractor by short name: clients and carriers are both contractors.
std::vector<Party> contractors(Connection &connection);
// Every user by login.
std::vector<Party> users(Connection &connection);

} // namespace StatementParties
