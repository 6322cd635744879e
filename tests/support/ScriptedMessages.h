#pragma once

#include "MessageService.h"

#include <QString>

#include <deque>
#include <vector>

// Test double of the message service: records every box and answers from a
// queue of expected boxes. A box nobody expected fails the running test.
class ScriptedMessages final : public MessageService
{
public:
    struct Shown
    {
        QString caption;
        QString text;
        Icon icon = Icon::None;
        Buttons buttons;
    };

    Button ask(const QString &caption, const QString &text, Icon icon, Buttons buttons,
               Button defaultButton) override;
    void showMessage(const QString &text) override;

    // The next box is expected and answered with this button.
    void expect(Button answer = Ok) { m_answers.push_back(answer); }

    const std::vector<Shown> &shown() const { return m_shown; }
    void clear()
    {
        m_shown.clear();
        m_answers.clear();
    }
    bool allAnswered() const { return m_answers.empty(); }

private:
    std::vector<Shown> m_shown;
    std::deque<Button> m_answers;
};

// The scripted service every test runs with (installed by the test main).
ScriptedMessages &scriptedMessages();
