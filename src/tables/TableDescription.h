#pragma once

#include "DateTime.h"

#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

// What a table object knows about its table: everything the generic
// statements are built from.

enum class TableShape { Short, Long };

// The error log a table object writes its failures to.
enum class ErrorLogFile { Haulix, Sql };

// The insert failure message of most tables reads "... danych do tabeli X";
// a few tables of the suite were always reported without the "do".
enum class InsertWording { WithDo, WithoutDo };

enum class MaxIdKind { None, Guarded, Unguarded };

// The column types of the schema: I, T, F, D.
enum class ColumnType : char { Integer = 'I', Text = 'T', Float = 'F', Date = 'D' };

template <class Record>
struct Column
{
    using Field = std::variant<int Record::*, QString Record::*, double Record::*, DateTime Record::*>;

    QString name;
    Field field;

    ColumnType type() const
    {
        static constexpr ColumnType types[] = {ColumnType::Integer, ColumnType::Text,
                                               ColumnType::Float, ColumnType::Date};
        return types[field.index()];
    }
};

// The parts of a description that do not depend on the record type.
struct TableInfo
{
    QString table;
    QString key;
    ErrorLogFile log = ErrorLogFile::Sql;
    InsertWording insertWording = InsertWording::WithDo;
};

template <class Record>
struct TableDescription
{
    TableInfo info;
    int Record::*keyField;
    std::vector<Column<Record>> columns;

    QStringList columnNames() const
    {
        QStringList names;
        names.reserve(qsizetype(columns.size()));
        for (const Column<Record> &column : columns)
            names << column.name;
        return names;
    }
};
