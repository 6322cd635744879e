#pragma once

#include "DateTime.h"

#include <QString>
#include <QVariant>

#include <memory>

class Statement;

// The rows of a SELECT read straight from the engine: the driver prepares,
// binds and runs the statement on its connection and transaction as ever,
// and the rows then come in without the driver turning every column of
// every row into a variant. Columns read as through Statement: NULL as 0,
// empty text or the null date. Meant for long lists; a statement with BLOB
// or ARRAY columns is refused.
class EngineRows
{
public:
    // Runs the statement, a SELECT with its values bound; the rows are then
    // read here, not through the statement. Throws DbError.
    explicit EngineRows(Statement &statement);
    ~EngineRows();
    EngineRows(const EngineRows &) = delete;
    EngineRows &operator=(const EngineRows &) = delete;

    // Moves to the next row, the first one included; false after the last,
    // and again whenever asked after that.
    bool next();

    int columnCount() const;
    int columnIndex(const QString &name) const;   // -1 when absent
    QString columnName(int index) const;

    bool isNull(int index) const;
    int integer(int index) const;
    double number(int index) const;
    QString string(int index) const;
    DateTime dateTime(int index) const;
    // The value as the driver gives it.
    QVariant value(int index) const;
    // string(index) added to the end of text without a temporary text.
    void appendString(int index, QString &text) const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};
