#pragma once

#include "DateTime.h"

#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <vector>

class Connection;

// One SQL statement on a connection, built line by line the way the
// statement texts are written down. Parameters are written ":aNAME" and
// bound by name with typed values; binding a name the text does not hold,
// or running with a parameter left unbound, is an error (Qt's driver would
// otherwise send NULL without a word). Columns are read by name, with NULL
// read as 0, empty text or the null date. Every failure throws DbError.
class Statement
{
public:
    explicit Statement(Connection &connection);
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    Statement &add(const QString &line);
    void clear();
    QString text() const;
    const QStringList &lines() const { return m_lines; }

    // Rows are read in one forward pass without a scrollable buffer, as the
    // reading functions below only go forward; off keeps every row read
    // in the driver's buffer.
    void setUniDirectional(bool on) { m_uniDirectional = on; }

    void bind(const QString &name, int value);
    void bind(const QString &name, double value);
    void bind(const QString &name, const QString &value);
    void bind(const QString &name, const char *value) { bind(name, QString::fromUtf8(value)); }
    // The null date binds as SQL NULL.
    void bind(const QString &name, DateTime value);
    void bind(const QString &name, const QDateTime &value);
    void bindNull(const QString &name, QMetaType type);

    // Runs the statement; a SELECT is then positioned on its first row.
    // Running it again with new values reuses the prepared statement while
    // the transaction it was prepared in runs; a SELECT outside an explicit
    // transaction is prepared afresh. A failed run closes the statement.
    void exec();
    // Runs a SELECT without reading its first row: for EngineRows, which
    // then takes the rows from the engine itself.
    void openCursor();
    // The driver's handle of the prepared statement, valid while it is open.
    QVariant nativeHandle() const;
    // Moves to the next row; false at the end.
    bool next();
    bool atEnd() const { return m_atEnd; }
    void close();

    int columnCount() const;
    int columnIndex(const QString &name) const;   // -1 when absent
    QString columnName(int index) const;
    QMetaType columnType(int index) const;

    bool isNull(int index) const;
    int integer(int index) const;
    double number(int index) const;
    QString string(int index) const;
    DateTime dateTime(int index) const;
    QVariant value(int index) const;

    int integer(const QString &name) const { return integer(requireColumn(name)); }
    double number(const QString &name) const { return number(requireColumn(name)); }
    QString string(const QString &name) const { return string(requireColumn(name)); }
    DateTime dateTime(const QString &name) const { return dateTime(requireColumn(name)); }

    // How many rows the last INSERT, UPDATE or DELETE touched.
    int rowsAffected() const;

    // The ":name" placeholders of a text, in order of first appearance,
    // skipping quoted literals.
    static QStringList placeholders(const QString &sql);

private:
    void bindValue(const QString &name, const QVariant &value);
    void refreshText() const;
    bool canReusePrepared(const QString &sql) const;
    int requireColumn(const QString &name) const;
    void fail(const QString &what) const;

    Connection &m_connection;
    QStringList m_lines;
    mutable QString m_text;
    mutable QStringList m_placeholders;
    mutable bool m_textKnown = false;
    QHash<QString, QVariant> m_bindings;
    QSqlQuery m_query;
    bool m_uniDirectional = true;
    bool m_prepared = false;
    bool m_preparedUniDirectional = false;
    quint64 m_preparedEpoch = 0;
    QString m_preparedText;
    bool m_active = false;
    bool m_atEnd = true;
    mutable QHash<QString, int> m_columnIndexes;
};
