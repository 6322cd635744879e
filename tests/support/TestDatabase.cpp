#include "TestDatabase.h"

#include "DbError.h"
#include "Schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>

#include <gtest/gtest.h>

namespace {

// A test's database need not survive a crash of the machine: without
// forced writes a commit costs no synchronous page writes, which makes the
// tests that commit statement by statement (as workstations do) several
// times faster.
void writeAsynchronously(const QString &file)
{
    QProcess gfix;
    gfix.start(QStringLiteral("gfix"), {QStringLiteral("-write"), QStringLiteral("async"), file});
    if (!gfix.waitForFinished(60000) || gfix.exitStatus() != QProcess::NormalExit
        || gfix.exitCode() != 0) {
        throw DbError(QStringLiteral("gfix -write async %1 (pakiet firebird3.0-utils): %2 %3")
                          .arg(file, gfix.errorString(),
                               QString::fromLocal8Bit(gfix.readAllStandardError())));
    }
}

QString templatePath()
{
    static QTemporaryDir dir;
    static const QString path = [] {
        const QString file = dir.filePath(QStringLiteral("template.fdb"));
        Connection::createDatabase(file);
        writeAsynchronously(file);
        Connection connection;
        connection.open(file);
        Schema::apply(connection);
        return file;
    }();
    return path;
}

} // namespace

TestDatabase::TestDatabase()
{
    const QString source = templatePath();
    m_path = m_dir.filePath(QStringLiteral("test.fdb"));
    if (!QFile::copy(source, m_path))
        throw DbError(QStringLiteral("Nie można skopiować bazy wzorcowej do %1").arg(m_path));
    QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
    m_previousCurrent = QDir::currentPath();
    QDir::setCurrent(m_dir.path());
    m_connection.open(m_path);
}

TestDatabase::~TestDatabase()
{
    m_connection.close();
    QDir::setCurrent(m_previousCurrent);
}

void TestDatabase::exec(const QString &sql)
{
    QSqlQuery query(m_connection.database());
    if (!query.exec(sql))
        ADD_FAILURE() << sql.toStdString() << ": " << query.lastError().text().toStdString();
}

QString TestDatabase::scalar(const QString &sql)
{
    QSqlQuery query(m_connection.database());
    if (!query.exec(sql) || !query.next()) {
        ADD_FAILURE() << sql.toStdString() << ": " << query.lastError().text().toStdString();
        return QString();
    }
    return query.value(0).toString();
}

int TestDatabase::count(const QString &table, const QString &where)
{
    QString sql = QStringLiteral("SELECT COUNT(*) FROM ") + table;
    if (!where.isEmpty())
        sql += QStringLiteral(" WHERE ") + where;
    return scalar(sql).toInt();
}

int TestDatabase::countSeenElsewhere(const QString &table)
{
    Connection other;
    other.open(m_path);
    QSqlQuery query(other.database());
    if (!query.exec(QStringLiteral("SELECT COUNT(*) FROM ") + table) || !query.next()) {
        ADD_FAILURE() << query.lastError().text().toStdString();
        return -1;
    }
    return query.value(0).toInt();
}
