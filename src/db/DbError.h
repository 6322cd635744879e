#pragma once

#include <QString>

#include <stdexcept>

// The one exception of the database layer: a statement that could not be
// prepared, executed or read, or a value that cannot be bound.
class DbError : public std::runtime_error
{
public:
    explicit DbError(const QString &message)
        : std::runtime_error(message.toStdString()), m_message(message)
    {
    }

    const QString &message() const { return m_message; }

private:
    QString m_message;
};
