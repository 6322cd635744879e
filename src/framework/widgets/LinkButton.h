#pragma once

#include <QAbstractButton>
#include <QAction>

// A button that stands for an action: pressing it triggers the action and
// it is enabled exactly when the action is.
inline void linkButton(QAbstractButton *button, QAction *action)
{
    QObject::connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::enabledChanged, button, &QWidget::setEnabled);
    button->setEnabled(action->isEnabled());
}
