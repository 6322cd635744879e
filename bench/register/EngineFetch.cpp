#include "EngineFetch.h"

#include "Connection.h"
#include "DbError.h"
#include "Statement.h"

#include <QSqlDriver>

#include <ibase.h>

#include <vector>

namespace {

[[noreturn]] void fail(const char *what, const ISC_STATUS *status)
{
    char buffer[512];
    QString message = QString::fromLatin1(what);
    const ISC_STATUS *cursor = status;
    while (fb_interpret(buffer, sizeof buffer, &cursor))
        message += QStringLiteral(" - ") + QString::fromLocal8Bit(buffer);
    throw DbError(message);
}

// An XSQLDA with room for count columns and a buffer for each.
struct Descriptor
{
    explicit Descriptor(int count)
        : storage((XSQLDA_LENGTH(count) + 7) / 8, 0), nulls(std::size_t(count), 0)
    {
        sqlda()->version = SQLDA_VERSION1;
        sqlda()->sqln = short(count);
    }
    XSQLDA *sqlda() { return reinterpret_cast<XSQLDA *>(storage.data()); }
    void allocate()
    {
        std::size_t size = 0;
        for (int i = 0; i < sqlda()->sqld; ++i)
            size += (std::size_t(sqlda()->sqlvar[i].sqllen) + sizeof(short) + 7) / 8 * 8;
        data.assign(size / 8 + 1, 0);
        std::size_t at = 0;
        for (int i = 0; i < sqlda()->sqld; ++i) {
            XSQLVAR &var = sqlda()->sqlvar[i];
            var.sqldata = reinterpret_cast<char *>(data.data()) + at;
            var.sqlind = &nulls[std::size_t(i)];
            at += (std::size_t(var.sqllen) + sizeof(short) + 7) / 8 * 8;
        }
    }
    std::vector<qint64> storage;
    std::vector<qint64> data;
    std::vector<short> nulls;
};

ISC_TIMESTAMP stamp(const QDateTime &value)
{
    ISC_TIMESTAMP result;
    result.timestamp_date = ISC_DATE(QDate(1858, 11, 17).daysTo(value.date()));
    result.timestamp_time = ISC_TIME(value.time().msecsSinceStartOfDay() * 10);
    return result;
}

} // namespace

int engineFetch(Connection &connection, const QString &text,
                const QHash<QString, QDateTime> &parameters)
{
    isc_db_handle db = *static_cast<const isc_db_handle *>(
        connection.database().driver()->handle().constData());
    const QStringList names = Statement::placeholders(text);
    QString sql = text;
    for (const QString &name : names)
        sql.replace(QLatin1Char(':') + name, QStringLiteral("?"));
    const QByteArray utf8 = sql.toUtf8();

    ISC_STATUS_ARRAY status = {};
    isc_tr_handle transaction = 0;
    isc_stmt_handle statement = 0;
    if (isc_start_transaction(status, &transaction, 1, &db, 0, nullptr))
        fail("start", status);
    Descriptor output(64);
    if (isc_dsql_allocate_statement(status, &db, &statement)
        || isc_dsql_prepare(status, &transaction, &statement, 0, utf8.constData(), SQL_DIALECT_V6,
                            output.sqlda()))
        fail("prepare", status);
    if (output.sqlda()->sqld > output.sqlda()->sqln) {
        output = Descriptor(output.sqlda()->sqld);
        if (isc_dsql_describe(status, &statement, SQL_DIALECT_V6, output.sqlda()))
            fail("describe", status);
    }
    output.allocate();
    Descriptor input(int(names.size()));
    if (isc_dsql_describe_bind(status, &statement, SQL_DIALECT_V6, input.sqlda()))
        fail("describe", status);
    std::vector<ISC_TIMESTAMP> values;
    values.reserve(std::size_t(names.size()));
    for (int i = 0; i < input.sqlda()->sqld; ++i) {
        XSQLVAR &var = input.sqlda()->sqlvar[i];
        values.push_back(stamp(parameters.value(names[i])));
        var.sqltype = SQL_TIMESTAMP;
        var.sqllen = sizeof(ISC_TIMESTAMP);
        var.sqldata = reinterpret_cast<char *>(&values.back());
        var.sqlind = nullptr;
    }
    if (isc_dsql_execute(status, &transaction, &statement, SQL_DIALECT_V6, input.sqlda()))
        fail("execute", status);
    int rows = 0;
    ISC_STATUS fetched = 0;
    while ((fetched = isc_dsql_fetch(status, &statement, SQL_DIALECT_V6, output.sqlda())) == 0)
        ++rows;
    if (fetched != 100)
        fail("fetch", status);
    isc_dsql_free_statement(status, &statement, DSQL_drop);
    isc_commit_transaction(status, &transaction);
    return rows;
}
