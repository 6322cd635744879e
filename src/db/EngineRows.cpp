#include "EngineRows.h"

#include "DbError.h"
#include "FirebirdStatus.h"
#include "Statement.h"

#include <QHash>

#include <cmath>
#include <vector>

#include <ibase.h>

namespace {

// The engine counts days from 1858-11-17; DateTime from 1899-12-30.
constexpr int EngineDayOfEpoch = 15018;
constexpr double MillisecondsPerDay = 24.0 * 60 * 60 * 1000;
// The engine keeps time in units of 100 microseconds.
constexpr int TimeUnitsPerMillisecond = 10;

QDate engineDate(ISC_DATE days)
{
    static const QDate base(1858, 11, 17);
    return base.addDays(days);
}

QTime engineTime(ISC_TIME time)
{
    return QTime(0, 0).addMSecs(int(time / TimeUnitsPerMillisecond));
}

// The decoding Qt does, written into text's own storage: UTF-16 never needs
// more units than UTF-8 has bytes. Anything but one- to three-byte
// sequences (four-byte and malformed ones) is left to Qt.
void appendUtf8(QString &text, const char *bytes, qsizetype size)
{
    const qsizetype start = text.size();
    text.resize(start + size);
    QChar *out = text.data() + start;
    const auto *in = reinterpret_cast<const uchar *>(bytes);
    const auto *end = in + size;
    while (in < end) {
        const uchar b = *in;
        if (b < 0x80) {
            *out++ = QChar(b);
            ++in;
            continue;
        }
        if (b >= 0xC2 && b < 0xE0 && end - in >= 2 && (in[1] & 0xC0) == 0x80) {
            *out++ = QChar(char16_t(((b & 0x1F) << 6) | (in[1] & 0x3F)));
            in += 2;
            continue;
        }
        if ((b & 0xF0) == 0xE0 && end - in >= 3 && (in[1] & 0xC0) == 0x80
            && (in[2] & 0xC0) == 0x80) {
            const auto c = char16_t(((b & 0x0F) << 12) | ((in[1] & 0x3F) << 6) | (in[2] & 0x3F));
            if (c >= 0x800 && (c < 0xD800 || c > 0xDFFF)) {
                *out++ = QChar(c);
                in += 3;
                continue;
            }
        }
        text.truncate(out - text.constData());
        text += QString::fromUtf8(reinterpret_cast<const char *>(in), end - in);
        return;
    }
    text.truncate(out - text.constData());
}

struct Column
{
    short type = 0;    // without the nullable bit
    short scale = 0;
    short length = 0;
    const char *data = nullptr;
    const short *null = nullptr;
};

} // namespace

struct EngineRows::Data
{
    isc_stmt_handle statement = 0;
    std::vector<qint64> descriptor;   // an XSQLDA, aligned
    std::vector<qint64> buffer;
    std::vector<short> nulls;
    std::vector<Column> columns;
    std::vector<QString> names;
    QHash<QString, int> indexes;
    QString text;
    bool onRow = false;
    bool finished = false;

    XSQLDA *sqlda() { return reinterpret_cast<XSQLDA *>(descriptor.data()); }
    void allocate(int columns);
    void describe();
    [[noreturn]] void fail(const QString &what, const ISC_STATUS *status) const;

    qint64 whole(const Column &c) const;
    double scaled(const Column &c) const;
};

void EngineRows::Data::fail(const QString &what, const ISC_STATUS *status) const
{
    throw DbError(what + QStringLiteral(": ") + firebirdStatusText(status) + u' ' + text,
                  int(isc_sqlcode(status)));
}

void EngineRows::Data::allocate(int count)
{
    descriptor.assign((XSQLDA_LENGTH(count) + sizeof(qint64) - 1) / sizeof(qint64), 0);
    sqlda()->version = SQLDA_VERSION1;
    sqlda()->sqln = short(count);
}

