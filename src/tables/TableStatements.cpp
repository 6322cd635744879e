#include "TableStatements.h"

#include "DbError.h"
#include "ErrorLog.h"
#include "MessageService.h"
#include "Statement.h"

namespace {

// The UPDATE list is split into lines of this many assignments; later
// lines start with the comma.
constexpr int AssignmentsPerLine = 7;

QString parameterList(const QStringList &columns)
{
    QStringList parameters;
    parameters.reserve(columns.size());
    for (const QString &column : columns)
        parameters << QStringLiteral(":a") + column;
    return QLatin1Char('(') + parameters.join(QLatin1Char(',')) + QLatin1Char(')');
}

} // namespace

namespace TableStatements {

QStringList insertLines(const QString &table, const QStringList &columns)
{
    return {QStringLiteral("INSERT INTO ") + table + QLatin1Char(' '),
            QLatin1Char('(') + columns.join(QLatin1Char(',')) + QLatin1Char(')'),
            QStringLiteral(" VALUES "), parameterList(columns)};
}

QString returningLine(const QString &key)
{
    return QStringLiteral(" RETURNING ") + key;
}

QStringList updateLines(const QString &table, const QStringList &columns, const QString &key)
{
    QStringList lines{QStringLiteral("UPDATE ") + table + QStringLiteral(" SET ")};
    QString line;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        if (i > 0 && i % AssignmentsPerLine == 0) {
            lines << line;
            line.clear();
        }
        if (i > 0)
            line += QLatin1Char(',');
        line += columns.at(i) + QStringLiteral("=:a") + columns.at(i);
    }
    if (!line.isEmpty())
        lines << line;
    lines << QStringLiteral(" WHERE ") + key + QStringLiteral("=:a") + key;
    return lines;
}

QString deleteLine(const QString &table, const QString &key)
{
    return QStringLiteral("DELETE FROM ") + table + QStringLiteral(" WHERE ") + key
        + QStringLiteral("=:a") + key;
}

QString selectAllLine(const QString &table)
{
    return QStringLiteral("SELECT * FROM ") + table;
}

QString selectByIdLine(const QString &table, const QString &key)
{
    return selectAllLine(table) + QStringLiteral(" WHERE ") + key + QStringLiteral("=:a") + key;
}

QString orderByLine(const QString &orderBy)
{
    return QStringLiteral(" ORDER BY ") + orderBy;
}

QString probeLine(const QString &table, const QString &field)
{
    return QStringLiteral("SELECT ") + field + QStringLiteral(" FROM ") + table;
}

QString selectWhereLine(const QString &table)
{
    return selectAllLine(table) + QStringLiteral(" WHERE ");
}

QString compareLine(TCompareOp op, const QString &parameter)
{
    const QString p = QLatin1Char(':') + parameter;
    switch (op) {
    case opEqual: return QLatin1Char('=') + p;
    case opLess: return QLatin1Char('<') + p;
    case opGreater: return QLatin1Char('>') + p;
    case opContaining: return QStringLiteral("CONTAINING ") + p;
    case opNotEqual: return QStringLiteral("<>") + p;
    case opStartingWith: return QStringLiteral("STARTING WITH ") + p;
    }
    throw DbError(QStringLiteral("Nieznany operator porównania %1").arg(int(op)));
}

QString selectDistinctLine(const QString &table, const QString &field)
{
    return QStringLiteral("SELECT DISTINCT ") + field + QStringLiteral(" FROM ") + table
        + QStringLiteral(" WHERE ") + field + QStringLiteral(" <> ''");
}

QString maxIdLine(const QString &table, const QString &key)
{
    return QStringLiteral("SELECT MAX(") + key + QStringLiteral(") FROM ") + table;
}

QMetaType metaTypeOf(ColumnType type)
{
    switch (type) {
    case ColumnType::Integer: return QMetaType::fromType<int>();
    case ColumnType::Text: return QMetaType::fromType<QString>();
    case ColumnType::Float: return QMetaType::fromType<double>();
    case ColumnType::Date: return QMetaType::fromType<QDateTime>();
    }
    return QMetaType();
}

bool bindByColumnType(Statement &statement, const QString &parameter, QMetaType columnType,
                      const QVariant &value)
{
    const auto unconvertible = [&] {
        return DbError(QStringLiteral("Wartości \"%1\" nie można porównać z kolumną typu %2")
                           .arg(value.toString(), QString::fromLatin1(columnType.name())));
    };
    bool ok = true;
    switch (columnType.id()) {
    case QMetaType::QString:
        statement.bind(parameter, value.toString());
        return true;
    case QMetaType::Int: {
        const int number = value.typeId() == QMetaType::Double
            ? qRound(value.toDouble())
            : value.toString().trimmed().toInt(&ok);
        if (!ok)
            throw unconvertible();
        statement.bind(parameter, number);
        return true;
    }
    case QMetaType::Double: {
        double number = value.toDouble(&ok);
        if (!ok && value.typeId() == QMetaType::QString)
            number = value.toString().trimmed().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
        if (!ok)
            throw unconvertible();
        statement.bind(parameter, number);
        return true;
    }
    case QMetaType::QDateTime:
        if (value.typeId() == qMetaTypeId<DateTime>())
            statement.bind(parameter, value.value<DateTime>());
        else if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Int)
            statement.bind(parameter, DateTime(value.toDouble()));
        else if (value.typeId() == QMetaType::QDate)
            statement.bind(parameter, DateTime::fromDate(value.toDate()));
        else if (value.toDateTime().isValid())
            statement.bind(parameter, value.toDateTime());
        else
            throw unconvertible();
        return true;
    default:
        return false;
    }
}

QString failureText(Operation operation, const TableInfo &info)
{
    switch (operation) {
    case Operation::Insert:
        return info.insertWording == InsertWording::WithDo
            ? QStringLiteral("Błąd przy dodawaniu danych do tabeli ") + info.table
            : QStringLiteral("Błąd przy dodawaniu danych tabeli ") + info.table;
    case Operation::Update:
        return QStringLiteral("Błąd przy poprawie danych tabeli ") + info.table;
    case Operation::Delete:
        return QStringLiteral("Błąd przy usuwaniu danych z tabeli ") + info.table;
    case Operation::Select:
        return QStringLiteral("Błąd przy pobieraniu danych z tabeli ") + info.table;
    }
    return QString();
}

void reportFailure(Operation operation, const TableInfo &info, const QString &reason)
{
    Messages::error(failureText(operation, info));
    ErrorLog::write(info.log == ErrorLogFile::Haulix ? ErrorLog::HaulixErrors : ErrorLog::SqlErrors,
                    reason);
}

} // namespace TableStatements
