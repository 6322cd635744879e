#pragma once

#include "Connection.h"
#include "DbError.h"
#include "Statement.h"
#include "StatementCache.h"
#include "TCompareOp.h"
#include "TableDescription.h"
#include "TableStatements.h"

#include <QStringList>
#include <QVariant>

#include <exception>
#include <vector>

// The generic half of every table object. A table object is one record of
// its table (public fields named after the columns) and the gateway that
// reads and writes such records. Derived classes give the fields and a
// description; everything else is here:
//
//   static constexpr TableShape Shape;      short or long (SelectClause, SelectWhere2)
//   static constexpr bool HasSelectById;
//   static constexpr bool HasSelectOne;
//   static constexpr MaxIdKind MaxId;       GetMaxId absent, guarded or not
//   static const TableDescription<T> &description();
//   bool UniDirectional;                    optional, see uniDirectional()
//
// Inserts, updates and deletes take their statement from the connection's
// kept statements: a loop of them prepares its text once.
//
// Operations a class does not have do not compile for it. The guarded step
// of each operation catches every failure, shows the table's message, logs
// it and goes on: Insert/Update/Delete return false, so that work which
// must be all-or-nothing can undo its scope, and a failed select returns
// an empty list (or an empty record).
template <class Derived>
class TableObject
{
public:
    static constexpr int MaxTextLength = 255;

    explicit TableObject(Connection &connection) : m_connection(&connection) {}

    Connection &connection() const { return *m_connection; }

    // The database gives the new record its key, and the insert hands it
    // back (RETURNING) into the record's key field: the record this
    // workstation inserted, never the highest key, which another
    // workstation may have moved meanwhile. False, and the key 0, after a
    // failure, which has been shown and logged already.
    bool Insert()
    {
        const auto &d = Derived::description();
        static const QStringList lines = [&d] {
            QStringList text = TableStatements::insertLines(d.info.table, d.columnNames());
            text << TableStatements::returningLine(d.info.key);
            return text;
        }();
        Statement &st = m_connection->statements().statement(lines);
        bindColumns(st);
        Derived &record = static_cast<Derived &>(*this);
        record.*(d.keyField) = 0;
        return guarded(TableStatements::Operation::Insert, [&] {
            st.exec();
            record.*(d.keyField) = st.integer(0);
            // Outside an explicit transaction the driver commits a statement
            // that hands back a row only when the statement is let go.
            if (!m_connection->inTransaction())
                st.close();
        });
    }

    // False after a failure, which has been shown and logged already.
    bool Update()
    {
        const auto &d = Derived::description();
        static const QStringList lines
            = TableStatements::updateLines(d.info.table, d.columnNames(), d.info.key);
        Statement &st = m_connection->statements().statement(lines);
        bindKey(st);
        bindColumns(st);
        return guarded(TableStatements::Operation::Update, [&] { st.exec(); });
    }

    // False after a failure, which has been shown and logged already.
    bool Delete()
    {
        const auto &d = Derived::description();
        static const QStringList lines{TableStatements::deleteLine(d.info.table, d.info.key)};
        Statement &st = m_connection->statements().statement(lines);
        bindKey(st);
        return guarded(TableStatements::Operation::Delete, [&] { st.exec(); });
    }

    std::vector<Derived> SelectAll(const QString &orderBy = QString()) const
    {
        Statement st(*m_connection);
        st.add(TableStatements::selectAllLine(Derived::description().info.table));
        if (!orderBy.isEmpty())
            st.add(TableStatements::orderByLine(orderBy));
        return selectList(st, [&] { st.exec(); });
    }

    std::vector<Derived> SelectClause(const QString &clause) const
        requires(Derived::Shape == TableShape::Long)
    {
        Statement st(*m_connection);
        st.add(TableStatements::selectAllLine(Derived::description().info.table));
        if (!clause.isEmpty())
            st.add(QLatin1Char(' ') + clause);
        return selectList(st, [&] { st.exec(); });
    }

    std::vector<Derived> SelectWhere(const QString &field, TCompareOp op, const QVariant &value,
                                     const QString &orderBy = QString()) const
    {
        Statement st(*m_connection);
        return selectList(st, [&] {
            buildWhere(st, {{field, value, QStringLiteral("aValue")}}, op);
            if (!orderBy.isEmpty())
                st.add(TableStatements::orderByLine(orderBy));
            st.exec();
        });
    }

