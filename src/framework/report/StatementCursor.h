#pragma once

#include "ReportDataSource.h"

#include <QString>
#include <QVariant>

#include <functional>

class Statement;

// Rows of a query: each run executes the statement again, so a report
// printed twice reads the data twice. The statement stays the caller's.
class StatementCursor final : public ReportDataSource
{
public:
    explicit StatementCursor(Statement &statement) : m_statement(statement) {}

    bool first() override;
    bool next() override;

    // The column of the current row; throws DbError for an unknown column.
    QVariant value(const QString &column) const;
    // For a label or a group key: the column of whatever row is current.
    std::function<QVariant()> field(const QString &column) const;

    Statement &statement() const { return m_statement; }

private:
    Statement &m_statement;
};
