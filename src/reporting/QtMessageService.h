#pragma once

#include "MessageService.h"

// Production message boxes: QMessageBox, modal to the active window.
class QtMessageService final : public MessageService
{
public:
    Button ask(const QString &caption, const QString &text, Icon icon, Buttons buttons,
               Button defaultButton) override;
    void showMessage(const QString &text) override;
};
