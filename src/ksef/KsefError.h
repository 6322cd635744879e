#pragma once

#include <QString>

#include <stdexcept>

// An invoice that cannot become an e-invoice: data to complete first, or a
// document the schema refuses. The message is a Polish sentence for the
// user that names what to complete or which element is wrong and why.
class KsefError : public std::runtime_error
{
public:
    explicit KsefError(const QString &message)
        : std::runtime_error(message.toStdString()), m_message(message)
    {
    }

    const QString &message() const { return m_message; }

private:
    QString m_message;
};