    // Both conditions compare with the first operator; Operator2 is accepted
    // and not used. Callers needing two operators write a SelectClause.
    std::vector<Derived> SelectWhere2(const QString &field, TCompareOp op, const QVariant &value,
                                      const QString &field2, TCompareOp op2, const QVariant &value2,
                                      const QString &orderBy = QString()) const
        requires(Derived::Shape == TableShape::Long)
    {
        Q_UNUSED(op2);
        Statement st(*m_connection);
        return selectList(st, [&] {
            buildWhere(st,
                       {{field, value, QStringLiteral("aValue")},
                        {field2, value2, QStringLiteral("aValue2")}},
                       op);
            if (!orderBy.isEmpty())
                st.add(TableStatements::orderByLine(orderBy));
            st.exec();
        });
    }

    // Not guarded: a failure reaches the caller as DbError.
    QStringList SelectDistinct(const QString &field) const
    {
        Statement st(*m_connection);
        st.add(TableStatements::selectDistinctLine(Derived::description().info.table, field));
        st.exec();
        QStringList values;
        for (; !st.atEnd(); st.next())
            values << st.string(0);
        return values;
    }

    // A key that is not there gives a record whose key is 0.
    Derived SelectById(int key) const
        requires Derived::HasSelectById
    {
        const auto &d = Derived::description();
        Statement st(*m_connection);
        st.add(TableStatements::selectByIdLine(d.info.table, d.info.key));
        st.bind(QStringLiteral("a") + d.info.key, key);
        return selectOne(st);
    }

    Derived SelectOne(const QString &clause) const
        requires Derived::HasSelectOne
    {
        Statement st(*m_connection);
        st.add(TableStatements::selectAllLine(Derived::description().info.table) + QLatin1Char(' ') + clause);
        return selectOne(st);
    }

    // The highest key of the table, 0 when it is empty. Guarded for some
    // tables (0 after a failure), not for others (DbError to the caller).
    // Not the key of a record just inserted: Insert gives that one.
    int GetMaxId() const
        requires(Derived::MaxId != MaxIdKind::None)
    {
        const auto &d = Derived::description();
        Statement st(*m_connection);
        st.add(TableStatements::maxIdLine(d.info.table, d.info.key));
        if constexpr (Derived::MaxId == MaxIdKind::Unguarded) {
            st.exec();
            return st.integer(0);
        } else {
            int result = 0;
            if (!guarded(TableStatements::Operation::Select, [&] { st.exec(); result = st.integer(0); }))
                return 0;
            return result;
        }
    }

    // Binds every non-key column the way Insert and Update do: a zero date
    // as NULL, an empty text as an empty text.
    void bindColumns(Statement &st) const
    {
        for (const Column<Derived> &column : Derived::description().columns)
            bindColumn(st, column, QStringLiteral("a") + column.name);
    }

    // The same for the named columns only, each to ":a" + the name as
    // given (a statement of another module may spell a column in its own
    // case). A name that is not a column of the table throws DbError.
    void bindColumns(Statement &st, const QStringList &names) const
    {
        for (const QString &name : names)
            bindColumn(st, columnNamed(name), QStringLiteral("a") + name);
    }

    // Reads the statement's current row into this record, every column by
    // name as the selects do.
    void readCurrentRow(const Statement &st)
    {
        readRow(st, columnIndexes(st), static_cast<Derived &>(*this));
    }

private:
    struct Condition
    {
        QString field;
        QVariant value;
        QString parameter;
    };

    const Derived &self() const { return static_cast<const Derived &>(*this); }

    // Every select reads its rows once, front to back, into records, so
    // each reads forward-only, without a scrollable buffer, whether or not
    // the caller set UniDirectional.
    static constexpr bool uniDirectional() { return true; }

    template <class Step>
    bool guarded(TableStatements::Operation operation, Step &&step) const
    {
        try {
            step();
            return true;
        } catch (const DbError &error) {
            TableStatements::reportFailure(operation, Derived::description().info, error.message());
        } catch (const std::exception &error) {
            TableStatements::reportFailure(operation, Derived::description().info,
                                           QString::fromLocal8Bit(error.what()));
        }
        return false;
    }

    void bindColumn(Statement &st, const Column<Derived> &column, const QString &parameter) const
    {
        std::visit([&](auto member) { st.bind(parameter, self().*member); }, column.field);
    }

