#include "MessageService.h"

#include <QTextStream>

MessageService::Button ConsoleMessageService::ask(const QString &caption, const QString &text,
                                                  Icon, Buttons, Button defaultButton)
{
    QTextStream(stderr) << caption << ": " << text << '\n';
    return defaultButton;
}

void ConsoleMessageService::showMessage(const QString &text)
{
    QTextStream(stderr) << text << '\n';
}

void Messages::error(const QString &text)
{
    MessageServices::instance().ask(QStringLiteral("Błąd"), text, MessageService::Icon::Warning,
                                    MessageService::Ok, MessageService::Ok);
}

void Messages::inform(const QString &caption, const QString &text, MessageService::Icon icon)
{
    MessageServices::instance().ask(caption, text, icon, MessageService::Ok, MessageService::Ok);
}

bool Messages::confirm(const QString &caption, const QString &text,
                       MessageService::Button defaultButton)
{
    return MessageServices::instance().ask(caption, text, MessageService::Icon::Question,
                                           MessageService::Yes | MessageService::No,
                                           defaultButton)
        == MessageService::Yes;
}
