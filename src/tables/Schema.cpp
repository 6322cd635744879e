#include "Schema.h"

#include "Connection.h"
#include "DbError.h"

#include <QFile>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>

QString Schema::text()
{
    QFile file(QStringLiteral(":/haulix/schema.sql"));
    if (!file.open(QIODevice::ReadOnly))
        throw DbError(QStringLiteral("Brak wbudowanego schematu bazy danych."));
    return QString::fromUtf8(file.readAll());
}

QStringList Schema::splitStatements(const QString &script)
{
    static const QRegularExpression setTerm(QStringLiteral("^\\s*SET\\s+TERM\\s+(\\S+)\\s*(\\S*)\\s*$"),
                                            QRegularExpression::CaseInsensitiveOption);
    QStringList statements;
    QString terminator = QStringLiteral(";");
    QString current;
    for (const QString &line : script.split(QLatin1Char('\n'))) {
        const QString trimmed = line.trimmed();
        if (trimmed.startsWith(QStringLiteral("--")) || (trimmed.isEmpty() && current.isEmpty()))
            continue;
        const QRegularExpressionMatch match = setTerm.match(trimmed);
        if (match.hasMatch()) {
            // "SET TERM ^ ;" switches to "^"; "SET TERM ; ^" switches back.
            // "SET TERM ^;" written without the blank carries the old terminator.
            terminator = match.captured(1);
            if (match.captured(2).isEmpty() && terminator.size() > 1)
                terminator.chop(1);
            continue;
        }
        current += line + QLatin1Char('\n');
        if (trimmed.endsWith(terminator)) {
            QString statement = current.trimmed();
            statement.chop(terminator.size());
            statements << statement.trimmed();
            current.clear();
        }
    }
    if (!current.trimmed().isEmpty())
        statements << current.trimmed();
    return statements;
}

void Schema::apply(Connection &connection)
{
    QSqlDatabase db = connection.database();
    for (const QString &statement : splitStatements(text())) {
        // DDL goes through exec() without prepare: trigger bodies are not
        // parameter lists.
        QSqlQuery query(db);
        if (!query.exec(statement)) {
            throw DbError(QStringLiteral("Błąd schematu: %1 [%2]")
                              .arg(query.lastError().text(), statement.left(200)));
        }
    }
}

void Schema::createDatabase(const QString &target, ForcedWrites finished)
{
    Connection::createDatabase(target);
    Connection::setForcedWrites(target, false);
    {
        Connection connection;
        connection.open(target);
        apply(connection);
    }
    if (finished == ForcedWrites::On)
        Connection::setForcedWrites(target, true);
}
