#pragma once

#include <QString>

#include <stdexcept>

// A printout asked for something the database does not hold (an invoice or
// an order that is not there). The message is a Polish sentence for the user.
class PrintoutError : public std::runtime_error
{
public:
    explicit PrintoutError(const QString &message)
        : std::runtime_error(message.toStdString()), m_message(message)
    {
    }

    const QString &message() const { return m_message; }

private:
    QString m_message;
};
