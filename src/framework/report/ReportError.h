#pragma once

#include <QString>

#include <stdexcept>

// A report that cannot be written or printed (the file cannot be created,
// the printer refuses to start).
class ReportError : public std::runtime_error
{
public:
    explicit ReportError(const QString &message)
        : std::runtime_error(message.toStdString()), m_message(message)
    {
    }

    const QString &message() const { return m_message; }

private:
    QString m_message;
};