void EngineRows::Data::describe()
{
    ISC_STATUS_ARRAY status = {};
    allocate(1);
    if (isc_dsql_describe(status, &statement, SQL_DIALECT_V6, sqlda()))
        fail(QStringLiteral("Błąd opisu wyniku polecenia"), status);
    if (sqlda()->sqld > sqlda()->sqln) {
        allocate(sqlda()->sqld);
        if (isc_dsql_describe(status, &statement, SQL_DIALECT_V6, sqlda()))
            fail(QStringLiteral("Błąd opisu wyniku polecenia"), status);
    }
    const int count = sqlda()->sqld;
    if (count == 0)
        throw DbError(QStringLiteral("Polecenie nie zwraca wierszy: ") + text);

    std::vector<qsizetype> offsets;
    qsizetype size = 0;
    for (int i = 0; i < count; ++i) {
        XSQLVAR &var = sqlda()->sqlvar[i];
        const QString name = QString::fromLatin1(var.aliasname, var.aliasname_length).simplified();
        qsizetype bytes = 0;
        switch (var.sqltype & ~1) {
        case SQL_VARYING:
            bytes = var.sqllen + qsizetype(sizeof(short));
            break;
        case SQL_TEXT: case SQL_SHORT: case SQL_LONG: case SQL_INT64: case SQL_FLOAT:
        case SQL_DOUBLE: case SQL_TIMESTAMP: case SQL_TYPE_DATE: case SQL_TYPE_TIME:
        case SQL_BOOLEAN:
            bytes = var.sqllen;
            break;
        default:
            throw DbError(QStringLiteral("Kolumna %1 (typ %2) nie jest odczytywana jako lista: %3")
                              .arg(name)
                              .arg(var.sqltype & ~1)
                              .arg(text));
        }
        offsets.push_back(size);
        size += (bytes + 7) / 8 * 8;
        names.push_back(name);
        if (!indexes.contains(name.toUpper()))
            indexes.insert(name.toUpper(), i);
    }
    buffer.assign(std::size_t(size / 8 + 1), 0);
    nulls.assign(std::size_t(count), 0);
    columns.resize(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        XSQLVAR &var = sqlda()->sqlvar[i];
        // The columns as described: a changed type would make the engine
        // convert every row. A column that cannot be NULL keeps its flag 0.
        var.sqldata = reinterpret_cast<char *>(buffer.data()) + offsets[std::size_t(i)];
        var.sqlind = &nulls[std::size_t(i)];
        columns[std::size_t(i)] = {short(var.sqltype & ~1), var.sqlscale, var.sqllen, var.sqldata,
                                   var.sqlind};
    }
}

qint64 EngineRows::Data::whole(const Column &c) const
{
    switch (c.type) {
    case SQL_SHORT:
        return *reinterpret_cast<const short *>(c.data);
    case SQL_LONG:
        return c.length == 4 ? *reinterpret_cast<const qint32 *>(c.data)
                             : *reinterpret_cast<const qint64 *>(c.data);
    default:
        return *reinterpret_cast<const qint64 *>(c.data);
    }
}

// NUMERIC and DECIMAL as the driver gives them: the stored whole number
// times a power of ten, in that order, so that 1.15 reads the same double.
double EngineRows::Data::scaled(const Column &c) const
{
    const double factor = std::pow(10.0, c.scale);
    switch (c.type) {
    case SQL_SHORT:
        return double(long(*reinterpret_cast<const short *>(c.data))) * factor;
    case SQL_LONG:
        if (c.length == 4)
            return *reinterpret_cast<const qint32 *>(c.data) * factor;
        return double(*reinterpret_cast<const qint64 *>(c.data));
    default:
        return double(*reinterpret_cast<const qint64 *>(c.data)) * factor;
    }
}

EngineRows::EngineRows(Statement &statement) : d(std::make_unique<Data>())
{
    d->text = statement.text();
    statement.openCursor();
    const QVariant handle = statement.nativeHandle();
    if (handle.metaType() != QMetaType::fromType<isc_stmt_handle>())
        throw DbError(QStringLiteral("Sterownik bazy danych nie udostępnia polecenia: ") + d->text);
    d->statement = *static_cast<const isc_stmt_handle *>(handle.constData());
    d->describe();
}

EngineRows::~EngineRows() = default;

bool EngineRows::next()
{
    // The engine refuses a fetch after the last row; a reader asking again
    // just hears that there are no more.
    if (d->finished)
        return false;
    ISC_STATUS_ARRAY status = {};
    const ISC_STATUS result = isc_dsql_fetch(status, &d->statement, SQL_DIALECT_V6, d->sqlda());
    d->onRow = result == 0;
    if (result == 100) {
        d->finished = true;
        return false;
    }
    if (result != 0)
        d->fail(QStringLiteral("Błąd odczytu wyniku"), status);
    return true;
}

int EngineRows::columnCount() const
{
    return int(d->columns.size());
}

int EngineRows::columnIndex(const QString &name) const
{
    return d->indexes.value(name.toUpper(), -1);
}

QString EngineRows::columnName(int index) const
{
    return d->names.at(std::size_t(index));
}

bool EngineRows::isNull(int index) const
{
    return !d->onRow || *d->columns.at(std::size_t(index)).null != 0;
}

int EngineRows::integer(int index) const
{
    if (isNull(index))
        return 0;
    const Column &c = d->columns[std::size_t(index)];
    switch (c.type) {
    case SQL_SHORT: case SQL_LONG: case SQL_INT64:
        if (c.scale < 0)
            return static_cast<int>(std::llround(d->scaled(c)));
        return static_cast<int>(d->whole(c));
    case SQL_FLOAT: case SQL_DOUBLE:
        return static_cast<int>(std::llround(number(index)));
    default:
        return value(index).toInt();
    }
}

