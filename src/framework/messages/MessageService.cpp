#include "MessageService.h"

#include "QtMessageService.h"

namespace {

std::unique_ptr<MessageService> &installed()
{
    static std::unique_ptr<MessageService> service;
    return service;
}

} // namespace

MessageService &MessageService::instance()
{
    static QtMessageService builtIn;
    MessageService *service = installed().get();
    return service ? *service : builtIn;
}

std::unique_ptr<MessageService> MessageService::install(std::unique_ptr<MessageService> service)
{
    std::unique_ptr<MessageService> previous = std::move(installed());
    installed() = std::move(service);
    return previous;
}

void Messages::error(const QString &text)
{
    MessageService::instance().ask(QStringLiteral("Błąd"), text, MessageService::Icon::Warning,
                                   MessageService::Ok, MessageService::Ok);
}

void Messages::inform(const QString &caption, const QString &text, MessageService::Icon icon)
{
    MessageService::instance().ask(caption, text, icon, MessageService::Ok, MessageService::Ok);
}

bool Messages::confirm(const QString &caption, const QString &text, MessageService::Button defaultButton)
{
    return MessageService::instance().ask(caption, text, MessageService::Icon::Question,
                                          MessageService::Yes | MessageService::No, defaultButton)
        == MessageService::Yes;
}
