#pragma once

#include "Seam.h"

#include <QFlags>
#include <QString>

// Every message box and plain message of the module goes through here, so
// that tests can answer them from a script and fail on unexpected ones.
class MessageService
{
public:
    enum class Icon { None, Information, Warning, Error, Question };
    enum Button {
        NoButton = 0,
        Ok = 0x1,
        Cancel = 0x2,
        Yes = 0x4,
        No = 0x8,
        Abort = 0x10,
        Retry = 0x20,
        Ignore = 0x40,
    };
    Q_DECLARE_FLAGS(Buttons, Button)

    virtual ~MessageService() = default;

    // A box with a caption, icon and buttons; returns the button pressed
    // (the default button's value when the box is closed otherwise).
    virtual Button ask(const QString &caption, const QString &text, Icon icon,
                       Buttons buttons, Button defaultButton) = 0;
    // A plain message with the application's title and an OK button.
    virtual void showMessage(const QString &text) = 0;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MessageService::Buttons)

// What a program without a screen (haulix-admin, the logic tests) does
// with a box: writes it to the standard error and takes its default
// button. Programs with a screen choose QtMessageService at start.
class ConsoleMessageService final : public MessageService
{
public:
    Button ask(const QString &caption, const QString &text, Icon icon, Buttons buttons,
               Button defaultButton) override;
    void showMessage(const QString &text) override;
};

using MessageServices = Seam<MessageService, ConsoleMessageService>;

namespace Messages {

// "Błąd" with an exclamation icon and OK: how table objects report a failure.
void error(const QString &text);
// Caption, text and icon with OK.
void inform(const QString &caption, const QString &text,
            MessageService::Icon icon = MessageService::Icon::Information);
// A Yes/No question with the question icon; true for Yes.
bool confirm(const QString &caption, const QString &text,
             MessageService::Button defaultButton = MessageService::Yes);

} // namespace Messages
