#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>

class Connection;

// The floor of a list read: the statement run through Firebird's own C API
// on the connection's attachment, in a transaction of its own, every row
// fetched into fixed buffers and nothing converted. Its parameters are
// named in text as ":aNAME" and given as date-times. The number of rows.
int engineFetch(Connection &connection, const QString &text,
                const QHash<QString, QDateTime> &parameters);
