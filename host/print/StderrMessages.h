#pragma once

#include "MessageService.h"

// Messages of a program without a screen: each goes to stderr as one line
// and every question takes its default answer.
class StderrMessages final : public MessageService
{
public:
    Button ask(const QString &caption, const QString &text, Icon icon, Buttons buttons,
               Button defaultButton) override;
    void showMessage(const QString &text) override;

    // One line: the breaks of a message box's text become blanks.
    static void say(const QString &text);
};
