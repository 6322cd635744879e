#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class Connection;

// Where other records point at a record of a register: the schema declares
// no foreign keys, so a register asks these places before it deletes.
struct Reference
{
    QString table;
    QStringList columns;   // any of them holding the key counts
    QString what;          // how the user calls those records: "zlecenia przychodzące"
};

struct ReferenceUse
{
    QString what;
    int count = 0;
};

namespace References {

// The places that point at key, with how many records each; places without
// any are left out. A database failure throws DbError.
std::vector<ReferenceUse> uses(Connection &connection, const std::vector<Reference> &references,
                               int key);

// The refusal naming what uses the record; empty when nothing does.
QString refusal(const std::vector<ReferenceUse> &uses);

} // namespace References
