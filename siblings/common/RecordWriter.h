#pragma once

#include "DbError.h"
#include "Statement.h"
#include "TableObject.h"
#include "TableStatements.h"

#include <exception>

// Changes one table object record with the statements and failure reports
// of its table object, telling the caller whether the update or the delete
// went through. (A new record is inserted by the table object itself, which
// gives it the key of its own insert.)
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
