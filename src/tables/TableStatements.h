#pragma once

#include "TCompareOp.h"
#include "TableDescription.h"

#include <QStringList>
#include <QVariant>

class Statement;

// The statement texts every table object issues, line by line, and the
// failure report of its guarded steps. Kept apart from the template so the
// texts live in one place.
namespace TableStatements {

QStringList insertLines(const QString &table, const QStringList &columns);
// The line after an insert that hands back the new record's key.
QString returningLine(const QString &key);
QStringList updateLines(const QString &table, const QStringList &columns, const QString &key);
QString deleteLine(const QString &table, const QString &key);
QString selectAllLine(const QString &table);
QString selectByIdLine(const QString &table, const QString &key);
QString orderByLine(const QString &orderBy);
QString probeLine(const QString &table, const QString &field);
QString selectWhereLine(const QString &table);
// The line that follows the column name, e.g. "=:aValue".
QString compareLine(TCompareOp op, const QString &parameter);
QString selectDistinctLine(const QString &table, const QString &field);
QString maxIdLine(const QString &table, const QString &key);

// How a value compared with a column of the type is bound: as the driver
// reads such a column.
QMetaType metaTypeOf(ColumnType type);

// Binds a free comparison value by the type of the column it is compared
// with; returns false (leaving it unbound) for a type the table objects
// cannot bind, so the statement fails when it runs.
bool bindByColumnType(Statement &statement, const QString &parameter, QMetaType columnType,
                      const QVariant &value);

enum class Operation { Insert, Update, Delete, Select };

QString failureText(Operation operation, const TableInfo &info);
// Shows the failure box, then writes the log line.
void reportFailure(Operation operation, const TableInfo &info, const QString &reason);

} // namespace TableStatements
