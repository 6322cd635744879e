#include "TestDatabase.h"

#include "DbError.h"
#include "Schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>

#include <gtest/gtest.h>

namespace {

QString templatePath()
{
    static QTemporaryDir dir;
    static const QString path = [] {
        const QString file = dir.filePath(QStringLiteral("template.fdb"));
        Schema::createDatabase(file, Schema::ForcedWrites::Off);
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
