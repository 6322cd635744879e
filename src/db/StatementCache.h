#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

class Connection;
class Statement;

// Statements of one connection kept prepared by their text, so that a loop
// of inserts or updates prepares each text once. Whoever takes one binds
// every parameter before running it and does not hold it across a call
// that may take the same text.
class StatementCache
{
public:
    explicit StatementCache(Connection &connection);
    ~StatementCache();
    StatementCache(const StatementCache &) = delete;
    StatementCache &operator=(const StatementCache &) = delete;

    // The statement of these lines, made on first use.
    Statement &statement(const QStringList &lines);
    int size() const { return int(m_statements.size()); }

private:
    Connection &m_connection;
    QHash<QString, std::shared_ptr<Statement>> m_statements;
};
