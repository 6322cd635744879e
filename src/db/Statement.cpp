#include "Statement.h"

#include "Connection.h"
#include "DbError.h"

#include <QSqlError>
#include <QSqlField>
#include <QSqlRecord>
#include <QSqlResult>

#include <cmath>

Statement::Statement(Connection &connection)
    : m_connection(connection), m_query(connection.database())
{
}

Statement &Statement::add(const QString &line)
{
    m_lines << line;
    m_textKnown = false;
    return *this;
}

void Statement::clear()
{
    close();
    m_lines.clear();
    m_bindings.clear();
    m_textKnown = false;
}

QString Statement::text() const
{
    refreshText();
    return m_text;
}

void Statement::refreshText() const
{
    if (m_textKnown)
        return;
    m_text = m_lines.join(QLatin1Char('\n'));
    m_placeholders = placeholders(m_text);
    m_textKnown = true;
}

QStringList Statement::placeholders(const QString &sql)
{
    QStringList names;
    QChar quote;
    for (qsizetype i = 0; i < sql.size(); ++i) {
        const QChar c = sql.at(i);
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
            continue;
        }
        if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
            quote = c;
            continue;
        }
        if (c != QLatin1Char(':'))
            continue;
        qsizetype end = i + 1;
        while (end < sql.size() && (sql.at(end).isLetterOrNumber() || sql.at(end) == QLatin1Char('_')))
            ++end;
        if (end > i + 1) {
            const QString name = sql.mid(i + 1, end - i - 1);
            if (!names.contains(name))
                names << name;
            i = end - 1;
        }
    }
    return names;
}

void Statement::bindValue(const QString &name, const QVariant &value)
{
    const QString bare = name.startsWith(QLatin1Char(':')) ? name.mid(1) : name;
    refreshText();
    if (!m_placeholders.contains(bare))
        throw DbError(QStringLiteral("Parametr %1 nie występuje w poleceniu: %2").arg(bare, text()));
    m_bindings.insert(bare, value);
}

void Statement::bind(const QString &name, int value) { bindValue(name, QVariant(value)); }
void Statement::bind(const QString &name, double value) { bindValue(name, QVariant(value)); }
void Statement::bind(const QString &name, const QString &value)
{
    // Never NULL: an empty text is stored as an empty text.
    bindValue(name, QVariant(value.isNull() ? QStringLiteral("") : value));
}

void Statement::bind(const QString &name, DateTime value)
{
    if (value.isNull())
        bindNull(name, QMetaType::fromType<QDateTime>());
    else
        bindValue(name, QVariant(value.toDateTime()));
}

void Statement::bind(const QString &name, const QDateTime &value)
{
    if (!value.isValid())
        bindNull(name, QMetaType::fromType<QDateTime>());
    else
        bindValue(name, QVariant(value));
}

void Statement::bindNull(const QString &name, QMetaType type)
{
    bindValue(name, QVariant(type));
}

void Statement::fail(const QString &what) const
{
    throw DbError::fromSql(what, m_query.lastError(), text());
}

void Statement::exec()
{
    openCursor();
    if (m_query.isSelect())
        next();
}

QVariant Statement::nativeHandle() const
{
    return m_active && m_query.result() ? m_query.result()->handle() : QVariant();
}

void Statement::openCursor()
{
    refreshText();
    const QString &sql = m_text;
    for (const QString &name : std::as_const(m_placeholders)) {
        if (!m_bindings.contains(name))
            throw DbError(QStringLiteral("Parametr %1 nie ma wartości: %2").arg(name, sql));
    }
    if (!canReusePrepared(sql)) {
        close();
        m_query.setForwardOnly(m_uniDirectional);
        if (!m_query.prepare(sql))
            fail(QStringLiteral("Błąd przygotowania polecenia"));
        m_prepared = true;
        m_preparedText = sql;
        m_preparedUniDirectional = m_uniDirectional;
        m_preparedEpoch = m_connection.transactionEpoch();
    }
    for (auto it = m_bindings.cbegin(); it != m_bindings.cend(); ++it)
        m_query.bindValue(QLatin1Char(':') + it.key(), it.value());
    m_active = false;
    m_columnIndexes.clear();
    m_atEnd = true;
    if (!m_query.exec()) {
        // Closed at once: the driver leaves the transaction it started for
        // a failed statement open until the query goes, and a kept
        // statement would hold it.
        const DbError error = DbError::fromSql(QStringLiteral("Błąd wykonania polecenia"),
                                               m_query.lastError(), sql);
        close();
        throw error;
    }
    m_active = true;
}

