#include "QtMessageService.h"

#include <QApplication>
#include <QMessageBox>

namespace {

QMessageBox::Icon toQt(MessageService::Icon icon)
{
    switch (icon) {
    case MessageService::Icon::Information: return QMessageBox::Information;
    case MessageService::Icon::Warning: return QMessageBox::Warning;
    case MessageService::Icon::Error: return QMessageBox::Critical;
    case MessageService::Icon::Question: return QMessageBox::Question;
    case MessageService::Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

struct ButtonPair
{
    MessageService::Button ours;
    QMessageBox::StandardButton qt;
};

constexpr ButtonPair ButtonMap[] = {
    {MessageService::Ok, QMessageBox::Ok},       {MessageService::Cancel, QMessageBox::Cancel},
    {MessageService::Yes, QMessageBox::Yes},     {MessageService::No, QMessageBox::No},
    {MessageService::Abort, QMessageBox::Abort}, {MessageService::Retry, QMessageBox::Retry},
    {MessageService::Ignore, QMessageBox::Ignore},
};

} // namespace

MessageService::Button QtMessageService::ask(const QString &caption, const QString &text, Icon icon,
                                             Buttons buttons, Button defaultButton)
{
    QMessageBox box(toQt(icon), caption, text, QMessageBox::NoButton, QApplication::activeWindow());
    for (const ButtonPair &pair : ButtonMap) {
        if (buttons.testFlag(pair.ours)) {
            box.addButton(pair.qt);
            if (pair.ours == defaultButton)
                box.setDefaultButton(pair.qt);
        }
    }
    const auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const ButtonPair &pair : ButtonMap) {
        if (pair.qt == pressed)
            return pair.ours;
    }
    return defaultButton;
}

void QtMessageService::showMessage(const QString &text)
{
    ask(QApplication::applicationDisplayName(), text, Icon::None, Ok, Ok);
}
