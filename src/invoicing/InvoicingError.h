#pragma once

#include <QString>

#include <stdexcept>

// Invoicing or removing an invoice stopped, and everything it had written
// is undone. The message is a Polish sentence for the user; it is empty
// when a table object has shown the failure already.
class InvoicingError : public std::runtime_error
{
public:
    explicit InvoicingError(const QString &message = QString())
        : std::runtime_error(message.isEmpty() ? "reported" : message.toStdString()),
          m_message(message)
    {
    }

    const QString &message() const { return m_message; }
    bool shown() const { return m_message.isEmpty(); }

private:
    QString m_message;
};
