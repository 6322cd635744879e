#include "StderrMessages.h"

#include <QTextStream>

MessageService::Button StderrMessages::ask(const QString &, const QString &text, Icon, Buttons,
                                           Button defaultButton)
{
    say(text);
    return defaultButton;
}

void StderrMessages::showMessage(const QString &text)
{
    say(text);
}

void StderrMessages::say(const QString &text)
{
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    QTextStream(stderr) << line.simplified() << '\n';
}
