#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class Connection;

// What a register shows and how its records go, without widgets: the
// register form (TfrmRegister) shows what this gives.
class RegisterModel
{
public:
    enum class ColumnKind { Text, Number, Date };

    struct Column
    {
        QString caption;
        int width = 100;
        ColumnKind kind = ColumnKind::Text;
    };

    struct Row
    {
        int key = 0;
        QStringList texts;   // one per column
    };

    // What to list: a selection window leaves out inactive records, except
    // the one its caller shows.
    struct Filter
    {
        bool inactiveToo = true;
        int keep = 0;
    };

    // How a deletion ended. Refused carries the message naming what uses
    // the record; Failed has shown its message already.
    struct Deletion
    {
        enum Outcome { Deleted, Refused, Failed } outcome = Failed;
        QString refusal;
    };

    virtual ~RegisterModel() = default;

    virtual std::vector<Column> columns() const = 0;
    // A failure throws DbError.
    virtual std::vector<Row> rows(Connection &connection, const Filter &filter) const = 0;
    // Deletes the record unless other records use it; all or nothing.
    virtual Deletion remove(Connection &connection, int key) const = 0;
};
