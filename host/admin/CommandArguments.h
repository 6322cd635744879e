#pragma once

#include <QHash>
#include <QStringList>

#include <optional>

// The words after a command of haulix-admin: positional ones and
// "--name VALUE" options, each option among those the command knows.
class CommandArguments
{
public:
    // Empty, with the reason in error, when an option is unknown, given
    // twice or lacks its value, or the count of positional words is not
    // the one expected.
    static std::optional<CommandArguments> parse(const QStringList &words, int positional,
                                                 const QStringList &options, QString &error);

    const QStringList &positional() const { return m_positional; }
    QString option(const QString &name, const QString &fallback = QString()) const
    {
        return m_options.value(name, fallback);
    }

private:
    QStringList m_positional;
    QHash<QString, QString> m_options;
};
