#pragma once

#include "ModalRunner.h"

#include <QDialog>
#include <QString>

#include <deque>
#include <functional>
#include <vector>

// Test double of the modal runner: each expected dialog is answered by a
// handler that plays the user (fills fields, presses buttons) and returns
// the dialog's result. The dialog is shown while the handler runs, so its
// show-time code has run. A dialog nobody expected fails the test and ends
// with 2 (cancel).
class ScriptedModalRunner final : public ModalRunner
{
public:
    template <class Dialog>
    void expect(std::function<int(Dialog &)> handler)
    {
        m_expected.push_back({QString::fromLatin1(Dialog::staticMetaObject.className()),
                              [handler](QDialog &dialog) {
                                  return handler(static_cast<Dialog &>(dialog));
                              }});
    }

    int run(QDialog &dialog) override;

    // Class names of the dialogs run, in order.
    const std::vector<QString> &ran() const { return m_ran; }
    bool allRun() const { return m_expected.empty(); }
    void clear()
    {
        m_expected.clear();
        m_ran.clear();
    }

private:
    struct Expected
    {
        QString className;
        std::function<int(QDialog &)> handler;
    };
    std::deque<Expected> m_expected;
    std::vector<QString> m_ran;
};

// The runner every test runs with (installed by the test main).
ScriptedModalRunner &scriptedModalRunner();
