#pragma once

#include <QSqlError>
#include <QString>

#include <stdexcept>

// The one exception of the database layer: a statement that could not be
// prepared, executed or read, or a value that cannot be bound. It carries
// the engine's code (the SQLCODE, 0 when the failure is not the engine's)
// and what kind of failure that is, so that a caller can tell a change
// made by another workstation or a lost connection from a faulty statement.
class DbError : public std::runtime_error
{
public:
    enum class Kind {
        Other,
        // Another transaction changed or locked the same row and committed
        // after this transaction had started; it sees an older state.
        Conflict,
        // The row is locked by another transaction that has not finished.
        Locked,
        // The database cannot be reached or the connection was lost.
        Unreachable,
    };

    explicit DbError(const QString &message, int nativeCode = 0)
        : DbError(message, nativeCode, classify(nativeCode, message))
    {
    }

    DbError(const QString &message, int nativeCode, Kind kind)
        : std::runtime_error(message.toStdString()),
          m_message(message),
          m_nativeCode(nativeCode),
          m_kind(kind)
    {
    }

    // "what: the engine's text [statement]"; what says in Polish what was
    // being done.
    static DbError fromSql(const QString &what, const QSqlError &error,
                           const QString &statement = QString())
    {
        QString message = what + QStringLiteral(": ") + error.text().trimmed();
        if (error.text().trimmed().isEmpty())
            message += QStringLiteral("nieznany błąd sterownika");
        if (!statement.isEmpty())
            message += QStringLiteral(" [") + statement + QLatin1Char(']');
        return DbError(message, error.nativeErrorCode().toInt());
    }

    const QString &message() const { return m_message; }
    int nativeCode() const { return m_nativeCode; }
    Kind kind() const { return m_kind; }

    // By the engine's code first; the texts tell the cases that share one
    // code apart (-901 and -902 cover many unrelated failures).
    static Kind classify(int nativeCode, const QString &message)
    {
        const auto says = [&](const char *text) {
            return message.contains(QLatin1String(text), Qt::CaseInsensitive);
        };
        if (nativeCode == -913 || says("update conflicts with concurrent update")
            || says("deadlock"))
            return Kind::Conflict;
        if (says("lock conflict on no wait transaction") || says("lock time-out"))
            return Kind::Locked;
        if (says("Unable to complete network request") || says("Error reading data from")
            || says("Error writing data to") || says("connection shutdown")
            || says("connection lost") || says("Connection refused")
            || says("database shutdown") || says("is shutdown")
            || says("I/O error during") || says("Database not open")
            || says("connection not open"))
            return Kind::Unreachable;
        return Kind::Other;
    }

private:
    QString m_message;
    int m_nativeCode = 0;
    Kind m_kind = Kind::Other;
};