double EngineRows::number(int index) const
{
    if (isNull(index))
        return 0.0;
    const Column &c = d->columns[std::size_t(index)];
    switch (c.type) {
    case SQL_SHORT: case SQL_LONG: case SQL_INT64:
        return c.scale < 0 ? d->scaled(c) : double(d->whole(c));
    case SQL_FLOAT:
        return double(*reinterpret_cast<const float *>(c.data));
    case SQL_DOUBLE:
        return *reinterpret_cast<const double *>(c.data);
    default:
        return value(index).toDouble();
    }
}

QString EngineRows::string(int index) const
{
    QString text;
    appendString(index, text);
    return text;
}

void EngineRows::appendString(int index, QString &text) const
{
    if (isNull(index))
        return;
    const Column &c = d->columns[std::size_t(index)];
    switch (c.type) {
    case SQL_VARYING:
        appendUtf8(text, c.data + sizeof(short), *reinterpret_cast<const short *>(c.data));
        return;
    case SQL_TEXT:
        appendUtf8(text, c.data, c.length);
        return;
    default:
        text += value(index).toString();
    }
}

DateTime EngineRows::dateTime(int index) const
{
    if (isNull(index))
        return DateTime();
    const Column &c = d->columns[std::size_t(index)];
    switch (c.type) {
    case SQL_TIMESTAMP: {
        // The stored wall time, as Statement reads it through a QDateTime.
        const auto *stamp = reinterpret_cast<const ISC_TIMESTAMP *>(c.data);
        const double wholeDays = double(qint64(stamp->timestamp_date) - EngineDayOfEpoch);
        const double fraction =
            engineTime(stamp->timestamp_time).msecsSinceStartOfDay() / MillisecondsPerDay;
        return DateTime(wholeDays < 0 ? wholeDays - fraction : wholeDays + fraction);
    }
    case SQL_TYPE_DATE:
        return DateTime(double(qint64(*reinterpret_cast<const ISC_DATE *>(c.data))
                               - EngineDayOfEpoch));
    default: {
        const QVariant v = value(index);
        if (v.typeId() == QMetaType::QDate)
            return DateTime::fromDate(v.toDate());
        return DateTime::fromDateTime(v.toDateTime());
    }
    }
}

QVariant EngineRows::value(int index) const
{
    const Column &c = d->columns.at(std::size_t(index));
    if (isNull(index)) {
        switch (c.type) {
        case SQL_VARYING: case SQL_TEXT:
            return QVariant(QMetaType::fromType<QString>());
        case SQL_SHORT: case SQL_LONG:
            return QVariant(c.scale < 0 ? QMetaType::fromType<double>() : QMetaType::fromType<int>());
        case SQL_INT64:
            return QVariant(c.scale < 0 ? QMetaType::fromType<double>()
                                        : QMetaType::fromType<qlonglong>());
        case SQL_FLOAT: case SQL_DOUBLE:
            return QVariant(QMetaType::fromType<double>());
        case SQL_TIMESTAMP:
            return QVariant(QMetaType::fromType<QDateTime>());
        case SQL_TYPE_DATE:
            return QVariant(QMetaType::fromType<QDate>());
        case SQL_TYPE_TIME:
            return QVariant(QMetaType::fromType<QTime>());
        default:
            return QVariant(QMetaType::fromType<bool>());
        }
    }
    switch (c.type) {
    case SQL_VARYING: case SQL_TEXT:
        return string(index);
    case SQL_SHORT: case SQL_LONG:
        if (c.scale < 0)
            return d->scaled(c);
        return c.length <= 4 ? QVariant(int(d->whole(c))) : QVariant(qlonglong(d->whole(c)));
    case SQL_INT64:
        return c.scale < 0 ? QVariant(d->scaled(c)) : QVariant(qlonglong(d->whole(c)));
    case SQL_FLOAT: case SQL_DOUBLE:
        return number(index);
    case SQL_TIMESTAMP: {
        const auto *stamp = reinterpret_cast<const ISC_TIMESTAMP *>(c.data);
        return QDateTime(engineDate(stamp->timestamp_date), engineTime(stamp->timestamp_time));
    }
    case SQL_TYPE_DATE:
        return engineDate(*reinterpret_cast<const ISC_DATE *>(c.data));
    case SQL_TYPE_TIME:
        return engineTime(*reinterpret_cast<const ISC_TIME *>(c.data));
    default:
        return bool(*reinterpret_cast<const char *>(c.data));
    }
}
