#pragma once

#include "DateTime.h"
#include "DbError.h"
#include "ReportFailures.h"
#include "RecordEditing.h"
#include "RecordReader.h"
#include "RecordWriter.h"
#include "SessionScope.h"
#include "TableDescription.h"

#include <functional>

// A table object's field shown in an editor.
template <class Obj>
struct BoundField
{
    EditorField field;
    typename Column<Obj>::Field member;
};

// The editing of one table object record: fields bound to the record's
// members, the checks that guard saving, the defaults of a new record and
// the columns derived from the others when it is saved.
template <class Obj>
class TableRecordEditing final : public RecordEditing
{
public:
    using Check = std::function<Problem(const Obj &, Connection &)>;

    struct Definition
    {
        std::vector<FieldGroup> groups;
        std::vector<BoundField<Obj>> fields;
        std::vector<Check> checks;
        std::function<void(Obj &, Connection &)> defaults;
        std::function<void(Obj &, Connection &)> beforeSave;
        // Further writes that belong with the record, all or nothing with
        // it; a DbError undoes the record's own write too.
        std::function<void(const Obj &, Connection &)> afterSave;
    };

    TableRecordEditing(Connection &connection, Definition definition)
        : m_connection(connection), m_definition(std::move(definition)), m_record(connection)
    {
        for (const BoundField<Obj> &bound : m_definition.fields)
            m_layout.push_back(bound.field);
    }

    Obj &record() { return m_record; }
    const Obj &record() const { return m_record; }

    const std::vector<FieldGroup> &groups() const override { return m_definition.groups; }
    const std::vector<EditorField> &fields() const override { return m_layout; }

    bool load(int key) override
    {
        if (key == 0) {
            m_record = Obj(m_connection);
            if (m_definition.defaults)
                m_definition.defaults(m_record, m_connection);
            return true;
        }
        m_record = recordByKey<Obj>(m_connection, key);
        return this->key() != 0;
    }

    int key() const override { return m_record.*(Obj::description().keyField); }

    QVariant value(int field) const override
    {
        return std::visit([&](auto member) { return toVariant(m_record.*member); },
                          m_definition.fields[std::size_t(field)].member);
    }

    void setValue(int field, const QVariant &value) override
    {
        std::visit(
            [&](auto member) {
                using Value = std::remove_reference_t<decltype(m_record.*member)>;
                if constexpr (std::is_same_v<Value, QString>)
                    m_record.*member = value.toString().trimmed();
                else if constexpr (std::is_same_v<Value, DateTime>)
                    m_record.*member = value.value<DateTime>();
                else if constexpr (std::is_same_v<Value, int>)
                    m_record.*member = value.toInt();
                else
                    m_record.*member = value.toDouble();
            },
            m_definition.fields[std::size_t(field)].member);
    }

    Problem check() const override
    {
        for (std::size_t i = 0; i < m_layout.size(); ++i) {
            if (m_layout[i].required && isEmpty(int(i)))
                return FieldProblem{m_layout[i].name,
                                    QStringLiteral("Uzupełnij pole %1.").arg(m_layout[i].caption)};
        }
        for (const Check &check : m_definition.checks) {
            if (Problem problem = check(m_record, m_connection))
                return problem;
        }
        return std::nullopt;
    }

    int save() override
    {
        if (m_definition.beforeSave)
            m_definition.beforeSave(m_record, m_connection);
        SessionScope scope;
        const auto &d = Obj::description();
        const bool inserted = key() == 0;
        if (!inserted) {
            if (!RecordWriter::update(m_record))
                return 0;
        } else if (!m_record.Insert()) {
            return 0;
        }
        if (m_definition.afterSave) {
            try {
                m_definition.afterSave(m_record, m_connection);
            } catch (const DbError &error) {
                if (inserted)
                    m_record.*(d.keyField) = 0;
                reportFailure(QStringLiteral("Nie udało się zapisać zmian: baza danych "
                                             "odrzuciła zapis. Nic nie zostało zapisane."),
                              error);
                return 0;
            }
        }
        scope.commit();
        return key();
    }

private:
    static QVariant toVariant(const QString &value) { return value; }
    static QVariant toVariant(int value) { return value; }
    static QVariant toVariant(double value) { return value; }
    static QVariant toVariant(DateTime value) { return QVariant::fromValue(value); }

    bool isEmpty(int field) const
    {
        const QVariant v = value(field);
        switch (m_layout[std::size_t(field)].kind) {
        case FieldKind::Text: return v.toString().trimmed().isEmpty();
        case FieldKind::Choice: return v.toInt() == 0;
        case FieldKind::Date: return v.value<DateTime>().isNull();
        default: return false;
        }
    }

    Connection &m_connection;
    Definition m_definition;
    std::vector<EditorField> m_layout;
    Obj m_record;
};
