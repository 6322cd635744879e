#pragma once

#include "DbError.h"
#include "Statement.h"
#include "TableObject.h"
#include "TableStatements.h"

#include <exception>

// Writes one table object record with the statements and failure reports
// of its table object, telling the caller what came of it: the key a new
// record got from its own insert (never a highest key that another
// workstation could move) and whether an update or a delete went through.
namespace RecordWriter {

namespace Detail {

template <class Obj, class Step>
bool reported(TableStatements::Operation operation, Step &&step)
{
    try {
        step();
        return true;
    } catch (const DbError &error) {
        TableStatements::reportFailure(operation, Obj::description().info, error.message());
    } catch (const std::exception &error) {
        TableStatements::reportFailure(operation, Obj::description().info,
                                       QString::fromLocal8Bit(error.what()));
    }
    return false;
}

} // namespace Detail

// The new record's key; 0 after a failure, which has been shown and logged.
template <class Obj>
int insert(const Obj &record)
{
    const auto &d = Obj::description();
    Statement st(record.connection());
    for (const QString &line : TableStatements::insertLines(d.info.table, d.columnNames()))
        st.add(line);
    st.add(QStringLiteral("RETURNING ") + d.info.key);
    record.bindColumns(st);
    int key = 0;
    Detail::reported<Obj>(TableStatements::Operation::Insert, [&] {
        st.exec();
        key = st.integer(0);
    });
    return key;
}

// False after a failure, which has been shown and logged; also when the
// record is no longer there.
template <class Obj>
bool update(const Obj &record)
{
    const auto &d = Obj::description();
    Statement st(record.connection());
    const QStringList lines
        = TableStatements::updateLines(d.info.table, d.columnNames(), d.info.key);
    for (const QString &line : lines)
        st.add(line);
    st.bind(QStringLiteral("a") + d.info.key, record.*(d.keyField));
    record.bindColumns(st);
    bool found = false;
    const bool ran = Detail::reported<Obj>(TableStatements::Operation::Update, [&] {
        st.exec();
        found = st.rowsAffected() > 0;
    });
    if (ran && !found)
        TableStatements::reportFailure(TableStatements::Operation::Update, d.info,
                                       QStringLiteral("Brak rekordu o kluczu %1")
                                           .arg(record.*(d.keyField)));
    return ran && found;
}

template <class Obj>
bool remove(Connection &connection, int key)
{
    const auto &d = Obj::description();
    Statement st(connection);
    st.add(TableStatements::deleteLine(d.info.table, d.info.key));
    st.bind(QStringLiteral("a") + d.info.key, key);
    return Detail::reported<Obj>(TableStatements::Operation::Delete, [&] { st.exec(); });
}

} // namespace RecordWriter
