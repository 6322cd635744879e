#pragma once

#include "Statement.h"
#include "TableStatements.h"

// Inserts many records of one table through one prepared statement. For
// bulk loads only (the demo data): unlike a table object's Insert it is not
// guarded, so a failure throws DbError and the caller's transaction scope
// undoes the load.
template <class Record>
class BulkInsert
{
public:
    explicit BulkInsert(Connection &connection) : m_statement(connection)
    {
        const auto &d = Record::description();
        for (const QString &line : TableStatements::insertLines(d.info.table, d.columnNames()))
            m_statement.add(line);
    }

    void insert(const Record &record)
    {
        record.bindColumns(m_statement);
        m_statement.exec();
    }

private:
    Statement m_statement;
};
