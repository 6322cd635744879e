#pragma once

#include "Choices.h"
#include "RecordWriter.h"
#include "References.h"
#include "RegisterModel.h"
#include "SessionScope.h"

#include <functional>
#include <memory>

// A register over one table object: its columns are texts of the record,
// its rows the records the table object selects, a deletion asks the
// places that may point at a record first. Each register of the siblings
// is one such definition.
template <class Obj>
class TableRegister final : public RegisterModel
{
public:
    struct ListColumn
    {
        Column column;
        std::function<QString(const Obj &)> text;
    };

    struct Definition
    {
        std::vector<ListColumn> columns;
        QString orderBy;
        // Instead of every record in orderBy order.
        std::function<std::vector<Obj>(Connection &)> select;
        // Which records the register is about (all when empty).
        std::function<bool(const Obj &)> listed;
        // Inactive records stay out of selection windows (all are active
        // when empty).
        std::function<bool(const Obj &)> active;
        // Names shown for keys, read again before each listing.
        std::vector<std::shared_ptr<NameLookup>> lookups;
        std::vector<Reference> references;
        // A reason besides references why a record must stay; empty when
        // there is none.
        std::function<QString(Connection &, int key)> refusal;
    };

    explicit TableRegister(Definition definition) : m_definition(std::move(definition)) {}

    Definition &definition() { return m_definition; }

    static int keyOf(const Obj &record) { return record.*(Obj::description().keyField); }

    std::vector<Column> columns() const override
    {
        std::vector<Column> result;
        for (const ListColumn &c : m_definition.columns)
            result.push_back(c.column);
        return result;
    }

    std::vector<Row> rows(Connection &connection, const Filter &filter) const override
    {
        for (const std::shared_ptr<NameLookup> &lookup : m_definition.lookups)
            lookup->load(connection);
        const std::vector<Obj> records = m_definition.select
            ? m_definition.select(connection)
            : Obj(connection).SelectAll(m_definition.orderBy);
        std::vector<Row> result;
        for (const Obj &record : records) {
            const int key = keyOf(record);
            if (key == 0 || (m_definition.listed && !m_definition.listed(record)))
                continue;
            if (!filter.inactiveToo && key != filter.keep && m_definition.active
                && !m_definition.active(record))
                continue;
            Row row{key, {}};
            for (const ListColumn &c : m_definition.columns)
                row.texts << c.text(record);
            result.push_back(std::move(row));
        }
        return result;
    }

    Deletion remove(Connection &connection, int key) const override
    {
        SessionScope scope;
        QString refusal = m_definition.refusal ? m_definition.refusal(connection, key) : QString();
        if (refusal.isEmpty())
            refusal = References::refusal(
                References::uses(connection, m_definition.references, key));
        if (!refusal.isEmpty())
            return {Deletion::Refused, refusal};
        if (!RecordWriter::remove<Obj>(connection, key))
            return {Deletion::Failed, QString()};
        scope.commit();
        return {Deletion::Deleted, QString()};
    }

private:
    Definition m_definition;
};
