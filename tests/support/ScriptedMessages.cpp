#include "ScriptedMessages.h"

#include <gtest/gtest.h>

MessageService::Button ScriptedMessages::ask(const QString &caption, const QString &text, Icon icon,
                                             Buttons buttons, Button defaultButton)
{
    m_shown.push_back({caption, text, icon, buttons});
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected message box \"" << caption.toStdString() << "\": "
                      << text.toStdString();
        return defaultButton;
    }
    const Button answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

void ScriptedMessages::showMessage(const QString &text)
{
    ask(QString(), text, Icon::None, Ok, Ok);
}

ScriptedMessages &scriptedMessages()
{
    auto *messages = dynamic_cast<ScriptedMessages *>(&MessageServices::instance());
    if (!messages)
        throw std::logic_error("no scripted message service installed");
    return *messages;
}