    static const Column<Derived> &columnNamed(const QString &name)
    {
        const auto &d = Derived::description();
        for (const Column<Derived> &column : d.columns) {
            if (column.name.compare(name, Qt::CaseInsensitive) == 0)
                return column;
        }
        throw DbError(QStringLiteral("Brak kolumny %1 w tabeli %2").arg(name, d.info.table));
    }

    void bindKey(Statement &st) const
    {
        const auto &d = Derived::description();
        st.bind(QStringLiteral("a") + d.info.key, self().*(d.keyField));
    }

    // The first condition's operator is used for every condition.
    void buildWhere(Statement &st, const std::vector<Condition> &conditions, TCompareOp op) const
    {
        const QString &table = Derived::description().info.table;
        st.clear();
        if (conditions.front().field.isEmpty()) {
            st.add(TableStatements::selectAllLine(table));
            return;
        }
        std::vector<QMetaType> types;
        for (const Condition &condition : conditions)
            types.push_back(columnType(condition.field));
        st.add(TableStatements::selectWhereLine(table));
        for (std::size_t i = 0; i < conditions.size(); ++i) {
            if (i > 0)
                st.add(QStringLiteral("AND "));
            st.add(conditions[i].field);
            st.add(TableStatements::compareLine(op, conditions[i].parameter));
        }
        for (std::size_t i = 0; i < conditions.size(); ++i)
            TableStatements::bindByColumnType(st, conditions[i].parameter, types[i], conditions[i].value);
    }

    // The type a comparison value of the column is bound as, from the
    // table's column list. Only a name outside it (an expression, a column
    // the record does not keep) is asked of the database.
    QMetaType columnType(const QString &field) const
    {
        const auto &d = Derived::description();
        const QString name = field.trimmed();
        if (name.compare(d.info.key, Qt::CaseInsensitive) == 0)
            return QMetaType::fromType<int>();
        for (const Column<Derived> &column : d.columns) {
            if (column.name.compare(name, Qt::CaseInsensitive) == 0)
                return TableStatements::metaTypeOf(column.type());
        }
        Statement probe(*m_connection);
        probe.add(TableStatements::probeLine(d.info.table, field));
        probe.exec();
        return probe.columnType(0);
    }

    std::vector<int> columnIndexes(const Statement &st) const
    {
        const auto &d = Derived::description();
        std::vector<int> indexes;
        indexes.reserve(d.columns.size() + 1);
        const auto require = [&](const QString &name) {
            const int index = st.columnIndex(name);
            if (index < 0)
                throw DbError(QStringLiteral("Brak kolumny %1 w tabeli %2").arg(name, d.info.table));
            return index;
        };
        indexes.push_back(require(d.info.key));
        for (const Column<Derived> &column : d.columns)
            indexes.push_back(require(column.name));
        return indexes;
    }

    void readRow(const Statement &st, const std::vector<int> &indexes, Derived &record) const
    {
        const auto &d = Derived::description();
        record.*(d.keyField) = st.integer(indexes[0]);
        for (std::size_t i = 0; i < d.columns.size(); ++i) {
            const int index = indexes[i + 1];
            std::visit(
                [&](auto member) {
                    using Value = std::remove_reference_t<decltype(record.*member)>;
                    if constexpr (std::is_same_v<Value, int>)
                        record.*member = st.integer(index);
                    else if constexpr (std::is_same_v<Value, double>)
                        record.*member = st.number(index);
                    else if constexpr (std::is_same_v<Value, DateTime>)
                        record.*member = st.dateTime(index);
                    else
                        record.*member = st.string(index).left(MaxTextLength);
                },
                d.columns[i].field);
        }
    }

    Derived newRecord() const
    {
        Derived record(*m_connection);
        return record;
    }

    template <class Open>
    std::vector<Derived> selectList(Statement &st, Open &&open) const
    {
        std::vector<Derived> result;
        st.setUniDirectional(uniDirectional());
        if (!guarded(TableStatements::Operation::Select, open))
            return result;
        const std::vector<int> indexes = columnIndexes(st);
        for (; !st.atEnd(); st.next()) {
            result.push_back(newRecord());
            readRow(st, indexes, result.back());
        }
        return result;
    }

    Derived selectOne(Statement &st) const
    {
        Derived record = newRecord();
        st.setUniDirectional(uniDirectional());
        if (!guarded(TableStatements::Operation::Select, [&] { st.exec(); }))
            return record;
        if (!st.atEnd())
            readRow(st, columnIndexes(st), record);
        return record;
    }

    Connection *m_connection;
};