bool Statement::canReusePrepared(const QString &sql) const
{
    if (!m_prepared || sql != m_preparedText || m_preparedUniDirectional != m_uniDirectional)
        return false;
    // The driver ties a prepared statement to the transaction it first ran
    // in and would run it again in that one after it has ended.
    if (m_preparedEpoch != m_connection.transactionEpoch())
        return false;
    // Outside an explicit transaction a statement that returns rows keeps
    // the driver's own transaction, and with it its snapshot, until it is
    // prepared again: a new run must see what was committed since. Inside
    // one the snapshot is the transaction's anyway.
    return !m_query.isSelect() || m_connection.inTransaction();
}

bool Statement::next()
{
    if (!m_active || !m_query.isSelect()) {
        m_atEnd = true;
        return false;
    }
    if (m_query.next()) {
        m_atEnd = false;
        return true;
    }
    m_atEnd = true;
    // Runtime errors (overflow, truncation) surface here, not at exec().
    if (m_query.lastError().isValid())
        fail(QStringLiteral("Błąd odczytu wyniku"));
    return false;
}

void Statement::close()
{
    if (m_active)
        m_query.finish();
    // A finished SELECT still holds its snapshot until the query is replaced.
    m_query = QSqlQuery(m_connection.database());
    m_prepared = false;
    m_active = false;
    m_atEnd = true;
    m_columnIndexes.clear();
}

int Statement::columnCount() const
{
    return m_query.record().count();
}

int Statement::columnIndex(const QString &name) const
{
    // The driver builds the whole record description on every record()
    // call: read the names once for the result, not once per column.
    if (m_columnIndexes.isEmpty()) {
        const QSqlRecord record = m_query.record();
        for (int i = record.count() - 1; i >= 0; --i)
            m_columnIndexes.insert(record.fieldName(i).toUpper(), i);
    }
    return m_columnIndexes.value(name.toUpper(), -1);
}

int Statement::requireColumn(const QString &name) const
{
    const int index = columnIndex(name);
    if (index < 0)
        throw DbError(QStringLiteral("Brak kolumny %1 w wyniku polecenia: %2").arg(name, text()));
    return index;
}

QString Statement::columnName(int index) const
{
    return m_query.record().fieldName(index);
}

QMetaType Statement::columnType(int index) const
{
    return m_query.record().field(index).metaType();
}

bool Statement::isNull(int index) const
{
    return m_atEnd || m_query.isNull(index);
}

QVariant Statement::value(int index) const
{
    return m_atEnd ? QVariant() : m_query.value(index);
}

int Statement::integer(int index) const
{
    if (isNull(index))
        return 0;
    const QVariant v = m_query.value(index);
    if (v.typeId() == QMetaType::Double)
        return static_cast<int>(std::llround(v.toDouble()));
    return v.toInt();
}

double Statement::number(int index) const
{
    return isNull(index) ? 0.0 : m_query.value(index).toDouble();
}

QString Statement::string(int index) const
{
    if (isNull(index))
        return QString();
    const QVariant v = m_query.value(index);
    if (v.typeId() == QMetaType::QByteArray)
        return QString::fromUtf8(v.toByteArray());
    return v.toString();
}

DateTime Statement::dateTime(int index) const
{
    if (isNull(index))
        return DateTime();
    const QVariant v = m_query.value(index);
    if (v.typeId() == QMetaType::QDate)
        return DateTime::fromDate(v.toDate());
    return DateTime::fromDateTime(v.toDateTime());
}

int Statement::rowsAffected() const
{
    return m_query.numRowsAffected();
}
