#pragma once

#include "Connection.h"
#include "Statement.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

// A fresh copy of an empty schema database for one test, opened embedded.
// The template is created from the schema once per test program. The test
// runs with the copy's directory as the current directory, where the error
// logs are written.
class TestDatabase
{
public:
    TestDatabase();
    ~TestDatabase();

    Connection &connection() { return m_connection; }
    const QString &path() const { return m_path; }
    QString directory() const { return m_dir.path(); }

    // Runs one statement outside any explicit transaction; fails the test
    // with the database's message when it does not run.
    void exec(const QString &sql);
    // The first column of the first row of a query, as text.
    QString scalar(const QString &sql);
    int count(const QString &table, const QString &where = QString());
    // The same count through a second connection: what other workstations
    // see, i.e. only committed rows.
    int countSeenElsewhere(const QString &table);

private:
    QTemporaryDir m_dir;
    QString m_path;
    QString m_previousCurrent;
    Connection m_connection;
};
