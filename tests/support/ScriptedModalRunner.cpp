#include "ScriptedModalRunner.h"

#include <gtest/gtest.h>

int ScriptedModalRunner::run(QDialog &dialog)
{
    const QString className = QString::fromLatin1(dialog.metaObject()->className());
    m_ran.push_back(className);
    if (m_expected.empty() || m_expected.front().className != className) {
        ADD_FAILURE() << "unexpected modal dialog " << className.toStdString();
        return 2;   // as if the user had closed it
    }
    const Expected expected = std::move(m_expected.front());
    m_expected.pop_front();
    dialog.show();
    const int result = expected.handler(dialog);
    if (dialog.isVisible())
        dialog.hide();
    dialog.setResult(result);
    return result;
}

ScriptedModalRunner &scriptedModalRunner()
{
    auto *runner = dynamic_cast<ScriptedModalRunner *>(&ModalRunners::instance());
    if (!runner)
        throw std::logic_error("no scripted modal runner installed");
    return *runner;
}
